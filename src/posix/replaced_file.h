// Files that are replaced whole or not at all.
#pragma once

#include <string>
#include <string_view>

namespace orby {

// The path that a chain of symbolic links leads to; see FileSystem::BehindLinks.
std::string PathBehindLinks(const std::string& path);

// Makes an empty file like another one; see FileSystem::MakeFileLike.
void MakeFileOnDiskLike(const std::string& path, const std::string& model);

// Replaces the bytes of the file of this path; see FileSystem::ReplaceFile.
void ReplaceFileOnDisk(const std::string& path, std::string_view bytes);

}  // namespace orby
