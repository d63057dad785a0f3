// The second page of the report: what the design's analyses give, and what they warn of.
#pragma once

#include <string>

#include "core/program.h"
#include "engine/analysis.h"

namespace orby {

// The page of a design with these figures. Primary support and the densities of secondary support in entries are those
// of the figures; rock loads, capacities and stability factors of secondary support are printed as the design has them.
// There are no guards: the inputs are those that passed the dialog's checks. Throws the RuntimeError of the first
// figure of the page that cannot be computed: 11 for a pattern without row spacing or width, and for roof bolts in
// entries that have no cable bolts, 5 for a depth of 0 or less under primary support.
std::string CalculationReport(const RoofSupport& design, const Figures& figures);
std::string CalculationReport(const RoofSupport& design, const Catalogs& catalogs);  // analysed with these lists

// Returns the page of a design whose calculations cannot be computed: the heading, and a line that says so.
std::string NoCalculationReport();

// Puts the page into the session, as the last one of its report.
void TakeCalculationPage(Program& program, std::string page);

}  // namespace orby
