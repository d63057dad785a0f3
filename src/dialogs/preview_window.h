// The print preview: shows the report pages, which the caller has built.
#pragma once

#include "controls/controls.h"
#include "core/program_form.h"
#include "dialogs/report_pager.h"

namespace orby {

class PreviewWindow : public ProgramForm {
 public:
  TextBox RichTextBox1{*this, "RichTextBox1", TextKind::Output};
  Label lblPage{*this, "lblPage", ""};

  // commands
  Button Command5{*this, "Command5", page_caption::Previous};
  Button Command4{*this, "Command4", page_caption::Next};
  Button Command2{*this, "Command2", page_caption::Copy};
  Button Command1{*this, "Command1", page_caption::Close, [this] { Close(); }};

  explicit PreviewWindow(Program& program) : ProgramForm(program, "frmPreview", "Print Preview") {}

 protected:
  void OnOpen() override;

 private:
  ReportPager pager_{program_, {RichTextBox1, lblPage, Command4, Command5, Command2}};
};

// Shows the pages until the user closes the window.
void ShowPreview(Program& program);

}  // namespace orby
