// The description of a project, in the form that reports print and files store.
#pragma once

#include <string>
#include <string_view>

#include "core/program.h"

namespace orby {

// The lines of a project file around the description.
inline constexpr std::string_view StartOfDescription = "##StartDesc##";
inline constexpr std::string_view EndOfDescription = "##EndDesc##";

inline constexpr Integer LinesOfEmptyDescription = 2;

// Returns the description in the form that reports print and files store. Throws RuntimeError 6 when the number of
// lines does not fit an Integer.
std::string NormalizedDescription(std::string_view text);

// Returns the title as summaries show it. A project that was read from a file of this program has the number of its
// table there, and its title in the first line of the description. Empty if there is no title.
std::string TitleToShow(const UnsavedProject& project);

// Normalises ProjectDescription. Removes blank lines, breaks lines of more than 60 characters, and removes the end of
// the last line. DescLines becomes 2 plus the sum over the lines: 1 for a line that fits, and the result of
// WrapDescriptionLine for one that is broken.
// Uses a temporary file. When that fails the description stays unchanged and no message is shown.
void SaveDescription(Program& program);

}  // namespace orby
