// Saving the project in its file so that nothing that lay there is lost.
//
// The file is written in its place, without a copy beside it. What it held before is kept in Backups first, or held in
// memory where that cannot be done, and put back when the save fails.
#pragma once

#include <string>
#include <vector>

#include "core/program.h"

namespace orby {

// What the user is told about a save, each text in a message of its own.
using SaveRemarks = std::vector<std::string>;

// Encodes the whole project, its description normalised, keeps what CurrentFile held, writes the new bytes over it and
// sets FileSaved and `ok` once the disk has them. The remarks tell of a file that another program had changed, of a
// backup that could not be kept, and of fields that would not come back as they are.
// Throws the RuntimeError of the file. FileSaved and `ok` are false then, the description is as it was typed, and the
// remarks tell where the backup lies; what the file held is put back if it can be.
void FileSave(Program& program, bool& ok, SaveRemarks& remarks);

// Tells the remarks of a save that succeeds at once.
void FileSave(Program& program, bool& ok);

void ShowRemarks(Program& program, const SaveRemarks& remarks);

}  // namespace orby
