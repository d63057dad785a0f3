// The editing of a grid's cells in the text box that lies over the selected one.
//
// The box shows the text of the cell it stands over; the text goes to that cell once another one is selected. The first
// column numbers the rows and is not edited. A grid without rows shows no box.
#pragma once

#include <string>
#include <vector>

#include "controls/controls.h"
#include "controls/grid.h"

namespace orby {

class OverlayEditing {
 public:
  // A row's texts, those behind its number.
  using Texts = std::vector<std::string>;

  // One kind for each column behind the first: what the box lets through over its cells. Grid and box must outlive
  // this.
  OverlayEditing(Grid& grid, TextBox& box, std::vector<TextKind> kinds);
  OverlayEditing(const OverlayEditing&) = delete;
  OverlayEditing& operator=(const OverlayEditing&) = delete;

  // Fills the grid anew and selects its first cell; the text in the box is forgotten. headers: those behind the first.
  void Fill(const Texts& headers, const std::vector<Texts>& entries);
  // Adds an empty row, selects its first cell and asks for the keyboard there.
  void AddEntry();
  // Empties the box, removes the selected row and returns its number among the entries, counted from 0; -1 when there
  // is none to remove.
  int RemoveEntry();

  // Selects an entry's cell and asks for the keyboard there; columns as in Text.
  void GoTo(int entry, int column);

  // Brings the text of the box into its cell.
  void Flush();

  int Entries() const { return grid_.Rows() - grid_.FixedRows(); }
  // The text of an entry's cell, columns counted from 0 behind the row's number.
  const std::string& Text(int entry, int column) const;

 private:
  static constexpr int Nowhere = -1;

  // Moves the box over the selected cell.
  void Follow();
  void LeaveCell() { row_ = Nowhere; }
  void NumberRows();

  Grid& grid_;
  TextBox& box_;
  std::vector<TextKind> kinds_;
  int row_ = Nowhere;  // the cell that the box stands over
  int column_ = Nowhere;
};

}  // namespace orby
