// The values of a new design.
#pragma once

#include "core/program.h"

namespace orby {

// Fills WorkParms with the values of a new design in the project's unit system, clears title, description and report
// pages, and sets FileSaved and FileEmpty. `untitled` also takes the file name away, `resetUnits` first resets the unit
// system and the strength mode to the user's defaults.
// What the roof rating estimator chose, the table choice, the computed fields and WorkParmsCopy stay.
void FileNew(Program& program, bool untitled, bool resetUnits);

}  // namespace orby
