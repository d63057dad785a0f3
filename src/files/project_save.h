// Saves the project without losing the old contents of its file.
//
// The file is overwritten in place, without a temporary copy. Its old contents are stored in Backups first, or kept in
// memory when that fails, and are restored when the save fails.
#pragma once

#include "core/program.h"
#include "files/overwritten_file.h"

namespace orby {

// Normalises the description, encodes the project, stores the old contents of CurrentFile and overwrites it. Sets
// FileSaved to true after the bytes are on the disk. The remarks report a file that another program had changed, a
// backup that could not be stored, and fields that would not read back unchanged.
// After a failure the old contents are restored if possible, FileSaved is false, the description is unchanged, and the
// remarks contain the path of the backup.
SaveOutcome TryFileSave(Program& program);

// Saves and shows the remarks. Throws the error of a save that failed, and shows no remarks then.
void FileSave(Program& program);

void ShowRemarks(Program& program, const SaveOutcome& save);

}  // namespace orby
