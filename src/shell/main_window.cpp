#include "shell/main_window.h"

#include <utility>

#include "base/text.h"
#include "config/settings_sections.h"
#include "config/user_folders.h"
#include "core/dialog_helpers.h"
#include "core/file_helpers.h"
#include "core/version.h"
#include "dialogs/disclaimer.h"
#include "files/backups.h"
#include "shell/recent_files.h"

namespace orby {

MainWindow::MainWindow(Program& program, std::optional<Restart> restart)
    : MainControls(program),
      restart_(std::move(restart)),
      recovery_(program, restart_ ? restart_->Slot : 0),
      updateCheck_(program),
      summary_(program, CommandsOfSummary()) {
  lblver.SetCaption("Version: " + VersionText());
  TieCommands();
  TieHistory();
  program_.windows.OpenInputDialog = [this](InputDialog caller) {
    EditCommand(caller == InputDialog::Cost ? EditItem::Cost : EditItem::Parameters);
  };
}

MainWindow::~MainWindow() {
  program_.session.history.Changed = nullptr;
  program_.windows.OpenInputDialog = nullptr;
}

void MainWindow::TieCommands() {
  mnuFileItem.Click = [this](Integer item) { FileCommand(FileItem{item}); };
  mnuFileArray.Click = [this](Integer item) { OpenRecent(item); };
  mnuEditItem.Click = [this](Integer item) { EditCommand(EditItem{item}); };
  mnuUtilItem.Click = [this](Integer item) { UtilityCommand(UtilityItem{item}); };
  mnuStudyItem.Click = [this](Integer item) { StudyCommand(StudyItem{item}); };
  mnuHelpItem.Click = [this](Integer item) { HelpCommand(HelpItem{item}); };
  Toolbar1.Click = [this](Integer button) {
    switch (ToolButton{button}) {
      case ToolButton::Open: FileCommand(FileItem::Open); break;
      case ToolButton::Save: FileCommand(FileItem::Save); break;
      case ToolButton::Print: PrintProject(PrinterChoice::AsBefore); break;
      case ToolButton::Description: EditCommand(EditItem::Description); break;
      case ToolButton::Parameters: EditCommand(EditItem::Parameters); break;
    }
  };
}

SummaryCommands MainWindow::CommandsOfSummary() {
  return {.New = [this] { FileCommand(FileItem::New); },
          .Open = [this] { FileCommand(FileItem::Open); },
          .Parameters = [this] { EditCommand(EditItem::Parameters); },
          .Judgement = [this](int row) { ShowJudgement(row); },
          .Results = [this] { ShowProjectResults(); },
          .Study = [this] { StudyCommand(StudyItem::WhatWouldHold); },
          .OpenRecent = [this](Integer item) { OpenRecent(item); },
          .OpenFile = [this](const std::string& path) { OpenFile(path, Trap::Set); }};
}

void MainWindow::TieHistory() {
  program_.session.history.Changed = [this] {
    txtMain.SetText(program_.session.history.Text);
    txtMain.Select(CharacterCount(program_.session.history.Text), 0);
  };
}

void MainWindow::ShowHistory(bool visible) {
  txtMain.SetVisible(visible);
  mnuUtilItem.SetCaption(UtilityItem::ToggleHistory, visible ? CloseHistory : RestoreHistory);
}

void MainWindow::ShowSettings() {
  const Settings& settings = program_.session.settings;
  txtMain.SetFont({settings.DisplayFontName, static_cast<int>(settings.DisplayFontSize), settings.DisplayFontBold != 0,
                   settings.DisplayFontItalic != 0});
  ShowHistory(settings.DisplayHistoryWin == 1);
  Toolbar1.SetVisible(settings.EnableMainMenuToolbar == 1);
}

// The user's files are not touched before the disclaimer is accepted.
void MainWindow::OnOpen() {
  if (program_.session.settings.ShowDisclaim == 1) ShowNew<Disclaimer>();
  ShowSettings();
  program_.session.history.Changed();
  ShowRecentFiles(program_.session.recentFiles, mnuFileArray);
  CopyExamples(program_);
  RefreshCaption();
  program_.platform.windows.CenterForm(*this);
  updateCheck_.Start();
}

void MainWindow::OpenFirstFiles(const std::string& commandLineFile) {
  if (restart_) return BringBack();
  if (recovery_.Ask(commandLineFile)) return RefreshCaption();
  if (program_.session.settings.LoadLastInputFile == 1 &&
      !program_.session.recentFiles.Entries.front().LastFileLong.empty()) {
    OpenRecent(1);
  }
  if (!commandLineFile.empty()) OpenFile(commandLineFile, Trap::None);
}

void MainWindow::BringBack() {
  if (restart_->Slot != 0 && recovery_.Recover()) return RefreshCaption();
  // The slot of this run may hold work that another run lost.
  if (recovery_.Ask(restart_->File)) return RefreshCaption();
  if (!restart_->File.empty()) OpenFile(restart_->File, Trap::Set);
}

void MainWindow::Dropped(const std::string& path) { OpenFile(path, Trap::Set); }

bool MainWindow::MayClose() {
  if (program_.project.FileSaved) return true;
  const BoxResult answer = ShowMessage(program_, "Save changes to: " + program_.project.CurrentFile + "?",
                                       {BoxButtons::YesNoCancel, BoxIcon::Question});
  if (answer == BoxResult::No) {
    KeepChanges(program_, program_.project);
    return true;
  }
  return answer == BoxResult::Yes && SaveProject(SaveCommand::Save);
}

void MainWindow::OnClose() {
  summary_.Close();
  program_.platform.help.Close();
  recovery_.Discard();
  WriteDefaults(program_, StoredSettings::FileMenu);
}

// If no changes are kept, the next run can still open the project's file.
RunEnd MainWindow::LeaveAtOnce() {
  recovery_.Flush();
  updateCheck_.Stop();
  RunEnd end{recovery_.Kept(), {recovery_.KeptSlot(), {}}};
  if (end.Next.Slot == 0 && !program_.project.FileEmpty && FileExists(program_, program_.project.CurrentFile)) {
    end.Next.File = program_.platform.files.AbsolutePath(program_.project.CurrentFile);
  }
  return end;
}

void MainWindow::RefreshCaption() {
  summary_.Refresh();
  SetCaption(SetFormCaption(ProgramTitle, program_.project.CurrentFile, program_.project.FileSaved));
}

StepOutcome MainWindow::Run(Trap trap, const Step& step) {
  if (trap == Trap::Set) return RunTrapped(program_, step);
  step();
  return StepOutcome::Done;
}

}  // namespace orby
