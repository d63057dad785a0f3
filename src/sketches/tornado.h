// A tornado chart: how far a figure moves when each of several inputs goes from its low to its high end.
#pragma once

#include <string>
#include <vector>

#include "sketches/drafting.h"

namespace orby {

struct TornadoBar {
  std::string Name;
  double AtLow = 0;   // the figure at the low end of the input
  double AtHigh = 0;  // at its high end
  std::string LowText;
  std::string HighText;
};

struct Tornado {
  std::string Title;
  double Centre = 0;  // the figure of the design, or 0 for correlations
  std::string CentreText;
  std::vector<TornadoBar> Bars;  // the longest first
};

// Returns what a figure is at both ends of an input, in words.
std::string EndsInWords(const std::string& name, const std::string& lowText, const std::string& highText);

// Returns "3 more are not drawn".
std::string NotDrawnInWords(std::size_t count);

// Draws a bar from the centre to each end, that of the low end in the upper half of its row. As many bars are drawn as
// have room; the facts tell how many are left out.
Sketch TornadoSketch(const Tornado& tornado, const SheetSize& sheet);

}  // namespace orby
