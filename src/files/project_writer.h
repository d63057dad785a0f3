// Writes project files, always in the newest format.
#pragma once

#include <string>

#include "core/program.h"

namespace orby {

struct ProjectLine;

// Returns a data line of the file without its line end.
std::string DataLineText(const Design& design, const ProjectLine& line);

// Returns the project as the bytes of a file. Does not normalise the description.
std::string ProjectFileBytes(const Project& project);

}  // namespace orby
