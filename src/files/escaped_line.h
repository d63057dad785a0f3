// Returns a text as one line of a file: "\r", "
// " and "\\" represent a carriage return, a line feed and a backslash.
#pragma once

#include <string>
#include <string_view>

namespace orby {

std::string Escaped(std::string_view text);

// Returns the text that the line represents. A backslash before any other character represents that character.
std::string Unescaped(std::string_view line);

}  // namespace orby
