// The curve that the user asks for.
#pragma once

#include "core/program.h"

namespace orby {

// Sweeps the curve of this index over the design in `program.windows.WorkParmsCopy`, tells what is to be told of the
// sweep, and makes its points those in `program.windows.curve`. A sweep that fails leaves the curve before it, and
// throws its RuntimeError.
void TakeCurve(Program& program, Integer index);

}  // namespace orby
