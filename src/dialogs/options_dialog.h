// The options dialog: preferences of the program, the values that a new design starts with, and the catalogs.
//
// A click into a list of bolts makes it the one that Add and Delete act on. Leaving it by OK stores all of it and
// writes it to the configuration file. The resetting and the resizing of a list count at once, whichever way the dialog
// is left.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "dialogs/options_controls.h"
#include "dialogs/overlay_editing.h"

namespace orby {

class OptionsDialog : public OptionsControls {
 public:
  explicit OptionsDialog(Program& program);

  // Refuses defaults that are not above 0 and asks about those that are unusual: tells of the first one, brings its
  // page on view and gives it the focus.
  bool CheckOptions();

  bool CommitOnClose = false;

 protected:
  void OnOpen() override;
  void OnClose() override;

 private:
  void TieCommands();
  void FillFields();
  void GoTo(std::size_t page, TextBox& field);
  void TellFault(const std::string& fault);
  bool CheckFaults();
  bool CheckWarnings();
  void Accept();
  DesignDefaults EditedDefaults() const;
  void Store();

  // options_lists.cpp
  void TieBolts(std::size_t catalog);
  void FillBolts(std::size_t catalog);
  void ChooseFirstBolts(std::size_t catalog);
  void ChooseBolts(std::size_t catalog, std::size_t list);
  void AddBolt(std::size_t catalog);
  void DeleteBolt(std::size_t catalog);
  void ResetBolts(std::size_t catalog);
  void StoreBolts(Catalogs& catalogs) const;

  // options_grids.cpp
  bool CheckCells();
  bool CheckCell(OverlayEditing& grid, int entry, int column, const Frame& frame);
  void TieCables(std::size_t units);
  void TieStands();
  void FillCables(std::size_t units);
  void FillStands();
  void ResizeCables(std::size_t units);
  void ResizeStands();
  void StoreCables(Catalogs& catalogs) const;
  void StoreStands(Catalogs& catalogs) const;

  static constexpr int FirstParameterTab = 1;
  static constexpr int StandingSupportTab = 3;

  std::array<OverlayEditing, 2> cables_;
  OverlayEditing stands_;
  // The capacities in tons and kN that the rows of the standing supports were filled from.
  std::vector<std::array<Single, 2>> standCapacities_;
};

}  // namespace orby
