// The file conversion utility: asks for the other unit system and converts the open project into it.
#pragma once

#include <functional>
#include <optional>

#include "base/runtime_error.h"
#include "controls/controls.h"
#include "core/program_form.h"

namespace orby {

class ConvertDialog : public ProgramForm {
 public:
  Frame fraUnits{*this, "fraUnits", "Units"};
  OptionArray Option1{*this, "Option1", {{"feet, psi, pcf"}, {"meters, MPa, kN/m3"}}};
  Frame fraFileOptions{*this, "fraFileOptions", "File options"};
  // The converted project is the open one whatever is chosen here.
  OptionArray Option2{*this, "Option2", {{"Keep original project"}, {"Load converted project "}}};

  // commands
  Button Command2{*this, "Command2", "Convert", [this] { Convert(); }};
  Button Command1{*this, "Command1", "Cancel", [this] { Close(); }};
  Button Command3{*this, "Command3", "Help", [this] { ShowHelp(); }};

  // converted: runs once the project is another one, or has been converted in part, before the user is told.
  explicit ConvertDialog(
      Program& program, std::function<void()> converted = [] {});

  // Why the project could not be converted, if it could not.
  const std::optional<RuntimeError>& Failure() const { return failure_; }

 protected:
  void OnOpen() override;

 private:
  void Convert();

  std::function<void()> converted_;
  std::optional<RuntimeError> failure_;
};

}  // namespace orby
