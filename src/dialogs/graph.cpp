#include "dialogs/graph.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

#include "base/number_text.h"
#include "base/runtime_error.h"

namespace orby {
namespace {

constexpr std::string_view PsupName = "Sug.PSUP";

struct Dependent {
  std::string_view label;
  std::string_view legend;
  std::string_view shortName;
};

// By CurveFigure.
constexpr std::array<Dependent, 3> Dependents{{
    {"Suggested PSUP", PsupName, PsupName},
    {"Rock Load Entries", "Rock Load Straights", "RockLoad"},
    {"Rock Load Intersections", "Rock Load Intersections", "RockLoad"},
}};

// By ReferenceKind.
constexpr std::array<std::string_view, 6> ReferenceNames{
    "Actual PSUP",         "Suggested sum of diagonals", "Capacity of cable bolts",
    "Capacity of trusses", "Capacity of roof bolts",     "Capacity of standing supports"};

constexpr std::array<int, 6> Colours{16711680, 6053069, 0, 25600, 4, 5};

template <class Table>
const auto& At(const Table& table, int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= table.size()) throw RuntimeError(error_number::Subscript);
  return table[static_cast<std::size_t>(index)];
}

const Dependent& DependentOf(Integer curveIndex) { return At(Dependents, DependentVariable(curveIndex)); }

std::string TitleOf(std::string_view label, Measure measure, UnitSystem units) {
  if (measure == Measure::Degrees) return std::string(label) + " (deg)";
  const UnitSuffix suffix = SuffixOf(measure);
  return std::string(label).append(suffix == UnitSuffix::None ? std::string_view() : UnitLabel(suffix, units));
}

bool HasHorizontal(GridLines lines) { return lines == GridLines::Horizontal || lines == GridLines::Both; }

bool HasVertical(GridLines lines) { return lines == GridLines::Vertical || lines == GridLines::Both; }

GridLines LinesOf(const Chart& chart) {
  const bool hasHorizontal = chart.AxisY().grid;
  const bool hasVertical = chart.AxisX().grid;
  if (hasHorizontal && hasVertical) return GridLines::Both;
  if (hasHorizontal) return GridLines::Horizontal;
  return hasVertical ? GridLines::Vertical : GridLines::None;
}

}  // namespace

UnitSuffix SuffixOf(Measure measure) {
  switch (measure) {
    case Measure::Length: return UnitSuffix::Length;
    case Measure::LineLoad: return UnitSuffix::LineLoad;
    case Measure::Force: return UnitSuffix::Force;
    case Measure::Plain:
    case Measure::Degrees: break;
  }
  return UnitSuffix::None;
}

Integer DependentVariable(Integer curveIndex) { return NumberOf(SubjectOfCurve(curveIndex).Figure); }

AxisTitles ComposedTitles(Integer curveIndex, UnitSystem units) {
  const CurveSubject& subject = SubjectOfCurve(curveIndex);
  return {TitleOf(subject.Independent, subject.IndependentMeasure, units),
          TitleOf(DependentOf(curveIndex).label, MeasureOf(subject.Figure), units)};
}

void ComposeAxisTitles(Program& program) {
  GraphSettings& graph = program.session.graph;
  const UnitSystem units = program.project.WorkParms.Units;
  for (Integer i = 0; i < CurveCount; ++i) {
    AxisTitles titles = ComposedTitles(i, units);
    graph.XAxisTitle[static_cast<std::size_t>(i)] = std::move(titles.X);
    graph.YAxisTitle[static_cast<std::size_t>(DependentVariable(i))] = std::move(titles.Y);
  }
  graph.GraphUnits = program.project.WorkParms.Units;
}

void PrepareAxisTitles(Program& program, Integer curveIndex) {
  const GraphSettings& graph = program.session.graph;
  if (At(graph.XAxisTitle, curveIndex).empty() || graph.GraphUnits != program.project.WorkParms.Units)
    ComposeAxisTitles(program);
}

