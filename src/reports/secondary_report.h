// The calculation report's blocks on secondary support: rock load, and capacity and stability factor of each system.
#pragma once

#include "core/program.h"
#include "reports/report_text.h"
#include "reports/working_values.h"

namespace orby {

// With SRDI and PRSUP of cable and roof bolts. Throws RuntimeError 11 for roof bolts in entries without cable bolts.
void ReportEntrySupport(ReportText& page, const Program& program, const WorkingValues& working);

void ReportIntersectionSupport(ReportText& page, const Program& program, const WorkingValues& working);

}  // namespace orby
