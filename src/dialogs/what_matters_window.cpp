#include "dialogs/what_matters_window.h"

#include "base/number_text.h"
#include "base/text.h"
#include "core/dialog_helpers.h"
#include "files/shown_design.h"
#include "sketches/tornado.h"

namespace orby {
namespace {

constexpr double PercentOfAll = 100;
constexpr std::string_view NothingAnalysed = "The project analyses no support.";

}  // namespace

WhatMattersWindow::WhatMattersWindow(Program& program)
    : ProgramForm(program, "frmWhatMatters", CaptionWithProject("What Matters", program.project)),
      design_(AsReported(program.project, program.session.catalogs)),
      figures_(FiguresInUse(design_)) {
  cmbFigure.Change = [this] { Compute(); };
  txtChange.Change = [this] { TakeChange(); };
  txtLow.Change = [this] { TakeRange(); };
  txtHigh.Change = [this] { TakeRange(); };
  grdNumbers.Change = [this] { ShowRange(); };
  picTornado.Make = [this](const SheetSize& sheet) { return TornadoOf(sheet); };
  picTornado.Resize = [this] { picTornado.Outdate(); };
  picTornado.Command = [this](DrawingCommand command) { RunDrawingCommand(program_, picTornado, command); };
}

void WhatMattersWindow::OnOpen() {
  grdNumbers.SetStretchedColumn(0);
  std::vector<ComboItem> items;
  for (const StudiedFigure* figure : figures_) items.push_back({.text = NameOf(*figure, design_.Units), .mark = {}});
  cmbFigure.Fill(std::move(items));
  cmbFigure.SetEnabled(!figures_.empty());
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

Sketch WhatMattersWindow::TornadoOf(const SheetSize& sheet) const {
  Tornado tornado;
  if (figures_.empty()) {
    tornado.Title = NothingAnalysed;
    return TornadoSketch(tornado, sheet);
  }
  const FigureValue& now = effects_.AtDesign;
  tornado.Title = NameOf(Figure(), design_.Units);
  tornado.Centre = now.IsThere() ? now.Value : 0;
  tornado.CentreText = EffectText(now);
  for (const std::size_t place : GreatestFirst(effects_.Numbers)) {
    const SensitivityRow& row = effects_.Numbers[place].Row;
    if (!now.IsThere() || row.Swing() == 0) continue;
    tornado.Bars.push_back({.Name = row.Range.Name,
                            .AtLow = row.AtLow.Value,
                            .AtHigh = row.AtHigh.Value,
                            .LowText = EffectText(row.AtLow),
                            .HighText = EffectText(row.AtHigh)});
  }
  return TornadoSketch(tornado, sheet);
}

void WhatMattersWindow::Copy() { program_.platform.clipboard.SetText(grdNumbers.AsText()); }

void ShowWhatMatters(Program& program) {
  WhatMattersWindow window(program);
  ShowForm(program, window);
}

}  // namespace orby
