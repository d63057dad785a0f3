// The commands Save and Save As, and the question before a project is closed.
#pragma once

#include <string>

#include "core/program.h"

namespace orby {

enum class FileDialogMode { Open, Save };

// Returns the settings of a dialog for project files. It offers the name of `project` in the data folder.
FileQuestion ProjectFileQuestion(Program& program, const std::string& project);

// Lets the user choose a project file and sets CurrentFile to it. Offers the name of the open project in the data
// folder. Throws RuntimeError 32755 when the user cancels.
void AskFileName(Program& program, FileDialogMode mode);

enum class SaveCommand { Save, SaveAs };

// Saves the project. Asks for a name first when it has none, or for Save As. Returns false if the user cancelled or if
// the save failed; a failure has been shown to the user.
bool FileMenuSave(Program& program, SaveCommand command);

// Returns true if CurrentFile may replace the open project, whose file is PreviousFile. Asks about unsaved changes
// first: saves them to PreviousFile, or stores them as a backup. Returns false after a save that is cancelled or fails;
// the project stays open then, and CurrentFile is PreviousFile.
bool MayLeavePreviousFile(Program& program);

}  // namespace orby
