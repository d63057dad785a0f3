// The two encodings of project and configuration files: UTF-8 and Windows-1252.
#pragma once

#include <string>
#include <string_view>

namespace orby {

bool IsValidUtf8(std::string_view bytes);

// Converts Windows-1252 bytes to UTF-8. The five unassigned bytes become the code points of the same number.
std::string TextFromCodePage(std::string_view bytes);

// Returns the bytes of a file as UTF-8: unchanged when they are valid UTF-8, otherwise converted from Windows-1252.
std::string TextFromFileBytes(std::string bytes);

// Returns the bytes that a file stores for a UTF-8 text: Windows-1252 if it has every character of the text, otherwise
// the text unchanged.
std::string FileBytesFromText(std::string_view text);

}  // namespace orby
