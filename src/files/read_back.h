// Differences between a project and its file when it is read back.
#pragma once

#include <string_view>
#include <vector>

#include "core/program.h"

namespace orby {

// Returns the names of the fields that differ after reading `bytes`, in the order of the file. Fields that the format
// reads into other fields are left out.
std::vector<std::string_view> FieldsThatReadDifferently(const Project& project, std::string_view bytes);

}  // namespace orby
