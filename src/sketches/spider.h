// A spider chart: a figure over the way of several inputs from their present values to their low and high ends.
#pragma once

#include <string>
#include <vector>

#include "sketches/drafting.h"

namespace orby {

struct SpiderLine {
  std::string Name;
  // From left to right. X: the way in percent, -100 at the low end, 0 at the present value and 100 at the high end. Y:
  // the figure there, NaN where there is none.
  std::vector<ScenePoint> Points;
  std::string LowText;  // the figure at both ends
  std::string HighText;
};

struct Spider {
  std::string Title;
  double Present = 0;  // the figure of the design
  std::string PresentText;
  std::vector<SpiderLine> Lines;  // the most important first
  std::size_t More = 0;           // how many others there are
};

// So many lines are told apart by their colours and dashes.
inline constexpr std::size_t MostSpiderLines = 8;

// Draws the lines, with their names on the right of the plot. As many lines are drawn as names have room; the facts
// tell how many are left out.
Sketch SpiderSketch(const Spider& spider, const SheetSize& sheet);

}  // namespace orby
