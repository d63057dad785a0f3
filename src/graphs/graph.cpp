#include "graphs/graph.h"

#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "base/number_text.h"
#include "base/runtime_error.h"

namespace orby {
namespace {

constexpr std::string_view DegreeSuffix = " (deg)";
constexpr std::string_view PsupName = "Sug.PSUP";

enum class Suffix { None, Degrees, Unit };

struct Variable {
  std::string_view label;
  Suffix suffix = Suffix::None;
  int unitRow = 0;  // of a Unit
};

struct Independent {
  Variable variable;
  Integer dependent;
};

struct Dependent {
  Variable variable;
  std::string_view legend;
  std::string_view shortName;
};

constexpr Integer Psup = 0;
constexpr Integer EntryLoad = 1;
constexpr Integer IntersectionLoad = 2;

// By curve.
constexpr std::array<Independent, 10> Independents{{
    {{"CMRR"}, Psup},
    {{"Depth of Cover", Suffix::Unit, unit_row::Length}, Psup},
    {{"Stability Factor"}, Psup},
    {{"Sum of Diagonals", Suffix::Unit, unit_row::Length}, Psup},
    {{"Rock Load Height", Suffix::Unit, unit_row::Length}, EntryLoad},
    {{"Entry Width", Suffix::Unit, unit_row::Length}, EntryLoad},
    {{"Roof Fall Angle", Suffix::Degrees}, EntryLoad},
    {{"Rock Load Height", Suffix::Unit, unit_row::Length}, IntersectionLoad},
    {{"Sum of Diagonals", Suffix::Unit, unit_row::Length}, IntersectionLoad},
    {{"Roof Fall Angle", Suffix::Degrees}, IntersectionLoad},
}};

constexpr std::array<Dependent, 3> Dependents{{
    {{"Suggested PSUP"}, PsupName, PsupName},
    {{"Rock Load Entries", Suffix::Unit, unit_row::LineLoad}, "Rock Load Straights", "RockLoad"},
    {{"Rock Load Intersections", Suffix::Unit, unit_row::Force}, "Rock Load Intersections", "RockLoad"},
}};

constexpr std::array<int, 6> Colours{16711680, 6053069, 0, 25600, 4, 5};

template <class Table>
const auto& At(const Table& table, int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= table.size()) throw RuntimeError(error_number::Subscript);
  return table[static_cast<std::size_t>(index)];
}

const Dependent& DependentOf(Integer curveIndex) { return At(Dependents, DependentVariable(curveIndex)); }

std::string TitleOf(const Variable& variable, UnitSystem units) {
  std::string title(variable.label);
  switch (variable.suffix) {
    case Suffix::None: break;
    case Suffix::Degrees: title += DegreeSuffix; break;
    case Suffix::Unit: title += UnitLabel(variable.unitRow, units); break;
  }
  return title;
}

}  // namespace

Integer DependentVariable(Integer curveIndex) { return At(Independents, curveIndex).dependent; }

void ComposeAxisTitles(Program& program) {
  GraphSettings& graph = program.graph;
  for (std::size_t i = 0; i < Independents.size(); ++i) {
    graph.XAxisTitle[i] = TitleOf(Independents[i].variable, program.WorkParms.Units);
  }
  for (std::size_t i = 0; i < Dependents.size(); ++i) {
    graph.YAxisTitle[i] = TitleOf(Dependents[i].variable, program.WorkParms.Units);
  }
  graph.GraphUnits = program.WorkParms.Units;
}

void PrepareAxisTitles(Program& program, Integer curveIndex) {
  const GraphSettings& graph = program.graph;
  if (At(graph.XAxisTitle, curveIndex).empty() || graph.GraphUnits != program.WorkParms.Units)
    ComposeAxisTitles(program);
}

int CurveColors(Integer series) { return At(Colours, series - 1); }

std::string LegendText(Integer curveIndex) { return std::string(DependentOf(curveIndex).legend); }

std::string ShortCurveName(Integer curveIndex) { return std::string(DependentOf(curveIndex).shortName); }

std::string ReformattedLegendText(Integer curveIndex, Integer series) {
  const std::string name = ShortCurveName(curveIndex);
  return DependentVariable(curveIndex) == Psup ? name : name + NumberText(series);
}

std::string CurveTitle(Integer curveIndex) {
  const std::string dependent(DependentOf(curveIndex).variable.label);
  return dependent + " vs " + std::string(At(Independents, curveIndex).variable.label);
}

void ApplyTitlesAndGrid(const GraphSettings& graph, Integer curveIndex, Chart& chart) {
  // Horizontal lines stand on the vertical axis, and the other way round.
  chart.SetAxisX({At(graph.XAxisTitle, curveIndex), (graph.GridStyle & grid_style::Vertical) != 0});
  chart.SetAxisY(
      {At(graph.YAxisTitle, DependentVariable(curveIndex)), (graph.GridStyle & grid_style::Horizontal) != 0});
  chart.SetHeading(graph.GraphTitle);
}

void ApplyStyle(const GraphSettings& graph, ChartSeries& series) {
  series.width = graph.SymbolSize;
  series.symbolSize = graph.SymbolSize;
  series.hasLine = graph.GraphStyle != graph_style::SymbolsOnly;
  series.hasSymbols = graph.GraphStyle != graph_style::LinesOnly;
}

void Reformat(const GraphSettings& graph, Integer curveIndex, Chart& chart) {
  ApplyTitlesAndGrid(graph, curveIndex, chart);
  chart.SetLegendShown(graph.CurveLegend == 1);
  std::vector<ChartSeries> all = chart.Series();
  Integer number = 0;
  for (ChartSeries& series : all) {
    ApplyStyle(graph, series);
    series.legend = ReformattedLegendText(curveIndex, ++number);
  }
  chart.SetSeries(std::move(all));
}

void StoreFormat(const Chart& chart, Integer curveIndex, GraphSettings& graph) {
  const auto dependent = static_cast<std::size_t>(DependentVariable(curveIndex));
  if (!chart.Series().empty()) graph.SymbolSize = static_cast<Integer>(chart.Series().front().symbolSize);
  graph.CurveLegend = chart.LegendShown() ? 1 : 0;
  graph.GraphTitle = chart.Heading();
  graph.XAxisTitle[static_cast<std::size_t>(curveIndex)] = chart.AxisX().title;
  graph.YAxisTitle[dependent] = chart.AxisY().title;
  graph.GridStyle = 0;
  if (chart.AxisY().grid) graph.GridStyle += grid_style::Horizontal;
  if (chart.AxisX().grid) graph.GridStyle += grid_style::Vertical;
}

}  // namespace orby
