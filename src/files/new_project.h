// The values of a new design.
#pragma once

#include "core/program.h"

namespace orby {

// Sets the numbers and choices of a design to those of a new one in its unit system and strength basis. Does not change
// the choice of the estimator, the table choice and the computed fields.
void FillNewValues(Design& design, const DesignDefaults& defaults, const Catalogs& catalogs);

// What a new design keeps of the previous project. The units are the unit system and the strength basis.
enum class Keeping { Nothing, Name, NameAndUnits };

// Sets WorkParms to the values of a new design, clears title, description and report pages, and sets FileSaved and
// FileEmpty. The name becomes UntitledName if it is not kept, the units become the user's defaults if they are not
// kept. Does not change the choice of the estimator, the table choice, the computed fields and WorkParmsCopy.
void FileNew(Program& program, Keeping keeping);

}  // namespace orby
