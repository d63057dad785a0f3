// Files that are written whole or not at all.
#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace orby {

// Replaces the file in one step, as FileSystem::ReplaceFile does. False, with the path as it was, when that fails.
bool TryWriteWhole(FileSystem& files, const std::string& path, std::string_view bytes);

}  // namespace orby
