#include "sheet/page_parts.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

namespace orby {
namespace {

using PathKind = PathStep::Kind;

constexpr double LineShare = 1.35;     // of the size of a text, from line to line
constexpr double SmallestShare = 0.8;  // of its size, for a text that is a little too wide
constexpr double CellGap = 3;          // above and below the texts of a row

void PutOn(Scene& page, FormulaBox box) {
  std::ranges::move(box.Labels, std::back_inserter(page.Labels));
  std::ranges::move(box.Lines, std::back_inserter(page.Outlines));
}

}  // namespace

void Stack::Add(FormulaBox box, double left, double gap) {
  const double base = height_ + gap + box.Ascent;
  height_ = base + box.Descent;
  AddAt(std::move(box), {left, base});
}

void Stack::AddAt(FormulaBox box, const ScenePoint& at) {
  box = Placed(std::move(box), at);
  std::ranges::move(box.Labels, std::back_inserter(made_.Labels));
  std::ranges::move(box.Lines, std::back_inserter(made_.Lines));
}

PageBlock Stack::Take() {
  made_.Descent = height_;
  return {.Box = std::move(made_), .Height = height_, .Entry = {}, .Head = {}};
}

FormulaBox RightAligned(FormulaBox box) {
  const double width = box.Width;
  return Placed(std::move(box), {-width, 0});
}

FormulaBox Fitting(FormulaBox box, double room) {
  if (box.Width <= room) return box;
  const double scale = room / box.Width;
  return Placed(std::move(box), {0, 0}, scale);
}

PlacedScene InRoom(const Scene& scene, double width, double height) {
  const double scale = std::min(width / scene.Width, height / scene.Height);
  FormulaBox box{
      .Width = scene.Width, .Ascent = 0, .Descent = scene.Height, .Labels = scene.Labels, .Lines = scene.Outlines};
  return {Placed(std::move(box), {0, 0}, scale), scene.Height * scale};
}

FormulaBox SignOf(Holding result) {
  constexpr double Size = 8;
  SceneOutline outline;
  const auto corners = [&](std::initializer_list<ScenePoint> points) {
    for (const ScenePoint& point : points) {
      outline.Steps.push_back(
          {outline.Steps.empty() ? PathKind::Move : PathKind::Line, {point.X * Size, -point.Y * Size}, {}, {}});
    }
    outline.Steps.push_back({PathKind::Close, {}, {}, {}});
  };
  switch (result) {
    case Holding::Holds:
      outline.Steps.push_back({PathKind::Circle, {Size / 2, -Size / 2 + 1}, {Size, -Size / 2 + 1}, {}});
      outline.Inside = {Ink::Good};
      break;
    case Holding::Check:
      corners({{0, -0.1}, {0.5, 0.85}, {1, -0.1}});
      outline.Inside = {Ink::Doubtful};
      break;
    case Holding::Short:
      corners({{0.3, -0.1}, {0.7, -0.1}, {1, 0.2}, {1, 0.6}, {0.7, 0.9}, {0.3, 0.9}, {0, 0.6}, {0, 0.2}});
      outline.Inside = {Ink::Bad};
      break;
    case Holding::Uncomputed:
      corners({{0.05, -0.05}, {0.05, 0.85}, {0.95, 0.85}, {0.95, -0.05}});
      outline.Line = {.Colour = Ink::Text, .Width = 1};
      break;
  }
  FormulaBox box{.Width = Size, .Ascent = Size, .Descent = 1, .Labels = {}, .Lines = {}};
  box.Lines.push_back(std::move(outline));
  return box;
}

SceneOutline RuleBetween(const ScenePoint& from, const ScenePoint& to, double width) {
  return {{{PathKind::Move, from, {}, {}}, {PathKind::Line, to, {}, {}}}, {}, {.Colour = Ink::Muted, .Width = width}};
}

void PageParts::AddWrapped(Stack& stack, std::string_view text, const TextStyle& style, double left, double room,
                           double gap) const {
  std::string line;
  const auto flush = [&] {
    stack.Add(Fitting(Text(line, style), room), left, gap);
    gap = style.Size * (LineShare - 1);
    line.clear();
  };
  while (!text.empty()) {
    const std::size_t blank = std::min(text.find(' '), text.size());
    const std::string word(text.substr(0, blank));
    text.remove_prefix(std::min(blank + 1, text.size()));
    std::string longer = line;
    if (!line.empty()) longer += ' ';
    longer += word;
    if (!line.empty() && width_(longer, style) > room) {
      flush();
      line = word;
    } else {
      line = longer;
    }
  }
  if (!line.empty()) flush();
}

PageBlock PageParts::Paragraph(std::string_view text, const TextStyle& style, double before) const {
  Stack stack;
  AddWrapped(stack, text, style, 0, across_, 0);
  PageBlock block = stack.Take();
  block.Before = before;
  return block;
}

PageBlock PageParts::Heading(std::string_view text, const TextStyle& style, double before,
                             const std::string& entry) const {
  Stack stack;
  AddWrapped(stack, text, style, 0, across_, 0);
  stack.Space(4);
  PageBlock block = stack.Take();
  block.Before = before;
  block.KeepsNext = true;
  block.Entry = entry;
  return block;
}

PageBlock PageParts::Row(std::span<const PageColumn> columns, const std::vector<std::string>& cells,
                         const TextStyle& style) const {
  Stack row;
  double lowest = 0;
  for (std::size_t i = 0; i < std::min(cells.size(), columns.size()); ++i) {
    const PageColumn& column = columns[i];
    const double room = (column.Right - column.Left) * across_;
    FormulaBox box = column.IsUnit ? SetUnit(cells[i], style, width_) : Text(cells[i], style);
    Stack cell;
    if (column.Side == Anchor::Start && box.Width * SmallestShare > room) {
      AddWrapped(cell, cells[i], style, column.Left * across_, room, 0);
    } else {
      const double ascent = box.Ascent;
      box = Fitting(std::move(box), room);
      if (column.Side == Anchor::End) box = RightAligned(std::move(box));
      const double left = column.Side == Anchor::End ? column.Right : column.Left;
      cell.Space(ascent - box.Ascent);  // all first lines have one base line
      cell.Add(std::move(box), left * across_, 0);
    }
    const double height = cell.Height();
    row.AddAt(cell.Take().Box, {0, CellGap});
    lowest = std::max(lowest, height);
  }
  row.Space(lowest + 2 * CellGap - 1);
  FormulaBox rule;
  rule.Lines.push_back(RuleBetween({0, 0}, {across_, 0}));
  row.AddAt(std::move(rule), {0, row.Height()});
  return row.Take();
}

PageBlock PageParts::HeadRow(std::span<const PageColumn> columns, const std::vector<std::string>& cells,
                             double before) const {
  PageBlock head = Row(columns, cells, page_style::Strong);
  head.Before = before;
  head.KeepsNext = true;
  return head;
}

PageBlock PageParts::Judgement(Holding result, const std::string& line) const {
  Stack stack;
  AddWrapped(stack, line, page_style::Strong, page_style::Indent, across_ - page_style::Indent, 0);
  stack.AddAt(SignOf(result), {0, page_style::Strong.Size * 0.74});
  PageBlock block = stack.Take();
  block.Before = 10;
  return block;
}

void AddFeet(std::vector<Scene>& pages, const std::string& left, const TextWidth& width) {
  for (std::size_t i = 0; i < pages.size(); ++i) {
    Scene& page = pages[i];
    const double across = page.Width - 2 * PageMargin;
    const double base = page.Height - PageMargin + 14;
    const std::string number = "Page " + std::to_string(i + 1) + " of " + std::to_string(pages.size());
    FormulaBox text = Fitting(SetText(left, page_style::Small, width), across * 0.8);
    PutOn(page, Placed(std::move(text), {PageMargin, base}));
    PutOn(page, Placed(RightAligned(SetText(number, page_style::Small, width)), {PageMargin + across, base}));
  }
}

}  // namespace orby
