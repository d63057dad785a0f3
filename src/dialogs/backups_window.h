// The window of the backups: what was overwritten or dropped, and the ways back.
#pragma once

#include <optional>
#include <vector>

#include "controls/controls.h"
#include "controls/grid.h"
#include "core/program_form.h"
#include "files/backups.h"

namespace orby {

class BackupsWindow : public ProgramForm {
 public:
  Label lblBackups{*this, "lblBackups", "Projects that were overwritten or not saved"};
  Grid grdBackups{*this, "grdBackups"};
  Label lblState{*this, "lblState", {}};  // why there is nothing to show of a project

  Frame fraBackup{*this, "fraBackup", "Selected backup"};
  LabelledBox txtProject{*this, "txtProject", TextKind::Output, "Project file"};
  LabelledBox txtTitle{*this, "txtTitle", TextKind::Output, "Title"};
  LabelledBox txtUnits{*this, "txtUnits", TextKind::Output, "Units"};
  LabelledBox txtCMRR{*this, "txtCMRR", TextKind::Output, "CMRR"};
  LabelledBox txtDepthofCover{*this, "txtDepthofCover", TextKind::Output, "Depth of cover"};
  LabelledBox txtEntryWidth{*this, "txtEntryWidth", TextKind::Output, "Entry width"};
  LabelledBox txtSugPSUP{*this, "txtSugPSUP", TextKind::Output, "Suggested PSUP"};
  LabelledBox txtActualPSUP{*this, "txtActualPSUP", TextKind::Output, "Actual PSUP"};

  // commands
  Button cmdOpen{*this, "cmdOpen", "Open"};
  Button cmdSaveAs{*this, "cmdSaveAs", "Save As...", [this] { SaveAs(); }};
  Button cmdDelete{*this, "cmdDelete", "Delete", [this] { Delete(); }};
  Button cmdFolder{*this, "cmdFolder", "Open Folder", [this] { OpenFolder(); }};
  Button Command1{*this, "Command1", "Close", [this] { Close(); }};

  explicit BackupsWindow(Program& program);

  std::optional<UnsavedProject> Chosen;  // once closed: the project that is to be opened

 protected:
  void OnOpen() override;

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

  std::vector<Backup> entries_;            // by row of the grid
  std::optional<UnsavedProject> project_;  // of the selected entry; nothing when it is damaged
};

}  // namespace orby
