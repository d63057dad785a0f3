// The values of a new design.
#pragma once

#include "core/program.h"

namespace orby {

// Sets WorkParms to the values of a new design in the unit system of the project, clears title, description and report
// pages, and sets FileSaved and FileEmpty. `untitled` also removes the file name. `resetUnits` first resets the unit
// system and the strength mode to the user's defaults. Does not change the choice of the estimator, the table choice,
// the computed fields and WorkParmsCopy.
void FileNew(Program& program, bool untitled, bool resetUnits);

}  // namespace orby
