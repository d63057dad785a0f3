// The commands of the File menu.
#include "base/attempt.h"
#include "config/settings_sections.h"
#include "core/act.h"
#include "dialogs/preview_window.h"
#include "dialogs/project_report.h"
#include "dialogs/results_window.h"
#include "dialogs/text_browser.h"
#include "files/backups.h"
#include "files/new_project.h"
#include "files/project_file.h"
#include "files/save_command.h"
#include "files/shown_design.h"
#include "reports/printing.h"
#include "shell/main_window.h"
#include "shell/recent_files.h"

namespace orby {
namespace {

// Returns true if the command continues after a step with this outcome.
bool GoesOn(StepOutcome outcome) { return outcome == StepOutcome::Done || outcome == StepOutcome::PassedOver; }

}  // namespace

void MainWindow::FileCommand(FileItem item) {
  switch (item) {
    case FileItem::New: NewProject(); break;
    case FileItem::Open: OpenProject(); break;
    case FileItem::Save: SaveProject(SaveCommand::Save); break;
    case FileItem::SaveAs: SaveProject(SaveCommand::SaveAs); break;
    case FileItem::PrinterSetup: Run(Trap::Set, [this] { program_.platform.printer.SetUp(); }); break;
    case FileItem::Print: PrintProject(PrinterChoice::ByUser); break;
    case FileItem::Preview: PreviewProject(); break;
    case FileItem::ViewSourceFiles: ShowNew<TextBrowser>(); break;
    case FileItem::Exit: Exit(); break;
  }
}

void MainWindow::NewProject() {
  if (!program_.project.FileSaved) KeepChanges(program_, program_.project);
  FileNew(program_, Keeping::Nothing);
  recovery_.Discard();
  RefreshCaption();
  if (program_.session.options.ShowInputScreenOnLoad == 1) EditCommand(EditItem::Parameters);
}

void MainWindow::OpenProject() {
  program_.project.PreviousFile = program_.project.CurrentFile;
  const auto outcome = Run(Trap::Set, [this] { AskFileName(program_, FileDialogMode::Open); });
  if (outcome == StepOutcome::Done) LoadProjFile(Trap::Set);
}

void MainWindow::OpenRecent(Integer item) {
  if (item < 1) return;
  OpenFile(program_.session.recentFiles.Entries[static_cast<std::size_t>(item - 1)].LastFileLong, Trap::Set);
}

void MainWindow::OpenFile(const std::string& path, Trap trap) {
  program_.project.PreviousFile = program_.project.CurrentFile;
  program_.project.CurrentFile = path;
  LoadProjFile(trap);
}

// A file that is refused leaves the caption unchanged.
void MainWindow::LoadProjFile(Trap trap) {
  bool ok = false;
  Run(trap, [&] {
    While(Act::OpenFile, program_.project.CurrentFile,
          [&] { ok = MayLeavePreviousFile(program_) && FileOpen(program_); });
  });
  recovery_.Committed();
  if (!ok) return summary_.Refresh();
  UpdateRecentFiles();
  RefreshCaption();
  if (program_.session.options.ShowInputScreenOnLoad == 1) EditCommand(EditItem::Parameters);
}

bool MainWindow::SaveProject(SaveCommand command) {
  const bool isSaved = FileMenuSave(program_, command);
  if (!isSaved && program_.project.FileSaved) return false;
  // A failed save can leave a project unsaved that was saved before.
  recovery_.Committed();
  if (isSaved) UpdateRecentFiles();
  RefreshCaption();
  return isSaved;
}

void MainWindow::UpdateRecentFiles() {
  if (!EnterRecentFile(program_)) return;
  ShowRecentFiles(program_.session.recentFiles, mnuFileArray);
  WriteDefaults(program_, StoredSettings::FileMenu);
}

bool MainWindow::MayPrint() {
  return !program_.project.FileEmpty ||
         ShowMessage(program_, "Current file is empty. Continue?",
                     {BoxButtons::YesNo, BoxIcon::None, BoxDefault::SecondButton}) == BoxResult::Yes;
}

bool MainWindow::BuildPages() {
  return GoesOn(Run(Trap::Set, [this] { BuildProjectReport(program_); }));
}

void MainWindow::PrintProject(PrinterChoice choice) {
  if (!MayPrint()) return;
  Printer& printer = program_.platform.printer;
  const std::string name = PrintedName(program_.project);
  if (choice == PrinterChoice::AsBefore) {
    printer.ChooseAsBefore(name);
  } else if (!GoesOn(Run(Trap::Set, [&] { printer.Choose(name); }))) {
    return;
  }
  if (!BuildPages()) return;
  std::string file;
  Run(Trap::Set, [&] { file = PrintText(program_, JoinedPages(program_.session, 0, 1)); });
  if (choice == PrinterChoice::AsBefore && !file.empty()) AddHistoryLine(program_, "Report printed to " + file);
}

void MainWindow::PreviewProject() {
  if (MayPrint() && BuildPages()) ShowPreview(program_);
}

// The curves and the report are those of Results in a newly opened parameters dialog.
void MainWindow::ShowProjectResults() {
  if (!BuildPages()) return;
  WindowState& state = program_.windows;
  state.WorkParmsCopy = program_.project.WorkParms;
  state.ResultsShown = state.WorkParmsCopy;
  Succeeds([&] {
    state.ResultsShown = AsOpened(program_.project, program_.session.catalogs);
    state.WorkParmsCopy = AsPreviewed(state.ResultsShown);
  });
  state.ReportCaller = InputDialog::Parameters;
  program_.platform.windows.ShowMainWindow(false);
  ShowResults(program_);
  program_.platform.windows.ShowMainWindow(true);
}

void MainWindow::Exit() {
  if (MayClose()) Close();
}

}  // namespace orby
