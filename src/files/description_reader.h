// Reads the description of a project from its file.
#pragma once

#include <string>
#include <string_view>

#include "core/description.h"
#include "core/program.h"
#include "files/item_reader.h"

namespace orby {

enum class DescriptionMode {
  Legacy = 0,  // five lines without markers
  Marked = 2,
};

// Appends the lines before the end marker to the description, each with its line end, and adds their number to `count`.
// Throws the same errors as LoadDescription. The description then contains the lines read before the error.
void ReadMarkedDescription(ItemReader& reader, std::string& description, Integer& count);

// Reads ProjectDescription and DescLines from a project file.
// All lines after the first are read as text items: a comma ends a line, and leading blanks and double quotes are lost.
// Throws RuntimeError 62 when the end marker is missing, 6 for more than 32766 lines, and 7 when the description is
// longer than LongestItem.
void LoadDescription(Project& project, ItemReader& reader, DescriptionMode mode);

}  // namespace orby
