#include "core/field_hint.h"

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "base/text.h"
#include "design/units.h"

namespace orby {
namespace {

// Returns a converted number with at most three decimals.
std::string Rounded(double number) {
  constexpr double Thousandths = 1000;
  return NumberText(RoundHalfEven(number * Thousandths) / Thousandths);
}

std::string ReadingText(const TextBox& field) {
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
std::string OtherUnitText(const TextBox& field, UnitSystem units) {
  const UnitSuffix suffix = field.Suffix();
  const NumberReading reading = field.Reading();
  if (suffix == UnitSuffix::None || reading == NumberReading::TooLarge || reading == NumberReading::Blank) return {};
  const UnitSystem other = units == English ? Metric : English;
  const double factor = MetricPerEnglish(suffix);
  const double converted = units == English ? field.Value() * factor : field.Value() / factor;
  return NumberText(field.Value()) + " " + std::string(UnitName(suffix, units)) + " = " + Rounded(converted) + " " +
         std::string(UnitName(suffix, other));
}

}  // namespace

std::string_view FieldCaption(const Control& field) {
  std::string_view caption;
  for (const Control* control : field.Owner().Controls()) {
    if (control == &field) break;
    if (const auto* label = dynamic_cast<const Label*>(control)) caption = label->Caption();
  }
  return caption;
}

std::vector<std::string> FieldHint(const Program& program, const TextBox& field) {
  if (!field.TakesNumber()) return {};
  const UnitSystem units = program.project.WorkParms.Units;
  const std::string_view unit = field.Suffix() == UnitSuffix::None ? "" : UnitName(field.Suffix(), units);
  std::vector<std::string> lines{std::string(FieldCaption(field)), RangeText(field, unit), ReadingText(field),
                                 OtherUnitText(field, units)};
  std::erase(lines, std::string());
  return lines;
}

}  // namespace orby
