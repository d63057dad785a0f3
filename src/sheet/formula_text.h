// A formula in one line of text: "0.38 · CMRR + 46.1", "√(2 · W^2) + m", "ln(H)", "max(3, r · SF · D)".
#pragma once

#include <functional>
#include <string>

#include "sheet/sheet.h"

namespace orby {

// Returns the formula with its symbols.
std::string FormulaText(const Expression& formula);

// Returns the part of the step's formula that applies, with the numbers in the places of their symbols.
std::string InsertedText(const SheetStep& step);

// Returns the part of the step's formula that applies.
const Expression& AppliedFormula(const SheetStep& step);

// How tightly an operation binds its parts. An operation inside another one that binds as tightly or tighter needs
// brackets, except at the left.
enum class Binding : std::uint8_t { Condition, Sum, Product, Sign, Power, Whole };
Binding BindingOf(const Expression& formula);

// The text of a number as a power of ten: "4.2" and "-7" for "4.2e-07". Without one, the exponent is empty.
struct NumberParts {
  std::string_view Mantissa;
  std::string Exponent;
};
NumberParts PartsOfNumber(std::string_view text);

// A quotient of quotients as one fraction: a / b / c has the divisors b and c.
struct FlatQuotient {
  const Expression* Dividend = nullptr;
  std::vector<const Expression*> Divisors;
};
FlatQuotient FlatQuotientOf(const Expression& quotient);

}  // namespace orby
