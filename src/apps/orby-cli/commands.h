// The commands of orby-cli.
#pragma once

#include <string>
#include <string_view>

#include "apps/orby-cli/command_line.h"

namespace orby::cli {

// In order of severity.
enum class ExitCode {
  Done,
  Usage,
  RowsWithoutDesign = Usage,  // a table has files that could not be read
  Refused,                    // not a project file
  RunTimeError,               // reported on standard error
  Invalid,                    // the project has validation messages
};

extern const std::string_view UsageText;

// Runs the command, writes its results to standard output, and returns the exit code.
ExitCode RunCommand(const CommandLine& line);

}  // namespace orby::cli
