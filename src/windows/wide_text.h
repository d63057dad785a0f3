// Texts and paths as the functions of Windows take them.
#pragma once

#include <string>
#include <string_view>

namespace orby {

// Converts UTF-8 to UTF-16. A byte that is not UTF-8 becomes U+FFFD.
std::wstring WideText(std::string_view text);

std::string Utf8Text(std::wstring_view text);

// Returns the path from the root of its disk, with "." and ".." resolved. Throws RuntimeError 52 when it is none.
std::wstring FullPath(const std::wstring& path);

// Returns the path in UTF-16, with the prefix that lifts the limit of 260 characters when it is long.
// Throws RuntimeError 52 for a path that names no file: an empty one, one with a NUL, the name of a device such as
// "NUL", "COM1.txt" or "\\.\C:", a name with a colon or of more than 255 characters, or a name that Windows would
// change because it ends in a point or a blank.
std::wstring WidePath(const std::string& path);

// Returns the name without folder and drive: "panel.ORB" of "C:\Mine\panel.ORB" and of "C:panel.ORB", which is a file
// in the working folder of that drive.
std::string_view WithoutFolder(std::string_view path);

// Returns the rest, "C:\Mine\" or "C:". Empty when the path is only a name.
std::string FolderOf(std::string_view path);

}  // namespace orby
