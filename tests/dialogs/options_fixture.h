// The options dialog with the built-in catalogs and its own configuration file.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "config/ini_file.h"
#include "core/program.h"
#include "design/catalogs.h"
#include "dialogs/options_dialog.h"
#include "support/recording_platform.h"

namespace orby::test {

// The pages of the two unit systems, and their bolt lists.
inline constexpr std::size_t EnglishPage = PlaceOf(English);
inline constexpr std::size_t MetricPage = PlaceOf(Metric);

struct OptionsFixture : testing::Test {
  OptionsFixture() {
    SetBuiltInCatalogs(program.session.catalogs);
    program.session.IniFilePath = "/home/user/ORBY.INI";
  }

  void Accept() { dialog.cmdOK.Press(); }

  // Returns the entries of a bolt list.
  std::vector<std::string> Entries(std::size_t catalog, std::size_t list) const {
    std::vector<std::string> texts;
    for (const ComboItem& item : dialog.bolts[catalog].lists[list]->Items()) texts.push_back(item.text);
    return texts;
  }

  // Returns the numbers in use of a list of the program.
  static std::vector<Single> Values(const CatalogList& list) {
    return {list.Values.begin(), list.Values.begin() + static_cast<std::ptrdiff_t>(list.Count())};
  }

  static std::vector<std::string> Row(const Grid& grid, int row) {
    std::vector<std::string> texts;
    for (int column = 0; column < grid.Columns(); ++column) texts.push_back(grid.Cell(row, column));
    return texts;
  }

  // Edits a cell as the user does.
  static void Edit(Grid& grid, int row, int column, std::string text) {
    grid.ClickCell(row, column);
    grid.Overlay()->SetText(std::move(text));
  }

  std::string Written(std::string_view section, std::string_view key) {
    return ReadIniValue(program, section, key, program.session.IniFilePath);
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  OptionsDialog dialog{program};
};

}  // namespace orby::test
