// Computes the curve that the user chose.
#pragma once

#include "core/program.h"

namespace orby {

// Computes the curve of this index for the design, shows its notices, and stores its points for the windows, with the
// point of the design itself and what the curve is compared with. Throws the RuntimeError of a curve that cannot be
// computed, and then leaves the previous curve.
void TakeCurve(Program& program, const Design& design, Integer index);

}  // namespace orby
