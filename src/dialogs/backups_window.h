// The window of the backups: what was overwritten or dropped, and the ways back.
#pragma once

#include <optional>
#include <vector>

#include "controls/controls.h"
#include "controls/grid.h"
#include "core/program.h"
#include "files/backups.h"

namespace orby {

class BackupsControls : public Form {
 public:
  BackupsControls() : Form("frmBackups", "Backups") {}

  Label lblBackups{*this, "lblBackups", "Projects that were overwritten or not saved"};
  Grid grdBackups{*this, "grdBackups"};
  Label lblState{*this, "lblState", {}};  // why there is nothing to show of a project

  Frame fraBackup{*this, "fraBackup", "Selected backup"};
  Label lblProject{*this, "lblProject", "Project file"};
  TextBox txtProject{*this, "txtProject", TextKind::Output};
  Label lblTitle{*this, "lblTitle", "Title"};
  TextBox txtTitle{*this, "txtTitle", TextKind::Output};
  Label lblUnits{*this, "lblUnits", "Units"};
  TextBox txtUnits{*this, "txtUnits", TextKind::Output};
  Label lblCMRR{*this, "lblCMRR", "CMRR"};
  TextBox txtCMRR{*this, "txtCMRR", TextKind::Output};
  Label lblDepthofCover{*this, "lblDepthofCover", "Depth of cover"};
  TextBox txtDepthofCover{*this, "txtDepthofCover", TextKind::Output};
  Label lblEntryWidth{*this, "lblEntryWidth", "Entry width"};
  TextBox txtEntryWidth{*this, "txtEntryWidth", TextKind::Output};
  Label lblSugPSUP{*this, "lblSugPSUP", "Suggested PSUP"};
  TextBox txtSugPSUP{*this, "txtSugPSUP", TextKind::Output};
  Label lblActualPSUP{*this, "lblActualPSUP", "Actual PSUP"};
  TextBox txtActualPSUP{*this, "txtActualPSUP", TextKind::Output};

  // commands
  Button cmdOpen{*this, "cmdOpen", "Open"};
  Button cmdSaveAs{*this, "cmdSaveAs", "Save As..."};
  Button cmdDelete{*this, "cmdDelete", "Delete"};
  Button cmdFolder{*this, "cmdFolder", "Open Folder"};
  Button Command1{*this, "Command1", "Close"};
};

class BackupsWindow : public BackupsControls {
 public:
  explicit BackupsWindow(Program& program);

  std::optional<UnsavedProject> Chosen;  // once closed: the project that is to be opened

 protected:
  void OnOpen() override;
  void OnClose() override {}

 private:
  void List();
  // The selected entry; null when there is none.
  const Backup* Selected() const;
  void ShowSelected();
  void ShowProject(const UnsavedProject& project);
  void ClearProject();

  void SaveAs();
  void Delete();
  void OpenFolder();

  Program& program_;
  std::vector<Backup> entries_;            // by row of the grid
  std::optional<UnsavedProject> project_;  // of the selected entry; nothing when it is damaged
};

}  // namespace orby
