// Reads formulas as a person reads them on a printed sheet, without the program's trees.
#pragma once

#include <string_view>

namespace orby::test {

// Returns the value of a printed formula with numbers in it: "(60^2 - 63.2^2) / 63.2^2 + 1". Knows + - · / ^ √ π,
// brackets, ln, log, tan and cos of degrees, min and max. Throws std::invalid_argument for any other text.
double ValueOfPrinted(std::string_view text);

}  // namespace orby::test
