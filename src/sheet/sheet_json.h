// The calculation sheet as data for other programs. docs/calculation-sheet-format.md describes it.
#pragma once

#include <string>

#include "sheet/sheet.h"

namespace orby {

inline constexpr int SheetFormat = 1;

// Returns the sheet as JSON in UTF-8. Each number reads back to the double that the sheet has.
std::string SheetJson(const DesignSheet& sheet);

}  // namespace orby
