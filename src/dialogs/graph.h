// What the graph of a curve shows: titles, names and colours, and the format that the chart and the settings exchange.
//
// The curves are counted from 0 to 9. Three dependent variables are drawn over them: 0 suggested PSUP, 1 rock load in
// entries, 2 rock load in intersections.
#pragma once

#include <string>

#include "controls/chart.h"
#include "core/program.h"

namespace orby {

// The dependent variable of a curve. Throws RuntimeError 9 outside 0..9.
Integer DependentVariable(Integer curveIndex);

// Sets all axis titles to the variables' labels and their units under the units of the project, which are noted.
void ComposeAxisTitles(Program& program);
// The same where the curve has no title yet or the titles are those of the other unit system. Throws RuntimeError 9
// outside 0..9.
void PrepareAxisTitles(Program& program, Integer curveIndex);

// Blue * 65536 + green * 256 + red of a series, counted from 1. Throws RuntimeError 9 beyond the sixth: there are no
// more colours.
int CurveColors(Integer series);

// The legend of a curve as it is drawn first.
std::string LegendText(Integer curveIndex);
// Its name in the read-out and over the columns of a spreadsheet, the same for both rock loads.
std::string ShortCurveName(Integer curveIndex);
// The legend of a series, counted from 1, once the chart was given another format: rock loads are numbered.
std::string ReformattedLegendText(Integer curveIndex, Integer series);
// The curve in words: "Suggested PSUP vs Depth of Cover".
std::string CurveTitle(Integer curveIndex);

// The chart's titles and grid lines for one curve. Throws RuntimeError 9 outside 0..9.
void ApplyTitlesAndGrid(const GraphSettings& graph, Integer curveIndex, Chart& chart);
// Line and symbols of a series by graph style and symbol size.
void ApplyStyle(const GraphSettings& graph, ChartSeries& series);
// The whole format to a chart that is drawn already, whose legend texts change by it.
void Reformat(const GraphSettings& graph, Integer curveIndex, Chart& chart);

// Reads the format back from the chart. A chart without a series leaves the symbol size as it is.
void StoreFormat(const Chart& chart, Integer curveIndex, GraphSettings& graph);

}  // namespace orby
