// The project file: a plain text file with a design, its title and its description.
#pragma once

#include <optional>
#include <string>

#include "core/program.h"
#include "files/project_reader.h"
#include "files/project_save.h"
#include "files/project_writer.h"

namespace orby {

// Opens CurrentFile as the project: sets a new design in the default unit system, checks the format and reads the file.
// Returns true if the file was read. For a file of an unknown format, shows an error and keeps the new design.
// Throws the RuntimeError of the file and keeps the values read before it.
bool FileOpen(Program& program);

// Returns the bytes of a project file, or nothing for a file of an unknown format, which is not read further. May be
// called on any thread. Throws the RuntimeError of the file, and 62 for an empty one.
std::optional<std::string> ReadProjectBytes(FileSystem& files, const std::string& path);

}  // namespace orby
