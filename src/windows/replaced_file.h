// Files that are replaced completely or not at all.
#pragma once

#include <string>
#include <string_view>

namespace orby {

// Implements FileSystem::ResolveLinks. Returns the link itself when it leads to no file.
std::string ResolvedLinks(const std::string& path);

// Implements FileSystem::MakeFileLike.
void MakeFileOnDiskLike(const std::string& path, const std::string& model);

// Implements FileSystem::ReplaceFile.
void ReplaceFileOnDisk(const std::string& path, std::string_view bytes);

}  // namespace orby
