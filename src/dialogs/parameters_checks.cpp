// The checks of OK and Results in the parameters dialog, and the ranges of its fields. Every section of rules runs, so
// one press can show up to twelve faults.
#include <limits>
#include <optional>
#include <variant>

#include "base/attempt.h"
#include "core/messages.h"
#include "dialogs/parameters_dialog.h"
#include "dialogs/parameters_rules.h"

namespace orby {
namespace {

bool IsForDesign(const AcceptedNumbers& accepted, const ParametersDialog& dialog) {
  return !accepted.units || *accepted.units == dialog.Units();
}
bool IsRead(const AcceptedNumbers& accepted, const ParametersDialog& dialog) {
  return accepted.isRead == nullptr || accepted.isRead(dialog);
}

// A rule that cannot be evaluated, because a number is too large, counts as failed.
bool Fails(const ParameterRule& rule, ParametersDialog& dialog) {
  const auto fails = [&] {
    if (const auto* condition = std::get_if<bool (*)(const ParametersDialog&)>(&rule.fault))
      return (*condition)(dialog);
    const AcceptedNumbers& accepted = std::get<AcceptedNumbers>(rule.fault);
    return IsForDesign(accepted, dialog) && IsRead(accepted, dialog) &&
           !accepted.limits(dialog).Include(CheckedValue(accepted.field(dialog)));
  };
  return OrNothing([&] { return std::optional(fails()); }).value_or(true);
}

void ReportFault(Program& program, ParametersDialog& dialog, const ParameterSection& section,
                 const ParameterRule& rule) {
  std::string message(rule.message);
  if (rule.suffix != nullptr) message += rule.suffix(dialog);
  ShowMessage(program, message, BoxIcon::Critical, program.windows.titles.RangeErrorTitle);
  dialog.SSTab1.SetTab(section.outerTab);
  const InnerTab& inner = rule.inner.tabs != nullptr ? rule.inner : section.inner;
  if (inner.tabs != nullptr) (dialog.*inner.tabs).SetTab(inner.tab);
  dialog.RequestFocus(rule.focus(dialog));
}

// Returns the limits of a rule. If they depend on a number that is too large, the rule accepts nothing.
NumberLimits LimitsOf(const AcceptedNumbers& accepted, const ParametersDialog& dialog) {
  constexpr NumberLimits None{.least = std::numeric_limits<double>::infinity()};
  return OrNothing([&] { return std::optional(accepted.limits(dialog)); }).value_or(None);
}

// Returns what the section's rules accept in the field. If none reads the field now, returns what they accept when they
// do.
FieldRange RangeOf(const TextBox& field, const ParameterSection& section, ParametersDialog& dialog) {
  const bool isChecked = section.applies(dialog);
  FieldRange range{.limits = {}, .isInForce = false};
  for (const ParameterRule& rule : section.rules) {
    const auto* accepted = std::get_if<AcceptedNumbers>(&rule.fault);
    if (accepted == nullptr || &accepted->field(dialog) != &field || !IsForDesign(*accepted, dialog)) continue;
    range.isInForce = range.isInForce || (isChecked && IsRead(*accepted, dialog));
    range.limits = range.limits.And(LimitsOf(*accepted, dialog));
  }
  return range;
}

}  // namespace

void ParametersDialog::TieRanges() {
  for (const ParameterSection& section : ParameterSections()) {
    for (const ParameterRule& rule : section.rules) {
      const auto* accepted = std::get_if<AcceptedNumbers>(&rule.fault);
      if (accepted == nullptr) continue;
      TextBox& field = accepted->field(*this);
      field.Range = [this, &section, &field] { return RangeOf(field, section, *this); };
    }
  }
}

bool ParametersDialog::ValidateParameters() {
  bool passed = true;
  for (const ParameterSection& section : ParameterSections()) {
    if (!section.applies(*this)) continue;
    for (const ParameterRule& rule : section.rules) {
      if (!Fails(rule, *this)) continue;
      ReportFault(program_, *this, section, rule);
      passed = false;
      break;
    }
  }
  return passed;
}

}  // namespace orby
