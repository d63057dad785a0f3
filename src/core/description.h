// The free description of a project, as reports print it and files hold it.
#pragma once

#include <string>
#include <string_view>

#include "core/program.h"

namespace orby {

// The lines of a project file around the description.
inline constexpr std::string_view StartOfDescription = "##StartDesc##";
inline constexpr std::string_view EndOfDescription = "##EndDesc##";

inline constexpr Integer LinesOfEmptyDescription = 2;

// The description as reports print it and files hold it. Throws RuntimeError 6 for more lines than fit an Integer.
std::string NormalizedDescription(std::string_view text);

// Normalises ProjectDescription: blank lines are dropped, lines of more than 60 characters broken, the end of the last
// line cut off. DescLines becomes 2 and one for every line, one more for every line that was broken.
// Works through a temporary file; when that fails the description stays as it was and nobody is told.
void SaveDescription(Program& program);

}  // namespace orby
