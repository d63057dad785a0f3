// The commands of the Input and the Study menu.
#include <memory>

#include "core/act.h"
#include "core/dialog_helpers.h"
#include "dialogs/cost_dialog.h"
#include "dialogs/description_dialog.h"
#include "dialogs/design_chart_window.h"
#include "dialogs/designs_window.h"
#include "dialogs/how_sure_window.h"
#include "dialogs/parameters_dialog.h"
#include "dialogs/project_sheet.h"
#include "dialogs/sheet_window.h"
#include "dialogs/side_by_side_window.h"
#include "dialogs/signed_report_window.h"
#include "dialogs/what_matters_window.h"
#include "shell/main_window.h"

namespace orby {

void MainWindow::EditCommand(EditItem item) {
  switch (item) {
    case EditItem::Description: EditDescription(); break;
    case EditItem::Parameters: EditDesign<ParametersDialog>(); break;
    case EditItem::Cost: EditDesign<CostDialog>(); break;
  }
}

// A study stands over the parameters, so that its changes have fields to go to.
void MainWindow::StudyCommand(StudyItem item) {
  switch (item) {
    case StudyItem::WhatWouldHold: EditDesign<ParametersDialog>(&ParametersDialog::StudyLater); break;
    case StudyItem::CalculationSheet: Run(Trap::Set, [&] { ShowSheet(program_, SheetOfProject(program_)); }); break;
    case StudyItem::SignedReport: Run(Trap::Set, [&] { ShowSignedReport(program_); }); break;
    case StudyItem::WhatMatters: Run(Trap::Set, [&] { ShowWhatMatters(program_); }); break;
    case StudyItem::DesignChart: Run(Trap::Set, [&] { ShowDesignChart(program_); }); break;
    case StudyItem::HowSure: Run(Trap::Set, [&] { ShowHowSure(program_, unsavedStudy_); }); break;
    case StudyItem::SideBySide: Run(Trap::Set, [&] { ShowSideBySide(program_); }); break;
    case StudyItem::DesignsInFolder: ShowDesigns(); break;
  }
}

void MainWindow::ShowDesigns() {
  DesignsWindow designs(program_);
  ShowForm(program_, designs);
  if (designs.Chosen) OpenFile(*designs.Chosen, Trap::Set);
}

// Returns the dialog with the project in it. Returns nothing after a message if the project cannot be shown, as with
// some damaged files.
template <class Dialog>
std::unique_ptr<Dialog> MainWindow::Opened() {
  Windows& windows = program_.platform.windows;
  std::unique_ptr<Dialog> dialog;
  const auto outcome = Run(Trap::Set, [&] {
    windows.SetWaitCursor(true);
    dialog = std::make_unique<Dialog>(program_);
    While(Act::ShowDialog, [&] { dialog->Open(); });
    windows.SetWaitCursor(false);
  });
  if (outcome == StepOutcome::Done) return dialog;
  program_.windows.DialogOpen = false;
  return nullptr;
}

void MainWindow::EditDescription() {
  const auto dialog = Opened<DescriptionDialog>();
  if (!dialog) return;
  ShowForm(program_, *dialog);
  recovery_.Committed();
  RefreshCaption();
  if (dialog->OpensParameters) EditCommand(EditItem::Parameters);
}

template <class Dialog>
void MainWindow::EditDesign(const std::function<void(Dialog&)>& start) {
  Windows& windows = program_.platform.windows;
  const auto dialog = Opened<Dialog>();
  if (!dialog) return;
  KeepEdits(*dialog);
  if (start) start(*dialog);
  windows.ShowMainWindow(false);
  ShowForm(program_, *dialog);
  windows.ShowMainWindow(true);
  recovery_.DialogClosed();
  RefreshCaption();
}

void MainWindow::ShowJudgement(int row) {
  EditDesign<ParametersDialog>([row](ParametersDialog& dialog) { dialog.JudgeLater(row); });
}

// Keeps the dialog's edits after each action of the user, because the next action might end the run. If a field holds a
// number that a project cannot hold, the last valid number is kept.
template <class Dialog>
void MainWindow::KeepEdits(Dialog& dialog) {
  auto read = [&dialog, kept = program_.project.WorkParms]() mutable -> const Design& {
    dialog.ReadEdits(kept);
    return kept;
  };
  recovery_.DesignShown(read());
  dialog.Acted = [this, &dialog, read]() mutable {
    if (dialog.IsOpen()) recovery_.DesignChanged(read());
  };
}

}  // namespace orby
