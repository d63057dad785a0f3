// The ten parametric curves: one input of the design swept around its value.
#pragma once

#include "core/program.h"

namespace orby {

inline constexpr Integer CurveCount = 10;

// Sweeps the curve of this index over the design in `program.WorkParmsCopy` and leaves its points in `program.curve`, x
// and y in the project's units. Tells the user when a limit was trimmed. Throws RuntimeError 9 for an index outside
// 0..9 or a sweep without any column, and whatever the formulas throw.
void GenerateCurve(Program& program, Integer index);

}  // namespace orby
