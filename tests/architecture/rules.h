// The rules of the architecture. Each function returns its violations as lines "path:line: message", and none when the
// rule holds.
#pragma once

#include <string>
#include <vector>

#include "architecture/tree.h"

namespace orby::test {

// Includes that do not lead to a lower floor, and folders without a floor.
std::vector<std::string> WrongArrows(const Tree& tree);

// Files of src/ that include themselves, directly or through others. Each circle occurs once, as "a.h -> b.h -> a.h".
std::vector<std::string> Circles(const Tree& tree);

// Headers of the window toolkit outside src/qt and src/apps.
std::vector<std::string> ToolkitOutside(const Tree& tree);

// Conditional compilation in src/ outside the rooms of the machines and the programs.
std::vector<std::string> ConditionsOutside(const Tree& tree);

// Rooms without a folder of tests, and folders of tests without a room.
std::vector<std::string> UnmirroredRooms(const Tree& tree);

// Marks of open work and of disabled tests.
std::vector<std::string> StrayWords(const Tree& tree);

// Files of src/ with more than 400 lines.
std::vector<std::string> LongFiles(const Tree& tree);

}  // namespace orby::test
