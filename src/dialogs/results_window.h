// The results window: the report pages, one at a time, and the list of curves.
#pragma once

#include <memory>

#include "controls/controls.h"
#include "core/program_form.h"
#include "dialogs/report_pager.h"

namespace orby {

class GraphWindow;

class ResultsWindow : public ProgramForm {
 public:
  TextBox RichTextBox1{*this, "RichTextBox1", TextKind::Output};
  Label lblPage{*this, "lblPage", ""};
  List lstGraphs{*this, "lstGraphs"};

  // commands
  Button Command5{*this, "Command5", page_caption::Previous};
  Button Command4{*this, "Command4", page_caption::Next};
  Button Command2{*this, "Command2", page_caption::Copy};
  Button Command7{*this, "Command7", "Cop&y All", [this] { CopyAll(); }};
  Button Command3{*this, "Command3", "&Print Page"};
  Button Command6{*this, "Command6", "Print &All"};
  Button Command9{*this, "Command9", "&View Plots"};
  Button cmdGraph{*this, "cmdGraph", "Generate Graphs"};
  Button cmdSheet{*this, "cmdSheet", "Calculation &Sheet...", [this] { ShowResultsSheet(); }};
  CheckBox chkWhereLeft{*this, "chkWhereLeft", "&Open where it was left"};
  Button cmdChangeInput{*this, "cmdChangeInput", "Change &Input", [this] { ChangeInput(); }};
  Button Command8{*this, "Command8", "Help", [this] { ShowHelp(); }};
  Button Command1{*this, "Command1", page_caption::Close, [this] { Close(); }};

  explicit ResultsWindow(Program& program);
  ~ResultsWindow() override;

 protected:
  void OnOpen() override;
  void OnClose() override;

 private:
  void TieCommands();
  void CopyAll();
  // Prints the pages first..last on a printer that the user chooses. Shows a message for a printer error; never throws.
  void Print(Integer first, Integer last);
  bool ChoosePrinter();
  void DrawChosenCurve();
  void ShowResultsSheet();
  void ChangeInput();

  ReportPager pager_{program_, {RichTextBox1, lblPage, Command4, Command5, Command2}};
  std::unique_ptr<GraphWindow> graph_;  // made for the first curve
};

// Shows the report pages until the user closes the window.
void ShowResults(Program& program);

}  // namespace orby
