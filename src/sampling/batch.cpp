#include "sampling/batch.h"

#include <boost/random/sobol.hpp>
#include <boost/random/uniform_int_distribution.hpp>

#include <algorithm>
#include <array>
#include <bit>
#include <numeric>

#include "sampling/ranks.h"
#include "sampling/study_engine.h"

namespace orby {
namespace {

using NormalNumbers = boost::math::normal_distribution<double, SamplingPolicy>;

// Returns the middle of one of 2^32 equal parts of 0..1, so that neither 0 nor 1 occurs.
double MiddleOf(std::uint32_t part) { return (static_cast<double>(part) + 0.5) / 4294967296.0; }

std::uint32_t Bits(StudyEngine& engine) { return static_cast<std::uint32_t>(engine() >> 32); }

// Returns the middle of one of 2^52 equal parts.
double RandomProbability(StudyEngine& engine) {
  return (static_cast<double>(engine() >> 12) + 0.5) / 4503599627370496.0;
}

template <class T>
void Shuffle(std::span<T> items, StudyEngine& engine) {
  for (std::size_t left = items.size(); left > 1; --left) {
    boost::random::uniform_int_distribution<std::uint32_t> place(0, static_cast<std::uint32_t>(left - 1));
    std::swap(items[left - 1], items[place(engine)]);
  }
}

// A random lower triangular matrix of bits with ones on the diagonal, applied to the bits of a number from the highest
// one down, and a random shift. The images of the values of each byte are looked up.
class BitScramble {
 public:
  explicit BitScramble(StudyEngine& engine) {
    for (int byte = 0; byte < 4; ++byte) {
      auto& images = images_[static_cast<std::size_t>(byte)];
      for (int bit = 0; bit < 8; ++bit) {
        const std::uint32_t diagonal = std::uint32_t{1} << (8 * byte + bit);
        images[std::size_t{1} << bit] = diagonal | (Bits(engine) & (diagonal - 1));
      }
      for (std::size_t value = 1; value < images.size(); ++value) {
        const std::size_t rest = value & (value - 1);
        images[value] = images[rest] ^ images[value ^ rest];
      }
    }
    shift_ = Bits(engine);
  }

  std::uint32_t operator()(std::uint32_t number) const {
    return shift_ ^ images_[0][number & 0xFF] ^ images_[1][(number >> 8) & 0xFF] ^ images_[2][(number >> 16) & 0xFF] ^
           images_[3][number >> 24];
  }

 private:
  std::array<std::array<std::uint32_t, 256>, 4> images_{};
  std::uint32_t shift_ = 0;
};

// Returns the correlations of columns with a mean of 0.
SquareMatrix CorrelationsOf(const SampleTable& table) {
  SquareMatrix correlations = SquareMatrix::Identity(table.Columns());
  const auto product = [&](std::size_t a, std::size_t b) {
    return std::inner_product(table.Column(a).begin(), table.Column(a).end(), table.Column(b).begin(), 0.0);
  };
  for (std::size_t row = 0; row < table.Columns(); ++row) {
    for (std::size_t column = 0; column < row; ++column) {
      // All columns have the same numbers in different orders, so they have one length.
      const double correlation = product(row, column) / product(row, row);
      correlations(row, column) = correlations(column, row) = correlation;
    }
  }
  return correlations;
}

// Solves L x = row for a lower triangle L, in place.
void SolveLower(const SquareMatrix& lower, std::span<double> row) {
  for (std::size_t i = 0; i < row.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) row[i] -= lower(i, k) * row[k];
    row[i] /= lower(i, i);
  }
}

// Replaces the row by L row.
void MultiplyLower(const SquareMatrix& lower, std::span<double> row) {
  for (std::size_t i = row.size(); i-- > 0;) {
    double sum = 0;
    for (std::size_t k = 0; k <= i; ++k) sum += lower(i, k) * row[k];
    row[i] = sum;
  }
}

}  // namespace

void SampleTable::Resize(std::size_t columns, std::size_t rows) {
  columns_ = columns;
  rows_ = rows;
  numbers_.resize(columns * rows);
}

BatchMaker::BatchMaker(std::span<const Distribution> inputs, const SquareMatrix& spearman, Scheme scheme,
                       std::uint64_t seed, std::size_t samples)
    : inputs_(inputs.begin(), inputs.end()), scheme_(scheme), seed_(seed), samples_(samples) {
  for (std::size_t i = 0; i < spearman.Size(); ++i) {
    if (IsCorrelated(spearman, i)) correlated_.push_back(i);
  }
  if (!correlated_.empty()) {
    SquareMatrix among(correlated_.size());
    for (std::size_t row = 0; row < among.Size(); ++row) {
      for (std::size_t column = 0; column < among.Size(); ++column) {
        among(row, column) = spearman(correlated_[row], correlated_[column]);
      }
    }
    factor_ = CholeskyFactor(NormalCorrelation(among)).value();
  }
  if (scheme == Scheme::Sobol) MakeSobolPoints();
  if (scheme == Scheme::LatinHypercube && !correlated_.empty()) {
    scores_.resize(samples);
    for (std::size_t i = 0; i < samples; ++i) {
      scores_[i] =
          boost::math::quantile(NormalNumbers(), (static_cast<double>(i) + 0.5) / static_cast<double>(samples));
    }
  }
}

