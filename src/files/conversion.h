// The open project converted between the unit systems.
#pragma once

#include "core/program.h"

namespace orby {

// Converts every length, force, stress and unit weight of WorkParms into the target system, each from its own stored
// value and rounded half to even to decimals of its own. The project becomes an unsaved one under its bare name with
// "Metric_" or "English_" in front.
// Throws RuntimeError 6 when a value does not fit its field any more; those converted until then stay converted, with
// nothing of it saved, and the name and the unit system stay as they were.
void ConvertProject(Program& program, UnitSystem target);

}  // namespace orby
