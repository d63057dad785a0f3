// Paths as values of the configuration file.
//
// A path is bytes, and a file system takes nearly any of them. One name that is no UTF-8 would make the whole file be
// read as Windows-1252, and so break every other name with an umlaut. A path that the file could not give back is
// therefore written as "file:" and the path with the bytes in question as "%" and two hexadecimal digits.
#pragma once

#include <string>
#include <string_view>

namespace orby {

// The path as it stands when the file gives it back: UTF-8 without control characters, without a blank or a quotation
// mark at its beginning or end, and not starting with "file:".
std::string ValueFromPath(std::string_view path);

std::string PathFromValue(std::string_view value);

}  // namespace orby
