#include "dialogs/study_charts.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "dialogs/chart_scene.h"
#include "files/conversion.h"
#include "reports/sensitivity_report.h"
#include "reports/study_report.h"

namespace orby {
namespace {

constexpr double InPercent = 100;
constexpr NumberPattern RankDecimals{"0.00"};
constexpr std::string_view AtDesignName = "The design";
constexpr double ScatterSymbol = 4;

bool IsConstant(const FigureResult& figure) { return figure.Sums.Least() == figure.Sums.Greatest(); }

// Marks the number of the design across the plot.
void MarkAtDesign(const FigureResult& figure, Chart& chart) {
  if (figure.AtDesign.IsThere()) chart.SetReferences({{true, figure.AtDesign.Value, std::string(AtDesignName)}});
}

ChartSeries LineOf(std::string legend) {
  ChartSeries series;
  series.legend = std::move(legend);
  series.width = 4;
  series.hasSymbols = false;
  return series;
}

std::string DesignFact(const FigureResult& figure) {
  if (!figure.AtDesign.IsThere()) return "The design has no value";
  const double share = figure.Sums.ShareUpTo(figure.AtDesign.Value, figure.Histogram);
  return "The design has " + NumberText(figure.AtDesign.Value) + "; " + FormatNumber(share * InPercent, "0.0") +
         " % of the samples are not above it";
}

Sketch PaintedChart(const ChartOnPaper& paper, std::vector<std::string> facts, const SheetSize& sheet) {
  return {ChartScene(paper.chart, sheet), std::move(facts)};
}

// Returns a figure that is the same in all samples, or that has no values, in words; or an empty text.
std::string NothingToPaint(const FigureResult& figure) {
  const std::string name(figure.Figure->Name);
  if (figure.Sums.Count() == 0) return name + " has no value in any sample.";
  if (IsConstant(figure)) return name + " is " + NumberText(ToSingle(figure.Sums.Least())) + " in all samples.";
  return {};
}

Sketch HistogramSketch(const StudyView& view, const FigureResult& figure, const SheetSize& sheet) {
  constexpr int Bars = 40;
  ChartOnPaper paper;
  const double from = figure.Sums.Least();
  const double width = (figure.Sums.Greatest() - from) / Bars;
  ChartSeries steps = LineOf("Samples");
  const auto add = [&](double x, double y) {
    steps.x.push_back(x);
    steps.y.push_back(y);
  };
  add(from, 0);
  double below = 0;
  for (int bar = 0; bar < Bars; ++bar) {
    const double left = from + bar * width;
    const double upTo = bar + 1 == Bars ? 1 : figure.Sums.ShareUpTo(left + width, figure.Histogram);
    add(left, (upTo - below) * InPercent);
    add(left + width, (upTo - below) * InPercent);
    below = upTo;
  }
  add(figure.Sums.Greatest(), 0);
  paper.chart.SetHeading("Histogram");
  paper.chart.SetAxisX({NameOf(*figure.Figure, view.Studied.Units), false});
  paper.chart.SetAxisY({"Samples (%)", true});
  paper.chart.SetSeries({std::move(steps)});
  MarkAtDesign(figure, paper.chart);
  return PaintedChart(
      paper,
      {"Histogram of " + NameOf(*figure.Figure, view.Studied.Units),
       "From " + NumberText(ToSingle(figure.Sums.Least())) + " to " + NumberText(ToSingle(figure.Sums.Greatest())),
       DesignFact(figure)},
      sheet);
}

Sketch CumulativeSketch(const StudyView& view, const FigureResult& figure, const SheetSize& sheet) {
  constexpr int Points = 200;
  ChartOnPaper paper;
  ChartSeries curve = LineOf("Samples");
  for (int i = 0; i <= Points; ++i) {
    const double share = static_cast<double>(i) / Points;
    const double ends = i == 0 ? figure.Sums.Least() : figure.Sums.Greatest();
    curve.x.push_back(i == 0 || i == Points ? ends : figure.Sums.Percentile(share, figure.Histogram));
    curve.y.push_back(share * InPercent);
  }
  paper.chart.SetHeading("Cumulative curve");
  paper.chart.SetAxisX({NameOf(*figure.Figure, view.Studied.Units), true});
  paper.chart.SetAxisY({"Samples not above (%)", true});
  paper.chart.SetSeries({std::move(curve)});
  MarkAtDesign(figure, paper.chart);
  return PaintedChart(paper, {"Cumulative curve of " + NameOf(*figure.Figure, view.Studied.Units), DesignFact(figure)},
                      sheet);
}

// A correlation that rounds to zero has no sign.
std::string RankText(double rank) {
  const std::string text = FormatNumber(rank, RankDecimals);
  return text == "-0.00" ? "0.00" : text;
}

struct RankBar {
  std::string Name;
  double Rank;
};

// Returns the correlations of a figure with the inputs, the strongest first.
std::vector<RankBar> RankBars(const StudyView& view, const FigureResult& figure) {
  std::vector<RankBar> bars;
  for (std::size_t i = 0; i < figure.RankCorrelations.size(); ++i) {
    const auto& rank = figure.RankCorrelations[i];
    if (rank) bars.push_back({view.Settings.Inputs[i].Name, *rank});
  }
  std::ranges::stable_sort(bars, std::ranges::greater(), [](const RankBar& bar) { return std::abs(bar.Rank); });
  return bars;
}

// Bars to both sides of a line in the middle, whose half length is a correlation of 1.
class RankTornado {
 public:
  RankTornado(const SheetSize& sheet, std::size_t bars) : draft_(sheet) {
    const Box whole = draft_.Sheet();
    plot_ = {Edge, Edge + 2 * Row + Row / 2, whole.Right - Edge, whole.Bottom - Edge - Row};
    step_ = std::min(plot_.Height() / static_cast<double>(bars), MostStep);
    plot_.Bottom = std::min(plot_.Bottom, plot_.Top + step_ * static_cast<double>(bars));
  }

