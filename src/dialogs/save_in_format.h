// Saves one thing as a file of a format that the user chooses.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/program.h"

namespace orby {

struct FileFormat {
  std::string_view name;       // "Drawing"
  std::string_view extension;  // without the point, in lower case
  std::function<std::string()> bytes;
  std::function<void(const std::string& path)> write{};  // instead of `bytes`, for a format that writes its file itself
};

struct ChosenFile {
  std::string Path;
  std::size_t Format = 0;  // its place in the list
};

// Asks for a name, which starts as `baseName` with the extension of the first format. Asks again after a message if no
// format has the extension of the name. Shows a message for an error; never throws. Returns nothing if it is cancelled.
std::optional<ChosenFile> AskForFile(Program& program, const std::string& title, const std::string& baseName,
                                     const std::vector<FileFormat>& formats);

// Asks for a name in the same way, and replaces the file in one step by the bytes of the format that the extension
// names. Shows a message for an error; never throws. Returns the path, or an empty text if nothing was written.
std::string SaveInFormat(Program& program, const std::string& title, const std::string& baseName,
                         const std::vector<FileFormat>& formats);

}  // namespace orby
