// The recovery file: a project that was never saved, kept so that the end of a run by an error or from outside loses
// nothing of it.
//
// The first line is a label; lines "key=value" with the project's name, choices, texts and flags follow, then the same
// data lines as in a project file, always in UTF-8. Texts stand on one line each: "\r", "\n" and "\\" are a carriage
// return, a line feed and a backslash. So any text comes back as it was, and each line comes back into its own field.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/program.h"

namespace orby {

// The project as it will be once this design is committed.
UnsavedProject EditedProject(const Project& project, Design design);

// Whether the bytes begin as those of a recovery file do.
bool IsRecoveryFile(std::string_view bytes);

std::string RecoveryBytes(const UnsavedProject& project);

// The project that the bytes hold; nothing when they are damaged, which is when they are not what would be written.
std::optional<UnsavedProject> ReadRecovery(std::string_view bytes);

// The name of the project in bytes that may be damaged; empty when they tell none.
std::string ProjectNamedIn(std::string_view bytes);

// Makes the project the open one, with unsaved changes.
void RestoreProject(Project& project, const UnsavedProject& unsaved);

}  // namespace orby
