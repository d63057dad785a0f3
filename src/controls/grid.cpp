#include "controls/grid.h"

#include <algorithm>

#include "base/text.h"

namespace orby {

void Grid::SetSize(int rows, int columns, int fixedRows) {
  Resize(rows, columns, fixedRows);
  Touch();
}

void Grid::SetRows(std::vector<std::vector<std::string>> rows, int fixedRows) {
  Resize(static_cast<int>(rows.size()), rows.empty() ? 0 : static_cast<int>(rows.front().size()), fixedRows);
  auto cell = cells_.begin();
  for (std::vector<std::string>& row : rows) cell = std::ranges::move(row, cell).out;
  Touch();
}

void Grid::Resize(int rows, int columns, int fixedRows) {
  rows_ = rows;
  columns_ = columns;
  fixedRows_ = fixedRows;
  row_ = std::min(fixedRows, rows - 1);
  column_ = std::min(fixedColumns_, columns - 1);
  cells_.assign(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns), {});
}

std::size_t Grid::Index(int row, int column) const {
  const std::size_t line = CheckedIndex(row, static_cast<std::size_t>(rows_));
  return line * static_cast<std::size_t>(columns_) + CheckedIndex(column, static_cast<std::size_t>(columns_));
}

const std::string& Grid::Cell(int row, int column) const { return cells_[Index(row, column)]; }

std::string Grid::AsText() const {
  std::string text;
  for (int row = 0; row < rows_; ++row) {
    for (int column = 0; column < columns_; ++column) text.append(column == 0 ? "" : "\t").append(Cell(row, column));
    text += LineEnd;
  }
  return text;
}

void Grid::SetCell(int row, int column, std::string text) { Mirror(cells_[Index(row, column)], std::move(text)); }

void Grid::EditCell(int row, int column, std::string text) {
  std::string& cell = cells_[Index(row, column)];
  if (cell == text) return;
  cell = std::move(text);
  Touch();
  Fire(Change);
}

void Grid::AddRow() {
  ++rows_;
  cells_.resize(cells_.size() + static_cast<std::size_t>(columns_));
  if (row_ < fixedRows_) row_ = fixedRows_;
  Touch();
}

void Grid::RemoveRow(int row) {
  const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(Index(row, 0));
  cells_.erase(first, first + columns_);
  --rows_;
  row_ = std::min(row_, rows_ - 1);
  Touch();
}

void Grid::SelectCell(int row, int column) {
  if (row == row_ && column == column_) return;
  Index(row, column);
  row_ = row;
  column_ = column;
  Touch();
  Fire(Change);
}

void Grid::ClickRow(int row) { ClickCell(row, column_); }

void Grid::ClickCell(int row, int column) {
  SelectCell(row, column);
  Fire(Click);
}

}  // namespace orby
