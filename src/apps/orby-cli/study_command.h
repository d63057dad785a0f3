// The command that runs the study of a project.
#pragma once

#include <string>

#include "apps/orby-cli/command_line.h"
#include "apps/orby-cli/commands.h"
#include "core/program.h"

namespace orby::cli {

struct StudyOutput {
  ExitCode Code = ExitCode::Done;
  std::string Text;     // the result
  std::string Message;  // why there is none
};

// Runs the study that is stored beside an open project. `file` is the path of the project. Shows the progress on
// standard error if that is a terminal. Returns Refused if there is no study that can be read, and Invalid if it is
// impossible. Throws the RuntimeError of a design that no dialog shows, or of a file that cannot be read.
StudyOutput RunStoredStudy(Program& program, const std::string& file, const CommandLine& line);

}  // namespace orby::cli
