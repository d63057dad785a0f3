// The desktop program.
#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/file_types.h"

namespace orby {

// Runs the program until its window is closed. Returns the exit status, which is 1 after an unhandled run-time error.
// arguments: those after the program's name.
int RunProgram(FileSystem& files, FileTypes& fileTypes, const std::vector<std::string>& arguments);

}  // namespace orby
