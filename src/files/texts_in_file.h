// What becomes of a project's title and description in its file: they are written as typed and read back as items.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/shifted_texts.h"

namespace orby {

// A line that would not come back as it is typed, and why.
struct LostLine {
  std::string Line;
  std::string_view Reason;  // a sentence
};

// The first line of the texts that the project file would not give back as it is typed, but for blank lines and blanks
// in front, which are never kept; nothing when all come back.
std::optional<LostLine> LineThatWouldNotComeBack(const ProjectTexts& texts);

}  // namespace orby
