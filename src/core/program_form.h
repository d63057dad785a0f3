// A form that uses the state of the run.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/form.h"
#include "core/field_hint.h"
#include "core/help.h"
#include "core/program.h"

namespace orby {

class ProgramForm : public Form {
 public:
  ProgramForm(Program& program, std::string_view name, std::string_view caption)
      : Form(name, caption), program_(program) {}

  std::vector<std::string> HintOf(const Control& control) const override { return FieldHint(program_, control); }

 protected:
  // Opens the topic of this form.
  void ShowHelp() const { OpenHelpTopic(program_, *this); }

  Program& program_;
};

}  // namespace orby
