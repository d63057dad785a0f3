// The folders of the program below the user's documents.
#pragma once

#include <string>
#include <vector>

#include "core/program.h"

namespace orby {

// Finds the folders and makes missing ones. The folder of the program replaces a folder that cannot be made. It
// replaces all four when the desktop does not know the user's documents or desktop.
void FindUserFolders(Program& program);

// Copies the examples of the program into the data path if the setting is on. A file that exists already is not
// changed. A file that cannot be copied is skipped.
void CopyExamples(Program& program);

// Returns the project files among the examples, by their paths: the copy in the data path, or the program's own file if
// there is none.
std::vector<std::string> ExampleFiles(Program& program);

// Makes the folder of the program the working folder, or the folder for program data when the user may not write to the
// former. Ignores a failure.
void EnterWorkingFolder(Program& program);

}  // namespace orby
