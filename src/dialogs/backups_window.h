// The backups window: lists the projects that were overwritten or dropped, and opens, saves or deletes them.
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
  Label lblState{*this, "lblState", {}};  // the reason why no project is shown

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

  std::optional<UnsavedProject> Chosen;  // set when the window closes: the project to open

 protected:
  void OnOpen() override;

 private:
  void List();
  // Returns the selected entry, or null if there is none.
  const Backup* Selected() const;
  void ShowSelected();
  void ShowProject(const UnsavedProject& project);
  void ClearProject();

  void SaveAs();
  void Delete();
  void OpenFolder();

  std::vector<Backup> entries_;            // by row of the grid
  std::optional<UnsavedProject> project_;  // of the selected entry; empty if the backup is damaged
};

}  // namespace orby
