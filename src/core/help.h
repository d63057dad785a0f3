// The help of the program, in files of its folder that other programs of the desktop show.
#pragma once

#include <string_view>

#include "core/program.h"

namespace orby {

inline constexpr std::string_view HelpFile = "ORBY.CHM";
inline constexpr std::string_view ManualFile = "ORBY.PDF";

// Opens the help, or another file of the program's folder; tells the user when it is not there or does not open.
void OpenHelp(Program& program, std::string_view fileName = HelpFile);

}  // namespace orby
