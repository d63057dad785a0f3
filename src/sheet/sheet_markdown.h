// The calculation sheet as Markdown.
#pragma once

#include <string>
#include <string_view>

#include "sheet/sheet.h"

namespace orby {

// Returns the sheet as CommonMark with tables, in UTF-8 with LF line ends. Formulas are fenced.
std::string SheetMarkdown(const DesignSheet& sheet);

// Returns a text in which nothing is taken for markup, at the start of a line either. A line end becomes a blank.
std::string MarkdownText(std::string_view text);

}  // namespace orby
