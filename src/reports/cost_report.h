// The cost table as a report page.
#pragma once

#include <string>

#include "design/design.h"

namespace orby {

// Returns the page with the cost table of these inputs. Throws RuntimeError 6 when a figure is outside the range of a
// Single.
std::string CostReport(const CostInputs& costs, UnitSystem units);

}  // namespace orby
