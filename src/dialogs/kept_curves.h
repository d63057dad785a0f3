// Curves that the user keeps for comparison. They last until the program ends.
#pragma once

#include <string>
#include <vector>

#include "controls/chart.h"
#include "core/program.h"
#include "drawings/scene.h"

namespace orby {

// The kept curves that one chart can show. There is a colour for each.
inline constexpr int MostKept = 3;

// Returns the colour of a kept curve by its position among those in the chart, counted from 0. Requires a position
// below MostKept.
Ink KeptInk(std::size_t position);

// Stores the drawn curve among the kept ones. Requires MayKeep.
void KeepCurve(DrawnCurve& drawn, UnitSystem units);
// Returns true if the drawn curve has a point and the chart has a colour left for it.
bool MayKeep(const DrawnCurve& drawn, UnitSystem units);

// Returns the kept curves that have the axes of the drawn one, as series: dashed lines of this width. Curves of another
// figure, another input or the other unit system have other axes.
std::vector<ChartSeries> KeptSeries(const DrawnCurve& drawn, UnitSystem units, int width);

// Returns how many kept curves are in the chart and how many are not. Empty if none is kept.
std::string KeptSummary(const DrawnCurve& drawn, UnitSystem units);

}  // namespace orby
