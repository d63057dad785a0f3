// The title and the description of a project whose header was shifted by one line when its file was opened.
#pragma once

#include <optional>
#include <string>

namespace orby {

struct ProjectTexts {
  std::string Title;
  std::string Description;
};

// The texts as they were before opening shifted the header: the title is the padded table choice of the file, and the
// description holds the former title and the marker of its own start. Nothing when the texts do not look so.
std::optional<ProjectTexts> TextsBeforeTheShift(const ProjectTexts& texts);

}  // namespace orby
