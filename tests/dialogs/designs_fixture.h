// The window "Designs in a Folder" over a real folder with three examples, one of them deeper, and a damaged file.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "design/catalogs.h"
#include "dialogs/designs_window.h"
#include "machine/disk_files.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"

namespace orby::test {

inline std::string BytesOfExample(const std::string& name) {
  std::ifstream file(std::string(EXAMPLES_DIR) + "/" + name + ".ORB", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Stores an example under a name, which may have folders.
inline void StoreExample(const TemporaryFolder& folder, const std::string& example, const std::string& name) {
  std::filesystem::create_directories(std::filesystem::path(folder.At(name)).parent_path());
  folder.Store(name, BytesOfExample(example));
}

inline void StoreMine(const TemporaryFolder& folder) {
  StoreExample(folder, "weak-roof", "weak.ORB");
  StoreExample(folder, "intersection-secondary-bolts", "Crosscut.ORB");
  StoreExample(folder, "gateroad-standing-supports", "north/gate.ORB");
  folder.Store("notes.ORB", "Dear diary\r\n");
}

// The texts of a row on view, with "/" in paths on every machine.
inline std::vector<std::string> CellsIn(const RowTable& table, int row) {
  std::vector<std::string> cells;
  for (int column = 0; column < table.Columns(); ++column) cells.push_back(table.CellAt(row, column).Text);
  std::ranges::replace(cells.front(), '\\', '/');
  return cells;
}

struct ADesignsWindow : testing::Test {
  ADesignsWindow() {
    SetBuiltInCatalogs(program.session.catalogs);
    program.session.IniFilePath = folder.At("orby.ini");
    folder.Store("orby.ini", "[Version]\r\nINIFileVersion=201030\r\n");
    program.session.settings.DataPath = mine.Path() + "/";
    StoreMine(mine);
  }

  DesignsWindow& Open() {
    window.emplace(program);
    window->Open();
    Wait();
    return *window;
  }
  // Lets what is under way come to its end.
  void Wait() {
    while (window->IsBusy()) {
      platform.clock.Pass();
      std::this_thread::yield();
    }
  }
  void Leave() {
    window->Close();
    window.reset();
  }
  std::vector<std::string> Column(int column) const {
    std::vector<std::string> texts;
    for (int row = 0; row < window->tblDesigns.Rows(); ++row) {
      texts.push_back(CellsIn(window->tblDesigns, row)[static_cast<std::size_t>(column)]);
    }
    return texts;
  }
  std::vector<std::string> Files() const { return Column(0); }

  TemporaryFolder folder;
  TemporaryFolder mine;
  RecordingPlatform platform;
  DiskFiles disk{"/opt/orby"};
  Program program{platform.AsPlatformWith(disk)};
  std::optional<DesignsWindow> window;
};

}  // namespace orby::test
