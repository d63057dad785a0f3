#include "tables/cell.h"

#include <cmath>
#include <limits>

#include "core/shared_texts.h"

namespace orby {

std::string ShownText(const Cell& cell) {
  if (!cell.Text.empty()) return std::string(cell.Text);
  switch (cell.Kind) {
    case CellKind::Failed: return std::string(NoResult);
    case CellKind::General: return NumberText(cell.Value);
    case CellKind::Patterned: return FormatNumber(cell.Value, cell.Pattern);
    case CellKind::Empty:
    case CellKind::Text: break;
  }
  return {};
}

double SevenDigitValue(const Cell& cell) { return TextValue(NumberText(cell.Value)); }

std::string NumberFormat(const Cell& cell) {
  if (cell.Kind != CellKind::Patterned) return {};
  const auto times = [](int count, char digit) { return std::string(static_cast<std::size_t>(count), digit); };
  const NumberPattern& pattern = cell.Pattern;
  std::string format = pattern.minimumWhole == 0 ? "#" : times(pattern.minimumWhole, '0');
  if (pattern.hasPoint) format += '.';
  return format + times(pattern.minimumDecimals, '0') + times(pattern.maximumDecimals - pattern.minimumDecimals, '#');
}

std::string UnitText(const CellUnit& unit, UnitSystem units) {
  std::string text(unit.Before);
  if (unit.Suffix == UnitSuffix::Degrees) {
    text += "deg";
  } else if (unit.Suffix != UnitSuffix::None) {
    text += UnitName(unit.Suffix, units);
    if (text == "$/tons") text = "$/ton";
  }
  return text;
}

double FactorBetween(const CellUnit& unit, UnitSystem from, UnitSystem to) {
  if (from == to || unit.Suffix == UnitSuffix::None || unit.Suffix == UnitSuffix::Degrees) return 1;
  const double factor = MetricPerEnglish(unit.Suffix);
  const bool isInverse = (to == English) != !unit.Before.empty();
  return isInverse ? 1 / factor : factor;
}

Cell Converted(Cell cell, const CellUnit& unit, UnitSystem from, UnitSystem to) {
  if (!cell.IsNumber() || from == to) return cell;
  const double converted = cell.Value * FactorBetween(unit, from, to);
  if (!(std::abs(converted) <= std::numeric_limits<Single>::max())) return NoResultCell();
  cell.Value = static_cast<Single>(converted);
  return cell;
}

}  // namespace orby
