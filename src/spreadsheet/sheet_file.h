// Spreadsheet files.
#pragma once

#include <string>

#include "platform/documents.h"

namespace orby {

// Writes the sheet as an .xlsx file with two columns and their headers for each series, and a chart beside them.
// Replaces an existing file. Throws RuntimeError 75 when the file cannot be written.
void WriteSheetFile(const Sheet& sheet, const std::string& path);

}  // namespace orby
