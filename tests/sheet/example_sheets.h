// The sheets of designs in examples/, and those that every output has to cope with.
#pragma once

#include <string>
#include <vector>

#include "sheet/sheet.h"

namespace orby::test {

struct NamedSheet {
  std::string Name;
  DesignSheet Sheet;
};

// The sheets of the golden files, one English and one Metric.
std::vector<NamedSheet> GoldenSheets();

// Sheets with every relation, with steps that cannot be computed, with every case of a formula, and with a project
// whose texts look like markup.
std::vector<NamedSheet> SheetsOfAllKinds();

// Texts that look like markup, with letters beyond ASCII.
extern const std::string OddTitle;

struct SheetFormat {
  std::string Ending;
  std::string (*Write)(const DesignSheet& sheet);
};
const std::vector<SheetFormat>& SheetFormats();

}  // namespace orby::test
