// The parts of pages: lines of text, headings, rows of tables and the signs of judgements, each a block that is never
// broken.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/verdicts.h"
#include "sheet/formula_layout.h"
#include "sheet/page_flow.h"

namespace orby {

namespace page_style {
inline constexpr TextStyle Usual{.Size = 9.5};
inline constexpr TextStyle Strong{.Size = 9.5, .IsBold = true};
inline constexpr TextStyle Small{.Size = 8};
inline constexpr TextStyle Heading{.Size = 13, .IsBold = true};
inline constexpr TextStyle Title{.Size = 20, .IsBold = true};
inline constexpr double Indent = 16;
}  // namespace page_style

// Boxes below each other.
class Stack {
 public:
  void Add(FormulaBox box, double left, double gap);
  void AddAt(FormulaBox box, const ScenePoint& at);
  void Space(double height) { height_ += height; }
  double Height() const { return height_; }

  PageBlock Take();

 private:
  FormulaBox made_;
  double height_ = 0;
};

// A column of a table, in shares of the width of the text.
struct PageColumn {
  double Left = 0;
  double Right = 1;
  Anchor Side = Anchor::Start;
  bool IsUnit = false;  // its powers are raised
};

// Returns the box moved so that it ends where it began.
FormulaBox RightAligned(FormulaBox box);

// Returns the box, made smaller if it is wider than the room.
FormulaBox Fitting(FormulaBox box, double room);

// Returns a drawing, enlarged or made smaller to fill the room, and its height there.
struct PlacedScene {
  FormulaBox Box;
  double Height = 0;
};
PlacedScene InRoom(const Scene& scene, double width, double height);

// Returns the sign of a judgement: a shape of its own for each result.
FormulaBox SignOf(Holding result);

// Returns a line between two points.
SceneOutline RuleBetween(const ScenePoint& from, const ScenePoint& to, double width = 0.4);

// Makes parts for a text of some width.
class PageParts {
 public:
  // `width` must exist as long as the parts are made.
  PageParts(double across, const TextWidth& width) : across_(across), width_(width) {}

  double Across() const { return across_; }
  const TextWidth& Measure() const { return width_; }

  FormulaBox Text(const std::string& text, const TextStyle& style) const { return SetText(text, style, width_); }

  // Adds a text in as many lines as it needs.
  void AddWrapped(Stack& stack, std::string_view text, const TextStyle& style, double left, double room,
                  double gap) const;

  // A text over the whole width.
  PageBlock Paragraph(std::string_view text, const TextStyle& style, double before) const;

  // A heading that stays with the next block. `entry` is its text in the contents; empty: none.
  PageBlock Heading(std::string_view text, const TextStyle& style, double before, const std::string& entry) const;

  // A row with a line below it. A text at the left of a column that is much too wide for it takes several lines; any
  // other one is set smaller.
  PageBlock Row(std::span<const PageColumn> columns, const std::vector<std::string>& cells,
                const TextStyle& style) const;

  // The first row of a table, which stays with the second one.
  PageBlock HeadRow(std::span<const PageColumn> columns, const std::vector<std::string>& cells, double before) const;

  // A judgement in a line with its sign.
  PageBlock Judgement(Holding result, const std::string& line) const;

 private:
  double across_;
  const TextWidth& width_;
};

// Writes the number of each page and a text at its foot.
void AddFeet(std::vector<Scene>& pages, const std::string& left, const TextWidth& width);

}  // namespace orby
