// A study of a design whose numbers are not known exactly: what varies, how it is sampled, and what is followed.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "design/field.h"
#include "sampling/correlation.h"
#include "sampling/distribution.h"
#include "sampling/scheme.h"

namespace orby {

// A number of the design that varies.
struct StudyInput {
  std::string Name;  // in messages: "depth of cover"
  SingleField Field;
  Distribution Law;
  bool operator==(const StudyInput&) const = default;
};

struct Study {
  static constexpr std::uint64_t LeastSamples = 1000;
  static constexpr std::uint64_t MostSamples = 10'000'000;
  static constexpr std::uint64_t LeastBatch = 100;
  static constexpr std::uint64_t MostBatch = 100'000;
  static constexpr std::uint64_t LeastBatches = 10;

  std::vector<StudyInput> Inputs;
  SquareMatrix Spearman;  // rank correlations of the inputs in their order; of size 0 when all are independent
  Scheme Sampling = Scheme::LatinHypercube;
  std::uint64_t Seed = 1;
  std::uint64_t Samples = 100'000;
  std::uint64_t BatchSize = 10'000;
  double Confidence = 0.95;
  // The width of the confidence intervals of all probabilities at which the study may end early.
  std::optional<double> StopWidth;
  // Keys of the figures to follow; see studied_figures.h. None: all figures of what the design analyses and uses.
  std::vector<std::string> Figures;
  bool operator==(const Study&) const = default;
};

// Returns what is wrong with a study as a sentence that names the input, or an empty text.
std::string FaultOf(const Study& study);

// The batches of a study. There are at least ten, so a small study has smaller batches than its batch size. All batches
// are complete, so their samples may be somewhat more than those asked for.
struct BatchPlan {
  std::uint64_t Size = 0;
  std::uint32_t Count = 0;
};
BatchPlan PlanOf(const Study& study);

}  // namespace orby
