// The cost table as a report page.
#pragma once

#include "core/program.h"

namespace orby {

// Writes the table into program.OutBuf[1] from the costs in program.WorkParmsCopy, replacing what was there, and makes
// it the last page. True when it was built. Throws RuntimeError 6 when a figure lies beyond a Single.
bool CostReport(Program& program);

}  // namespace orby
