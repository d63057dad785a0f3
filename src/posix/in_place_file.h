// A file of the machine that is written over without being emptied first.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/file_system.h"

namespace orby {

// Opens the file to be written over with so many bytes; see FileSystem::OpenInPlace.
std::unique_ptr<OutputFile> OpenFileInPlace(const std::string& path, std::uint64_t length);

}  // namespace orby
