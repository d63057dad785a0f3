// A form that uses the state of the run.
#pragma once

#include <string_view>

#include "controls/form.h"
#include "core/help.h"
#include "core/program.h"

namespace orby {

class ProgramForm : public Form {
 public:
  ProgramForm(Program& program, std::string_view name, std::string_view caption)
      : Form(name, caption), program_(program) {}

 protected:
  // Opens the topic of this form.
  void ShowHelp() const { OpenHelpTopic(program_, *this); }

  Program& program_;
};

}  // namespace orby
