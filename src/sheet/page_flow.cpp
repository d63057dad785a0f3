#include "sheet/page_flow.h"

#include <algorithm>

namespace orby {
namespace {

// Returns the height of the block at a place and of those that must stand on its page.
double KeptHeight(const std::vector<PageBlock>& blocks, std::size_t at) {
  double height = blocks[at].Height;
  while (blocks[at].KeepsNext && at + 1 < blocks.size()) {
    ++at;
    height += blocks[at].Before + blocks[at].Height;
  }
  return height;
}

}  // namespace

void PageFlow::NewPage() {
  made_.Pages.push_back({size_.Width, size_.Height, {}, {}});
  at_ = PageMargin;
}

void PageFlow::Put(const FormulaBox& box, double top) {
  FormulaBox placed = Placed(box, {PageMargin, top});
  Scene& page = made_.Pages.back();
  std::ranges::move(placed.Labels, std::back_inserter(page.Labels));
  std::ranges::move(placed.Lines, std::back_inserter(page.Outlines));
}

void PageFlow::Place(const std::vector<PageBlock>& blocks) {
  NewPage();
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    const PageBlock& block = blocks[i];
    const bool isFirst = at_ == PageMargin;
    double top = at_ + (isFirst ? 0 : block.Before);
    if (!isFirst && (block.StartsPage || top + KeptHeight(blocks, i) > Bottom())) {
      NewPage();
      top = at_;
      for (const FormulaBox& head : block.Head) {
        Put(head, top);
        top += head.Height();
      }
    }
    if (!block.Entry.empty()) made_.Contents.push_back({block.Entry, made_.Pages.size() - 1, top});
    Put(block.Box, top);
    at_ = top + block.Height;
  }
}

}  // namespace orby
