// The second page of the report: the results and warnings of the analyses of a design.
#pragma once

#include <string>

#include "core/program.h"
#include "engine/analysis.h"

namespace orby {

// Returns the page of a design with these figures. Prints primary support and the densities of secondary support in
// entries from the figures. Prints rock loads, capacities and stability factors of secondary support from the design.
// Requires inputs that the dialog has validated. Throws the RuntimeError of the first figure of the page that cannot be
// computed: 11 for a pattern without row spacing or width, 11 for roof bolts in entries without cable bolts, and 5 for
// primary support at a depth of 0 or less.
std::string CalculationReport(const RoofSupport& design, const Figures& figures);
std::string CalculationReport(const RoofSupport& design, const Catalogs& catalogs);  // analyses the design first

// Returns the page of a design that cannot be computed: the heading and a line that says so.
std::string NoCalculationReport();

// Stores the page in the session as the last page of the report.
void TakeCalculationPage(Program& program, std::string page);

}  // namespace orby
