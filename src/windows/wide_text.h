// Texts and paths as the functions of Windows take them.
#pragma once

#include <string>
#include <string_view>

namespace orby {

// Converts UTF-8 to UTF-16. A byte that is not UTF-8 becomes U+FFFD.
std::wstring WideText(std::string_view text);

std::string Utf8Text(std::wstring_view text);

// Returns the path in UTF-16, with the prefix that lifts the limit of 260 characters when it is long.
// Throws RuntimeError 52 for a path that names no file: an empty one, one with a NUL, a reserved name of a device such
// as "NUL" or "COM1.txt", or one whose last part Windows would change because it ends in a point or a blank.
std::wstring WidePath(const std::string& path);

}  // namespace orby
