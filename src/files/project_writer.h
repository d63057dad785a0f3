// Writing a project file, always in the newest format.
#pragma once

#include <string>

#include "core/program.h"

namespace orby {

struct ProjectLine;

// A data line of the file, without its end.
std::string DataLineText(const Design& design, const ProjectLine& line);

// The project as the bytes of a file, the description as it stands.
std::string ProjectFileBytes(const Project& project);

}  // namespace orby
