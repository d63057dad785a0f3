// Associates project files with this program on the user's desktop.
#pragma once

#include "core/program.h"

namespace orby {

// Asks the user. On Yes makes the desktop open files with the configured extension in this program, and says that it is
// done even if the desktop refused.
void AssociateFileExtension(Program& program);

}  // namespace orby
