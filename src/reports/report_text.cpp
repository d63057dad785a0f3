#include "reports/report_text.h"

#include <utility>

#include "base/text.h"
#include "design/units.h"

namespace orby {
namespace {

constexpr std::size_t UsualPageSize = 8192;

std::string_view UnitText(UnitSuffix unit, UnitSystem units) {
  if (unit == UnitSuffix::None) return {};
  if (unit == UnitSuffix::Degrees) return " (deg)";
  return UnitLabel(unit, units);
}

}  // namespace

ReportText::ReportText(UnitSystem projectUnits) : units(projectUnits) { page.reserve(UsualPageSize); }

void ReportText::Line(std::string_view text) {
  page += text;
  page += LineEnd;
}

void ReportText::Value(std::string_view label, std::string_view value, UnitSuffix unit) {
  AppendFilled(page, label, {}, ReportWidth, '.');
  page += value;
  Line(UnitText(unit, units));
}

void ReportText::Words(std::string_view label, std::string_view text) {
  AppendFilled(page, label, text, ReportWidth, '.');
  Line();
}

void ReportText::Wrapped(std::string_view text, std::size_t width) { Line(WordWrapText(text, width)); }

std::string ReportText::Take() { return std::exchange(page, {}); }

}  // namespace orby
