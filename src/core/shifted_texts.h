// Recovers the title and the description of a project whose header was shifted by one line when its file was opened.
#pragma once

#include <optional>
#include <string>

namespace orby {

struct ProjectTexts {
  std::string Title;
  std::string Description;
};

// Returns the texts before the shift, or nothing when the texts are not shifted. In shifted texts the title is the
// padded table choice of the file, and the description contains the former title and the marker of its own start.
std::optional<ProjectTexts> TextsBeforeTheShift(const ProjectTexts& texts);

}  // namespace orby
