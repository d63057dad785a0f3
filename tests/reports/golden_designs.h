// The whole designs behind the golden pages in tests/data/reports, by the pages' name.
#pragma once

#include <string>
#include <vector>

#include "reports/designs.h"

namespace orby::test {

std::vector<std::string> GoldenNames();

// What the desk of a design has to be made for.
UnitSystem GoldenUnits(const std::string& name);
StrengthBasis GoldenStrengthMode(const std::string& name);

void BuildGolden(Desk& desk, const std::string& name);

}  // namespace orby::test
