// Designs side by side as pages to print.
#include <algorithm>
#include <array>

#include "base/text.h"
#include "dialogs/compared_pictures.h"
#include "dialogs/comparison_outputs.h"
#include "sheet/page_flow.h"
#include "sheet/page_parts.h"

namespace orby {
namespace {

constexpr std::size_t MostUpright = 3;   // designs on an upright page
constexpr double TallestSections = 110;  // points
constexpr double TallestCurves = 0.75;   // of the height of a page without its margins
constexpr double ColumnGap = 0.008;      // of the width of the text

// The columns of the table: the heads of the rows, and the designs.
std::vector<PageColumn> ColumnsFor(std::size_t designs) {
  const double heads = designs > MostUpright ? 0.26 : 0.4;
  const double each = (1 - heads) / static_cast<double>(std::max<std::size_t>(designs, 1));
  std::vector<PageColumn> columns{{.Left = 0, .Right = heads - ColumnGap}};
  columns.reserve(designs + 1);
  for (std::size_t i = 0; i < designs; ++i) {
    const double left = heads + static_cast<double>(i) * each;
    columns.push_back({.Left = left, .Right = left + each - ColumnGap});
  }
  return columns;
}

class ComparisonPages {
 public:
  ComparisonPages(const PrintedComparison& printed, const PageSize& size, const TextWidth& width)
      : printed_(printed),
        size_(size),
        parts_(PageFlow(size).TextWidth(), width),
        columns_(ColumnsFor(printed.Table.Names.size())) {}

  PagedSheet Make() {
    AddTitle();
    AddSections();
    for (const ComparedSection& section : printed_.Table.Sections) AddTable(section);
    blocks_.push_back(parts_.Paragraph(BestNote, page_style::Small, 8));
    AddCurves();
    PageFlow flow(size_);
    flow.Place(blocks_);
    PagedSheet pages = flow.Take();
    AddFeet(pages.Pages, std::string(ComparisonTitle) + ", " + printed_.Date, parts_.Measure());
    return pages;
  }

 private:
  void AddTitle() {
    blocks_.push_back(parts_.Paragraph(ComparisonTitle, page_style::Title, 0));
    blocks_.push_back(parts_.Paragraph(printed_.Date, page_style::Small, 4));
    for (std::size_t i = 0; i < printed_.Table.Names.size(); ++i) {
      const std::string line = std::to_string(i + 1) + "  " + IdentityLine(printed_.Table, i);
      blocks_.push_back(parts_.Paragraph(line, page_style::Usual, 4));
    }
  }

  // The sections stand over the columns of their designs.
  void AddSections() {
    Stack stack;
    double height = 0;
    for (std::size_t i = 0; i < printed_.Sections.size(); ++i) {
      const PageColumn& column = columns_[i + 1];
      const double room = (column.Right - column.Left) * parts_.Across();
      const PlacedScene placed = InRoom(printed_.Sections[i], room, TallestSections);
      stack.AddAt(placed.Box, {column.Left * parts_.Across(), 0});
      height = std::max(height, placed.Height);
    }
    stack.Space(height);
    PageBlock block = stack.Take();
    block.Before = 12;
    block.KeepsNext = true;
    blocks_.push_back(std::move(block));
  }

  void AddTable(const ComparedSection& section) {
    std::vector<std::string> heads{""};
    heads.reserve(columns_.size());
    for (const std::string& name : printed_.Table.Names) heads.push_back(HeadOf(name, columns_[heads.size()]));
    std::vector<FormulaBox> head;
    for (const ComparedRow& row : section.Rows) {
      if (IsIdentity(row)) continue;
      if (head.empty()) {
        const std::string title(section.Title);
        blocks_.push_back(parts_.Heading(title, page_style::Heading, 14, title));
        blocks_.push_back(parts_.HeadRow(columns_, heads, 2));
        head = {blocks_.back().Box};
      }
      std::vector<std::string> cells{row.Head};
      cells.reserve(row.Cells.size() + 1);
      for (const ComparedCell& cell : row.Cells) cells.push_back(MarkedText(cell));
      PageBlock block = parts_.Row(columns_, cells, page_style::Usual);
      block.Head = head;
      blocks_.push_back(std::move(block));
    }
  }

  // Returns a name that fits its column. The whole name stands below the title.
  std::string HeadOf(const std::string& name, const PageColumn& column) const {
    constexpr std::size_t Fewest = 6;
    const double room = (column.Right - column.Left) * parts_.Across();
    std::string head = name;
    for (std::size_t most = CharacterCount(name); most > Fewest && IsWider(head, room); --most) {
      head = Shortened(name, most);
    }
    return head;
  }
  bool IsWider(const std::string& text, double room) const { return parts_.Measure()(text, page_style::Strong) > room; }

  void AddCurves() {
    blocks_.push_back(parts_.Heading(printed_.CurveTitle, page_style::Heading, 14, printed_.CurveTitle));
    const PlacedScene placed =
        InRoom(printed_.Curves, parts_.Across(), TallestCurves * (size_.Height - 2 * PageMargin));
    Stack stack;
    stack.AddAt(placed.Box, {0, 0});
    stack.Space(placed.Height);
    blocks_.push_back(stack.Take());
  }

  const PrintedComparison& printed_;
  PageSize size_;
  PageParts parts_;
  std::vector<PageColumn> columns_;
  std::vector<PageBlock> blocks_;
};

}  // namespace

bool IsIdentity(const ComparedRow& row) { return std::ranges::find(IdentityKeys, row.Key) != IdentityKeys.end(); }

std::string IdentityLine(const DesignComparison& comparison, std::size_t place) {
  std::string details;
  const auto add = [&](std::string_view key) {
    for (const ComparedSection& section : comparison.Sections) {
      for (const ComparedRow& row : section.Rows) {
        if (row.Key != key || row.Cells[place].Text.empty()) continue;
        details.append(details.empty() ? ": " : ", ").append(row.Cells[place].Text);
      }
    }
  };
  for (const std::string_view key : {"reason", "title", "file"}) add(key);
  return comparison.Names[place] + details;
}

PagedSheet PagesOf(const PrintedComparison& printed, const PageSize& size, const TextWidth& width) {
  const bool isAcross = printed.Table.Names.size() > MostUpright;
  const PageSize turned{std::max(size.Width, size.Height), std::min(size.Width, size.Height)};
  return ComparisonPages(printed, isAcross ? turned : size, width).Make();
}

}  // namespace orby
