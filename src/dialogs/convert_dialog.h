// The file conversion dialog: converts the open project to the other unit system.
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
  // The choice has no effect: the converted project always becomes the open one.
  OptionArray Option2{*this, "Option2", {{"Keep original project"}, {"Load converted project "}}};

  // commands
  Button Command2{*this, "Command2", "Convert", [this] { Convert(); }};
  Button Command1{*this, "Command1", "Cancel", [this] { Close(); }};
  Button Command3{*this, "Command3", "Help", [this] { ShowHelp(); }};

  // converted: called after the conversion, even if it failed halfway, and before the closing message.
  explicit ConvertDialog(
      Program& program, std::function<void()> converted = [] {});

  // Returns the error that stopped the conversion, if any.
  const std::optional<RuntimeError>& Failure() const { return failure_; }

 protected:
  void OnOpen() override;

 private:
  void Convert();

  std::function<void()> converted_;
  std::optional<RuntimeError> failure_;
};

}  // namespace orby
