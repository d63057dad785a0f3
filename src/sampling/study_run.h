// Runs a study: samples the inputs, analyses each sampled design, and gathers the statistics.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "design/catalog_lists.h"
#include "sampling/statistics.h"
#include "sampling/study.h"

namespace orby {

struct FigureResult {
  const StudiedFigure* Figure = nullptr;
  FigureValue AtDesign;  // of the design itself
  Bins Histogram;        // fixed after the first batch
  FigureSums Sums;
  std::uint64_t Missing = 0;  // samples in which an input that the figure needs was missing
  std::uint64_t Failed = 0;   // samples in which the computation ended with a run-time error
  int FirstError = 0;         // the number of the first such error
  std::optional<Interval> MeanInterval;
  // With each input, from the subsample. Nothing if the figure or the input is the same in all samples.
  std::vector<std::optional<double>> RankCorrelations;
};

struct VerdictResult {
  StudiedVerdict Judged;
  Holding AtDesign{};
  ResultCounts Counts;
  // The probability that the judgement falls short, among the samples in which it could be made.
  double Probability = 0;
  // From the means of the batches by Student's t, but at least as wide on each side as the exact limit for an event
  // that did not occur: batches that hardly differ, because the event is rare or the strata are fine, do not tell more
  // than that. Nothing for a single batch.
  std::optional<Interval> Confidence;
};

// What was known after a batch.
struct ConvergencePoint {
  std::uint64_t Samples = 0;
  std::vector<double> Probabilities;  // of each judgement
  std::vector<Interval> Intervals;    // empty after the first batch
  std::vector<double> Means;          // of each figure
};

// Columns of a random selection of samples, in no order, for ranks and pictures. A figure without a value is a NaN.
struct Subsample {
  static constexpr std::size_t Most = 100'000;

  std::vector<std::vector<Single>> Inputs;
  std::vector<std::vector<Single>> Figures;
  std::size_t Size() const { return Inputs.empty() ? 0 : Inputs.front().size(); }
};

enum class StudyEnd : std::uint8_t {
  Complete,
  NarrowEnough,  // the intervals reached the width at which the study ends
  Cancelled,
};

struct StudyResult {
  StudyEnd End = StudyEnd::Complete;
  std::uint64_t Samples = 0;
  std::uint64_t BatchSize = 0;
  std::uint32_t Batches = 0;
  std::vector<FigureResult> Figures;
  std::vector<VerdictResult> Verdicts;
  std::vector<ConvergencePoint> Convergence;
  Subsample Chosen;
};

struct StudyProgress {
  std::uint32_t BatchesDone = 0;
  std::uint32_t BatchesPlanned = 0;
  std::uint64_t SamplesDone = 0;
};

// Returns false to cancel the study. It is called on the thread that runs the study, after each batch.
using StudyListener = std::function<bool(const StudyProgress&)>;

// Runs a study on a design. The design must be the one that the report shows (AsReported of the project). Each sampled
// number replaces the number of its field and is not rounded, also a rating. Everything else is computed as for the
// report.
//
// threads      0: as many as there are processors
// Requires FaultOf(study) to be empty. The same study of the same design has the same result on any number of threads.
// It ends only after complete batches.
StudyResult RunStudy(const Design& design, const Catalogs& catalogs, const Study& study, unsigned threads = 0,
                     const StudyListener& listener = nullptr);

}  // namespace orby
