// Puts blocks on pages, one below the other.
#pragma once

#include <string>
#include <vector>

#include "sheet/formula_layout.h"
#include "sheet/page_layout.h"

namespace orby {

// A part of a page that is never broken. Its coordinates start at its upper left corner.
struct PageBlock {
  FormulaBox Box;
  double Height = 0;
  double Before = 0;       // space above it, except at the top of a page
  bool KeepsNext = false;  // stands on the page of the next block
  bool StartsPage = false;
  std::string Entry;             // of the contents
  std::vector<FormulaBox> Head;  // repeated at the top of a page on which a table goes on
};

inline constexpr double PageMargin = 51;

class PageFlow {
 public:
  explicit PageFlow(const PageSize& size) : size_(size) {}

  double TextWidth() const { return size_.Width - 2 * PageMargin; }

  // Places the blocks from a new page on. Adds an entry for each block that has one.
  void Place(const std::vector<PageBlock>& blocks);

  PagedSheet Take() { return std::move(made_); }

 private:
  void NewPage();
  void Put(const FormulaBox& box, double top);
  double Bottom() const { return size_.Height - PageMargin - 14; }

  PageSize size_;
  PagedSheet made_;
  double at_ = 0;
};

}  // namespace orby
