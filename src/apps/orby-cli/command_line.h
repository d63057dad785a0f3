// Parses the command line of orby-cli.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orby::cli {

struct CommandLine {
  std::string Command;
  std::vector<std::string> Operands;  // files; for a curve its number, then the file
  std::optional<int> Page;            // the only report page to print
  bool Validate = false;
  std::optional<std::string> Name;  // the name that the report shows instead of the file's path
  bool AustralianTable = false;
  std::optional<std::string> Config;
  std::optional<std::string> To;         // folder of the sheets of several files
  std::optional<std::string> As;         // their format: "html"
  std::optional<std::uint64_t> Samples;  // of a study, instead of those that it stores
  std::optional<std::uint64_t> Seed;     // likewise
  double Change = 10;                    // percent, of what a figure depends on
  bool Json = false;                     // of a study
  bool Csv = false;                      // likewise
  bool Help = false;
};

// Returns nothing if the words are not a valid command line.
std::optional<CommandLine> ParseCommandLine(const std::vector<std::string>& words);

}  // namespace orby::cli
