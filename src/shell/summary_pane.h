// The part of the main window beside the history: a summary of the open project, or what to begin with if there is
// none.
//
// Nothing is computed or read before the pane opens, which is after the main window has been painted.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "controls/controls.h"
#include "core/program_form.h"
#include "dialogs/drawing.h"
#include "shell/examples.h"

namespace orby {

// What the buttons and lists of the pane start.
struct SummaryCommands {
  Event New;
  Event Open;
  Event Parameters;
  std::function<void(int row)> Judgement;  // goes to what decides a row of the judgements
  Event Results;
  Event Study;
  std::function<void(Integer item)> OpenRecent;  // an entry of the recent files, from 1
  std::function<void(const std::string& path)> OpenFile;
};

class SummaryPane : public ProgramForm {
 public:
  // of the open project
  Label lblProject{*this, "lblProject", {}};
  Label lblFile{*this, "lblFile", {}};
  Label lblUnits{*this, "lblUnits", {}};
  Button cmdParameters{*this, "cmdParameters", "&Parameters..."};
  Button cmdResults{*this, "cmdResults", "&Results..."};
  Button cmdStudy{*this, "cmdStudy", "&What Would Hold..."};
  Drawing picDesign{*this, "picDesign", "Primary support of an entry"};
  Label lblVerdicts{*this, "lblVerdicts", "&Judgements"};
  List lstVerdicts{*this, "lstVerdicts"};

  // without a project
  Label lblBegin{*this, "lblBegin", "No project is open"};
  Button cmdNew{*this, "cmdNew", "&New"};
  Button cmdOpen{*this, "cmdOpen", "&Open..."};
  Label lblRecent{*this, "lblRecent", "Re&cent files"};
  List lstRecent{*this, "lstRecent"};
  Label lblExamples{*this, "lblExamples", "&Examples"};
  List lstExamples{*this, "lstExamples"};

  SummaryPane(Program& program, SummaryCommands commands);

  // Follows the project, its file and the recent files. Does nothing while the pane is not open.
  void Refresh();

  // The examples of the program, in the order of their list.
  const std::vector<Example>& Examples() const { return examples_; }

  Event ExamplesRead;  // the list has the examples

 protected:
  void OnOpen() override { Refresh(); }

 private:
  void TieCommands();
  void ShowProject();
  void ShowVerdicts();
  void ShowBeginning();
  void ReadExamples();

  SummaryCommands commands_;
  std::optional<Design> shown_;  // the project as the parameters dialog shows it
  std::vector<Example> examples_;
  bool hasReadExamples_ = false;
};

}  // namespace orby
