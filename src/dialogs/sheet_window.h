// The window with the calculation sheet of the project: its pages with the contents beside them.
#pragma once

#include "controls/controls.h"
#include "core/program_form.h"
#include "dialogs/pages_box.h"
#include "dialogs/project_sheet.h"

namespace orby {

class SheetWindow : public ProgramForm {
 public:
  List lstContents{*this, "lstContents"};
  PagesBox picPages{*this, "picPages", "Pages of the calculation sheet"};
  Label lblPage{*this, "lblPage", ""};

  LabelledBox txtFind{*this, "txtFind", TextKind::Free, "Find"};
  Button cmdFind{*this, "cmdFind", "Find &Next"};
  Label lblFound{*this, "lblFound", ""};
  Label lblPaper{*this, "lblPaper", "Paper"};
  OptionArray optPaper{*this, "optPaper", {{"A&4"}, {"&Letter"}}};

  // commands
  Button cmdPrint{*this, "cmdPrint", "P&rint..."};
  Button cmdSaveAs{*this, "cmdSaveAs", "&Save As..."};
  Button cmdCopy{*this, "cmdCopy", "&Copy Text"};
  Button cmdClose{*this, "cmdClose", "Close", [this] { Close(); }};
  Button cmdHelp{*this, "cmdHelp", "&Help", [this] { ShowHelp(); }};

  SheetWindow(Program& program, DesignSheet sheet);

 protected:
  void OnOpen() override;

 private:
  void MakePages();
  void ShowPageNumber();
  // Goes to the next label that has the text, from the last one on and around the end.
  void FindNext();
  void Print();
  void SaveAs();
  std::string Name() const;

  DesignSheet sheet_;
  PagedSheet paged_;
};

// Shows a sheet until the user closes the window.
void ShowSheet(Program& program, DesignSheet sheet);

}  // namespace orby
