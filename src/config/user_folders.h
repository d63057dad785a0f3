// The folders under the user's documents that the program keeps its files in.
#pragma once

#include "core/program.h"

namespace orby {

// Finds the folders and makes those that are missing. A folder that cannot be had is the program's own folder instead;
// all four are when the desktop does not know the user's documents or desktop.
void FindUserFolders(Program& program);

// Copies the examples that came with the program into the data path when the settings ask for it. A file that is there
// already stays as the user left it; one that cannot be copied is left out.
void CopyExamples(Program& program);

// Makes the program's folder the one that relative paths start from, the program data folder when the user may not
// write to it. A failure is ignored.
void EnterWorkingFolder(Program& program);

}  // namespace orby
