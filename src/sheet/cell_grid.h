// Cells in rows with lines around them, as in a title block.
#pragma once

#include <string>
#include <vector>

#include "sheet/page_parts.h"

namespace orby {

class CellGrid {
 public:
  struct Cell {
    std::string Label;
    std::string Text;
    double Share = 1;    // of the width
    double Room = 12.8;  // at least, for the text
  };

  // `parts` must exist as long as the grid.
  explicit CellGrid(const PageParts& parts) : parts_(parts) {}

  // Adds a row below the last one. It is as high as its highest text.
  void Row(const std::vector<Cell>& cells);

  PageBlock Take() { return stack_.Take(); }

 private:
  const PageParts& parts_;
  Stack stack_;
};

}  // namespace orby
