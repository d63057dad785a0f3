// The calculation sheet as one HTML file.
#pragma once

#include <string>

#include "sheet/sheet.h"

namespace orby {

// Returns the sheet as HTML5 in UTF-8 that is well-formed XML as well. It needs no other file and has no script.
// Formulas are MathML. It has styles for light and dark screens, and for paper.
std::string SheetHtml(const DesignSheet& sheet);

}  // namespace orby