  Sketch Paint(const std::string& title, const std::vector<RankBar>& bars) {
    draft_.WriteBold("Rank correlations", {draft_.Sheet().Middle().X, Edge + TextSize}, Anchor::Middle);
    draft_.Write({title}, {plot_.Middle().X, Edge + Row + TextSize}, Anchor::Middle, plot_.Width());
    draft_.Fact("Rank correlations of " + title);
    Scale();
    for (std::size_t i = 0; i < bars.size(); ++i) Bar(bars[i], plot_.Top + static_cast<double>(i) * step_);
    return draft_.Take();
  }

 private:
  static constexpr std::array Ticks{-1.0, -0.5, 0.0, 0.5, 1.0};
  static constexpr double Edge = 12;
  static constexpr double Row = 18;
  static constexpr double MostStep = 46;
  static constexpr double NameHeight = 17;
  static constexpr double LeastBar = 3;

  double AtRank(double rank) const { return plot_.Middle().X + rank * plot_.Width() / 2; }

  void Scale() {
    for (const double rank : Ticks) {
      const Anchor side = rank == 1 ? Anchor::End : rank == -1 ? Anchor::Start : Anchor::Middle;
      draft_.Write({NumberText(rank)}, {AtRank(rank), plot_.Bottom + TextSize + 3}, side, plot_.Width() / 4);
    }
  }

  // The name stands over its bar, so that it has the whole width.
  void Bar(const RankBar& bar, double top) {
    const double bottom = top + step_ - 4;
    const double barTop = std::min(top + NameHeight, bottom - LeastBar);
    Trace lines;
    for (const double rank : Ticks) lines.Segment({AtRank(rank), barTop}, {AtRank(rank), bottom});
    draft_.Draw(std::move(lines), {.Colour = Ink::Muted, .Width = 0.8});
    const auto [left, right] = std::minmax({AtRank(0), AtRank(bar.Rank)});
    draft_.Draw(Trace().Rectangle({left, barTop, right, bottom}), {.Colour = Ink::Curve, .Width = 1},
                {Ink::Curve, 0.45});
    const std::string text = bar.Name + " " + RankText(bar.Rank);
    draft_.Write({text}, {plot_.Left + 4, top + TextSize}, Anchor::Start, plot_.Width() - 8);
    draft_.Fact(text);
  }

