#include "controls/row_table.h"

#include <utility>

namespace orby {

void RowTable::SetHeads(std::vector<std::string> heads) {
  if (heads == heads_) return;
  heads_ = std::move(heads);
  ++headsVersion_;
  Touch();
}

void RowTable::SetRows(int count, std::vector<int> marked, int current) {
  rows_ = count;
  marked_ = std::move(marked);
  current_ = current;
  ++rowsVersion_;
  Touch();
}

void RowTable::SetSorting(int column, bool isDescending) {
  if (column == sortedColumn_ && isDescending == isDescending_) return;
  sortedColumn_ = column;
  isDescending_ = isDescending;
  Touch();
}

void RowTable::Mark(std::vector<int> rows, int current) {
  for (const int row : rows) CheckedIndex(row, static_cast<std::size_t>(rows_));
  if (current != Nothing) CheckedIndex(current, static_cast<std::size_t>(rows_));
  if (rows == marked_ && current == current_) return;
  marked_ = std::move(rows);
  current_ = current;
  Touch();
  Fire(Change);
}

void RowTable::OpenRow(int row) {
  CheckedIndex(row, static_cast<std::size_t>(rows_));
  if (row != current_) Mark({row}, row);
  Fire(Open);
}

void RowTable::ClickHead(int column) {
  CheckedIndex(column, heads_.size());
  if (HeadClick) HeadClick(column);
}

}  // namespace orby
