// The disclaimer, which can guard the start of the program.
//
// It closes by its buttons alone. The window's cross and the Escape key do nothing: at the start they would lead past
// the question into the program.
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
  // Stores whether the disclaimer is to be shown at the next start, once it has been accepted.
  void OnClose() override;

 private:
  void Refuse();

  bool accepted_ = false;
};

}  // namespace orby
