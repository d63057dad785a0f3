// Designs to report on, over a platform without a screen or a disk.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/program.h"
#include "support/recording_platform.h"

namespace orby::test {

// A program with the built-in catalogs that holds a new design in the given unit system, nothing computed yet.
struct Desk {
  explicit Desk(UnitSystem units = English, StrengthBasis strengthMode = StrengthBasis::Yield);

  RecordingPlatform machine;
  Program program;
};

// Picks this bolt by hand in all three sets, in the project's units.
void PickBolt(Design& record, Single diameter, Single grade);

// Gives the flag of every system of secondary support this value; 1 switches them on.
void UseEverySystem(Design& record, Integer flag = 1);

// The lines of a page without their ends; a line end that is not CR LF stays in its line.
std::vector<std::string> LinesOf(const std::string& page);

// What stands in the column of the values, in the line of this label; "no such line" without one.
std::string ValueOf(const std::string& page, std::string_view label);

// The part of a page from the heading on, up to the next line in brackets that is no warning, without either.
std::vector<std::string> SectionOf(const std::string& page, std::string_view heading);

}  // namespace orby::test
