// The window that tells what a figure of the project depends on: a table, a tornado or spider chart, and where
// judgements change.
#pragma once

#include <optional>
#include <vector>

#include "controls/controls.h"
#include "controls/grid.h"
#include "core/program_form.h"
#include "dialogs/drawing.h"
#include "dialogs/matters_charts.h"

namespace orby {

class WhatMattersWindow : public ProgramForm {
 public:
  Label lblFigure{*this, "lblFigure", "Figure"};
  Combo cmbFigure{*this, "cmbFigure", ComboKind::ListOnly};
  LabelledBox txtChange{*this, "txtChange", TextKind::Number, "Change of each number (%)"};
  Label lblPresent{*this, "lblPresent", ""};
  Label lblChart{*this, "lblChart", "Chart"};
  Combo cmbChart{*this, "cmbChart", ComboKind::ListOnly};
  Grid grdNumbers{*this, "grdNumbers"};
  Drawing picTornado{*this, "picTornado", MattersCharts[matters_chart::Tornado].Title};
  Frame fraRange{*this, "fraRange", "Range of the marked number"};
  LabelledBox txtLow{*this, "txtLow", TextKind::Number, "Low"};
  LabelledBox txtHigh{*this, "txtHigh", TextKind::Number, "High"};
  Label lblTurns{*this, "lblTurns", "Where judgements change"};
  List lstTurns{*this, "lstTurns"};

  // commands
  Button cmdCopy{*this, "cmdCopy", "&Copy Table", [this] { Copy(); }};
  Button cmdClose{*this, "cmdClose", "Close", [this] { Close(); }};
  Button cmdHelp{*this, "cmdHelp", "&Help", [this] { ShowHelp(); }};

  // Throws as AsReported does, for a project that no dialog can show.
  explicit WhatMattersWindow(Program& program);

 protected:
  void OnOpen() override;

 private:
  // Requires that the project has a figure.
  const StudiedFigure& Figure() const;
  // Computes all effects anew and shows them.
  void Compute();
  void ShowEffects();
  void ShowChart();
  void ShowRange();
  void TakeChange();
  void TakeRange();
  Sketch ChartOn(const SheetSize& sheet);
  void Copy();

  Design design_;
  std::vector<const StudiedFigure*> figures_;
  double share_ = 0.1;
  GivenRanges ranges_;
  FigureEffects effects_;
  std::optional<Spider> spider_;  // of the effects, after it was drawn
  bool isShowing_ = false;        // the fields follow the marked row
};

// Shows the window for the open project until the user closes it. Throws as AsReported does.
void ShowWhatMatters(Program& program);

}  // namespace orby
