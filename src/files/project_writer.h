// Writing a project file, always in the newest format.
#pragma once

#include <string>

#include "core/program.h"
#include "files/project_lines.h"

namespace orby {

// A data line of the file, without its end.
std::string DataLineText(const ProjectRecord& record, const ProjectLine& line);

// The project as the bytes of a file, the description as it stands.
std::string ProjectFileBytes(const Program& program);

// Writes the project to CurrentFile after normalising its description, then sets FileSaved and `ok`. The target is
// emptied first and written in place, so a failure on the way leaves a short file; `ok` is false then.
// Throws the RuntimeError of the file.
void FileSave(Program& program, bool& ok);

}  // namespace orby
