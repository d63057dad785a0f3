// The project files in folders.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace orby {

// A file to read, or a folder that cannot be read.
struct FoundProject {
  std::string Path;
  std::string Reason;  // of a folder
};

// Returns the project files in the folder and the folders in it, sorted by their paths. Does not enter hidden folders,
// nor links to folders, so a link to a folder above it does no harm.
//
// goesOn     called after each folder with the number of projects found so far; false ends the walk
std::vector<FoundProject> ProjectsBelow(FileSystem& files, const std::string& folder,
                                        const std::function<bool(std::size_t found)>& goesOn = {});

// Returns the files of a list of files and folders. Each folder is replaced with the projects below it.
std::vector<FoundProject> ProjectsOf(FileSystem& files, const std::vector<std::string>& paths);

}  // namespace orby
