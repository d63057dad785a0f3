// What the companion can do with a project.
#pragma once

#include <string>
#include <string_view>

#include "apps/orby-cli/command_line.h"

namespace orby::cli {

// The worst one last.
enum class ExitCode {
  Done,
  Usage,
  Refused,       // not a project file
  RunTimeError,  // told on standard error
  Invalid,       // validation messages
};

extern const std::string_view UsageText;

// Runs the command, writing its results to standard output, and returns the exit code.
ExitCode RunCommand(const CommandLine& line);

}  // namespace orby::cli
