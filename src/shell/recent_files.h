// The files that the File menu offers again.
#pragma once

#include "controls/controls.h"
#include "core/program.h"

namespace orby {

// Puts the open project first in the list, under its bare name when the settings want short names. A name that the
// list has already changes places with the first, and its path becomes the open project's, be it another file of that
// name. Gives false, the list staying as it is, when the settings switch it off.
bool EnterRecentFile(Program& program);

// Shows the entries in the menu, behind its separator.
void ShowRecentFiles(const RecentFiles& recentFiles, ActionArray& menu);

}  // namespace orby
