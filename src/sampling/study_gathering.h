// Gathers the batches of a study into its result.
#pragma once

#include "sampling/batch_values.h"
#include "sampling/study_engine.h"
#include "sampling/study_run.h"

namespace orby {

// Replaces samples by later ones so that each sample of the study is chosen with the same probability (algorithm R of
// Vitter, ACM Transactions on Mathematical Software 11, 1985).
class SampleChooser {
 public:
  SampleChooser(Subsample& chosen, std::uint64_t seed);

  void Take(const BatchValues& values);

 private:
  void Put(const BatchValues& values, std::size_t sample, std::size_t place);

  Subsample& chosen_;
  StudyEngine engine_;
  std::uint64_t seen_ = 0;
};

class StudyGathering {
 public:
  StudyGathering(const Design& design, const Catalogs& catalogs, const Study& study, const BatchPlan& plan,
                 std::span<const StudiedFigure* const> figures);

  // The bins of the figures, from the first batch.
  void FixBins(const BatchValues& first);
  // Sums the figures of a batch. May be called on several threads once the bins are fixed.
  void Sum(BatchValues& values) const;
  // Merges the next batch, in the order of their numbers.
  void Merge(const BatchValues& values);
  // Returns true if no confidence interval is wider than the study wants.
  bool IsNarrowEnough() const;

  StudyResult& Result() { return result_; }

 private:
  void MergeVerdict(std::size_t place, const ResultCounts& counts);
  void AddConvergence();

  const Study& study_;
  StudyResult result_;
  SampleChooser chooser_;
  std::vector<BatchMeans> verdictMeans_;
  std::vector<BatchMeans> figureMeans_;
};

// Computes the rank correlations of each figure with each input from the subsample.
void FindRankCorrelations(StudyResult& result, unsigned threads);

}  // namespace orby
