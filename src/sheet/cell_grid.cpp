#include "sheet/cell_grid.h"

#include <algorithm>
#include <utility>

namespace orby {
namespace {

constexpr double Inset = 5;
constexpr double BorderWidth = 0.7;

}  // namespace

void CellGrid::Row(const std::vector<Cell>& cells) {
  std::vector<PageBlock> made;
  made.reserve(cells.size());
  double height = 0;
  for (const Cell& cell : cells) {
    const double room = cell.Share * parts_.Across() - 2 * Inset;
    Stack stack;
    parts_.AddWrapped(stack, cell.Label, page_style::Small, 0, room, 0);
    const double above = stack.Height();
    parts_.AddWrapped(stack, cell.Text, page_style::Usual, 0, room, 2);
    height = std::max({height, stack.Height(), above + cell.Room});
    made.push_back(stack.Take());
  }
  height += 2 * Inset;
  const double top = stack_.Height();
  FormulaBox lines;
  double left = 0;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    stack_.AddAt(std::move(made[i].Box), {left + Inset, top + Inset});
    lines.Lines.push_back(RuleBetween({left, top}, {left, top + height}, BorderWidth));
    left += cells[i].Share * parts_.Across();
  }
  lines.Lines.push_back(RuleBetween({left, top}, {left, top + height}, BorderWidth));
  lines.Lines.push_back(RuleBetween({0, top}, {left, top}, BorderWidth));
  lines.Lines.push_back(RuleBetween({0, top + height}, {left, top + height}, BorderWidth));
  stack_.AddAt(std::move(lines), {0, 0});
  stack_.Space(height);
}

}  // namespace orby
