// A cell of a table of designs, and its unit.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/number_text.h"
#include "design/units.h"

namespace orby {

enum class CellKind : std::uint8_t {
  Empty,
  Failed,     // a figure that cannot be computed
  General,    // a number with up to seven digits
  Patterned,  // a number that is written by a pattern
  Text,
};

struct Cell {
  CellKind Kind = CellKind::Empty;
  NumberPattern Pattern{"0"};
  Single Value = 0;
  std::string_view Text;  // of the row or of the program; beside a number: what is shown for it

  bool IsNumber() const { return Kind == CellKind::General || Kind == CellKind::Patterned; }
};

inline Cell NumberCell(Single value) { return {.Kind = CellKind::General, .Pattern{"0"}, .Value = value, .Text = {}}; }
inline Cell NumberCell(Single value, NumberPattern pattern) {
  return {.Kind = CellKind::Patterned, .Pattern = pattern, .Value = value, .Text = {}};
}
inline Cell TextCell(std::string_view text) {
  return {.Kind = CellKind::Text, .Pattern{"0"}, .Value = 0, .Text = text};
}
inline Cell NoResultCell() { return {.Kind = CellKind::Failed, .Pattern{"0"}, .Value = 0, .Text = {}}; }

// Returns the text that the program shows. It is "--" for a figure that cannot be computed.
std::string ShownText(const Cell& cell);

// Returns the number with seven digits. Requires a number.
double SevenDigitValue(const Cell& cell);

// Returns the pattern as a number format of spreadsheets. Empty for a number with up to seven digits.
std::string NumberFormat(const Cell& cell);

// The unit of a column.
struct CellUnit {
  UnitSuffix Suffix = UnitSuffix::None;
  std::string_view Before;  // "$/" before a unit, or a text that is the whole unit, such as "%"
};

// Returns the unit: "ft", "$/ft", "%". Empty if there is none.
std::string UnitText(const CellUnit& unit, UnitSystem units);

// Returns the factor by which a number of one system is multiplied in the other. The unit of a price per length changes
// by the inverse of the length's factor.
double FactorBetween(const CellUnit& unit, UnitSystem from, UnitSystem to);

// Returns the cell with its number in the other system, written by the same pattern. A number that no Single can hold
// becomes one that cannot be computed.
Cell Converted(Cell cell, const CellUnit& unit, UnitSystem from, UnitSystem to);

}  // namespace orby
