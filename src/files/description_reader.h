// Reading the free description of a project from its file.
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

// Appends the lines up to the end marker to the description, each with its end, and adds their number to the count.
// Throws as LoadDescription does, with the lines read until then in the description.
void ReadMarkedDescription(ItemReader& reader, std::string& description, Integer& count);

// Reads ProjectDescription and its DescLines from a project file.
// Behind the first line the description comes as text items, so that a comma ends a line, leading blanks are lost and
// double quotes disappear.
// Throws RuntimeError 62 without an end marker, 6 beyond 32766 lines, 7 when it grows longer than LongestItem.
void LoadDescription(Project& project, ItemReader& reader, DescriptionMode mode);

}  // namespace orby
