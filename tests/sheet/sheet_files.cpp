// Writes sheets as files, to look at them and to renew the golden ones: sheet_files [--golden] FOLDER
// Renews the relations on the pages of the help: sheet_files --help help/pages
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string_view>
#include <vector>

#include "sheet/example_sheets.h"
#include "sheet/help_relations.h"

namespace {

using namespace orby::test;

void WriteSheets(const std::filesystem::path& folder, const std::vector<NamedSheet>& sheets) {
  std::filesystem::create_directories(folder);
  for (const auto& [name, sheet] : sheets) {
    for (const auto& [ending, write] : SheetFormats()) {
      std::ofstream(folder / (name + ending), std::ios::binary) << write(sheet);
    }
  }
}

void RenewHelp(const std::filesystem::path& folder) {
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() != ".html") continue;
    std::ostringstream page;
    page << std::ifstream(entry.path(), std::ios::binary).rdbuf();
    const std::string renewed = WithHelpBlocks(page.str(), entry.path().filename().string());
    if (renewed != page.str()) std::ofstream(entry.path(), std::ios::binary) << renewed;
  }
}

}  // namespace

int main(int count, char** arguments) {
  const std::string_view option = count == 3 ? arguments[1] : "";
  if (option == "--help") {
    RenewHelp(arguments[2]);
  } else if (option == "--golden") {
    WriteSheets(arguments[2], GoldenSheets());
  } else if (count == 2) {
    WriteSheets(arguments[1], SheetsOfAllKinds());
  } else {
    std::puts("usage: sheet_files [--golden] FOLDER\n       sheet_files --help PAGES");
    return 2;
  }
  return 0;
}
