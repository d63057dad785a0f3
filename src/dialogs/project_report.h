// The report of the committed design.
#pragma once

#include "core/program.h"

namespace orby {

// Builds both report pages of the project, replacing what was there. Page 1 is the one that the Results button showed
// last if that was made from this very project. Otherwise the pages are those that the button gives in a parameters
// dialog that has just been opened, without its checks and its messages. If the calculations cannot be computed, page 1
// says so. The description is normalised on the way; nothing else of the project changes.
// Throws as LoadOutBuf0 does.
void BuildProjectReport(Program& program);

}  // namespace orby
