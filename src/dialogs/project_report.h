// Builds the report pages of a previewed design and of the committed project.
#pragma once

#include "core/program.h"

namespace orby {

// Stores the pages of a previewed design in the session, and remembers them as the last results. Normalises the
// project's description. Throws the RuntimeError of a report that cannot be computed.
void BuildResults(Program& program, const Design& previewed);

// Stores both report pages of the project in the session.
//
// Page 1 is the one that the Results button showed last, if that was made from the same design. Otherwise both pages
// are those that the button would show in a newly opened parameters dialog, without its checks and messages. Page 1
// says so if the calculations cannot be computed. Normalises the project's description and changes nothing else of it.
// Throws as LoadOutBuf0 does.
void BuildProjectReport(Program& program);

}  // namespace orby
