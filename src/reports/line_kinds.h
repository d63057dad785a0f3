// What the lines of a report page are for, so that a window can set them off.
#pragma once

#include <string_view>

namespace orby {

// Returns true for a line in brackets.
bool IsHeading(std::string_view line);

enum class LineKind { Plain, Heading, Warning };

// Returns the kind of a line without its end. `before` is the kind of the line above it, or Plain for the first line: a
// warning continues up to the next empty line or heading.
LineKind KindOfLine(std::string_view line, LineKind before);

}  // namespace orby
