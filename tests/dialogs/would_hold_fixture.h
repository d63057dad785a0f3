// The window "What Would Hold" over an open parameters dialog, and short commands for the user's actions in it.
#pragma once

#include <algorithm>
#include <functional>
#include <stdexcept>

#include "dialogs/parameters_fixture.h"
#include "dialogs/would_hold_window.h"

namespace orby::test {

// A design that holds, but for the row spacing of its primary bolts.
inline constexpr std::string_view WideRows =
    "txtCMRR=60|txtDepthofCover=500|txtUnitWeight=160|txtActualSpanDiagonals=50|txtEntryWidth=18|txtStabilityFactor=1."
    "2|txtBoltLengthPrimary=5|txtBoltsperRowPrimary=4|txtRowSpacingPrimary=14|VSFlexGridPrimary=6|chkCMRRManual=1|"
    "chkSecondSupEntries=0|chkSecondSupInter=0";

struct WouldHold : AParametersDialog {
  WouldHold() { program.session.IniFilePath = "/home/user/ORBY.INI"; }

  void Open(std::string_view edits = WideRows) {
    dialog.Open();
    Type(edits);
  }
  // Ends each edit as the user's act that it is.
  void Type(std::string_view edits) {
    Do(edits);
    dialog.EndAct();
    dialog.Edits()->EndTyping();
  }
  // Opens the window by its button, and plays the user in it.
  void Study(const std::function<void(WouldHoldWindow&)>& user) {
    int shown = 0;
    platform.windows.onModal = [&](Form& form) {
      ++shown;
      user(dynamic_cast<WouldHoldWindow&>(form));
    };
    dialog.cmdWouldHold.Press();
    ASSERT_EQ(shown, 1);
  }
  static std::vector<std::string> Row(const Grid& grid, int row) {
    std::vector<std::string> texts;
    for (int column = 0; column < grid.Columns(); ++column) texts.push_back(grid.Cell(row, column));
    return texts;
  }
  static std::vector<std::string> Column(const Grid& grid, int column) {
    std::vector<std::string> texts;
    for (int row = 1; row < grid.Rows(); ++row) texts.push_back(grid.Cell(row, column));
    return texts;
  }
  static int RowOf(const Grid& grid, std::string_view name) {
    const auto names = Column(grid, 0);
    const auto found = std::ranges::find(names, name);
    if (found == names.end()) throw std::logic_error("no row " + std::string(name));
    return static_cast<int>(found - names.begin()) + 1;
  }
  static void Select(WouldHoldWindow& window, Grid& grid, int row) {
    grid.ClickRow(row);
    window.EndAct();
  }
  static void Turn(WouldHoldWindow& window, int tab) {
    window.tabStudy.ClickTab(tab);
    window.EndAct();
  }
  // Applies the least change of a lever.
  void Apply(std::string_view lever) {
    Study([&](WouldHoldWindow& window) {
      Select(window, window.grdChanges, RowOf(window.grdChanges, lever));
      window.cmdApply.Press();
    });
  }
  std::vector<std::string> Judgements() const {
    std::vector<std::string> rows;
    for (const ComboItem& item : dialog.lstVerdicts.Items()) rows.push_back(item.text);
    return rows;
  }
  void SetPrice(Price price) {
    program.session.prices[PlaceOf(program.project.WorkParms.Units)].Prices.push_back(std::move(price));
  }
};

}  // namespace orby::test
