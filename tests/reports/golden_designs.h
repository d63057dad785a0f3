// The designs of the golden pages in tests/data/reports. Each is a project file with the name of its pages. A row of
// golden_designs.tsv has the path that the pages show and the figures of secondary support.
#pragma once

#include <string>
#include <vector>

#include "reports/designs.h"

namespace orby::test {

std::vector<std::string> GoldenNames();

// Opens the design in the program of the desk.
void OpenGolden(Desk& desk, const std::string& name);

}  // namespace orby::test
