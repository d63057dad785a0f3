// The results of "How Sure": the tables of judgements and figures, and the chart.
#include <algorithm>
#include <array>
#include <cmath>

#include "base/number_text.h"
#include "dialogs/how_sure_window.h"
#include "reports/sensitivity_report.h"
#include "reports/study_report.h"

namespace orby {
namespace {

constexpr int ResultHeaderRows = 1;
constexpr double Hundred = 100;
constexpr NumberPattern ChanceDecimals{"0.000"};
constexpr std::array<double, 3> ShownShares{0.05, 0.5, 0.95};
constexpr std::string_view NotRunYet = "Press Run to sample the design.";
constexpr std::string_view Unknown = "--";

std::string SampledNumber(double value) { return FormatNumber(value, "0.000"); }

std::string Chance(double probability) { return FormatNumber(probability * Hundred, ChanceDecimals); }

// Returns the row that is selected, counted without the header.
std::size_t RowIn(const Grid& grid) { return static_cast<std::size_t>(std::max(grid.Row() - ResultHeaderRows, 0)); }

std::string_view EndWords(StudyEnd end) {
  switch (end) {
    case StudyEnd::NarrowEnough: return ". The intervals are narrow enough";
    case StudyEnd::Cancelled: return ". Stopped before the end";
    case StudyEnd::Complete: break;
  }
  return "";
}

}  // namespace

void HowSureWindow::ShowDone() {
  if (runner_) return;
  if (!result_) return lblDone.SetCaption(NotRunYet);
  Study typed = study_;
  ReadSettings(typed);
  std::string text = CountWithCommas(result_->Samples) + " samples, seed " + std::to_string(ran_.Seed);
  text.append(EndWords(result_->End)).append(".");
  if (typed != ran_) text += " Inputs or settings have changed since. Press Run for new results.";
  lblDone.SetCaption(text);
}

void HowSureWindow::ShowResult() {
  prgRun.SetValue(
      result_ ? ProgressBar::Whole * static_cast<int>(result_->Batches) / static_cast<int>(PlanOf(ran_).Count) : 0);
  ShowJudgements();
  ShowFigures();
  ShowPairs();
  ShowDone();
  ShowChart();
}

void HowSureWindow::ShowJudgements() {
  const double confidence = result_ ? ran_.Confidence : study_.Confidence;
  std::vector<std::vector<std::string>> rows{
      {"Judgement", "Design", "Falls short (%)", NumberText(confidence * Hundred) + " % from", "to"}};
  if (result_) {
    for (const VerdictResult& verdict : result_->Verdicts) {
      const auto& interval = verdict.Confidence;
      rows.push_back({VerdictName(verdict.Judged), std::string(ResultWord(verdict.AtDesign)),
                      Chance(verdict.Probability), interval ? Chance(interval->Low) : std::string(Unknown),
                      interval ? Chance(interval->High) : std::string(Unknown)});
    }
  }
  grdJudgements.SetRows(std::move(rows), ResultHeaderRows);
}

void HowSureWindow::ShowFigures() {
  std::vector<std::vector<std::string>> rows{{"Figure", "Design", "Mean", "Deviation", "5 %", "50 %", "95 %"}};
  if (result_) {
    for (const FigureResult& figure : result_->Figures) {
      const bool any = figure.Sums.Count() > 0;
      const auto text = [&](double value) { return any ? SampledNumber(value) : std::string(Unknown); };
      std::vector<std::string> row{NameOf(*figure.Figure, design_.Units),
                                   figure.AtDesign.IsThere() ? NumberText(figure.AtDesign.Value) : std::string(Unknown),
                                   text(figure.Sums.Mean()), text(figure.Sums.Deviation())};
      for (const double share : ShownShares) {
        row.push_back(any ? SampledNumber(figure.Sums.Percentile(share, figure.Histogram)) : std::string(Unknown));
      }
      rows.push_back(std::move(row));
    }
  }
  grdFigures.SetRows(std::move(rows), ResultHeaderRows);
}

void HowSureWindow::ShowPairs() {
  std::vector<ComboItem> items;
  if (result_) {
    for (std::string& name : ScatterNames(*result_, ran_, design_.Units)) items.push_back({std::move(name)});
  }
  const auto fill = [&](Combo& list, int first) {
    const std::string chosen = list.Text();
    list.Fill(items);
    list.SetText(items.empty() ? std::string() : chosen);
    if (!items.empty() && !list.HasSelection()) list.SetListIndex(std::min(first, static_cast<int>(items.size()) - 1));
  };
  fill(cmbAcross, 0);
  fill(cmbUp, static_cast<int>(ran_.Inputs.size()));
}

void HowSureWindow::ShowChart() {
  const bool isScatter = result_ && cmbChart.ListIndex() == static_cast<int>(StudyChart::Scatter);
  cmbAcross.SetEnabled(isScatter);
  cmbUp.SetEnabled(isScatter);
  picChart.Outdate();
}

Sketch HowSureWindow::ChartOn(const SheetSize& sheet) const {
  if (!result_) return EmptyStudySketch(std::string(NotRunYet), sheet);
  const auto chart = static_cast<StudyChart>(std::max(cmbChart.ListIndex(), 0));
  const auto chosen = [](const Combo& list) { return static_cast<std::size_t>(std::max(list.ListIndex(), 0)); };
  const StudyView view{*result_,          ran_,         design_, RowIn(grdFigures), RowIn(grdJudgements),
                       chosen(cmbAcross), chosen(cmbUp)};
  return StudySketch(view, chart, sheet);
}

}  // namespace orby
