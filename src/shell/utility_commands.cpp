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

void MainWindow::UtilityCommand(UtilityItem item) {
  switch (item) {
    case UtilityItem::Settings: EditSettings(); break;
    case UtilityItem::Options: ShowNew<OptionsDialog>(); break;
    case UtilityItem::UnitConversions: ShowNew<UnitCalculator>(); break;
    case UtilityItem::FileConversion: ConvertFile(); break;
    case UtilityItem::ClearHistory:
      program_.session.history.Text.clear();
      txtMain.SetText({});
      break;
    case UtilityItem::ToggleHistory: ShowHistory(!txtMain.Visible()); break;
    case UtilityItem::CopyHistory:
      program_.platform.clipboard.Clear();
      program_.platform.clipboard.SetText(txtMain.Text());
      break;
    case UtilityItem::Backups: ShowBackups(); break;
  }
  summary_.Refresh();
}

// Opens the chosen backup under its old name, with unsaved changes, after asking about those of the open project.
void MainWindow::ShowBackups() {
  BackupsWindow backups(program_);
  ShowForm(program_, backups);
  if (!backups.Chosen) return;
  program_.project.PreviousFile = program_.project.CurrentFile;
  if (!MayLeavePreviousFile(program_)) return;
  FileNew(program_, Keeping::Name);
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

// The dialog asks the server itself. Stopping the check keeps its question from appearing over the dialog.
void MainWindow::ShowUpdates() {
  updateCheck_.Stop();
  ShowNew<UpdateDialog>();
}

void MainWindow::HelpCommand(HelpItem item) {
  switch (item) {
    case HelpItem::Contents: OpenHelpContents(program_); break;
    case HelpItem::Index: OpenHelpIndex(program_); break;
    case HelpItem::Manual: OpenDocument(program_, "Help file", ManualFile); break;
    case HelpItem::ResourceFiles: ShowNew<ResourceFiles>(); break;
    case HelpItem::Disclaimer: ShowNew<Disclaimer>(); break;
    case HelpItem::Updates: ShowUpdates(); break;
    case HelpItem::About: ShowAbout(program_); break;
  }
}

}  // namespace orby
