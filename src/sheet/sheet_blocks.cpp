#include "sheet/sheet_blocks.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "sheet/formula_text.h"
#include "sheet/sheet_content.h"

namespace orby {
namespace {

constexpr std::array<PageColumn, 4> InputColumns{
    {{0, 0.36}, {0.29, 0.45, Anchor::End}, {0.465, 0.53, Anchor::Start, true}, {0.54, 1}}};

FormulaBox EqualTo(FormulaBox left, FormulaBox right, const TextWidth& width) {
  return SideBySide({std::move(left), SetText("=", page_style::Usual, width), std::move(right)}, 5);
}

// A step as one block: its formula, the formula with the numbers, the result and what there is to say.
class StepBlock {
 public:
  StepBlock(const SheetStep& step, const PageParts& parts) : step_(step), parts_(parts) {}

  PageBlock Make(const std::string& number) {
    parts_.AddWrapped(stack_, number + "  " + step_.Title, page_style::Strong, 0, parts_.Across(), 0);
    if (step_.Law != nullptr) AddFormulas();
    AddResult();
    if (step_.Law != nullptr) AddLegend();
    for (const std::string& detail : DetailsOf(step_))
      parts_.AddWrapped(stack_, detail, page_style::Small, page_style::Indent, Room(), 3);
    PageBlock block = stack_.Take();
    block.Before = 10;
    return block;
  }

 private:
  double Room() const { return parts_.Across() - page_style::Indent; }
  FormulaBox Symbol() const { return SetSymbol(step_.Letter, page_style::Usual.Size, parts_.Measure()); }

  void AddFormulas() {
    const TextWidth& width = parts_.Measure();
    stack_.Add(Fitting(EqualTo(Symbol(), SetFormula(step_.Law->Formula, page_style::Usual.Size, width), width), Room()),
               page_style::Indent, 5);
    if (step_.Numbers.empty()) return;
    const auto numberOf = [&](std::string_view letter) {
      const auto found = std::ranges::find(step_.Numbers, letter, &InsertedNumber::Letter);
      return found == step_.Numbers.end() ? std::string() : found->Text;
    };
    const FormulaBox inserted = SetFormula(AppliedFormula(step_), page_style::Usual.Size, width, numberOf);
    stack_.Add(Fitting(EqualTo(Symbol(), inserted, width), Room()), page_style::Indent, 5);
  }

  void AddResult() {
    if (!step_.Failure.empty()) {
      stack_.Add(SideBySide({Symbol(), parts_.Text(FailureText(step_), page_style::Strong)}, 6), page_style::Indent, 5);
      return;
    }
    const TextWidth& width = parts_.Measure();
    FormulaBox result = SetNumber(step_.Text, page_style::Strong, width);
    if (!step_.Unit.empty()) {
      result = SideBySide({std::move(result), SetUnit(std::string(step_.Unit), page_style::Strong, width)}, 3);
    }
    stack_.Add(EqualTo(Symbol(), std::move(result), width), page_style::Indent, 5);
  }

  // The meanings of the symbols in one paragraph. A line breaks only between two symbols.
  void AddLegend() {
    constexpr double Size = page_style::Small.Size;
    constexpr double Gap = Size * 0.6;
    FormulaBox line;
    double above = 4;
    for (const InsertedNumber& number : step_.Numbers) {
      FormulaBox entry = Meaning(number);
      if (&number != &step_.Numbers.back()) entry = SideBySide({std::move(entry), parts_.Text(";", page_style::Small)});
      if (line.Width > 0 && line.Width + Gap + entry.Width > Room()) {
        stack_.Add(std::exchange(line, {}), page_style::Indent, above);
        above = Size * 0.35;
      }
      if (line.Width > 0) entry = SideBySide({std::move(line), std::move(entry)}, Gap);
      line = std::move(entry);
    }
    if (line.Width > 0) stack_.Add(Fitting(std::move(line), Room()), page_style::Indent, above);
  }

  FormulaBox Meaning(const InsertedNumber& number) const {
    const TextWidth& width = parts_.Measure();
    std::string meaning = ": " + std::string(number.Meaning);
    if (!number.Unit.empty()) meaning.append(", ").append(number.Unit);
    return SideBySide(
        {SetSymbol(number.Letter, page_style::Small.Size, width), SetUnit(meaning, page_style::Small, width)});
  }

  const SheetStep& step_;
  const PageParts& parts_;
  Stack stack_;
};

// Takes the parts of a section from WriteParts.
class SectionBlocks {
 public:
  explicit SectionBlocks(const PageParts& parts) : parts_(parts) {}

  void Inputs(const std::vector<const SheetInput*>& inputs) { Add(InputBlocks(inputs, parts_)); }
  void Step(const SheetStep& step, const std::string& number) {
    blocks_.push_back(StepBlock(step, parts_).Make(number));
  }
  void Judgement(const SheetJudgement& judgement) {
    blocks_.push_back(parts_.Judgement(judgement.Judged.Result, judgement.Line));
  }
  void Table(const SheetTable& table) { Add(TableBlocks(table, parts_)); }
  void Remark(const SheetRemark& remark) { blocks_.push_back(parts_.Paragraph(remark.Text, page_style::Usual, 8)); }

  void Section(const SheetSection& section, std::size_t number) {
    const std::string title = std::to_string(number) + "  " + section.Title;
    blocks_.push_back(parts_.Heading(title, page_style::Heading, 18, title));
    WriteParts(section, number, *this);
  }

  std::vector<PageBlock> Take() { return std::move(blocks_); }

 private:
  void Add(std::vector<PageBlock> blocks) { std::ranges::move(blocks, std::back_inserter(blocks_)); }

  const PageParts& parts_;
  std::vector<PageBlock> blocks_;
};

}  // namespace

std::vector<PageBlock> SheetBlocks(const DesignSheet& sheet, const PageParts& parts) {
  SectionBlocks blocks(parts);
  for (std::size_t i = 0; i < sheet.Sections.size(); ++i) blocks.Section(sheet.Sections[i], i + 1);
  return blocks.Take();
}

std::vector<PageBlock> InputBlocks(const std::vector<const SheetInput*>& inputs, const PageParts& parts) {
  std::vector<PageBlock> blocks{parts.HeadRow(InputColumns, {"Input", "Value", "Unit", "Source"}, 0)};
  const FormulaBox head = blocks.front().Box;
  for (const SheetInput* input : inputs) {
    blocks.push_back(parts.Row(InputColumns,
                               {std::string(input->Label), input->Text, std::string(input->Unit), input->Source},
                               page_style::Usual));
    blocks.back().Head = {head};
  }
  return blocks;
}

std::vector<PageBlock> TableBlocks(const SheetTable& table, const PageParts& parts) {
  constexpr double First = 0.34;
  std::vector<PageColumn> columns{{0, First}};
  const double step = (1 - First) / static_cast<double>(std::max<std::size_t>(table.Heads.size() - 1, 1));
  for (double left = First; columns.size() < table.Heads.size(); left += step) {
    columns.push_back({left, left + step, Anchor::End});
  }
  std::vector<PageBlock> blocks{parts.HeadRow(columns, table.Heads, 12)};
  const FormulaBox head = blocks.front().Box;
  for (const std::vector<std::string>& row : table.Rows) {
    const bool isTotal = table.LastIsTotal && &row == &table.Rows.back();
    blocks.push_back(parts.Row(columns, row, isTotal ? page_style::Strong : page_style::Usual));
    blocks.back().Head = {head};
  }
  return blocks;
}

}  // namespace orby
