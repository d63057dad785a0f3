// The disclaimer. The settings can require it at the start of the program.
//
// Only its buttons close it. The window's close button and the Escape key do nothing, because at the start they would
// skip the question.
#pragma once

#include "controls/controls.h"
#include "core/program_form.h"

namespace orby {

class Disclaimer : public ProgramForm {
 public:
  Label lblHeading{*this, "lblHeading", "Disclaimer of Liability Clause"};
  TextBox txtDisclaimer{*this, "txtDisclaimer", TextKind::Output};
  CheckBox chkShow{*this, "chkShow", "Show disclaimer at start-up"};

  // commands
  Button Command1{*this, "Command1", "I accept"};
  Button cmdNoAccept{*this, "cmdNoAccept", "I do not accept", [this] { Refuse(); }};

  explicit Disclaimer(Program& program);

  bool MayClose() override { return false; }

 protected:
  void OnOpen() override;
  // After "I accept", stores whether to show the disclaimer at the next start.
  void OnClose() override;

 private:
  void Refuse();

  bool accepted_ = false;
};

}  // namespace orby
