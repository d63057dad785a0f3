#include "core/field_hint.h"

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "base/text.h"
#include "core/help.h"
#include "design/units.h"

namespace orby {
namespace {

// Returns a converted number with at most three decimals.
std::string Rounded(double number) {
  constexpr double Thousandths = 1000;
  return NumberText(RoundHalfEven(number * Thousandths) / Thousandths);
}

template <class Field>
std::string ReadingText(const Field& field) {
  switch (field.Reading()) {
    case NumberReading::Whole: return {};
    case NumberReading::Partial:
      return "\"" + std::string(Trim(field.Text())) + "\" is read as " + NumberText(field.Value());
    case NumberReading::Blank: return "Blank is read as 0";
    case NumberReading::TooLarge: return "\"" + std::string(Trim(field.Text())) + "\" is too large";
  }
  return {};
}

std::string RangeText(const TextBox& field, std::string_view unit) {
  if (!field.Range) return {};
  const std::string limits = LimitsText(field.Range().limits, unit);
  if (limits.empty()) return {};
  return (field.Mark() == FieldMark::OutOfRange ? "Out of range: " : "Range: ") + limits;
}

// Returns the number in both unit systems: "400 ft = 121.92 m".
template <class Field>
std::string OtherUnitText(const Field& field, UnitSystem units) {
  const UnitSuffix suffix = field.Suffix();
  const NumberReading reading = field.Reading();
  if (suffix == UnitSuffix::None || reading == NumberReading::TooLarge || reading == NumberReading::Blank) return {};
  const UnitSystem other = units == English ? Metric : English;
  const double factor = MetricPerEnglish(suffix);
  const double converted = units == English ? field.Value() * factor : field.Value() / factor;
  return NumberText(field.Value()) + " " + std::string(UnitName(suffix, units)) + " = " + Rounded(converted) + " " +
         std::string(UnitName(suffix, other));
}

// A list is not checked against a range.
std::string RangeText(const Combo& /*list*/, std::string_view /*unit*/) { return {}; }

template <class Field>
std::vector<std::string> HintOf(const Program& program, const Field& field) {
  if (!field.TakesNumber()) return {};
  const UnitSystem units = program.project.WorkParms.Units;
  const std::string_view unit = field.Suffix() == UnitSuffix::None ? "" : UnitName(field.Suffix(), units);
  std::vector<std::string> lines{std::string(FieldCaption(field)), HelpSentence(program, field), RangeText(field, unit),
                                 ReadingText(field), OtherUnitText(field, units)};
  std::erase(lines, std::string());
  return lines;
}

}  // namespace

std::string_view FieldCaption(const Control& field) {
  const auto* box = dynamic_cast<const TextBox*>(&field);
  if (box != nullptr && !box->Caption().empty()) return box->Caption();
  std::string_view caption;
  for (const Control* control : field.Owner().Controls()) {
    if (control == &field) break;
    if (const auto* label = dynamic_cast<const Label*>(control)) caption = label->Caption();
  }
  return caption;
}

std::vector<std::string> FieldHint(const Program& program, const Control& field) {
  if (const auto* box = dynamic_cast<const TextBox*>(&field)) return HintOf(program, *box);
  if (const auto* list = dynamic_cast<const Combo*>(&field)) return HintOf(program, *list);
  return {};
}

}  // namespace orby
