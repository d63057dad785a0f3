// The project file: one plain text file holds one design, its title and its description.
#pragma once

#include "core/program.h"
#include "files/project_reader.h"
#include "files/project_save.h"
#include "files/project_writer.h"

namespace orby {

// Opens CurrentFile as the project: starts from a new design in the default unit system, checks the format and reads
// the file. `ok` says whether it was read; a file of an unknown format is told to the user and leaves the new design.
// Throws the RuntimeError of the file; what was read until then stays.
void FileOpen(Program& program, bool& ok);

}  // namespace orby
