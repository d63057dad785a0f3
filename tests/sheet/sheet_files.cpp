// Writes sheets as files, to look at them and to renew the golden ones: sheet_files [--golden] FOLDER
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "sheet/example_sheets.h"

int main(int count, char** arguments) {
  using namespace orby::test;
  const bool isGolden = count == 3 && std::string_view(arguments[1]) == "--golden";
  if (count != (isGolden ? 3 : 2)) {
    std::puts("usage: sheet_files [--golden] FOLDER");
    return 2;
  }
  const std::filesystem::path folder = arguments[count - 1];
  std::filesystem::create_directories(folder);
  for (const auto& [name, sheet] : isGolden ? GoldenSheets() : SheetsOfAllKinds()) {
    for (const auto& [ending, write] : SheetFormats()) {
      std::ofstream(folder / (name + ending), std::ios::binary) << write(sheet);
    }
  }
  return 0;
}
