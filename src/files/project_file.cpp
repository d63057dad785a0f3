#include "files/project_file.h"

#include "core/messages.h"
#include "files/new_project.h"
#include "files/save_command.h"

namespace orby {

void FileOpen(Program& program, bool& ok) {
  ok = false;
  if (!program.FileSaved) SaveChangesOfPreviousFile(program);
  program.platform.windows.SetWaitCursor(true);
  FileNew(program, false, true);
  AddHistoryLine(program, "Opening: " + program.CurrentFile);

  const std::string bytes = program.platform.files.ReadFile(program.CurrentFile);
  const ItemReader reader(bytes);
  if (CheckFileFormat(program, reader)) {
    ReadProject(program, reader);
    program.FileSaved = true;
    program.FileEmpty = false;
    program.UnitsLocked = true;
    ok = true;
  }
  program.platform.windows.SetWaitCursor(false);
}

}  // namespace orby
