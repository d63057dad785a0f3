#include "dialogs/what_matters_window.h"

#include "base/number_text.h"
#include "base/text.h"
#include "core/dialog_helpers.h"
#include "dialogs/study_texts.h"
#include "files/shown_design.h"

namespace orby {
namespace {

constexpr double PercentOfAll = 100;

}  // namespace

WhatMattersWindow::WhatMattersWindow(Program& program)
    : ProgramForm(program, "frmWhatMatters", CaptionWithProject("What Matters", program.project)),
      design_(AsReported(program.project, program.session.catalogs)),
      figures_(FiguresInUse(design_)) {
  cmbFigure.Change = [this] { Compute(); };
  cmbChart.Change = [this] { ShowChart(); };
  txtChange.Change = [this] { TakeChange(); };
  txtLow.Change = [this] { TakeRange(); };
  txtHigh.Change = [this] { TakeRange(); };
  grdNumbers.Change = [this] { ShowRange(); };
  picTornado.Make = [this](const SheetSize& sheet) { return ChartOn(sheet); };
  picTornado.Resize = [this] { picTornado.Outdate(); };
  picTornado.Command = [this](DrawingCommand command) { RunDrawingCommand(program_, picTornado, command); };
}

void WhatMattersWindow::OnOpen() {
  grdNumbers.SetStretchedColumn(0);
  cmbFigure.Fill(ItemsNamed(figures_, [this](const auto* figure) { return NameOf(*figure, design_.Units); }));
  cmbFigure.SetEnabled(!figures_.empty());
  cmbChart.Fill(ItemsNamed(MattersCharts, &MattersChart::Name));
  cmbChart.SetListIndex(matters_chart::Tornado);
  txtChange.SetText(NumberText(ToSingle(share_ * PercentOfAll)));
  const auto psup = std::ranges::find(figures_, "actual-psup", &StudiedFigure::Key);
  if (figures_.empty()) {
    Compute();
  } else {
    cmbFigure.SetListIndex(psup == figures_.end() ? 0 : static_cast<int>(psup - figures_.begin()));
  }
  program_.platform.windows.CenterForm(*this);
}

const StudiedFigure& WhatMattersWindow::Figure() const {
  return *figures_.at(static_cast<std::size_t>(std::max(cmbFigure.ListIndex(), 0)));
}

void WhatMattersWindow::Compute() {
  if (!figures_.empty()) effects_ = EffectsOn(design_, program_.session.catalogs, Figure(), share_, ranges_);
  spider_.reset();
  ShowEffects();
}

void WhatMattersWindow::ShowEffects() {
  const int marked = grdNumbers.Row();
  std::vector<std::vector<std::string>> rows{{EffectHeads.begin(), EffectHeads.end()}};
  std::vector<ComboItem> turns;
  for (const NumberEffect& effect : effects_.Numbers) {
    rows.push_back(CellsOf(effect, design_));
    for (std::string& line : TurnLines(effect, design_.Units)) turns.push_back({.text = std::move(line), .mark = {}});
  }
  if (turns.empty()) turns.push_back({.text = "No judgement changes within these ranges.", .mark = {}});
  grdNumbers.SetRows(std::move(rows), 1);
  if (marked >= 1 && marked < grdNumbers.Rows()) grdNumbers.SetRow(marked);
  lstTurns.Fill(std::move(turns));
  lblPresent.SetCaption(figures_.empty() ? std::string(NothingAnalysed)
                                         : "Of this design: " + EffectText(effects_.AtDesign));
  picTornado.Outdate();
  ShowRange();
}

void WhatMattersWindow::ShowChart() {
  if (!cmbChart.HasSelection()) return;
  picTornado.SetTitle(MattersCharts.at(static_cast<std::size_t>(cmbChart.ListIndex())).Title);
  picTornado.Outdate();
}

void WhatMattersWindow::ShowRange() {
  const int row = grdNumbers.Row() - grdNumbers.FixedRows();
  const bool isRow = row >= 0 && static_cast<std::size_t>(row) < effects_.Numbers.size();
  txtLow.SetEnabled(isRow);
  txtHigh.SetEnabled(isRow);
  if (!isRow || isShowing_) return;
  isShowing_ = true;
  const VariedRange& range = effects_.Numbers[static_cast<std::size_t>(row)].Row.Range;
  fraRange.SetCaption("Range of the marked number: " + range.Name);
  txtLow.SetText(NumberText(range.Low));
  txtHigh.SetText(NumberText(range.High));
  isShowing_ = false;
}

// Another share applies to all numbers, also to those with a range of their own.
void WhatMattersWindow::TakeChange() {
  const std::optional<Single> percent = WholeTextSingle(txtChange.Text());
  if (!percent || !(*percent > 0 && *percent <= PercentOfAll) || *percent / PercentOfAll == share_) return;
  share_ = *percent / PercentOfAll;
  ranges_.clear();
  Compute();
}

void WhatMattersWindow::TakeRange() {
  if (isShowing_) return;
  const std::optional<Single> low = WholeTextSingle(txtLow.Text());
  const std::optional<Single> high = WholeTextSingle(txtHigh.Text());
  if (!low || !high || !(*low < *high)) return;
  isShowing_ = true;
  ranges_[effects_.Numbers.at(static_cast<std::size_t>(grdNumbers.Row() - grdNumbers.FixedRows())).Number] = {*low,
                                                                                                              *high};
  Compute();
  isShowing_ = false;
}

Sketch WhatMattersWindow::ChartOn(const SheetSize& sheet) {
  if (figures_.empty())
    return TornadoSketch({.Title = std::string(NothingAnalysed), .CentreText = {}, .Bars = {}}, sheet);
  const MattersView view{design_, program_.session.catalogs, Figure(), effects_};
  if (cmbChart.ListIndex() != matters_chart::Spider) return TornadoSketch(TornadoOf(view), sheet);
  if (!spider_) spider_ = SpiderOf(view);
  return SpiderSketch(*spider_, sheet);
}

void WhatMattersWindow::Copy() { program_.platform.clipboard.SetText(grdNumbers.AsText()); }

void ShowWhatMatters(Program& program) {
  WhatMattersWindow window(program);
  ShowForm(program, window);
}

}  // namespace orby
