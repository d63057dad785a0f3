// Paths as values of the configuration file.
//
// A path consists of bytes, and a file system accepts nearly any of them. A single name that is not UTF-8 would make
// the whole file be read as Windows-1252, which would change all other accented names. A path that would not read back
// unchanged is therefore written as "file:" and the path, with "%" and two hexadecimal digits for each problematic
// byte.
#pragma once

#include <string>
#include <string_view>

namespace orby {

// Returns the path unchanged if it reads back unchanged: UTF-8 without control characters, without a blank or a
// quotation mark at its start or end, and not starting with "file:". Otherwise returns it with escapes.
std::string ValueFromPath(std::string_view path);

std::string PathFromValue(std::string_view value);

}  // namespace orby
