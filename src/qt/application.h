// The program on the desktop.
#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/file_types.h"

namespace orby {

// Runs the program until its window is closed. Returns its exit status: 1 after a run-time error that nothing dealt
// with. The arguments are those after the program's name.
int RunProgram(FileSystem& files, FileTypes& fileTypes, const std::vector<std::string>& arguments);

}  // namespace orby
