// What the companion can do with a project.
#pragma once

#include <string>
#include <string_view>

#include "apps/orby-cli/command_line.h"

namespace orby::cli {

namespace exit_code {
inline constexpr int Done = 0;
inline constexpr int Usage = 1;
inline constexpr int Refused = 2;       // not a project file
inline constexpr int RunTimeError = 3;  // told on standard error
inline constexpr int Invalid = 4;       // validation messages
}  // namespace exit_code

extern const std::string_view UsageText;

// Runs the command, writing its results to standard output, and returns the exit code.
int RunCommand(const CommandLine& line);

}  // namespace orby::cli
