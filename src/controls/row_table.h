// A table of many rows, whose cells are asked for only when they come on view.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/control.h"
#include "controls/event.h"

namespace orby {

struct RowTableCell {
  std::string Text;
  bool IsNumber = false;  // stands at the right
};

// Several rows can be marked, and one of them or of the others is the current one. Rows and columns count from 0.
class RowTable : public Control {
 public:
  static constexpr int Nothing = -1;

  using Control::Control;

  // Returns a cell. Called by the view while it paints, so it must be quick.
  std::function<RowTableCell(int row, int column)> CellAt;

  void SetHeads(std::vector<std::string> heads);
  const std::vector<std::string>& Heads() const { return heads_; }
  int Columns() const { return static_cast<int>(heads_.size()); }
  // Says that there are other rows. `marked` are among them, ascending; `current` is one of them or Nothing. Fires
  // nothing.
  void SetRows(int count, std::vector<int> marked, int current);
  int Rows() const { return rows_; }
  // Change whenever the view has to ask again for its heads, or its cells.
  unsigned HeadsVersion() const { return headsVersion_; }
  unsigned RowsVersion() const { return rowsVersion_; }

  // Shows by which column the rows are sorted.
  void SetSorting(int column, bool isDescending);
  int SortedColumn() const { return sortedColumn_; }
  bool IsDescending() const { return isDescending_; }

  const std::vector<int>& Marked() const { return marked_; }
  int Current() const { return current_; }

  // What the user does. Each throws RuntimeError 9 outside the table.
  void Mark(std::vector<int> rows, int current);
  void OpenRow(int row);
  void ClickHead(int column);
  void CopyMarked() const { Fire(Copy); }

  Event Change;  // other rows are marked, or another one is the current one
  Event Open;    // the current row is opened
  Event Copy;    // the marked rows are copied
  std::function<void(int column)> HeadClick;

 private:
  std::vector<std::string> heads_;
  int rows_ = 0;
  std::vector<int> marked_;
  int current_ = Nothing;
  int sortedColumn_ = 0;
  bool isDescending_ = false;
  unsigned headsVersion_ = 0;
  unsigned rowsVersion_ = 0;
};

}  // namespace orby
