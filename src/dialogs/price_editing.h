// Edits the price list of the project's unit system: a grid of bolts by length, and one of the other supports.
#pragma once

#include <string>
#include <vector>

#include "core/program.h"
#include "dialogs/overlay_editing.h"

namespace orby {

class PriceEditing {
 public:
  // The grids and boxes must outlive this object.
  PriceEditing(Program& program, Grid& bolts, TextBox& boltBox, Grid& others, TextBox& otherBox);

  // Shows the list in the grids: the bolts of the table by stocked length, and what the catalogs offer.
  void Fill();
  // Takes the prices of the cells into the list. A cell whose number is not above 0 has no price. Prices of supports
  // and lengths that the grids do not show stay in the list.
  void Take();
  // Takes other stocked lengths, and shows their prices. Does nothing if they are the present ones or if there is none.
  void TakeLengths(const std::vector<Single>& lengths);

 private:
  // A piece of secondary support, and its name on view.
  struct OtherPiece {
    Price Piece;
    std::string Text;
  };

  PriceList& List() const;
  void FindOthers();
  void FillBolts();
  void FillOthers();

  Program& program_;
  OverlayEditing boltGrid_;
  OverlayEditing otherGrid_;
  // By entry of their grids.
  std::vector<std::string> boltNames_;
  std::vector<OtherPiece> others_;
};

}  // namespace orby
