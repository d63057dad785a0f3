// The controls of the window "How Sure".
#pragma once

#include "controls/controls.h"
#include "controls/grid.h"
#include "core/program_form.h"
#include "dialogs/drawing.h"

namespace orby {

// A parameter of a distribution. Its label depends on the distribution.
struct ParameterField {
  Form& Dialog;
  std::string_view LabelName;
  std::string_view FieldName;

  Label Caption{Dialog, LabelName, {}};
  TextBox Field{Dialog, FieldName};
};

class HowSureControls : public ProgramForm {
 public:
  explicit HowSureControls(Program& program) : ProgramForm(program, "frmHowSure", "How Sure") {}

  TabSet tabSure{*this, "tabSure", {"Inputs", "Sampling", "Results"}};

  // inputs
  Grid grdInputs{*this, "grdInputs"};
  Frame fraInput{*this, "fraInput", "Input that scatters"};
  Label lblInput{*this, "lblInput", "Input"};
  Combo cmbInput{*this, "cmbInput", ComboKind::ListOnly};
  Label lblLaw{*this, "lblLaw", "Distribution"};
  Combo cmbLaw{*this, "cmbLaw", ComboKind::ListOnly};
  ParameterField First{*this, "lblFirst", "txtFirst"};
  ParameterField Second{*this, "lblSecond", "txtSecond"};
  ParameterField Third{*this, "lblThird", "txtThird"};
  ParameterField Fourth{*this, "lblFourth", "txtFourth"};
  LabelledBox txtLowest{*this, "txtLowest", "Cut off below"};
  LabelledBox txtHighest{*this, "txtHighest", "Cut off above"};
  LabelledBox txtValues{*this, "txtValues", "Measured values"};
  Label lblRead{*this, "lblRead", {}};
  Button cmdReadFile{*this, "cmdReadFile", "Read from File..."};
  Button cmdAdd{*this, "cmdAdd", "Add"};
  Button cmdChange{*this, "cmdChange", "Change"};
  Button cmdRemove{*this, "cmdRemove", "Remove"};
  Frame fraRanks{*this, "fraRanks", "Rank correlation of two inputs"};
  Label lblOne{*this, "lblOne", "Input"};
  Combo cmbOne{*this, "cmbOne", ComboKind::ListOnly};
  Label lblOther{*this, "lblOther", "With"};
  Combo cmbOther{*this, "cmbOther", ComboKind::ListOnly};
  LabelledBox txtRank{*this, "txtRank", "From -1 to 1"};
  Button cmdSetRank{*this, "cmdSetRank", "Set"};
  Grid grdRanks{*this, "grdRanks"};

  // sampling
  LabelledBox txtSamples{*this, "txtSamples", "Samples"};
  Label lblScheme{*this, "lblScheme", "Scheme"};
  Combo cmbScheme{*this, "cmbScheme", ComboKind::ListOnly};
  LabelledBox txtSeed{*this, "txtSeed", "Seed"};
  LabelledBox txtBatch{*this, "txtBatch", "Samples of a batch"};
  LabelledBox txtConfidence{*this, "txtConfidence", "Confidence (%)"};
  LabelledBox txtStopWidth{*this, "txtStopWidth", "Ends when no interval is wider than (%)"};
  Label lblKept{*this, "lblKept", {}};

  // results
  Grid grdJudgements{*this, "grdJudgements"};
  Grid grdFigures{*this, "grdFigures"};
  Label lblChart{*this, "lblChart", "Chart"};
  Combo cmbChart{*this, "cmbChart", ComboKind::ListOnly};
  Label lblAcross{*this, "lblAcross", "Across"};
  Combo cmbAcross{*this, "cmbAcross", ComboKind::ListOnly};
  Label lblUp{*this, "lblUp", "Up"};
  Combo cmbUp{*this, "cmbUp", ComboKind::ListOnly};
  Drawing picChart{*this, "picChart", "How sure"};

  // commands
  ProgressBar prgRun{*this, "prgRun"};
  Label lblDone{*this, "lblDone", {}};
  Button cmdRun{*this, "cmdRun", "Run"};
  Button cmdStop{*this, "cmdStop", "Stop"};
  Button cmdClose{*this, "cmdClose", "Close", [this] { Close(); }};
  Button cmdHelp{*this, "cmdHelp", "Help", [this] { ShowHelp(); }};
};

// The pages, by their tabs.
namespace sure_page {
inline constexpr int Inputs = 0;
inline constexpr int Sampling = 1;
inline constexpr int Results = 2;
}  // namespace sure_page

}  // namespace orby
