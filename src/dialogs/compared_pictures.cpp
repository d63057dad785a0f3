#include "dialogs/compared_pictures.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/text.h"
#include "dialogs/chart_scene.h"
#include "dialogs/curve_command.h"
#include "dialogs/graph.h"
#include "files/shown_design.h"
#include "sheet/formula_layout.h"
#include "sketches/sketches.h"

namespace orby {
namespace {

constexpr double PictureGap = 6;

double Factor(Measure measure, UnitSystem from, UnitSystem to) {
  return FactorBetween({.Suffix = SuffixOf(measure), .Before = {}}, from, to);
}

// Returns the curve of a design in a unit system. Without points its legend says why. Adds the notice of the sweep to
// the heading, if it is not there yet.
ChartSeries CurveOf(const ComparedDesign& design, const std::string& name, Integer index, UnitSystem units,
                    std::string& heading) {
  ChartSeries series;
  series.legend = name;
  series.width = 5;
  series.hasSymbols = false;
  series.symbolSize = 6;  // of a curve of one point
  if (!design.Row.IsRead()) {
    series.legend += ": " + design.Row.Reason;
    return series;
  }
  const Design studied = AsPreviewed(design.Row.Shown);
  const CurveSweep sweep = GenerateCurve(studied, index);
  if (sweep.Failure) {
    series.legend.append(": cannot be computed, ").append(ErrorDescription(sweep.Failure->number()));
    return series;
  }
  if (sweep.Notice && heading.find(NoticeText(*sweep.Notice)) == std::string::npos) {
    heading.append(". ").append(NoticeText(*sweep.Notice));
  }
  ChartSeries points = PointsOf(sweep.Points);
  const CurveSubject& subject = SubjectOfCurve(index);
  const double x = Factor(subject.IndependentMeasure, studied.Units, units);
  const double y = Factor(MeasureOf(subject.Figure), studied.Units, units);
  for (double& value : points.x) value *= x;
  for (double& value : points.y) value *= y;
  series.x = std::move(points.x);
  series.y = std::move(points.y);
  if (const auto own = DesignPoint(studied, index)) series.own = ChartPoint{own->X * x, own->Y * y, name};
  return series;
}

}  // namespace

Scene SectionOf(const ComparedDesign& design, const Catalogs& catalogs, const SheetSize& sheet) {
  if (!design.Row.IsRead()) return {.Width = sheet.Width, .Height = sheet.Height, .Outlines = {}, .Labels = {}};
  const Design& shown = design.Row.Shown;
  return EntryMiniature(shown, SketchFiguresOf(shown, catalogs), sheet);
}

Sketch SectionsSketch(const std::vector<ComparedDesign>& designs, const std::vector<std::string>& names,
                      const Catalogs& catalogs, const SheetSize& sheet) {
  constexpr double LetterWidth = 0.6 * TextSize;
  Drafting draft(sheet);
  std::vector<SceneOutline> outlines;
  const double across = sheet.Width / static_cast<double>(std::max<std::size_t>(designs.size(), 1));
  const double room = across - 2 * PictureGap;
  const double top = TextSize + 2 * PictureGap;
  const SheetSize part{room, std::max(sheet.Height - top - PictureGap, 1.0)};
  for (std::size_t i = 0; i < designs.size(); ++i) {
    const double left = static_cast<double>(i) * across + PictureGap;
    const std::string name = Shortened(names[i], static_cast<std::size_t>(std::max(room / LetterWidth, 4.0)));
    draft.Write({name}, {left + room / 2, PictureGap + TextSize}, Anchor::Middle, room);
    const ComparedDesign& design = designs[i];
    if (!design.Row.IsRead()) {
      draft.Fact(names[i] + ": " + design.Row.Reason);
      continue;
    }
    Scene scene = SectionOf(design, catalogs, part);
    FormulaBox box{.Labels = {}, .Lines = std::move(scene.Outlines)};
    std::ranges::move(Placed(std::move(box), {left, top}).Lines, std::back_inserter(outlines));
    const Sketch words = EntrySketch(design.Row.Shown, SketchFiguresOf(design.Row.Shown, catalogs), SmallestSheet);
    for (const std::string& fact : words.Facts) draft.Fact(names[i] + ": " + fact);
  }
  Sketch sketch = draft.Take();
  std::ranges::move(outlines, std::back_inserter(sketch.Picture.Outlines));
  return sketch;
}

Sketch CurvesSketch(const std::vector<ComparedDesign>& designs, const std::vector<std::string>& names, Integer index,
                    UnitSystem units, const SheetSize& sheet) {
  ChartOnPaper paper;
  AxisTitles titles = ComposedTitles(index, units);
  Sketch sketch;
  std::string heading = CurveTitle(index);
  std::vector<ChartSeries> all;
  all.reserve(designs.size());
  for (std::size_t i = 0; i < designs.size(); ++i) {
    ChartSeries& series = all.emplace_back(CurveOf(designs[i], names[i], index, units, heading));
    series.number = static_cast<int>(i) + 1;
    series.legend = std::to_string(series.number) + "  " + series.legend;
    std::string fact = series.legend;
    if (series.own) {
      fact += ", at " + FormatNumber(series.own->x, OneDecimal) + " " + FormatNumber(series.own->y, OneDecimal);
    }
    sketch.Facts.push_back(std::move(fact));
  }
  sketch.Facts.insert(sketch.Facts.begin(), heading);
  paper.chart.SetHeading(heading);
  paper.chart.SetAxisX({std::move(titles.X), true});
  paper.chart.SetAxisY({std::move(titles.Y), true});
  paper.chart.SetSeries(std::move(all));
  sketch.Picture = ChartScene(paper.chart, sheet);
  return sketch;
}

}  // namespace orby
