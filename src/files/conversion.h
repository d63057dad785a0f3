// Conversion of the open project between the unit systems.
#pragma once

#include "base/unit_suffix.h"
#include "core/program.h"
#include "design/field.h"

namespace orby {

// Converts each length, force, stress and unit weight of WorkParms to the target system. Each result is rounded half to
// even to the decimals of its field. The project becomes unsaved, and its name becomes "Metric_" or "English_" followed
// by the file name.
// Throws RuntimeError 6 when a result is outside the range of a Single. The values before it are converted then, but
// the name and the unit system are not changed.
void ConvertProject(Program& program, UnitSystem target);

// Returns the quantity whose unit a number of a design has, or None.
UnitSuffix QuantityOf(const SingleField& field);

}  // namespace orby
