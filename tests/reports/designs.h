// Designs for reports, on a platform without a screen or a disk.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/program.h"
#include "support/recording_platform.h"

namespace orby::test {

// A program with the built-in catalogs and a new design in the given unit system, without computed figures.
struct Desk {
  explicit Desk(UnitSystem units = English, StrengthBasis strengthMode = StrengthBasis::Yield);

  RecordingPlatform machine;
  Program program;
};

// Selects this bolt manually in all three sets, in the units of the project.
void PickBolt(Design& record, Single diameter, Single grade);

// Sets the flag of every system of secondary support; 1 means in use.
void UseEverySystem(Design& record, Integer flag = 1);

// Returns the lines of a page without their CR LF. Any other line end stays in its line.
std::vector<std::string> LinesOf(const std::string& page);

// Returns the value in the line of this label, or "no such line".
std::string ValueOf(const std::string& page, std::string_view label);

// Returns the lines after the heading, up to the next line in brackets that is not a warning.
std::vector<std::string> SectionOf(const std::string& page, std::string_view heading);

}  // namespace orby::test
