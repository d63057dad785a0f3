#include "sheet/page_layout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "base/number_text.h"
#include "base/text.h"
#include "sheet/formula_text.h"
#include "sheet/page_flow.h"
#include "sheet/sheet_content.h"

namespace orby {
namespace {

constexpr double TextPoints = 9.5;
constexpr double SmallPoints = 8;
constexpr double LineShare = 1.35;  // of the size of a text, from line to line
constexpr double Indent = 16;

constexpr TextStyle Usual{.Size = TextPoints};
constexpr TextStyle Strong{.Size = TextPoints, .IsBold = true};
constexpr TextStyle Small{.Size = SmallPoints};
constexpr TextStyle Heading{.Size = 13, .IsBold = true};
constexpr TextStyle Title{.Size = 20, .IsBold = true};

// Places of the columns of a table of inputs, in shares of the width.
constexpr double ValueRight = 0.45;
constexpr double UnitLeft = 0.465;
constexpr double SourceLeft = 0.54;

// Boxes below each other.
class Stack {
 public:
  void Add(FormulaBox box, double left, double gap) {
    const double base = height_ + gap + box.Ascent;
    height_ = base + box.Descent;
    AddAt(std::move(box), {left, base});
  }
  void AddAt(FormulaBox box, const ScenePoint& at) {
    box = Placed(std::move(box), at);
    std::ranges::move(box.Labels, std::back_inserter(made_.Labels));
    std::ranges::move(box.Lines, std::back_inserter(made_.Lines));
  }
  void Space(double height) { height_ += height; }
  double Height() const { return height_; }

  PageBlock Take() {
    made_.Descent = height_;
    return {.Box = std::move(made_), .Height = height_, .Entry = {}, .Head = {}};
  }

