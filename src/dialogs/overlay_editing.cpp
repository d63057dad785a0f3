#include "dialogs/overlay_editing.h"

#include <utility>

#include "base/number_text.h"

namespace orby {
namespace {

constexpr int NumberColumn = 0;
constexpr int HeaderRow = 0;
constexpr int HeaderRows = 1;
constexpr int NumberColumns = 1;

}  // namespace

OverlayEditing::OverlayEditing(Grid& grid, TextBox& box, std::vector<TextKind> kinds)
    : grid_(grid), box_(box), kinds_(std::move(kinds)) {
  grid_.SetFixedColumns(NumberColumns);
  grid_.SetOverlay(box_);
  const auto move = [this] {
    Flush();
    Follow();
  };
  grid_.Change = move;
  grid_.Click = move;
}

void OverlayEditing::Fill(const Texts& headers, const std::vector<Texts>& entries) {
  LeaveCell();
  const auto rows = static_cast<int>(entries.size()) + HeaderRows;
  grid_.SetSize(rows, static_cast<int>(kinds_.size()) + NumberColumns, HeaderRows);
  grid_.SetCell(HeaderRow, NumberColumn, "No");
  int row = HeaderRow;
  const auto fill = [&](const Texts& texts) {
    for (int column = NumberColumns; const std::string& text : texts) grid_.SetCell(row, column++, text);
    ++row;
  };
  fill(headers);
  for (const Texts& texts : entries) fill(texts);
  NumberRows();
  Follow();
}

void OverlayEditing::FillNamed(const Texts& header, const std::vector<Texts>& entries) {
  kinds_.assign(header.size() - NumberColumns, TextKind::Number);
  LeaveCell();
  std::vector<Texts> rows{header};
  rows.insert(rows.end(), entries.begin(), entries.end());
  grid_.SetRows(std::move(rows), HeaderRows);
  Follow();
}

void OverlayEditing::AddEntry() {
  Flush();
  grid_.AddRow();
  NumberRows();
  GoTo(Entries() - 1, 0);
}

void OverlayEditing::GoTo(int entry, int column) {
  grid_.SelectCell(entry + HeaderRows, column + NumberColumns);
  Follow();
  box_.Owner().RequestFocus(box_);
}

int OverlayEditing::RemoveEntry() {
  LeaveCell();
  box_.SetText({});
  const int row = grid_.Row();
  if (row < HeaderRows) return Nowhere;
  grid_.RemoveRow(row);
  NumberRows();
  Follow();
  return row - HeaderRows;
}

void OverlayEditing::Flush() {
  if (row_ != Nowhere) grid_.SetCell(row_, column_, box_.Text());
}

const std::string& OverlayEditing::Text(int entry, int column) const {
  return grid_.Cell(entry + HeaderRows, column + NumberColumns);
}

void OverlayEditing::Follow() {
  row_ = grid_.Row();
  column_ = grid_.Column();
  if (row_ < HeaderRows || column_ < NumberColumns) LeaveCell();
  box_.SetVisible(row_ != Nowhere);
  if (row_ == Nowhere) return box_.SetText({});
  box_.SetCaption(grid_.Cell(HeaderRow, column_));
  box_.SetKind(kinds_[static_cast<std::size_t>(column_ - NumberColumns)]);
  box_.SetText(grid_.Cell(row_, column_));
}

void OverlayEditing::NumberRows() {
  for (int row = HeaderRows; row < grid_.Rows(); ++row) grid_.SetCell(row, NumberColumn, NumberText(row));
}

}  // namespace orby
