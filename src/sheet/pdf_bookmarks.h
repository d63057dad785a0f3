// Bookmarks for PDF files of a writer that makes none.
#pragma once

#include <string>
#include <vector>

#include "sheet/page_layout.h"

namespace orby {

// Returns the file with a bookmark for each entry, which readers show beside the pages. The bytes of the file stay, and
// what is new follows them. Requires a file with a plain table of cross references and pages on one level, as the
// painter of pages writes it. Throws std::invalid_argument for any other file.
std::string WithBookmarks(std::string pdf, const std::vector<PageEntry>& entries, const PageSize& size);

}  // namespace orby
