// The figures and judgements of the samples of one batch.
#pragma once

#include <span>
#include <vector>

#include "design/catalog_lists.h"
#include "sampling/batch.h"
#include "sampling/statistics.h"
#include "sampling/study.h"

namespace orby {

// The figures of one sample each, column by column, and what is known of a whole batch.
struct BatchValues {
  SampleTable Inputs;
  BatchMaker::Workspace Workspace;
  std::vector<std::vector<Single>> Figures;  // a NaN if a figure has no value

  std::vector<FigureSums> Sums;
  std::vector<std::uint64_t> Missing;
  std::vector<std::uint64_t> Failed;
  std::vector<int> FirstError;
  std::vector<ResultCounts> Results;  // of the judgements, in the order of Judge
};

// Analyses sampled designs on one thread.
class BatchAnalysis {
 public:
  BatchAnalysis(const Design& design, const Catalogs& catalogs, const Study& study,
                std::span<const StudiedFigure* const> figures);

  // Replaces all of `values` but the sums by those of this batch.
  void Run(const BatchMaker& maker, std::uint32_t batch, BatchValues& values);

 private:
  void Clear(BatchValues& values, std::size_t samples) const;
  void Analyse(BatchValues& values, std::size_t sample);

  Design design_;
  const Catalogs& catalogs_;
  const Study& study_;
  std::span<const StudiedFigure* const> figures_;
};

// Returns the figures that a study of this design follows.
std::vector<const StudiedFigure*> FollowedFigures(const Study& study, const RoofSupport& design);

}  // namespace orby
