#include "dialogs/results_window.h"

#include <string>

#include "core/act.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "dialogs/curve_command.h"
#include "dialogs/graph_window.h"
#include "dialogs/project_sheet.h"
#include "dialogs/sheet_window.h"
#include "reports/printing.h"

namespace orby {
namespace {

std::vector<ComboItem> CurveItems() {
  std::vector<ComboItem> items;
  items.reserve(CurveCount);
  for (Integer i = 0; i < CurveCount; ++i) {
    items.push_back({std::string(SubjectOfCurve(i).Name), static_cast<double>(i)});
  }
  return items;
}

}  // namespace

ResultsWindow::ResultsWindow(Program& program)
    : ProgramForm(program, "frmResTxtPlt", CaptionWithProject("Calculation Results", program.project)) {
  TieCommands();
}

ResultsWindow::~ResultsWindow() = default;

void ResultsWindow::TieCommands() {
  Command3.Click = [this] {
    AddHistoryLine(program_, "Current page printed");
    Print(pager_.Page(), pager_.Page());
  };
  Command6.Click = [this] {
    AddHistoryLine(program_, "All pages printed");
    Print(0, program_.windows.LastPage);
  };
  Command9.Click = [this] { ShowMessage(program_, "Option not active yet"); };
  cmdGraph.Click = [this] { lstGraphs.SetVisible(!lstGraphs.Visible()); };
  lstGraphs.Click = [this] { DrawChosenCurve(); };
}

void ResultsWindow::OnOpen() {
  program_.platform.windows.ShowMainWindow(false);
  lstGraphs.Fill(CurveItems());
  lstGraphs.SetVisible(false);
  ResultsPlace& place = program_.windows.results;
  chkWhereLeft.SetValue(place.IsWanted ? 1 : 0);
  pager_.Restart(place.IsWanted ? place.Page : Integer{0});
  AddHistoryLine(program_, "Results displayed");
  program_.platform.windows.CenterForm(*this);
}

void ResultsWindow::OnClose() {
  program_.windows.results = {chkWhereLeft.Checked(), pager_.Page()};
  if (graph_) graph_->Close();
  program_.platform.windows.ShowMainWindow(true);
}

void ResultsWindow::CopyAll() {
  program_.platform.clipboard.SetText(JoinedPages(program_.session, 0, program_.windows.LastPage));
  AddHistoryLine(program_, "Output copied to clipboard");
}

void ResultsWindow::Print(Integer first, Integer last) {
  if (ChoosePrinter()) {
    RunTrapped(program_, [&] { PrintText(program_, JoinedPages(program_.session, first, last)); });
  }
  pager_.Loadbuffer();
}

bool ResultsWindow::ChoosePrinter() {
  bool aborted = false;
  const StepOutcome outcome = RunTrapped(program_, [&] {
    try {
      program_.platform.printer.Choose(PrintedName(program_.project));
    } catch (const RuntimeError& error) {
      if (error.number() != error_number::Cancelled) throw;
      aborted = true;
    }
  });
  if (aborted) AddHistoryLine(program_, "Printing aborted");
  return outcome == StepOutcome::Done && !aborted;
}

void ResultsWindow::DrawChosenCurve() {
  const auto index = static_cast<Integer>(lstGraphs.Items()[static_cast<std::size_t>(lstGraphs.ListIndex())].data);
  const StepOutcome outcome = RunTrapped(program_, [&] {
    While(Act::Curve, SubjectOfCurve(index).Name, [&] {
      TakeCurve(program_, program_.windows.WorkParmsCopy, index);
      if (!graph_) graph_ = std::make_unique<GraphWindow>(program_);
      graph_->ShowCurve(index);
    });
  });
  if (outcome != StepOutcome::GivenUp) lstGraphs.SetVisible(false);
}

void ResultsWindow::ShowResultsSheet() {
  RunTrapped(program_, [&] { ShowSheet(program_, SheetOfResults(program_)); });
}

void ResultsWindow::ChangeInput() {
  Close();
  // A dialog that is still open reappears by itself.
  if (program_.windows.DialogOpen || program_.windows.ReportCaller == InputDialog::None) return;
  if (program_.windows.OpenInputDialog) program_.windows.OpenInputDialog(program_.windows.ReportCaller);
}

void ShowResults(Program& program) {
  ResultsWindow window(program);
  ShowForm(program, window);
}

}  // namespace orby