 private:
  FormulaBox made_;
  double height_ = 0;
};

FormulaBox RightAligned(FormulaBox box) {
  const double width = box.Width;
  return Placed(std::move(box), {-width, 0});
}

// The sign of a judgement: a shape of its own for each result.
FormulaBox SignOf(Holding result) {
  constexpr double Size = 8;
  using enum PathStep::Kind;
  SceneOutline outline;
  const auto corners = [&](std::initializer_list<ScenePoint> points) {
    for (const ScenePoint& point : points) {
      outline.Steps.push_back({outline.Steps.empty() ? Move : Line, {point.X * Size, -point.Y * Size}, {}, {}});
    }
    outline.Steps.push_back({Close, {}, {}, {}});
  };
  switch (result) {
    case Holding::Holds:
      outline.Steps.push_back({Circle, {Size / 2, -Size / 2 + 1}, {Size, -Size / 2 + 1}, {}});
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

class SheetPages {
 public:
  SheetPages(const DesignSheet& sheet, const PageSize& size, const PageFoot& foot, const TextWidth& width)
      : sheet_(sheet), size_(size), foot_(foot), width_(width), across_(PageFlow(size).TextWidth()) {}

  PagedSheet Make() {
    for (std::size_t i = 0; i < sheet_.Sections.size(); ++i) AddSection(sheet_.Sections[i], i + 1);
    PageFlow body(size_);
    body.Place(blocks_);
    PagedSheet pages = body.Take();
    // The front pages are as many whatever the numbers on them are.
    const std::size_t before = FrontPages(pages.Contents, 0).Pages.size();
    for (PageEntry& entry : pages.Contents) entry.Page += before;
    PagedSheet front = FrontPages(pages.Contents, 1);
    std::ranges::move(front.Pages, std::inserter(pages.Pages, pages.Pages.begin()));
    AddFeet(pages.Pages);
    return pages;
  }

 private:
  FormulaBox Text(const std::string& text, const TextStyle& style) const { return SetText(text, style, width_); }

  // Adds a text in as many lines as it needs.
  void AddWrapped(Stack& stack, std::string_view text, const TextStyle& style, double left, double room,
                  double gap) const {
    std::string line;
    const auto flush = [&] {
      stack.Add(Text(line, style), left, gap);
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

  // Makes a box smaller that is wider than the room.
  static FormulaBox Fitting(FormulaBox box, double room) {
    if (box.Width <= room) return box;
    const double scale = room / box.Width;
    return Placed(std::move(box), {0, 0}, scale);
  }

  // ---- front -------------------------------------------------------------------------------------------------------

  // Returns the pages before the sections: title and contents. `first` is the number of the first page.
  PagedSheet FrontPages(const std::vector<PageEntry>& contents, std::size_t first) const {
    std::vector<PageBlock> blocks{TitleBlock()};
    Stack heading;
    heading.Add(Text("Contents", Heading), 0, 0);
    blocks.push_back(heading.Take());
    blocks.back().Before = 18;
    blocks.back().KeepsNext = true;
    for (const PageEntry& entry : contents) {
      Stack line;
      line.Add(Text(entry.Title, Usual), 0, 4);
      line.AddAt(RightAligned(Text(std::to_string(entry.Page + first), Usual)), {across_, line.Height() - 2});
      blocks.push_back(line.Take());
    }
    PageFlow flow(size_);
    flow.Place(blocks);
    return flow.Take();
  }

  PageBlock TitleBlock() const {
    Stack stack;
    stack.Add(Text(std::string(SheetKind), Title), 0, 0);
    AddWrapped(stack, SheetHeading(sheet_), Heading, 0, across_, 8);
    stack.Space(8);
    const auto row = [&](const std::string& name, const std::string& value) {
      if (value.empty()) return;
      constexpr double Left = 116;
      const double top = stack.Height();
      AddWrapped(stack, value, Usual, Left, across_ - Left, 4);
      stack.AddAt(Text(name, Strong), {0, top + 4 + Text(name, Strong).Ascent});
    };
    for (const TitleFact& fact : TitleFacts(sheet_)) row(std::string(fact.Label), fact.Text);
    row("Date", foot_.Date);
    return stack.Take();
  }

  void AddFeet(std::vector<Scene>& pages) const {
    for (std::size_t i = 0; i < pages.size(); ++i) {
      const double base = size_.Height - PageMargin + 14;
      const std::string number = "Page " + std::to_string(i + 1) + " of " + std::to_string(pages.size());
      FormulaBox left = Fitting(Text(foot_.Left, Small), across_ * 0.6);
      Put(pages[i], Placed(std::move(left), {PageMargin, base}));
      Put(pages[i], Placed(RightAligned(Text(number, Small)), {PageMargin + across_, base}));
    }
  }

  static void Put(Scene& page, FormulaBox box) {
    std::ranges::move(box.Labels, std::back_inserter(page.Labels));
    std::ranges::move(box.Lines, std::back_inserter(page.Outlines));
  }

  // ---- sections ----------------------------------------------------------------------------------------------------

  void AddSection(const SheetSection& section, std::size_t number) {
    Stack heading;
    const std::string title = std::to_string(number) + "  " + section.Title;
    AddWrapped(heading, title, Heading, 0, across_, 0);
    heading.Space(4);
    blocks_.push_back(heading.Take());
    blocks_.back().Before = 18;
    blocks_.back().KeepsNext = true;
    blocks_.back().Entry = title;
    step_ = 0;
    section_ = number;
    isTable_ = false;
    for (const SheetPart& part : section.Parts) {
      std::visit([this](const auto& one) { Add(one); }, part);
      isTable_ = std::holds_alternative<SheetInput>(part);
    }
  }

  void Add(const SheetInput& input) {
    if (!isTable_) {
      blocks_.push_back(InputRow("Input", "Value", "Unit", "Source", Strong));
      blocks_.back().KeepsNext = true;
      inputHead_ = {blocks_.back().Box};
    }
    blocks_.push_back(InputRow(std::string(input.Label), input.Text, std::string(input.Unit), input.Source, Usual));
    blocks_.back().Head = inputHead_;
  }

  PageBlock InputRow(const std::string& label, const std::string& value, const std::string& unit,
                     const std::string& source, const TextStyle& style) const {
    Stack row;
    row.Add(Fitting(Text(label, style), across_ * 0.36), 0, 3);
    const double base = row.Height() - style.Size * 0.22;
    FormulaBox number = Fitting(Text(value, style), across_ * 0.16);
    row.AddAt(RightAligned(std::move(number)), {across_ * ValueRight, base});
    row.AddAt(SetUnit(unit, style, width_), {across_ * UnitLeft, base});
    row.AddAt(Fitting(Text(source, style), across_ * (1 - SourceLeft)), {across_ * SourceLeft, base});
    row.Space(2);
    AddRule(row);
    return row.Take();
  }

  void AddRule(Stack& row) const {
    FormulaBox rule;
    rule.Lines.push_back({{{PathStep::Kind::Move, {0, 0}, {}, {}}, {PathStep::Kind::Line, {across_, 0}, {}, {}}},
                          {},
                          {.Colour = Ink::Muted, .Width = 0.4}});
    row.AddAt(std::move(rule), {0, row.Height()});
  }

  void Add(const SheetStep& step) {
    Stack stack;
    const std::string number = std::to_string(section_) + "." + std::to_string(++step_);
    AddWrapped(stack, number + "  " + step.Title, Strong, 0, across_, 0);
    if (step.Law != nullptr) AddFormulas(stack, step);
    AddResult(stack, step);
    if (step.Law != nullptr) AddLegend(stack, step);
    for (const std::string& detail : DetailsOf(step)) AddWrapped(stack, detail, Small, Indent, across_ - Indent, 3);
    blocks_.push_back(stack.Take());
    blocks_.back().Before = 10;
  }

  FormulaBox EqualTo(FormulaBox left, FormulaBox right) const {
    return SideBySide({std::move(left), Text("=", Usual), std::move(right)}, 5);
  }

  void AddFormulas(Stack& stack, const SheetStep& step) const {
    const double room = across_ - Indent;
    const FormulaBox symbol = SetSymbol(step.Letter, TextPoints, width_);
    stack.Add(Fitting(EqualTo(symbol, SetFormula(step.Law->Formula, TextPoints, width_)), room), Indent, 5);
    if (step.Numbers.empty()) return;
    const auto numberOf = [&](std::string_view letter) {
      const auto found = std::ranges::find(step.Numbers, letter, &InsertedNumber::Letter);
      return found == step.Numbers.end() ? std::string() : found->Text;
    };
    const FormulaBox inserted = SetFormula(AppliedFormula(step), TextPoints, width_, numberOf);
    stack.Add(Fitting(EqualTo(symbol, inserted), room), Indent, 5);
  }

  void AddResult(Stack& stack, const SheetStep& step) const {
    const FormulaBox symbol = SetSymbol(step.Letter, TextPoints, width_);
    if (!step.Failure.empty()) {
      stack.Add(SideBySide({symbol, Text(FailureText(step), Strong)}, 6), Indent, 5);
      return;
    }
    FormulaBox result = SetNumber(step.Text, Strong, width_);
    if (!step.Unit.empty())
      result = SideBySide({std::move(result), SetUnit(std::string(step.Unit), Strong, width_)}, 3);
    stack.Add(EqualTo(symbol, std::move(result)), Indent, 5);
  }

  // The meanings of the symbols in one paragraph. A line breaks only between two symbols.
  void AddLegend(Stack& stack, const SheetStep& step) const {
    constexpr double Gap = SmallPoints * 0.6;
    FormulaBox line;
    double above = 4;
    for (const InsertedNumber& number : step.Numbers) {
      std::string meaning = ": " + std::string(number.Meaning);
      if (!number.Unit.empty()) meaning.append(", ").append(number.Unit);
      FormulaBox entry = SideBySide({SetSymbol(number.Letter, SmallPoints, width_), SetUnit(meaning, Small, width_)});
      if (&number != &step.Numbers.back()) entry = SideBySide({std::move(entry), Text(";", Small)});
      if (line.Width > 0 && line.Width + Gap + entry.Width > across_ - Indent) {
        stack.Add(std::exchange(line, {}), Indent, above);
        above = SmallPoints * (LineShare - 1);
      }
      line = line.Width > 0 ? SideBySide({std::move(line), std::move(entry)}, Gap) : std::move(entry);
    }
    if (line.Width > 0) stack.Add(Fitting(std::move(line), across_ - Indent), Indent, above);
  }

  void Add(const SheetJudgement& judgement) {
    Stack stack;
    AddWrapped(stack, judgement.Line, Strong, Indent, across_ - Indent, 0);
    stack.AddAt(SignOf(judgement.Result), {0, TextPoints * 0.74});
    blocks_.push_back(stack.Take());
    blocks_.back().Before = 10;
  }

  void Add(const SheetRemark& remark) {
    Stack stack;
    AddWrapped(stack, remark.Text, Usual, 0, across_, 0);
    blocks_.push_back(stack.Take());
    blocks_.back().Before = 8;
  }

  void Add(const SheetTable& table) {
    const PageBlock head = TableRow(table.Heads, Strong);
    blocks_.push_back(head);
    blocks_.back().Before = 12;
    blocks_.back().KeepsNext = true;
    for (const std::vector<std::string>& row : table.Rows) {
      blocks_.push_back(TableRow(row, Usual));
      blocks_.back().Head = {head.Box};
    }
  }

  PageBlock TableRow(const std::vector<std::string>& cells, const TextStyle& style) const {
    Stack row;
    const double first = 0.34 * across_;
    row.Add(Fitting(Text(cells.front(), style), first), 0, 3);
    const double base = row.Height() - style.Size * 0.22;
    const double step = (across_ - first) / static_cast<double>(std::max<std::size_t>(cells.size() - 1, 1));
    for (std::size_t i = 1; i < cells.size(); ++i) {
      row.AddAt(RightAligned(Fitting(Text(cells[i], style), step)), {first + step * static_cast<double>(i), base});
    }
    row.Space(2);
    AddRule(row);
    return row.Take();
  }

  const DesignSheet& sheet_;
  PageSize size_;
  const PageFoot& foot_;
  const TextWidth& width_;
  double across_;
  std::vector<PageBlock> blocks_;
  std::vector<FormulaBox> inputHead_;
  std::size_t section_ = 0;
  std::size_t step_ = 0;
  bool isTable_ = false;
};

}  // namespace

PagedSheet PagesOf(const DesignSheet& sheet, const PageSize& size, const PageFoot& foot, const TextWidth& width) {
  return SheetPages(sheet, size, foot, width).Make();
}

}  // namespace orby
