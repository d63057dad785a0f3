// The names of the program in the user's folders.
#pragma once

#include <string_view>

namespace orby {

inline constexpr std::string_view ProgramShortName = "ORBY";
inline constexpr std::string_view IniFileName = "ORBY.INI";  // in the user's folder for program data

}  // namespace orby
