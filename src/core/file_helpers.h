// Helpers for files and paths. Some show a message when something is wrong.
#pragma once

#include <string>

#include "core/messages.h"
#include "core/program.h"

namespace orby {

// Returns true if the path is a file. Returns false for an invalid path.
bool FileExists(Program& program, const std::string& path);

// Returns true if the path is a file or a folder. When the search fails with an error that ends a command, shows
// "Invalid path: " if `reporting` is Loud, and returns false. When it fails with another error, shows an internal error
// and returns true.
bool ValidPath(Program& program, const std::string& path, Reporting reporting);

enum class FileNameForm { Whole, WithoutExtension };

// Returns the name after the last separator. Shows an error if the path ends in a separator, and returns it unchanged.
std::string FileNameFromPath(Program& program, const std::string& path, FileNameForm form);

// Copies a text file. Each line of the copy ends with CR LF. Returns true if it succeeded, otherwise shows an error.
bool CopyTextFile(Program& program, const std::string& source, const std::string& target);

// Returns the folder for temporary files with a trailing separator.
std::string GetTempDirectory(FileSystem& files);

// Returns the path without a trailing separator. Empty when there is no such file or folder.
std::string LongPathName(FileSystem& files, const std::string& path);

// Returns the folder of the program with a trailing separator.
std::string AppDirectory(FileSystem& files);

}  // namespace orby