  Drafting draft_;
  Box plot_;
  double step_ = MostStep;
};

Sketch RanksSketch(const StudyView& view, const FigureResult& figure, const SheetSize& sheet) {
  const std::vector<RankBar> bars = RankBars(view, figure);
  if (bars.empty()) return EmptyStudySketch(std::string(figure.Figure->Name) + " depends on no input.", sheet);
  return RankTornado(sheet, bars.size()).Paint(std::string(figure.Figure->Name), bars);
}

// ---- convergence ---------------------------------------------------------------------------------------------------

ChartSeries EndOf(std::string legend) {
  ChartSeries series = LineOf(std::move(legend));
  series.isKept = true;
  return series;
}

Sketch ConvergenceSketch(const StudyView& view, const SheetSize& sheet) {
  constexpr std::size_t MostPoints = 400;
  ChartOnPaper paper;
  ChartSeries probability = LineOf("Probability");
  ChartSeries low = EndOf("Low end");
  ChartSeries high = EndOf("High end");
  const std::vector<ConvergencePoint>& points = view.Result.Convergence;
  const std::size_t stride = points.size() / MostPoints + 1;
  const auto add = [](ChartSeries& series, std::uint64_t samples, double share) {
    series.x.push_back(static_cast<double>(samples));
    series.y.push_back(share * InPercent);
  };
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (i % stride != 0 && i + 1 != points.size()) continue;
    const ConvergencePoint& point = points[i];
    add(probability, point.Samples, point.Probabilities[view.Verdict]);
    if (point.Intervals.empty()) continue;
    add(low, point.Samples, point.Intervals[view.Verdict].Low);
    add(high, point.Samples, point.Intervals[view.Verdict].High);
  }
  const VerdictResult& verdict = view.Result.Verdicts[view.Verdict];
  const std::string name = VerdictName(verdict.Judged);
  paper.chart.SetHeading(name + " falls short");
  paper.chart.SetAxisX({"Samples", false});
  paper.chart.SetAxisY({"Probability (%)", true});
  paper.chart.SetLegendShown(true);
  std::vector<ChartSeries> all{std::move(probability)};
  if (!low.x.empty()) all.insert(all.end(), {std::move(low), std::move(high)});
  paper.chart.SetSeries(std::move(all));
  return PaintedChart(paper,
                      {"Convergence: " + name + " falls short",
                       "At the end " + FormatNumber(verdict.Probability * InPercent, "0.000") + " %"},
                      sheet);
}

// ---- scatter -------------------------------------------------------------------------------------------------------

const std::vector<Single>& ColumnOf(const StudyResult& result, std::size_t place) {
  const std::size_t inputs = result.Chosen.Inputs.size();
  return place < inputs ? result.Chosen.Inputs[place] : result.Chosen.Figures[place - inputs];
}

std::optional<double> DesignNumber(const StudyView& view, std::size_t place) {
  const std::size_t inputs = view.Settings.Inputs.size();
  if (place < inputs) return view.Settings.Inputs[place].Field.In(view.Studied);
  const FigureValue& value = view.Result.Figures[place - inputs].AtDesign;
  return value.IsThere() ? std::optional<double>(value.Value) : std::nullopt;
}

Sketch ScatterSketch(const StudyView& view, const SheetSize& sheet) {
  constexpr std::size_t MostSymbols = 1500;
  const std::vector<std::string> names = ScatterNames(view.Result, view.Settings, view.Studied.Units);
  const std::vector<Single>& across = ColumnOf(view.Result, view.Across);
  const std::vector<Single>& up = ColumnOf(view.Result, view.Up);
  ChartSeries symbols;
  symbols.hasLine = false;
  symbols.symbolSize = static_cast<int>(ScatterSymbol);
  for (std::size_t i = 0; i < across.size() && symbols.x.size() < MostSymbols; ++i) {
    if (std::isnan(across[i]) || std::isnan(up[i])) continue;
    symbols.x.push_back(across[i]);
    symbols.y.push_back(up[i]);
  }
  ChartOnPaper paper;
  const std::string count = NumberText(static_cast<double>(symbols.x.size()));
  paper.chart.SetHeading(count + " of the samples");
  paper.chart.SetAxisX({names[view.Across], true});
  paper.chart.SetAxisY({names[view.Up], true});
  const auto x = DesignNumber(view, view.Across);
  const auto y = DesignNumber(view, view.Up);
  if (x && y) paper.chart.SetOwn(ChartPoint{*x, *y, std::string(AtDesignName)});
  paper.chart.SetSeries({std::move(symbols)});
  return PaintedChart(paper, {"Scatter of " + names[view.Up] + " over " + names[view.Across], count + " samples"},
                      sheet);
}

}  // namespace

std::vector<std::string> ScatterNames(const StudyResult& result, const Study& study, UnitSystem units) {
  std::vector<std::string> names;
  for (const StudyInput& input : study.Inputs) names.push_back(WithUnitOf(input.Name, QuantityOf(input.Field), units));
  for (const FigureResult& figure : result.Figures) names.push_back(NameOf(*figure.Figure, units));
  return names;
}

Sketch EmptyStudySketch(const std::string& words, const SheetSize& sheet) {
  Drafting draft(sheet);
  draft.Write({words}, draft.Sheet().Middle(), Anchor::Middle, draft.Sheet().Width());
  draft.Fact(words);
  return draft.Take();
}

Sketch StudySketch(const StudyView& view, StudyChart chart, const SheetSize& sheet) {
  if (chart == StudyChart::Scatter) return ScatterSketch(view, sheet);
  if (chart == StudyChart::Convergence) {
    if (view.Result.Verdicts.empty()) return EmptyStudySketch("The design has no judgements.", sheet);
    return ConvergenceSketch(view, sheet);
  }
  if (view.Result.Figures.empty()) return EmptyStudySketch("The design has no figures.", sheet);
  const FigureResult& figure = view.Result.Figures[view.Figure];
  const std::string nothing = NothingToPaint(figure);
  if (!nothing.empty()) return EmptyStudySketch(nothing, sheet);
  switch (chart) {
    case StudyChart::Cumulative: return CumulativeSketch(view, figure, sheet);
    case StudyChart::Ranks: return RanksSketch(view, figure, sheet);
    default: return HistogramSketch(view, figure, sheet);
  }
}

}  // namespace orby
