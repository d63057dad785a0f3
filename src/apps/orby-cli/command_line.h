// The words of the command line, taken apart.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orby::cli {

struct CommandLine {
  std::string Command;
  std::vector<std::string> Operands;  // files, and the curve's number in front of its file
  std::optional<int> Page;            // one report page only
  bool Validate = false;
  std::optional<std::string> Name;  // shown by the report instead of the file's path
  bool AustralianTable = false;
  std::optional<std::string> Config;
  bool Help = false;
};

// Nothing when the words make no sense.
std::optional<CommandLine> ParseCommandLine(const std::vector<std::string>& words);

}  // namespace orby::cli
