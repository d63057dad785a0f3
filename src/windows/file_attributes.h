// What Windows knows of a path without opening it.
#pragma once

#include <string>

namespace orby {

// Returns the attributes of the file or folder, for the functions below.
unsigned long AttributesOf(const std::string& path);

bool Exists(unsigned long attributes);
bool IsFolder(unsigned long attributes);

}  // namespace orby
