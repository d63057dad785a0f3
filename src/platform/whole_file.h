// Files that are written completely or not at all.
#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace orby {

// Replaces the file in one step as FileSystem::ReplaceFile does. Returns false and leaves the file unchanged when that
// fails.
bool TryWriteWhole(FileSystem& files, const std::string& path, std::string_view bytes);

}  // namespace orby
