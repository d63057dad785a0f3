// The rules of the checks of OK and Results in the parameters dialog: twelve sections, each a table. The checks and the
// marks of the fields come from them.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "base/number_limits.h"
#include "dialogs/parameters_dialog.h"

namespace orby {

struct InnerTab {
  TabSet ParametersControls::*tabs = nullptr;
  int tab = 0;
};

// The numbers that a rule accepts in a field. Throws RuntimeError 6 if they depend on a number that no Single can hold.
struct AcceptedNumbers {
  TextBox& (*field)(ParametersDialog&);
  NumberLimits (*limits)(const ParametersDialog&);
  bool (*isRead)(const ParametersDialog&) = nullptr;  // whether the rule reads the field; always, if null
  std::optional<UnitSystem> units = {};               // of the designs that the rule is for; both, if empty
};

struct ParameterRule {
  // A condition that fails, or the numbers that do not fail.
  std::variant<bool (*)(const ParametersDialog&), AcceptedNumbers> fault;
  std::string_view message;
  Control& (*focus)(ParametersDialog&);
  std::string (*suffix)(const ParametersDialog&) = nullptr;  // appended to the message
  InnerTab inner = {};                                       // overrides the section's
};

// A section ends at its first fault. All rules of a field are in one section.
struct ParameterSection {
  bool (*applies)(const ParametersDialog&);
  int outerTab;
  InnerTab inner;
  std::span<const ParameterRule> rules;
};

// Returns the sections in the order of the checks.
std::span<const ParameterSection> ParameterSections();

// Returns the number of a field. Throws RuntimeError 6 if no Single can hold it. The rule then counts as failed.
double CheckedValue(const TextBox& box);

}  // namespace orby
