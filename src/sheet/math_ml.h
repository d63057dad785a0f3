// Formulas as MathML, in the form that HTML takes: without a namespace.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sheet/sheet.h"

namespace orby {

// The contents of one or more <math> elements. A line may be broken between them.
using MathPieces = std::vector<std::string>;

// Return a formula with its symbols, and the part of the step's formula that applies with its numbers. Fractions need
// no brackets around dividend and divisor. Long sums and products have one piece for each part.
MathPieces FormulaMath(const Expression& formula);
MathPieces InsertedMath(const SheetStep& step);

// Returns a symbol: "s_min" has an index.
std::string LetterMath(std::string_view letter);

// Returns a number from its text, with the unit. A power of ten is set as one.
std::string NumberMath(std::string_view text, std::string_view unit);

}  // namespace orby
