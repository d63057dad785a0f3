// The cost table as a report page.
#pragma once

#include <string>

#include "design/design.h"

namespace orby {

// The page of what these inputs cost. Throws RuntimeError 6 when a figure lies beyond a Single.
std::string CostReport(const CostInputs& costs, UnitSystem units);

}  // namespace orby
