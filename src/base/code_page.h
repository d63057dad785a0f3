// The two encodings of project and configuration files: UTF-8 and Windows-1252.
#pragma once

#include <string>
#include <string_view>

namespace orby {

bool IsValidUtf8(std::string_view bytes);

// Windows-1252 bytes as UTF-8 text. The five unassigned bytes stand for the code points of the same number.
std::string TextFromCodePage(std::string_view bytes);

// A file's bytes as UTF-8 text: as they stand when they are valid UTF-8, else read as Windows-1252.
std::string TextFromFileBytes(std::string bytes);

// A text as a file holds it: Windows-1252 when every character has a place there, else UTF-8.
std::string FileBytesFromText(std::string_view text);

}  // namespace orby
