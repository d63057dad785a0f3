// Edits a grid's cells in a text box that lies over the selected cell.
//
// The box shows the text of its cell, and returns it to the cell when another one is selected. The first column numbers
// or names the rows and cannot be edited. Without rows the box is hidden.
#pragma once

#include <string>
#include <vector>

#include "controls/controls.h"
#include "controls/grid.h"

namespace orby {

class OverlayEditing {
 public:
  // The texts of a row, without its number or with its name.
  using Texts = std::vector<std::string>;

  // kinds: the characters that the box accepts in each column after the first. Grid and box must outlive this object.
  OverlayEditing(Grid& grid, TextBox& box, std::vector<TextKind> kinds);
  OverlayEditing(const OverlayEditing&) = delete;
  OverlayEditing& operator=(const OverlayEditing&) = delete;

  // Refills the grid and selects its first cell. The text in the box is dropped. headers: those after the first column.
  void Fill(const Texts& headers, const std::vector<Texts>& entries);
  // Does the same with rows that begin with their name, of which `header` is the first one. All cells take numbers.
  void FillNamed(const Texts& header, const std::vector<Texts>& entries);
  // Adds an empty row, selects its first cell and moves the focus to the box.
  void AddEntry();
  // Empties the box, removes the selected row and returns the index of its entry. Returns -1 if there is no row to
  // remove.
  int RemoveEntry();

  // Selects a cell of an entry and moves the focus to the box. Columns count as in Text.
  void GoTo(int entry, int column);

  // Copies the text of the box into its cell.
  void Flush();

  int Entries() const { return grid_.Rows() - grid_.FixedRows(); }
  // Returns the text of an entry's cell. Columns count from 0 after the row number.
  const std::string& Text(int entry, int column) const;

 private:
  static constexpr int Nowhere = -1;

  // Moves the box to the selected cell.
  void Follow();
  void LeaveCell() { row_ = Nowhere; }
  void NumberRows();

  Grid& grid_;
  TextBox& box_;
  std::vector<TextKind> kinds_;
  int row_ = Nowhere;  // the cell under the box
  int column_ = Nowhere;
};

}  // namespace orby
