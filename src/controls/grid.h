// A grid of texts with a selected row and a selected cell.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controls/control.h"
#include "controls/event.h"

namespace orby {

class TextBox;

// Cells of text below fixed header rows. One row is selected, and one cell in it.
class Grid : public Control {
 public:
  Grid(Form& form, std::string_view name) : Control(form, name) {}

  // Sets the size, clears all cells and selects the first cell below the header, if there is one.
  void SetSize(int rows, int columns, int fixedRows);
  // Replaces all rows and selects the first cell below the header. The first `fixedRows` rows are the header. Requires
  // rows of one length. Notifies the view once.
  void SetRows(std::vector<std::vector<std::string>> rows, int fixedRows);
  // Appends a row of empty cells.
  void AddRow();
  // Removes a row; the rows below it move up. The selection keeps its row number, or moves to the last row when that is
  // gone. Throws RuntimeError 9 outside the grid.
  void RemoveRow(int row);
  int Rows() const { return rows_; }
  int Columns() const { return columns_; }
  int FixedRows() const { return fixedRows_; }
  // Sets how many columns at the left are only shown. When the size is set, the selection starts in the column after
  // them.
  void SetFixedColumns(int columns) { fixedColumns_ = columns; }
  int FixedColumns() const { return fixedColumns_; }
  void SetColumnWidths(std::vector<int> widths) { Mirror(columnWidths_, std::move(widths)); }
  const std::vector<int>& ColumnWidths() const { return columnWidths_; }
  // Sets the column that fills the remaining width.
  void SetStretchedColumn(int column) { stretchedColumn_ = column; }
  int StretchedColumn() const { return stretchedColumn_; }
  int Width() const { return width_; }
  void SetWidth(int width) { width_ = width; }

  // Throw RuntimeError 9 outside the grid.
  const std::string& Cell(int row, int column) const;
  void SetCell(int row, int column, std::string text);
  // Changes a cell as the user does, and fires Change.
  void EditCell(int row, int column, std::string text);

  int Row() const { return row_; }
  void SetRow(int row) { SelectCell(row, column_); }
  int Column() const { return column_; }
  // Throws RuntimeError 9 outside the grid.
  void SelectCell(int row, int column);
  // Clicks a row or a cell as the user does. Fires Click also for the selected one.
  void ClickRow(int row);
  void ClickCell(int row, int column);

  // Sets the text box that covers the selected cell while the grid has the keyboard focus. Without one the cells are
  // only shown.
  void SetOverlay(TextBox& overlay) { overlay_ = &overlay; }
  TextBox* Overlay() const { return overlay_; }

  // Returns all rows as a spreadsheet takes them: cells separated by tabs, line ends of CR LF.
  std::string AsText() const;

  Event Change;  // another row or cell is selected, or the user has edited a cell
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
