// Batches of samples: numbered, and each seeded by its number, so that a batch is the same on any thread.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "sampling/correlation.h"
#include "sampling/prepared_distribution.h"
#include "sampling/scheme.h"

namespace orby {

// Columns of numbers, one for each input, as long as the batch.
class SampleTable {
 public:
  void Resize(std::size_t columns, std::size_t rows);

  std::size_t Columns() const { return columns_; }
  std::size_t Rows() const { return rows_; }
  std::span<double> Column(std::size_t column) { return std::span(numbers_).subspan(column * rows_, rows_); }
  std::span<const double> Column(std::size_t column) const {
    return std::span(numbers_).subspan(column * rows_, rows_);
  }

 private:
  std::size_t columns_ = 0;
  std::size_t rows_ = 0;
  std::vector<double> numbers_;
};

// Makes the batches of a study. May be used on several threads at once, with a table and a workspace for each.
//
// Correlated inputs have a normal copula. In random and Sobol batches, normal numbers are combined by the Cholesky
// factor of the correlations and turned back into probabilities. A Latin hypercube keeps its strata: they are put in
// the order of such normal numbers, as Iman and Conover do (Communications in Statistics B 11, 1982), after the
// accidental correlations of these numbers have been removed.
//
// A Sobol batch is scrambled by a random lower triangular matrix of bits for each input, and by a random shift of bits
// (Matousek, Journal of Complexity 14, 1998).
class BatchMaker {
 public:
  struct Workspace {
    std::vector<std::uint32_t> Strata;
    std::vector<std::uint64_t> Order;
    SampleTable Scores;
    std::vector<double> Row;
  };

  // `spearman` has the rank correlations of the inputs; see CorrelationFault. Requires at least two samples.
  BatchMaker(std::span<const Distribution> inputs, const SquareMatrix& spearman, Scheme scheme, std::uint64_t seed,
             std::size_t samples);

  std::size_t Samples() const { return samples_; }

  // Fills the table with probabilities between 0 and 1.
  void FillProbabilities(std::uint32_t batch, SampleTable& table, Workspace& workspace) const;
  // Fills the table with numbers of the distributions.
  void Fill(std::uint32_t batch, SampleTable& table, Workspace& workspace) const;

 private:
  void FillRandom(std::uint32_t batch, SampleTable& table) const;
  void FillSobol(std::uint32_t batch, SampleTable& table) const;
  void FillStrata(std::uint32_t batch, SampleTable& table, Workspace& workspace) const;
  void Correlate(SampleTable& table, Workspace& workspace) const;
  void OrderStrata(SampleTable& table, Workspace& workspace) const;
  void MakeSobolPoints();

  std::vector<PreparedDistribution> inputs_;
  std::vector<std::size_t> correlated_;  // the inputs with a correlation
  SquareMatrix factor_;                  // of their normal correlations
  Scheme scheme_;
  std::uint64_t seed_;
  std::size_t samples_;
  std::vector<double> scores_;              // normal numbers of the middles of the strata
  std::vector<std::uint32_t> sobolPoints_;  // column by column
};

}  // namespace orby
