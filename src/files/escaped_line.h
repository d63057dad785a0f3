// Any text as one line of a file: "\r", "\n" and "\\" are a carriage return, a line feed and a backslash.
#pragma once

#include <string>
#include <string_view>

namespace orby {

std::string Escaped(std::string_view text);

// The text that the line stands for. A backslash before any other character stands for that character.
std::string Unescaped(std::string_view line);

}  // namespace orby
