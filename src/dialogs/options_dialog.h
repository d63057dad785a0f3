// The options dialog: the program's preferences, the defaults of a new design, and the catalogs.
//
// A click in a list of bolts selects it for Add and Delete. OK stores everything and writes it to the configuration
// file. Reset and resize act at once, even if the dialog is then cancelled.
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

  // Returns true if every default and every cell is valid and the user confirms the unusual values. Otherwise shows an
  // error or a question about the first one, shows its page and moves the focus to it.
  bool CheckOptions();

  bool CommitOnClose = false;

 protected:
  void OnOpen() override;
  void OnClose() override;

 private:
  void TieCommands();
  void FillFields();
  void GoTo(std::size_t page, TextBox& field);
  void ReportFault(const std::string& fault);
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
  // The capacities in tons and kN from which the rows of the standing supports were filled.
  std::vector<std::array<Single, 2>> standCapacities_;
};

}  // namespace orby
