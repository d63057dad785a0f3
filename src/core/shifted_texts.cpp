#include "core/shifted_texts.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/text.h"
#include "core/description.h"

namespace orby {

std::optional<ProjectTexts> TextsBeforeTheShift(const ProjectTexts& texts) {
  // A table choice that was a line of the description has lost its leading blank.
  constexpr std::array<std::string_view, 4> PaddedChoices{" 0 ", " 1 ", "0 ", "1 "};
  std::optional<ProjectTexts> before;
  ProjectTexts present = texts;
  while (std::ranges::find(PaddedChoices, present.Title) != PaddedChoices.end()) {
    std::string_view rest = present.Description;
    std::string title;
    bool hasMarker = false;
    while (!rest.empty() && !hasMarker) {
      const std::string_view line = TakeLine(rest);
      hasMarker = line == StartOfDescription;
      // A comma has split the title into two lines.
      if (!hasMarker) title.append(title.empty() ? "" : ", ").append(line);
    }
    if (!hasMarker) break;
    present = {title, std::string(rest)};
    before = present;
  }
  return before;
}

}  // namespace orby
