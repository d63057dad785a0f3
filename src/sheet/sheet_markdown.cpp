#include "sheet/sheet_markdown.h"

#include <algorithm>

#include "sheet/formula_text.h"
#include "sheet/sheet_content.h"

namespace orby {
namespace {

// Returns where the mark at the start of a line is that would make it a list or a heading.
std::size_t LineMark(std::string_view text) {
  const std::size_t digits = std::min(text.find_first_not_of("0123456789"), text.size());
  if (digits == text.size()) return std::string_view::npos;
  constexpr std::string_view Marks = "-+=";
  constexpr std::string_view MarksAfterNumbers = ".)";
  const std::string_view marks = digits == 0 ? Marks : MarksAfterNumbers;
  return marks.find(text[digits]) == std::string_view::npos ? std::string_view::npos : digits;
}

class MarkdownOutput {
 public:
  explicit MarkdownOutput(UnitSystem units) : units_(units) {}

  std::string Take() { return std::move(text_); }

  void Head(const DesignSheet& sheet) {
    Line("# " + MarkdownText(SheetHeading(sheet)));
    Block(std::string(SheetKind));
    for (const std::string& line : LinesOf(sheet.Project.Description)) Block(MarkdownText(line));
    Line();
    TableHead({"Project", ""}, 2);
    for (const TitleFact& fact : TitleFacts(sheet)) Row({fact.Label, fact.Text});
    Block("## Contents");
    Line();
    for (std::size_t i = 0; i < sheet.Sections.size(); ++i) {
      const SheetSection& section = sheet.Sections[i];
      Line(std::to_string(i + 1) + ". [" + MarkdownText(section.Title) + "](#" + std::string(section.Key) + ")");
    }
  }

  void Section(const SheetSection& section, std::size_t number) {
    Block("<a id=\"" + std::string(section.Key) + "\"></a>");
    Block("## " + std::to_string(number) + " " + MarkdownText(section.Title));
    WriteParts(section, number, *this);
    Symbols(section);
  }

  // ---- parts -------------------------------------------------------------------------------------------------------

  void Inputs(const std::vector<const SheetInput*>& inputs) {
    Line();
    TableHead({"Input", "Value", "Source"}, 3);
    for (const SheetInput* input : inputs) Row({input->Label, WithUnit(input->Text, input->Unit), input->Source});
  }

  void Step(const SheetStep& step, const std::string& number) {
    Block("### " + number + " " + MarkdownText(step.Title));
    const std::string head = std::string(step.Letter) + " = ";
    std::string formulas;
    if (step.Law != nullptr) {
      formulas = head + FormulaText(step.Law->Formula) + "\n" + head + InsertedText(step) + "\n";
    }
    if (step.Value) formulas += head + WithUnit(step.Text, step.Unit) + "\n";
    if (!formulas.empty()) Block("```text\n" + formulas + "```");
    if (!step.Value) Block("**" + std::string(step.Letter) + " " + MarkdownText(FailureText(step)) + "**");
    const std::vector<std::string> details = DetailsOf(step);
    if (!details.empty()) Line();
    for (const std::string& detail : details) Line("- " + MarkdownText(detail));
  }

  void Judgement(const SheetJudgement& judgement) { Block("> **" + MarkdownText(judgement.Line) + "**"); }

  void Remark(const SheetRemark& remark) { Block(MarkdownText(remark.Text)); }

  void Table(const SheetTable& table) {
    Line();
    TableHead({table.Heads.begin(), table.Heads.end()}, 1);
    for (const auto& row : table.Rows) Row({row.begin(), row.end()});
  }

 private:
  void Line(std::string_view line = {}) { text_.append(line).append("\n"); }

  // Writes a block after an empty line.
  void Block(const std::string& block) {
    Line();
    Line(block);
  }

  void Row(const std::vector<std::string>& cells) {
    text_ += "|";
    for (const std::string& cell : cells) text_.append(" ").append(MarkdownText(cell)).append(" |");
    Line();
  }
  void Row(std::initializer_list<std::string_view> cells) { Row(std::vector<std::string>(cells.begin(), cells.end())); }

  // Columns after the first `leftColumns` hold numbers.
  void TableHead(const std::vector<std::string>& heads, std::size_t leftColumns) {
    Row(heads);
    text_ += "|";
    for (std::size_t i = 0; i < heads.size(); ++i) text_ += i < leftColumns ? " --- |" : " ---: |";
    Line();
  }

  void Symbols(const SheetSection& section) {
    const std::vector<InsertedNumber> symbols = SymbolsOf(section, units_);
    if (symbols.empty()) return;
    Line();
    TableHead({"Symbol", "Meaning", "Unit"}, 3);
    for (const InsertedNumber& symbol : symbols) Row({symbol.Letter, symbol.Meaning, symbol.Unit});
  }

  std::string text_;
  UnitSystem units_;
};

}  // namespace

std::string MarkdownText(std::string_view text) {
  constexpr std::string_view Markup = "\\`*_{}[]<>|~&$!";
  const std::size_t lineMark = LineMark(text);
  std::string escaped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    // Within a word it is none, as in the address of a topic.
    const bool isHeadingMark = c == '#' && (i == 0 || text[i - 1] == ' ' || text[i - 1] == '#');
    if (i == lineMark || isHeadingMark || Markup.find(c) != std::string_view::npos) escaped += '\\';
    escaped += c == '\n' || c == '\r' ? ' ' : c;
  }
  return escaped;
}

std::string SheetMarkdown(const DesignSheet& sheet) { return WriteSheet<MarkdownOutput>(sheet); }

}  // namespace orby
