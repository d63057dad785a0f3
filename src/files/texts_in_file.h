// What becomes of a project's title and description in its file: they are written as typed and read back as items, and
// the header comes back shifted by one line.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orby {

struct ProjectTexts {
  std::string Title;
  std::string Description;
};

// A line that would not come back as it is typed, and why.
struct LostLine {
  std::string Line;
  std::string_view Reason;  // a sentence
};

// The first line of the texts that the project file would not give back as it is typed, but for blank lines and blanks
// in front, which are never kept; nothing when all come back.
std::optional<LostLine> LineThatWouldNotComeBack(const ProjectTexts& texts);

// The texts as they were before opening shifted the header: the title is the padded table choice of the file, and the
// description holds the former title and the marker of its own start. Nothing when the texts do not look so.
std::optional<ProjectTexts> TextsBeforeTheShift(const ProjectTexts& texts);

}  // namespace orby
