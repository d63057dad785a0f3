// The controls of the window "Designs in a Folder".
#pragma once

#include "controls/controls.h"
#include "controls/row_table.h"
#include "core/program_form.h"

namespace orby {

class DesignsControls : public ProgramForm {
 public:
  explicit DesignsControls(Program& program) : ProgramForm(program, "frmDesigns", "Designs in a Folder") {}

  LabelledBox txtFolder{*this, "txtFolder", "Folder"};
  Button cmdBrowse{*this, "cmdBrowse", "&Browse..."};
  Button cmdRead{*this, "cmdRead", "&Read"};

  // rows
  LabelledBox txtContaining{*this, "txtContaining", "Rows that contain"};
  Label lblState{*this, "lblState", "Judgements"};
  Combo cmbState{*this, "cmbState", ComboKind::ListOnly};
  Label lblSort{*this, "lblSort", "Sorted by"};
  Combo cmbSort{*this, "cmbSort", ComboKind::ListOnly};
  CheckBox chkDescending{*this, "chkDescending", "Descending"};

  // columns
  Frame fraColumns{*this, "fraColumns", "Columns"};
  CheckBox chkOverview{*this, "chkOverview", "Overview"};
  CheckBox chkInputs{*this, "chkInputs", "Inputs"};
  CheckBox chkReport{*this, "chkReport", "Report"};
  CheckBox chkLive{*this, "chkLive", "Live figures"};
  CheckBox chkCost{*this, "chkCost", "Cost"};
  CheckBox chkVerdicts{*this, "chkVerdicts", "Judgements"};
  Label lblUnits{*this, "lblUnits", "Units"};
  Combo cmbUnits{*this, "cmbUnits", ComboKind::ListOnly};

  RowTable tblDesigns{*this, "tblDesigns"};
  Label lblShown{*this, "lblShown", {}};

  // commands
  ProgressBar prgDone{*this, "prgDone"};
  Label lblDone{*this, "lblDone", {}};
  Button cmdStop{*this, "cmdStop", "Stop"};
  Button cmdOpen{*this, "cmdOpen", "&Open"};
  Button cmdCompare{*this, "cmdCompare", "Co&mpare..."};
  Button cmdCopy{*this, "cmdCopy", "&Copy"};
  Button cmdSaveAs{*this, "cmdSaveAs", "Save &As..."};
  Button cmdClose{*this, "cmdClose", "Close", [this] { Close(); }};
  Button cmdHelp{*this, "cmdHelp", "&Help", [this] { ShowHelp(); }};
};

}  // namespace orby
