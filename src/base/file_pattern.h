// Patterns of file names, as a list of files is filtered by them.
#pragma once

#include <string_view>

namespace orby {

// Every file, also one whose name has no point.
inline constexpr std::string_view EveryFile = "*.*";

// Whether the name fits one of the patterns, which ";" separates: "*" stands for any characters, "?" for one. The case
// of the letters A to Z does not count, nor do blanks around a pattern. Blank patterns let every file through.
bool MatchesFilePattern(std::string_view name, std::string_view patterns);

}  // namespace orby
