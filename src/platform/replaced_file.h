// Files that are replaced whole or not at all.
#pragma once

#include <string>
#include <string_view>

namespace orby {

// Gives the file of this path these bytes; see FileSystem::ReplaceFile.
void ReplaceFileOnDisk(const std::string& path, std::string_view bytes);

}  // namespace orby
