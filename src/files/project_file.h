// The project file: one plain text file holds one design, its title and its description.
#pragma once

#include "core/program.h"
#include "files/project_reader.h"
#include "files/project_save.h"
#include "files/project_writer.h"

namespace orby {

// Opens CurrentFile as the project: offers to save unsaved changes, starts from a new design in the default unit
// system, checks the format and reads the file. `ok` tells whether it was read; a file of an unknown format is told to
// the user and leaves the new design. A save that is cancelled or fails leaves the project as it was, under the name
// PreviousFile. Throws the RuntimeError of the file; what was read until then stays.
void FileOpen(Program& program, bool& ok);

}  // namespace orby
