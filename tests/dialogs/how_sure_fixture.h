// The window "How Sure" over a project with a primary support only.
#pragma once
#include <optional>
#include <thread>

#include "dialogs/how_sure_window.h"
#include "dialogs/parameters_fixture.h"

namespace orby::test {

inline const std::string ProjectPath = "/home/user/panel 3.ORB";
inline const std::string SettingsPath = "/home/user/panel 3.study.json";

inline std::vector<std::string> CellsOf(const Grid& grid, int row) {
  std::vector<std::string> cells;
  for (int column = 0; column < grid.Columns(); ++column) cells.push_back(grid.Cell(row, column));
  return cells;
}

inline std::string AllCells(const Grid& grid) {
  std::string text;
  for (int row = 0; row < grid.Rows(); ++row) {
    for (const std::string& cell : CellsOf(grid, row)) text += cell + "|";
    text += "\n";
  }
  return text;
}

struct AHowSureWindow : AParametersDialog {
  AHowSureWindow() {
    program.project.CurrentFile = ProjectPath;
    platform.files.files[ProjectPath] = "the project";
    Design& design = program.project.WorkParms;
    design.Place.CMRR = 45;
    design.Place.DepthofCover = 600;
    design.Entries.Analysed = 0;
    design.Intersections.Analysed = 0;
  }

  HowSureWindow& Open() {
    window.emplace(program, unsaved);
    window->Open();
    return *window;
  }
  void Leave() {
    window->Close();
    window.reset();
  }
  // Fills the fields of an input, and adds it.
  void AddNormal(std::string_view name, const std::string& mean, const std::string& deviation) {
    window->cmbInput.SetText(std::string(name));
    window->cmbLaw.SetText("normal");
    window->First.Field.SetText(mean);
    window->Second.Field.SetText(deviation);
    window->cmdAdd.Press();
  }
  void AddRatingAndDepth() {
    AddNormal("roof rating", "45", "6");
    AddNormal("depth of cover (ft)", "600", "80");
  }
  // Lets the study run until it ends.
  void RunToEnd() {
    window->cmdRun.Press();
    while (window->cmdStop.Enabled()) {
      platform.clock.Pass();
      std::this_thread::yield();
    }
  }
  std::string LastMessage() const { return platform.boxes.shown.empty() ? "" : platform.boxes.shown.back().text; }
  std::string ChartWords(std::string_view chart) {
    window->cmbChart.SetText(std::string(chart));
    return window->picChart.Words();
  }

  UnsavedStudy unsaved;
  std::optional<HowSureWindow> window;
};

}  // namespace orby::test
