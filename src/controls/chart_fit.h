// What a chart shows at first, and where its marks and names have room. Depends on the values alone, not on the size of
// the picture.
#pragma once

#include <string>
#include <vector>

#include "controls/chart.h"

namespace orby {

struct ChartRange {
  double lower = 0;
  double upper = 0;

  double Size() const { return upper - lower; }
  // The position of a value: 0 at the start of the range, 1 at its end.
  double ShareOf(double value) const { return (value - lower) / Size(); }
};

struct ChartExtent {
  ChartRange x;
  ChartRange y;
};

// Returns true if the line does not make the rest of the chart too small. A line that is not near is only named.
bool IsNear(const Chart& chart, const ChartLine& line);

// Returns the ranges that show all series, the own point and the near lines with a small margin. A chart without
// extent gets surroundings.
ChartExtent WholeExtent(const Chart& chart);

// Returns true if the legend is below the plot, where the long names of kept curves have room. Otherwise it is in the
// free corner.
bool HasLegendBelow(const Chart& chart);

struct ChartCorner {
  bool isRight = true;
  bool isTop = true;
};

// Returns the corner of the extent with the greatest distance from points, lines and their names.
ChartCorner FreeCorner(const Chart& chart, const ChartExtent& extent);

// Returns the side of the own point on which its name is away from the curve: rising curves leave room below on the
// right and above on the left.
ChartCorner SideOfOwnName(const Chart& chart, const ChartExtent& extent);

// Returns the positions of at most `most` ticks in the range: multiples of 1, 2 or 5 times a power of ten. Requires a
// range with a size and `most` of at least 2.
std::vector<double> TicksIn(const ChartRange& range, int most);

// Returns the text of a value between ticks of this distance, without the digits that only its computation has.
std::string TickText(double value, double step);

}  // namespace orby
