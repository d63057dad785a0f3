// Files that are written whole or not at all.
#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace orby {

// Writes the bytes into a file beside the path and then puts it in the path's place, so that whatever happens meanwhile
// the path holds its old bytes or the new ones. False, with the path as it was, when that fails.
bool TryWriteWhole(FileSystem& files, const std::string& path, std::string_view bytes);

}  // namespace orby
