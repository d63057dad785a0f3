// The project files of the user's desktop: what opens them, and the icon that they bear.
#pragma once

#include "core/program.h"

namespace orby {

// Asks, and on Yes makes this program the one that the desktop opens files of the configured extension with. The user
// is told that it is done in any case.
void AssociateFileExtension(Program& program);

}  // namespace orby
