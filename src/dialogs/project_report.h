// The pages of a report: of the design that the parameters dialog shows, and of the committed one.
#pragma once

#include "core/program.h"

namespace orby {

// Puts the pages of a design as it is previewed into the session, replacing what was there, and keeps them as the
// results that were shown last. The description of the project is normalised on the way. Throws what a report throws
// that cannot be computed.
void BuildResults(Program& program, const Design& previewed);

// Puts both report pages of the project into the session. Page 1 is the one that the Results button showed last if that
// was made from this very project. Otherwise the pages are those that the button gives in a parameters dialog that has
// just been opened, without its checks and its messages. If the calculations cannot be computed, page 1 says so. The
// description is normalised on the way; nothing else of the project changes. Throws as LoadOutBuf0 does.
void BuildProjectReport(Program& program);

}  // namespace orby
