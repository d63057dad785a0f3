// Saves the project without losing the old contents of its file.
//
// The file is overwritten in place, without a temporary copy. Its old contents are stored in Backups first, or kept in
// memory when that fails, and are restored when the save fails.
#pragma once

#include <string>
#include <vector>

#include "core/program.h"

namespace orby {

// Remarks about a save for the user. Each one is shown in a message of its own.
using SaveRemarks = std::vector<std::string>;

// Normalises the description, encodes the project, stores the old contents of CurrentFile and overwrites it. Sets
// FileSaved and `ok` to true after the bytes are on the disk. The remarks report a file that another program had
// changed, a backup that could not be stored, and fields that would not read back unchanged.
// Throws the RuntimeError of the file after an attempt to restore the old contents. FileSaved and `ok` are false then,
// the description is unchanged, and the remarks contain the path of the backup.
void FileSave(Program& program, bool& ok, SaveRemarks& remarks);

// Saves and shows the remarks. When the save throws, it shows none.
void FileSave(Program& program, bool& ok);

void ShowRemarks(Program& program, const SaveRemarks& remarks);

}  // namespace orby
