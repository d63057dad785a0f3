// Prepares a run before any project is opened.
#pragma once

#include <string>
#include <vector>

#include "config/ini_file.h"
#include "core/program.h"

namespace orby {

// Prepares a desktop run: finds the user's folders, reads the configuration file, begins a new design and enters the
// working folder. Writes a new configuration file if there is none of this version. If the file cannot be read or
// written, the values of a new one apply and a message says so.
void StartProgram(Program& program);

// Prepares a run without a desktop: reads none of the user's folders and writes nothing. The catalogs and the values of
// a new design come from `configuration`; null means the built-in ones.
void StartApart(Program& program, const IniText* configuration);

// Returns the absolute path of the file that the command line names: the arguments joined by spaces, without double
// quotes. Returns an empty text if there are none. Call it before StartProgram, which changes the current folder.
std::string CommandLineFile(Program& program, const std::vector<std::string>& arguments);

}  // namespace orby
