// The commands of the Utilities and the Help menu.
#include "core/dialog_helpers.h"
#include "core/help.h"
#include "core/messages.h"
#include "dialogs/about.h"
#include "dialogs/backups_window.h"
#include "dialogs/convert_dialog.h"
#include "dialogs/disclaimer.h"
#include "dialogs/options_dialog.h"
#include "dialogs/resource_files.h"
#include "dialogs/settings_dialog.h"
#include "dialogs/unit_calculator_window.h"
#include "dialogs/update_dialog.h"
#include "files/new_project.h"
#include "files/save_command.h"
#include "shell/main_window.h"

namespace orby {

void MainWindow::UtilityCommand(Integer item) {
  switch (item) {
    case util_item::Settings: EditSettings(); break;
    case util_item::Options: ShowNew<OptionsDialog>(); break;
    case util_item::UnitConversions: ShowNew<UnitCalculator>(); break;
    case util_item::FileConversion: ConvertFile(); break;
    case util_item::ClearHistory:
      program_.session.history.Text.clear();
      txtMain.SetText({});
      break;
    case util_item::ToggleHistory: ShowHistory(!txtMain.Visible()); break;
    case util_item::CopyHistory:
      program_.platform.clipboard.Clear();
      program_.platform.clipboard.SetText(txtMain.Text());
      break;
    case util_item::Backups: ShowBackups(); break;
    default: break;
  }
}

// The chosen one is opened under its old name, with unsaved changes, after the question for those of the present one.
void MainWindow::ShowBackups() {
  BackupsWindow backups(program_);
  ShowForm(program_, backups);
  if (!backups.Chosen) return;
  program_.project.PreviousFile = program_.project.CurrentFile;
  if (!MayLeavePreviousFile(program_)) return;
  FileNew(program_, false, true);
  RestoreProject(program_.project, *backups.Chosen);
  AddHistoryLine(program_, "Backup opened as an unsaved project: " + program_.project.CurrentFile);
  recovery_.Committed();
  RefreshCaption();
}

void MainWindow::EditSettings() {
  SettingsDialog dialog(program_, [this] { ShowSettings(); });
  ShowForm(program_, dialog);
}

void MainWindow::ConvertFile() {
  if (program_.project.FileEmpty) {
    ShowMessage(program_, "Current file is empty");
  } else if (!program_.project.FileSaved) {
    ShowMessage(program_, "Save Current File before accessing this option");
  } else {
    ConvertDialog dialog(program_, [this] {
      recovery_.Committed();
      RefreshCaption();
    });
    ShowForm(program_, dialog);
  }
}

// The dialog looks for itself; the question of the start is not to come up over it.
void MainWindow::ShowUpdates() {
  updateCheck_.Stop();
  ShowNew<UpdateDialog>();
}

void MainWindow::HelpCommand(Integer item) {
  switch (item) {
    case help_item::Contents: OpenHelpContents(program_); break;
    case help_item::Index: OpenHelpIndex(program_); break;
    case help_item::Manual: OpenDocument(program_, "Help file", ManualFile); break;
    case help_item::ResourceFiles: ShowNew<ResourceFiles>(); break;
    case help_item::Disclaimer: ShowNew<Disclaimer>(); break;
    case help_item::Updates: ShowUpdates(); break;
    case help_item::About: ShowAbout(program_); break;
    default: break;
  }
}

}  // namespace orby
