// Patterns of file names, which filter a list of files.
#pragma once

#include <string_view>

namespace orby {

// Matches every file, also one whose name has no point.
inline constexpr std::string_view EveryFile = "*.*";

// Returns true if the name matches one of the patterns, which are separated by ";". "*" matches any number of
// characters, "?" matches one. The case of the letters A to Z and blanks around a pattern are ignored. A blank list of
// patterns matches every name.
bool MatchesFilePattern(std::string_view name, std::string_view patterns);

}  // namespace orby
