// What a run starts from, before anything is opened.
#pragma once

#include <string>
#include <vector>

#include "config/ini_file.h"
#include "core/program.h"

namespace orby {

// Starts a run at the desktop: finds the user's folders, reads the configuration file, made anew when it is missing or
// of another version, begins a new design, and enters the working folder. Where no configuration file can be read or
// written, what a new one would hold is in force, and the user is told.
void StartProgram(Program& program);

// Starts a run apart from the user: it looks at none of the user's folders and writes nothing. Values of a new design
// and lists come from the configuration if there is one.
void StartApart(Program& program, const IniText* configuration);

// The one file that a command line names: its arguments joined by blanks, without double quotes, from the root of the
// file system; empty without arguments. To be asked before StartProgram, which changes where relative paths start.
std::string CommandLineFile(Program& program, const std::vector<std::string>& arguments);

}  // namespace orby
