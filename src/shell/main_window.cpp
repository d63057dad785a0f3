#include "shell/main_window.h"

#include "base/text.h"
#include "config/settings_sections.h"
#include "config/user_folders.h"
#include "core/dialog_helpers.h"
#include "core/help.h"
#include "core/version.h"
#include "files/save_command.h"
#include "shell/recent_files.h"

namespace orby {

MainWindow::MainWindow(Program& program) : program_(program), recovery_(program) {
  lblver.SetCaption("Version: " + VersionText(true));
  for (const Integer item :
       {util_item::Settings, util_item::Options, util_item::UnitConversions, util_item::FileConversion}) {
    mnuUtilItem.SetItemEnabled(item, false);
  }
  for (const Integer item : {help_item::ResourceFiles, help_item::Disclaimer, help_item::Updates, help_item::About}) {
    mnuHelpItem.SetItemEnabled(item, false);
  }
  mnuFileItem.SetItemEnabled(file_item::ViewSourceFiles, false);
  TieCommands();
  TieHistory();
  program_.OpenInputDialog = [this](Integer caller) {
    EditCommand(caller == report_caller::Cost ? edit_item::Cost : edit_item::Parameters, Trap::None);
  };
}

MainWindow::~MainWindow() {
  program_.history.Changed = nullptr;
  program_.OpenInputDialog = nullptr;
}

void MainWindow::TieCommands() {
  mnuFileItem.Click = [this](Integer item) { FileCommand(item); };
  mnuFileArray.Click = [this](Integer item) { OpenRecent(item); };
  mnuEditItem.Click = [this](Integer item) { EditCommand(item, Trap::None); };
  mnuHelpItem.Click = [this](Integer item) { HelpCommand(item); };
  Toolbar1.Click = [this](Integer button) {
    switch (button) {
      case tool_button::Open: FileCommand(file_item::Open); break;
      case tool_button::Save: FileCommand(file_item::Save); break;
      case tool_button::Print: PrintProject(false); break;
      case tool_button::Description: EditCommand(edit_item::Description, Trap::None); break;
      case tool_button::Parameters: EditCommand(edit_item::Parameters, Trap::None); break;
      default: break;
    }
  };
}

void MainWindow::TieHistory() {
  program_.history.Changed = [this] {
    txtMain.SetText(program_.history.Text);
    txtMain.Select(CharacterCount(program_.history.Text), 0);
  };
  mnuUtilItem.Click = [this](Integer item) {
    switch (item) {
      case util_item::ClearHistory:
        program_.history.Text.clear();
        txtMain.SetText({});
        break;
      case util_item::ToggleHistory: ShowHistory(!txtMain.Visible()); break;
      case util_item::CopyHistory:
        program_.platform.clipboard.Clear();
        program_.platform.clipboard.SetText(txtMain.Text());
        break;
      default: break;
    }
  };
}

void MainWindow::HelpCommand(Integer item) {
  switch (item) {
    case help_item::Contents: OpenHelpContents(program_); break;
    case help_item::Index: OpenHelpIndex(program_); break;
    case help_item::Manual: OpenDocument(program_, "Help file", ManualFile); break;
    default: break;
  }
}

void MainWindow::ShowHistory(bool visible) {
  txtMain.SetVisible(visible);
  mnuUtilItem.SetCaption(util_item::ToggleHistory, visible ? CloseHistory : RestoreHistory);
}

void MainWindow::OnOpen() {
  const Settings& settings = program_.settings;
  txtMain.SetFont({settings.DisplayFontName, static_cast<int>(settings.DisplayFontSize), settings.DisplayFontBold != 0,
                   settings.DisplayFontItalic != 0});
  program_.history.Changed();
  ShowHistory(settings.DisplayHistoryWin == 1);
  Toolbar1.SetVisible(settings.EnableMainMenuToolbar == 1);
  ShowRecentFiles(program_.recentFiles, mnuFileArray);
  CopyExamples(program_);
  RefreshCaption();
  program_.platform.windows.CenterForm(*this);
}

void MainWindow::OpenFirstFiles(const std::string& commandLineFile) {
  if (recovery_.Ask()) RefreshCaption();
  if (program_.settings.LoadLastInputFile == 1 && !program_.recentFiles.Entries.front().LastFileLong.empty()) {
    OpenRecent(1);
  }
  if (!commandLineFile.empty()) OpenFile(commandLineFile, Trap::None);
}

void MainWindow::Dropped(const std::string& path) { OpenFile(path, Trap::Set); }

bool MainWindow::MayClose() {
  if (program_.FileSaved) return true;
  const int answer = ShowMessage(program_, "Save changes to: " + program_.CurrentFile + "?",
                                 box_style::YesNoCancel | box_style::Question);
  if (answer == box_result::No) return true;
  if (answer != box_result::Yes || !FileMenuSave(program_, false)) return false;
  UpdateRecentFiles();
  return true;
}

void MainWindow::OnClose() {
  recovery_.Discard();
  WriteDefaults(program_, settings_section::FileMenu);
}

void MainWindow::RefreshCaption() {
  SetCaption(SetFormCaption(ProgramTitle, program_.CurrentFile, program_.FileSaved));
}

StepOutcome MainWindow::Run(Trap trap, const Step& step) {
  if (trap == Trap::Set) return RunTrapped(program_, step);
  step();
  return StepOutcome::Done;
}

}  // namespace orby
