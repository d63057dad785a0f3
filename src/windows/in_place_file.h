// A file that is overwritten without being emptied first.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/file_system.h"

namespace orby {

// Implements FileSystem::OpenInPlace.
std::unique_ptr<OutputFile> OpenFileInPlace(const std::string& path, std::uint64_t length);

}  // namespace orby
