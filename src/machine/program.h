// The process of the program on this machine.
#pragma once

#include <string>
#include <vector>

namespace orby {

// Prepares the process. Call it first in main().
//
// Output streams write bytes as they are. A drive without a disk is an error of the call that uses it; otherwise the
// system might stop the program with a box. A write beyond the limit that the system may set on the size of a program's
// files fails; otherwise the system would end the program. Programs that this one starts are not affected.
void PrepareProgram();

// Returns the arguments of the command line as UTF-8, without the name of the program.
std::vector<std::string> ProgramArguments(int argc, char** argv);

// Returns the folder that contains the program, or "." when it is not known.
std::string ProgramFolder();

// Returns true if windows can be shown.
bool HasDisplay();

// Returns true if standard error is a terminal, where a user may follow the progress.
bool ErrorsGoToTerminal();

}  // namespace orby
