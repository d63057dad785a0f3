// The window "What Would Hold": what changes of a design make its supports hold, what they cost, and the prices.
//
// It stands over the parameters dialog and studies what its fields hold. Apply sets the fields as typing would, and
// nothing is committed by it.
#pragma once

#include <optional>
#include <vector>

#include "dialogs/least_changes_page.h"
#include "dialogs/patterns_page.h"
#include "dialogs/price_editing.h"
#include "dialogs/would_hold_controls.h"

namespace orby {

class ParametersDialog;

class WouldHoldWindow : public WouldHoldControls {
 public:
  // `parameters` has the design that is studied. `support` is the one to begin with, if it is in use.
  WouldHoldWindow(Program& program, ParametersDialog& parameters, std::optional<StudiedSupport> support = std::nullopt);

 protected:
  void OnOpen() override;
  void OnAct() override { Follow(); }
  // Writes changed prices to the configuration file.
  void OnClose() override;

 private:
  // Brings the page on view up to date with the support, the prices and the limits.
  void Follow();
  void TakePrices();
  void ShowLengthsRead();
  void FillSupports();
  void TakeSupport();
  void ShowPresent();
  void ShowApply();
  std::optional<Design> Chosen() const;
  void Apply();

  const StudiedSupport* Support() const;
  PriceLists& Prices() const { return program_.session.prices; }

  ParametersDialog& parameters_;
  std::optional<StudiedSupport> first_;
  Design design_;
  std::vector<StudiedSupport> supports_;
  LeastChangesPage changes_{program_, grdChanges};
  PatternsPage patterns_{program_, Patterns};
  PriceEditing prices_{program_, grdBoltPrices, txtBoltPrice, grdOtherPrices, txtOtherPrice};
  bool changesAreShown_ = false;
  PriceLists stored_;  // as they are in the configuration file
  PriceLists used_;    // those of the costs on view
};

}  // namespace orby
