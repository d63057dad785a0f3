// The rules of the house. Each gives its violations as lines to read, "path:line: what is wrong"; none means it holds.
#pragma once

#include <string>
#include <vector>

#include "architecture/tree.h"

namespace orby::test {

// Includes that do not run to a lower floor, and folders that have no floor.
std::vector<std::string> WrongArrows(const Tree& tree);

// Files of src/ that include themselves, directly or by way of others; each circle once, "a.h -> b.h -> a.h".
std::vector<std::string> Circles(const Tree& tree);

// Window toolkit headers outside src/qt and src/apps.
std::vector<std::string> ToolkitOutside(const Tree& tree);

// Rooms without a folder of tests of their name, and folders of tests without a room.
std::vector<std::string> UnmirroredRooms(const Tree& tree);

// Marks of work left open and of tests switched off.
std::vector<std::string> StrayWords(const Tree& tree);

// Files of src/ with more lines than one subject needs.
std::vector<std::string> LongFiles(const Tree& tree);

}  // namespace orby::test
