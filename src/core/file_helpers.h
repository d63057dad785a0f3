// Helpers around files and paths that tell the user what is wrong.
#pragma once

#include <string>

#include "core/program.h"

namespace orby {

// Whether a search for the path finds a file. A bad path is no error: false.
bool FileExists(Program& program, const std::string& path);

// Whether a search for the path finds a file or a folder. A search that fails is told: "Invalid path: " unless quiet,
// giving false, when nothing can mend it; otherwise an internal error, giving true.
bool ValidPath(Program& program, const std::string& path, bool quiet);

// The name behind the last separator, cut before its first point on request. A path that ends in a separator is told
// to the user and given back as it is.
std::string FileNameFromPath(Program& program, const std::string& path, bool stripExtension);

// Copies a text file line by line, each line ended by CR LF. Tells the user what failed.
bool CopyTextFile(Program& program, const std::string& source, const std::string& target);

// The folder for temporary files, ending in a separator.
std::string GetTempDirectory(FileSystem& files);

// The path without a trailing separator; empty when nothing is found there.
std::string LongPathName(FileSystem& files, const std::string& path);

// The program's folder, ending in one separator.
std::string AppDirectory(FileSystem& files);

}  // namespace orby
