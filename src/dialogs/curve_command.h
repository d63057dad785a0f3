// The curve that the user asks for.
#pragma once

#include "core/program.h"

namespace orby {

// Sweeps the curve of this index over the design, tells what is to be told of the sweep, and makes its points those of
// the windows. A sweep that fails leaves the curve before it, and throws its RuntimeError.
void TakeCurve(Program& program, const Design& design, Integer index);

}  // namespace orby
