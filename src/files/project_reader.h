// Reading a project file of any format that is still in use.
#pragma once

#include <optional>

#include "core/program.h"
#include "files/item_reader.h"

namespace orby {

// The number of the format whose label the file starts with; nothing for another label. Throws RuntimeError 62 for an
// empty file.
std::optional<Integer> FormatOf(ItemReader reader);

// Sets FileVersion from the label that the file starts with. Another label is told to the user and gives false, the
// version staying as it was. Throws RuntimeError 62 for an empty file.
bool CheckFileFormat(Program& program, ItemReader reader);

// Reads a whole file of the format FileVersion, from its label on, into WorkParms and the header values. Fields that
// the format lacks stay as they are, and so do those behind an error. UseAUSStandardTable is never read: its line
// becomes the title, and the title and the start marker become lines of the description.
// Throws RuntimeError 62 when the file is too short, 6 for a number beyond its type, 7 for an immense item.
void ReadProject(Project& project, ItemReader reader);

}  // namespace orby
