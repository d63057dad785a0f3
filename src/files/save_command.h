// The commands Save and Save As, and the question before a project is given up.
#pragma once

#include <string>

#include "core/program.h"

namespace orby {

enum class FileDialogMode { Open, Save };

// What is asked for a project file: the name of this project at first, in the data folder.
FileQuestion ProjectFileQuestion(Program& program, const std::string& project);

// Lets the user choose a project file, starting with the open project's name in the data folder, and makes it
// CurrentFile. Throws RuntimeError 32755 when the user cancels.
void AskFileName(Program& program, FileDialogMode mode);

// Saves the project, asking for its name first when it has none yet or on Save As. Returns true if it was saved; false
// if the user cancelled or the save failed, which was told then.
bool FileMenuSave(Program& program, bool saveAs);

// Returns whether CurrentFile may take the place of the open project. Asks before about unsaved changes of that, which
// is PreviousFile, and saves them there; those not saved are kept as a backup. False after a save that is cancelled or
// fails: the project stays, and CurrentFile is PreviousFile.
bool MayLeavePreviousFile(Program& program);

}  // namespace orby
