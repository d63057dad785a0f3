// The first page of the report: every input that matters under the options of the design.
#pragma once

#include "core/program.h"

namespace orby {

// Writes the page into program.OutBuf[0] from program.WorkParms, replacing what was there, and makes the page behind it
// the last. The description of the project is normalised on the way, in the program's state too.
// Throws RuntimeError 9 when the project's units are none of the two systems, 6 when a bolt's capacity lies beyond a
// Single.
void LoadOutBuf0(Program& program);

}  // namespace orby
