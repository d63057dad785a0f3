// Texts in HTML, SVG and other XML.
#pragma once

#include <string>
#include <string_view>

namespace orby {

// Appends the text, in which nothing is taken for markup, also between quotes. Control characters become blanks.
void AppendEscapedMarkup(std::string& markup, std::string_view text);

std::string EscapedMarkup(std::string_view text);

}  // namespace orby
