// The recovery file: a copy of an unsaved project, so that a crash or a forced end of the program loses nothing.
//
// The first line is a label. Lines "key=value" follow with the name, choices, texts and flags of the project, and then
// the same data lines as in a project file. The file is always UTF-8. Each text is one line in which "\r", "
// " and "\\" represent a carriage return, a line feed and a backslash. Any text reads back unchanged, and each line is
// read into its own field.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/program.h"

namespace orby {

// Returns the project as it will be after this design is committed.
UnsavedProject EditedProject(const Project& project, Design design);

// Returns true if the bytes start with the label of a recovery file.
bool IsRecoveryFile(std::string_view bytes);

std::string RecoveryBytes(const UnsavedProject& project);

// Returns the project in the bytes, or nothing when they are damaged. Bytes are damaged unless writing the project
// gives the same bytes.
std::optional<UnsavedProject> ReadRecovery(std::string_view bytes);

// Returns the name of the project in bytes that may be damaged. Empty when they contain none.
std::string ProjectNamedIn(std::string_view bytes);

// Makes `unsaved` the open project, with unsaved changes.
void RestoreProject(Project& project, const UnsavedProject& unsaved);

}  // namespace orby
