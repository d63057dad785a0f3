// The recent files in the File menu.
#pragma once

#include "controls/controls.h"
#include "core/program.h"

namespace orby {

// Puts the open project first in the list, under its bare name if the settings ask for short names. If the list already
// has that name, the two entries change places and the name then stands for the open project, even if it stood for a
// file in another folder. Returns false and changes nothing if the settings switch the list off.
bool EnterRecentFile(Program& program);

// Shows the list in the menu, after its separator.
void ShowRecentFiles(const RecentFiles& recentFiles, ActionArray& menu);

}  // namespace orby
