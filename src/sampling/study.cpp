#include "sampling/study.h"

#include <algorithm>

#include "sampling/studied_figures.h"

namespace orby {
namespace {

bool IsWithin(std::uint64_t number, std::uint64_t least, std::uint64_t most) {
  return number >= least && number <= most;
}

std::string InputsFault(const Study& study) {
  if (study.Inputs.empty()) return "No input of the study varies.";
  for (std::size_t i = 0; i < study.Inputs.size(); ++i) {
    const StudyInput& input = study.Inputs[i];
    for (std::size_t before = 0; before < i; ++before) {
      if (study.Inputs[before].Field == input.Field) return input.Name + ": this input is there twice.";
    }
    if (std::string fault = FaultOf(input.Law, input.Name); !fault.empty()) return fault;
  }
  return {};
}

std::string RunFault(const Study& study) {
  if (!IsWithin(study.Samples, Study::LeastSamples, Study::MostSamples)) {
    return "The number of samples must be between 1,000 and 10,000,000.";
  }
  if (!IsWithin(study.BatchSize, Study::LeastBatch, Study::MostBatch)) {
    return "The samples of a batch must be between 100 and 100,000.";
  }
  if (!(study.Confidence >= 0.5 && study.Confidence <= 0.9999)) return "The confidence must be between 0.5 and 0.9999.";
  if (study.StopWidth && !(*study.StopWidth > 0 && *study.StopWidth < 1)) {
    return "The width of the intervals at which the study ends must be between 0 and 1.";
  }
  for (const std::string& key : study.Figures) {
    if (FigureWithKey(key) == nullptr) return "There is no figure \"" + key + "\".";
  }
  return {};
}

}  // namespace

std::string FaultOf(const Study& study) {
  if (std::string fault = InputsFault(study); !fault.empty()) return fault;
  if (study.Spearman.Size() != 0) {
    std::vector<std::string> names;
    for (const StudyInput& input : study.Inputs) names.push_back(input.Name);
    if (std::string fault = CorrelationFault(study.Spearman, names); !fault.empty()) return fault;
  }
  return RunFault(study);
}

BatchPlan PlanOf(const Study& study) {
  const auto divided = [](std::uint64_t whole, std::uint64_t part) { return (whole + part - 1) / part; };
  const std::uint64_t size = std::min(study.BatchSize, divided(study.Samples, Study::LeastBatches));
  return {size, static_cast<std::uint32_t>(divided(study.Samples, size))};
}

}  // namespace orby
