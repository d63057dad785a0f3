// The charts of a study's result as drawings.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "design/units.h"
#include "sampling/study_run.h"
#include "sketches/drafting.h"

namespace orby {

enum class StudyChart : std::uint8_t { Histogram, Cumulative, Ranks, Convergence, Scatter };
// By StudyChart.
inline constexpr std::array<std::string_view, 5> StudyChartNames{"Histogram", "Cumulative curve", "Rank correlations",
                                                                 "Convergence", "Scatter"};

// A result and what is chosen of it.
struct StudyView {
  const StudyResult& Result;
  const Study& Settings;
  const Design& Studied;
  std::size_t Figure = 0;   // of the histogram, the cumulative curve and the rank correlations
  std::size_t Verdict = 0;  // of the convergence
  std::size_t Across = 0;   // of the scatter: first the inputs, then the figures
  std::size_t Up = 0;
};

// Returns the names of the inputs and the figures with their units, as the scatter counts them.
std::vector<std::string> ScatterNames(const StudyResult& result, const Study& study, UnitSystem units);

// Returns a chart, and what it shows in words. What there is nothing to show of is said on the drawing.
Sketch StudySketch(const StudyView& view, StudyChart chart, const SheetSize& sheet);

// Returns the words of an empty sheet.
Sketch EmptyStudySketch(const std::string& words, const SheetSize& sheet);

}  // namespace orby
