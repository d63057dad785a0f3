// Spreadsheet files.
#pragma once

#include <string>

#include "platform/documents.h"

namespace orby {

// Writes the sheet as an .xlsx file: two columns a series under their headers, and a chart of them beside. A file that
// is there is replaced. Throws RuntimeError 75 when it cannot be written.
void WriteSheetFile(const Sheet& sheet, const std::string& path);

}  // namespace orby
