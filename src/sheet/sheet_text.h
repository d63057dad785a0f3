// The calculation sheet as plain text.
#pragma once

#include <string>

#include "sheet/sheet.h"

namespace orby {

// Returns the sheet in UTF-8. Lines end with LF and have at most 80 characters, unless one word or one group of a
// formula is longer.
std::string SheetText(const DesignSheet& sheet);

}  // namespace orby
