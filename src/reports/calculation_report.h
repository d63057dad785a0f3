// The second page of the report: what the design's analyses give, and what they warn of.
#pragma once

#include "core/program.h"

namespace orby {

// Writes the page into program.OutBuf[1] from program.WorkParms, replacing what was there, and makes it the last page.
// Primary support and the densities of secondary support in entries are computed here; rock loads, capacities and
// stability factors of secondary support are printed as the dialog left them in the design.
// There are no guards: the inputs are those that passed the dialog's checks. Throws RuntimeError 11 for a pattern
// without row spacing or width, and for roof bolts in entries that have no cable bolts; RuntimeError 5 for a depth of
// 0 or less under primary support.
void CalculationReport(Program& program);

// Writes the page of a design whose calculations cannot be computed: the heading, and a line that says so.
void NoCalculationReport(Program& program);

// Keeps page 1, made from program.WorkParms, as the results that were shown last.
void KeepShownResults(Program& program);

// Makes the results that were shown last page 1 again. Returns false, and changes nothing, unless they were made from
// the design, units, strength basis and lists that are in force now.
bool RestoreShownResults(Program& program);

}  // namespace orby
