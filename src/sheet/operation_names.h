// The names of the operations of formulas in files.
#pragma once

#include <array>
#include <string_view>

#include "sheet/expression.h"

namespace orby {

// In the order of Operation.
inline constexpr auto OperationNames =
    std::to_array<std::string_view>({"number", "constant", "symbol", "sum", "difference", "product", "quotient",
                                     "power", "root", "natural-log", "decimal-log", "tangent-of-degrees",
                                     "cosine-of-degrees", "least", "greatest", "cases", "below", "at-most", "equal"});

constexpr std::string_view OperationName(Operation what) { return OperationNames[static_cast<std::size_t>(what)]; }

}  // namespace orby
