// A grid of texts of which one row, and one cell in it, is selected.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controls/control.h"
#include "controls/event.h"

namespace orby {

class TextBox;

// Cells of text under fixed header rows, one row of them selected, and one cell in it.
class Grid : public Control {
 public:
  Grid(Form& form, std::string_view name) : Control(form, name) {}

  // Sizes the grid, empties its cells and selects the first cell below the header, if there is one.
  void SetSize(int rows, int columns, int fixedRows);
  // Takes these rows in the place of all, the first ones as the header, and selects the first cell below it. Rows are
  // of one length. The view is told once, however many there are.
  void SetRows(std::vector<std::vector<std::string>> rows, int fixedRows);
  // One more row of empty cells at the end.
  void AddRow();
  // Those behind it move up; the selection stays at its place, or goes to the last row. Throws RuntimeError 9 outside
  // the grid.
  void RemoveRow(int row);
  int Rows() const { return rows_; }
  int Columns() const { return columns_; }
  int FixedRows() const { return fixedRows_; }
  // Columns at the left that are only shown; the selection starts behind them when the grid is sized.
  void SetFixedColumns(int columns) { fixedColumns_ = columns; }
  int FixedColumns() const { return fixedColumns_; }
  void SetColumnWidths(std::vector<int> widths) { Mirror(columnWidths_, std::move(widths)); }
  const std::vector<int>& ColumnWidths() const { return columnWidths_; }
  // The column that takes the room that the others leave.
  void SetStretchedColumn(int column) { stretchedColumn_ = column; }
  int StretchedColumn() const { return stretchedColumn_; }
  int Width() const { return width_; }
  void SetWidth(int width) { width_ = width; }

  // Throw RuntimeError 9 outside the grid.
  const std::string& Cell(int row, int column) const;
  void SetCell(int row, int column, std::string text);
  // The user's edit of a cell.
  void EditCell(int row, int column, std::string text);

  int Row() const { return row_; }
  void SetRow(int row) { SelectCell(row, column_); }
  int Column() const { return column_; }
  // Throws RuntimeError 9 outside the grid.
  void SelectCell(int row, int column);
  // The user's click on a row, which counts on the selected one too.
  void ClickRow(int row);
  void ClickCell(int row, int column);

  // A text box that lies over the selected cell while the grid has the keyboard; none: the cells are only shown.
  void SetOverlay(TextBox& overlay) { overlay_ = &overlay; }
  TextBox* Overlay() const { return overlay_; }

  Event Change;  // another row, or another cell, is selected, or a cell was edited
  Event Click;

 private:
  void Resize(int rows, int columns, int fixedRows);
  std::size_t Index(int row, int column) const;

  int rows_ = 0;
  int columns_ = 0;
  int fixedRows_ = 0;
  int fixedColumns_ = 0;
  int row_ = 0;
  int column_ = 0;
  int width_ = 0;
  int stretchedColumn_ = 1;
  TextBox* overlay_ = nullptr;
  std::vector<int> columnWidths_;
  std::vector<std::string> cells_;
};

}  // namespace orby
