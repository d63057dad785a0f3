// What a project file gives back when it is read.
#pragma once

#include <string_view>
#include <vector>

#include "core/program.h"

namespace orby {

// The names of the fields whose text in the file is not what the reader makes of these bytes, in the order of the
// file. Fields that the format itself reads into others are left out.
std::vector<std::string_view> FieldsThatReadDifferently(const Project& project, std::string_view bytes);

}  // namespace orby
