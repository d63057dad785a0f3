// The results window: the pages of the report, one at a time, and the list of curves around the design.
#pragma once

#include "controls/controls.h"
#include "core/program.h"

namespace orby {

class ResultsControls : public Form {
 public:
  ResultsControls() : Form("frmResTxtPlt", "Calculation Results") {}

  TextBox RichTextBox1{*this, "RichTextBox1", TextKind::Output};
  List lstGraphs{*this, "lstGraphs"};

  // commands
  Button Command5{*this, "Command5", "P&revious Page"};
  Button Command4{*this, "Command4", "&Next Page"};
  Button Command2{*this, "Command2", "&Copy Page"};
  Button Command7{*this, "Command7", "Cop&y All"};
  Button Command3{*this, "Command3", "&Print Page"};
  Button Command6{*this, "Command6", "Print &All"};
  Button Command9{*this, "Command9", "&View Plots"};
  Button cmdGraph{*this, "cmdGraph", "Generate Graphs"};
  Button cmdChangeInput{*this, "cmdChangeInput", "Change &Input"};
  Button Command8{*this, "Command8", "Help"};
  Button Command1{*this, "Command1", "Close"};
};

class ResultsWindow : public ResultsControls {
 public:
  explicit ResultsWindow(Program& program) : program_(program) {}

 protected:
  void OnOpen() override {}
  void OnClose() override {}

 private:
  Program& program_;
};

// Shows the pages of the report until the user closes them.
void ShowResults(Program& program);

}  // namespace orby
