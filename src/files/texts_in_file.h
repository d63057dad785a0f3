// Changes of a title and a description in the project file. They are written as typed and read back as items.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/shifted_texts.h"

namespace orby {

// A line that would not read back unchanged, and the reason.
struct LostLine {
  std::string Line;
  std::string_view Reason;  // a sentence
};

// Returns the first line of the texts that would not read back unchanged, or nothing when there is none. Ignores blank
// lines and leading blanks, which the file never keeps.
std::optional<LostLine> LineThatWouldNotComeBack(const ProjectTexts& texts);

}  // namespace orby