void BatchMaker::MakeSobolPoints() {
  boost::random::sobol_engine<std::uint32_t, 32> sequence(std::max<std::size_t>(inputs_.size(), 1));
  sobolPoints_.resize(inputs_.size() * samples_);
  // The sequence of the library lacks the first point, which is 0 in each column.
  for (std::size_t row = 1; row < samples_; ++row) {
    for (std::size_t column = 0; column < inputs_.size(); ++column) {
      sobolPoints_[column * samples_ + row] = sequence();
    }
  }
}

void BatchMaker::FillProbabilities(std::uint32_t batch, SampleTable& table, Workspace& workspace) const {
  table.Resize(inputs_.size(), samples_);
  switch (scheme_) {
    case Scheme::LatinHypercube: return FillStrata(batch, table, workspace);
    case Scheme::Sobol: FillSobol(batch, table); break;
    case Scheme::Random: FillRandom(batch, table); break;
  }
  Correlate(table, workspace);
}

void BatchMaker::Fill(std::uint32_t batch, SampleTable& table, Workspace& workspace) const {
  FillProbabilities(batch, table, workspace);
  for (std::size_t column = 0; column < inputs_.size(); ++column) inputs_[column].TakeQuantiles(table.Column(column));
}

void BatchMaker::FillRandom(std::uint32_t batch, SampleTable& table) const {
  StudyEngine engine = EngineOf(seed_, batch);
  for (std::size_t column = 0; column < table.Columns(); ++column) {
    for (double& probability : table.Column(column)) probability = RandomProbability(engine);
  }
}

void BatchMaker::FillSobol(std::uint32_t batch, SampleTable& table) const {
  StudyEngine engine = EngineOf(seed_, batch);
  for (std::size_t column = 0; column < table.Columns(); ++column) {
    const BitScramble scramble(engine);
    const auto points = std::span(sobolPoints_).subspan(column * samples_, samples_);
    std::ranges::transform(points, table.Column(column).begin(),
                           [&](std::uint32_t point) { return MiddleOf(scramble(point)); });
  }
}

// Each column gets the strata in a random order, and a random place within each stratum.
void BatchMaker::FillStrata(std::uint32_t batch, SampleTable& table, Workspace& workspace) const {
  StudyEngine engine = EngineOf(seed_, batch);
  auto& strata = workspace.Strata;
  strata.resize(samples_);
  for (std::size_t column = 0; column < table.Columns(); ++column) {
    std::iota(strata.begin(), strata.end(), 0U);
    Shuffle(std::span(strata), engine);
    for (std::size_t row = 0; row < samples_; ++row) {
      table.Column(column)[row] = (strata[row] + MiddleOf(Bits(engine))) / static_cast<double>(samples_);
    }
  }
  if (!correlated_.empty()) OrderStrata(table, workspace);
}

void BatchMaker::Correlate(SampleTable& table, Workspace& workspace) const {
  if (correlated_.empty()) return;
  const NormalNumbers normal;
  auto& row = workspace.Row;
  row.resize(correlated_.size());
  for (std::size_t i = 0; i < samples_; ++i) {
    for (std::size_t k = 0; k < row.size(); ++k)
      row[k] = boost::math::quantile(normal, table.Column(correlated_[k])[i]);
    MultiplyLower(factor_, row);
    for (std::size_t k = 0; k < row.size(); ++k) {
      // The normal integral of a large number is 1, which has no quantile.
      constexpr double Most = 1 - 1e-16;
      table.Column(correlated_[k])[i] = std::min(boost::math::cdf(normal, row[k]), Most);
    }
  }
}

// The stratum of each sample is known by its probability. Its normal score, made independent of those of the other
// columns and then correlated, tells the rank that the sample shall have.
void BatchMaker::OrderStrata(SampleTable& table, Workspace& workspace) const {
  SampleTable& scores = workspace.Scores;
  scores.Resize(correlated_.size(), samples_);
  for (std::size_t k = 0; k < correlated_.size(); ++k) {
    std::ranges::transform(table.Column(correlated_[k]), scores.Column(k).begin(), [&](double probability) {
      return scores_[static_cast<std::size_t>(probability * static_cast<double>(samples_))];
    });
  }
  // The few samples of a very small batch may depend on each other. They are then correlated as they are.
  const auto accidental = CholeskyFactor(CorrelationsOf(scores));
  auto& row = workspace.Row;
  row.resize(correlated_.size());
  for (std::size_t i = 0; i < samples_; ++i) {
    for (std::size_t k = 0; k < row.size(); ++k) row[k] = scores.Column(k)[i];
    if (accidental) SolveLower(*accidental, row);
    MultiplyLower(factor_, row);
    for (std::size_t k = 0; k < row.size(); ++k) scores.Column(k)[i] = row[k];
  }
  for (std::size_t k = 0; k < correlated_.size(); ++k) {
    PutInOrderOf(scores.Column(k), table.Column(correlated_[k]), workspace.Order);
  }
}

}  // namespace orby
