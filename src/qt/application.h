// The program on the desktop.
#pragma once

#include <string>
#include <vector>

namespace orby {

// Runs the program until its window is closed, and gives its exit status: 1 after a run-time error that nothing dealt
// with. The arguments are those behind the program's name.
int RunProgram(const std::string& programFolder, const std::vector<std::string>& arguments);

}  // namespace orby
