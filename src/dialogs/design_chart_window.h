// The window with a chart over two numbers of the project: a figure as a map with the line where a judgement turns, or
// the greatest or least number with which a support holds. It changes nothing in the project.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controls/controls.h"
#include "core/program_form.h"
#include "dialogs/chart_runner.h"
#include "dialogs/drawing.h"
#include "sheet/chart_page.h"

namespace orby {

class DesignChartWindow : public ProgramForm {
 public:
  Label lblSubject{*this, "lblSubject", "Chart of"};
  Combo cmbSubject{*this, "cmbSubject", ComboKind::ListOnly};
  Label lblJudged{*this, "lblJudged", "Judgement"};
  Combo cmbJudged{*this, "cmbJudged", ComboKind::ListOnly};
  LabelledBox txtPoints{*this, "txtPoints", TextKind::Number, "Points along each side"};
  Frame fraAcross{*this, "fraAcross", "Across"};
  Label lblAcross{*this, "lblAcross", "Number"};
  Combo cmbAcross{*this, "cmbAcross", ComboKind::ListOnly};
  LabelledBox txtAcrossLow{*this, "txtAcrossLow", TextKind::Number, "from"};
  LabelledBox txtAcrossHigh{*this, "txtAcrossHigh", TextKind::Number, "to"};
  Frame fraUp{*this, "fraUp", "Upwards"};
  Label lblUp{*this, "lblUp", "Number"};
  Combo cmbUp{*this, "cmbUp", ComboKind::ListOnly};
  LabelledBox txtUpLow{*this, "txtUpLow", TextKind::Number, "from"};
  LabelledBox txtUpHigh{*this, "txtUpHigh", TextKind::Number, "to"};
  Drawing picChart{*this, "picChart", "Design chart"};
  Label lblRead{*this, "lblRead", ""};

  // commands
  Label lblPaper{*this, "lblPaper", "Paper"};
  OptionArray optPaper{*this, "optPaper", {{"A&4"}, {"&Letter"}}};
  Button cmdSavePicture{*this, "cmdSavePicture", "Save Pict&ure...", [this] { SavePicture(); }};
  Button cmdSavePage{*this, "cmdSavePage", "Save Page as P&DF...", [this] { SavePage(); }};
  Button cmdPrint{*this, "cmdPrint", "P&rint...", [this] { Print(); }};
  Button cmdClose{*this, "cmdClose", "Close", [this] { Close(); }};
  Button cmdHelp{*this, "cmdHelp", "&Help", [this] { ShowHelp(); }};

  // Throws as AsReported does, for a project that no dialog can show.
  explicit DesignChartWindow(Program& program);

 protected:
  void OnOpen() override;
  // Ends a computation under way.
  void OnClose() override { runner_.reset(); }

 private:
  // A side of the chart: its fields and what is wrong with them.
  struct Side {
    Combo& Number;
    LabelledBox& Low;
    LabelledBox& High;
  };
  void TieSide(const Side& side);
  void ShowRange(const Side& side);
  // Returns what is wrong with the fields, or an empty text and the side in `read`.
  std::string ReadSide(const Side& side, ChartSide& read) const;
  std::string ReadFields(ChartRequest& request) const;

  // Takes the fields. Computes the chart at once or, if that takes long, on another thread.
  void Follow();
  void Look();
  void TakeChart(const ChartRequest& request, ComputedChart computed);
  void ShowFault(const std::string& fault);
  void AllowOutput(bool isAllowed);

  void ReadAt(const ScenePoint& place);
  void MoveReading(DrawingKey key);
  void ShowReading();
  Sketch ChartOn(const SheetSize& sheet) const;

  std::string Name() const;
  Scene Page() const;
  void SavePicture();
  void SavePage();
  void Print();

  Design design_;
  std::vector<ChartSubject> subjects_;
  std::vector<StudiedVerdict> judgements_;
  std::vector<const DesignNumber*> numbers_;
  Side across_{cmbAcross, txtAcrossLow, txtAcrossHigh};
  Side up_{cmbUp, txtUpLow, txtUpHigh};
  bool isFilling_ = true;  // the fields are set by the window
  std::string fault_;
  std::shared_ptr<ChartRunner> runner_;  // while it computes
  ChartRequest shown_;                   // of the chart on view
  std::optional<MapSketch> map_;
  struct Reading {
    Single Across = 0;
    Single Up = 0;
  };
  std::optional<Reading> read_;  // nothing: the design is read out
};

// Shows the window for the open project until the user closes it. Throws as AsReported does.
void ShowDesignChart(Program& program);

}  // namespace orby
