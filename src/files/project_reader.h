// Reads project files of all supported formats.
#pragma once

#include <optional>
#include <string_view>

#include "core/program.h"
#include "files/item_reader.h"

namespace orby {

inline constexpr std::string_view InvalidFormat = "Invalid ORBY file format. File can not be opened.";

// Returns the format of the label at the start of the file, or nothing for an unknown label. Throws RuntimeError 62 for
// an empty file.
std::optional<Integer> FormatOf(ItemReader reader);

// Sets FileVersion from the label at the start of the file. For an unknown label, shows an error and returns false
// without a change of the version. Throws RuntimeError 62 for an empty file.
bool CheckFileFormat(Program& program, ItemReader reader);

// Reads a file of the format FileVersion into WorkParms and the header values. Fields that the format lacks, and those
// after an error, are not changed. UseAUSStandardTable is never read: its line becomes the title, and the title and the
// start marker become lines of the description. Throws RuntimeError 62 when the file is too short, 6 for a number
// outside the range of its type, and 7 for an item longer than LongestItem.
void ReadProject(Project& project, ItemReader reader);

}  // namespace orby
