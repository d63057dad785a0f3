// The presentation of a curve: titles, names, colours, and the format that the chart and the settings share.
//
// Curves have the indices 0..9. They show one of three dependent variables: 0 suggested PSUP, 1 rock load in entries, 2
// rock load in intersections.
#pragma once

#include <string>

#include "controls/chart.h"
#include "core/program.h"

namespace orby {

// Returns the dependent variable of a curve. Throws RuntimeError 9 outside 0..9.
Integer DependentVariable(Integer curveIndex);

// Sets all axis titles to the variables' labels with the project's units, and notes these units.
void ComposeAxisTitles(Program& program);
// Does the same only if the curve has no title yet or the titles are in the other unit system. Throws RuntimeError 9
// outside 0..9.
void PrepareAxisTitles(Program& program, Integer curveIndex);

// Returns the colour of a series, counted from 1, as blue * 65536 + green * 256 + red. Throws RuntimeError 9 above 6.
int CurveColors(Integer series);

// Returns the legend of a newly drawn curve.
std::string LegendText(Integer curveIndex);
// Returns the name for the read-out and for spreadsheet columns. Both rock loads have the same one.
std::string ShortCurveName(Integer curveIndex);
// Returns the legend of a series, counted from 1, in a chart whose format has changed: rock loads are numbered.
std::string ReformattedLegendText(Integer curveIndex, Integer series);
// Returns the variable that the curve shows, such as "Suggested PSUP".
std::string DependentName(Integer curveIndex);
// Returns the curve in words, such as "Suggested PSUP vs Depth of Cover".
std::string CurveTitle(Integer curveIndex);

// Returns the quantity of a measure, whose unit it has. None for plain numbers and degrees.
UnitSuffix SuffixOf(Measure measure);

// Returns the titles of both axes as they are composed: the variables' labels with the units.
struct AxisTitles {
  std::string X;
  std::string Y;
};
AxisTitles ComposedTitles(Integer curveIndex, UnitSystem units);

// Returns the computed points, with both coordinates in double precision. Throws RuntimeError 9 if there are fewer than
// the curve says.
ChartSeries PointsOf(const Curve& curve);

// Returns the name of the design's own point on a curve.
std::string OwnPointName(Integer curveIndex);
// Returns the name of a reference line with its value, such as "Actual PSUP 9.9".
std::string ReferenceName(const CurveReference& reference);

// Sets the chart's titles and grid lines for one curve. Throws RuntimeError 9 outside 0..9.
void ApplyTitlesAndGrid(const GraphSettings& graph, Integer curveIndex, Chart& chart);
// Marks the point of the design, if there is one, and what the curve is compared with.
void MarkDesign(const std::optional<CurvePoint>& own, const std::vector<CurveReference>& references, Integer curveIndex,
                Chart& chart);
// Sets the line and symbols of a series by graph style and symbol size. A kept series stays a line.
void ApplyStyle(const GraphSettings& graph, ChartSeries& series);
// Applies the whole format to a chart that is already drawn. The legend texts change with it, except those of kept
// series.
void Reformat(const GraphSettings& graph, Integer curveIndex, Chart& chart);

// Reads the format back from the chart. A chart without series leaves the symbol size unchanged.
void StoreFormat(const Chart& chart, Integer curveIndex, GraphSettings& graph);

}  // namespace orby