int CurveColors(Integer series) { return At(Colours, series - 1); }

std::string LegendText(Integer curveIndex) { return std::string(DependentOf(curveIndex).legend); }

std::string ShortCurveName(Integer curveIndex) { return std::string(DependentOf(curveIndex).shortName); }

std::string ReformattedLegendText(Integer curveIndex, Integer series) {
  const std::string name = ShortCurveName(curveIndex);
  return SubjectOfCurve(curveIndex).Figure == CurveFigure::Support ? name : name + NumberText(series);
}

std::string DependentName(Integer curveIndex) { return std::string(DependentOf(curveIndex).label); }

ChartSeries PointsOf(const Curve& curve) {
  const auto count = static_cast<std::size_t>(curve.CurvePointCount);
  const auto& [xs, ys] = curve.CurvePoints;
  if (count > xs.size() || count > ys.size()) throw RuntimeError(error_number::Subscript);
  ChartSeries series;
  std::copy_n(xs.begin(), count, std::back_inserter(series.x));
  std::copy_n(ys.begin(), count, std::back_inserter(series.y));
  return series;
}

std::string CurveTitle(Integer curveIndex) {
  return DependentName(curveIndex) + " vs " + std::string(SubjectOfCurve(curveIndex).Independent);
}

std::string OwnPointName(Integer curveIndex) {
  // The curves of intersections are computed with the height, the angle and the unit weight of the entries.
  const bool isOfIntersection = SubjectOfCurve(curveIndex).Figure == CurveFigure::IntersectionLoad;
  return isOfIntersection ? "This design, by the inputs of its entries" : "This design";
}

std::string ReferenceName(const CurveReference& reference) {
  const std::string_view name = At(ReferenceNames, NumberOf(reference.What));
  return std::string(name) + " " + FormatNumber(reference.Value, OneDecimal);
}

void ApplyTitlesAndGrid(const GraphSettings& graph, Integer curveIndex, Chart& chart) {
  // Horizontal lines belong to the vertical axis, and vertical lines to the horizontal one.
  chart.SetAxisX({At(graph.XAxisTitle, curveIndex), HasVertical(graph.GridStyle)});
  chart.SetAxisY({At(graph.YAxisTitle, DependentVariable(curveIndex)), HasHorizontal(graph.GridStyle)});
  chart.SetHeading(graph.GraphTitle);
}

void MarkDesign(const std::optional<CurvePoint>& own, const std::vector<CurveReference>& references, Integer curveIndex,
                Chart& chart) {
  std::optional<ChartPoint> point;
  if (own) point = ChartPoint{own->X, own->Y, OwnPointName(curveIndex)};
  chart.SetOwn(std::move(point));
  std::vector<ChartLine> lines;
  lines.reserve(references.size());
  for (const CurveReference& reference : references) {
    lines.push_back({reference.IsOfX, reference.Value, ReferenceName(reference)});
  }
  chart.SetReferences(std::move(lines));
}

void ApplyStyle(const GraphSettings& graph, ChartSeries& series) {
  series.width = graph.SymbolSize;
  if (series.isKept) return;
  series.symbolSize = graph.SymbolSize;
  series.hasLine = graph.GraphStyle != CurveStyle::SymbolsOnly;
  series.hasSymbols = graph.GraphStyle != CurveStyle::LinesOnly;
}

void Reformat(const GraphSettings& graph, Integer curveIndex, Chart& chart) {
  ApplyTitlesAndGrid(graph, curveIndex, chart);
  chart.SetLegendShown(graph.CurveLegend == 1);
  std::vector<ChartSeries> all = chart.Series();
  Integer number = 0;
  for (ChartSeries& series : all) {
    ApplyStyle(graph, series);
    ++number;
    if (!series.isKept) series.legend = ReformattedLegendText(curveIndex, number);
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
  graph.GridStyle = LinesOf(chart);
}

}  // namespace orby
