// The calculation sheet of a project.
#pragma once

#include "core/program.h"
#include "sheet/sheet.h"

namespace orby {

// Returns the sheet of the project as the parameters dialog opens on it. Throws as AsOpened does, for a project that no
// dialog can show.
DesignSheet SheetOfProject(const Program& program);

}  // namespace orby
