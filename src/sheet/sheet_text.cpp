#include "sheet/sheet_text.h"

#include <algorithm>
#include <span>

#include "base/text.h"
#include "sheet/formula_text.h"
#include "sheet/sheet_content.h"

namespace orby {
namespace {

constexpr std::size_t LineWidth = 80;

std::string Blanks(std::size_t count) { return std::string(count, ' '); }

// What may be written at the start of the next line: a word of prose, or an operation of a formula with its number.
std::vector<std::string_view> Unbroken(std::string_view text, bool isFormula) {
  constexpr std::string_view Operations = " + | - | · | / | = | < | ≤ | if | else ";
  std::vector<std::string_view> pieces;
  std::size_t start = 0;
  for (std::size_t blank = text.find(' '); blank != std::string_view::npos; blank = text.find(' ', blank + 1)) {
    const std::size_t next = std::min(text.find(' ', blank + 1), text.size() - 1);
    const bool mayBreak = !isFormula || Operations.find(text.substr(blank, next - blank + 1)) != std::string_view::npos;
    if (!mayBreak || blank == start) continue;
    pieces.push_back(text.substr(start, blank - start));
    start = blank + 1;
  }
  pieces.push_back(text.substr(start));
  return pieces;
}

class TextOutput {
 public:
  explicit TextOutput(UnitSystem units) : units_(units) {}

  std::string Take() { return std::move(text_); }

  void Line(std::string_view line = {}) { text_.append(line).append("\n"); }

  void Underlined(std::string_view line, char mark) {
    Line(line);
    Line(std::string(std::min(CharacterCount(line), LineWidth), mark));
  }

  // Writes the text after `head`. Further lines are indented by `indent`.
  void Wrapped(const std::string& head, std::string_view text, std::size_t indent, bool isFormula = false) {
    std::string line = head;
    std::size_t width = CharacterCount(head);
    bool isFresh = true;
    for (const std::string_view piece : Unbroken(text, isFormula)) {
      const std::size_t size = CharacterCount(piece);
      if (!isFresh && width + 1 + size > LineWidth) {
        Line(line);
        line = Blanks(indent);
        width = indent;
        isFresh = true;
      }
      if (!isFresh) line += ' ';
      line += piece;
      width += size + (isFresh ? 0 : 1);
      isFresh = false;
    }
    Line(line);
  }

  void Head(const DesignSheet& sheet) {
    Line(SheetKind);
    Wrapped("", SheetHeading(sheet), 0);
    Line(std::string(LineWidth, '='));
    Line();
    for (const std::string& line : LinesOf(sheet.Project.Description)) Wrapped("", line, 0);
    if (!LinesOf(sheet.Project.Description).empty()) Line();
    constexpr std::size_t LabelWidth = 14;
    for (const TitleFact& fact : TitleFacts(sheet)) {
      Wrapped(PadSpaces(fact.Label, LabelWidth), fact.Text, LabelWidth);
    }
    Line();
    Underlined("Contents", '-');
    for (std::size_t i = 0; i < sheet.Sections.size(); ++i) {
      Wrapped(AlignRight(std::to_string(i + 1), 3) + "  ", sheet.Sections[i].Title, 5);
    }
  }

  void Section(const SheetSection& section, std::size_t number) {
    Line();
    Line();
    Underlined(std::to_string(number) + "  " + section.Title, '=');
    WriteParts(section, number, *this);
    Symbols(section);
  }

  // ---- parts -------------------------------------------------------------------------------------------------------

  void Inputs(const std::vector<const SheetInput*>& inputs) {
    Line();
    std::size_t labels = 0;
    std::size_t values = 0;
    for (const SheetInput* input : inputs) {
      labels = std::max(labels, CharacterCount(input->Label));
      values = std::max(values, CharacterCount(WithUnit(input->Text, input->Unit)));
    }
    for (const SheetInput* input : inputs) {
      const std::string value = WithUnit(input->Text, input->Unit);
      const std::string start = "  " + PadSpaces(input->Label, labels) + "  ";
      if (CharacterCount(start) + values + 2 + CharacterCount(input->Source) <= LineWidth) {
        Line(start + PadSpaces(value, values) + "  " + input->Source);
      } else {
        Wrapped(start, value, labels + 4);
        Wrapped(Blanks(labels + 4), input->Source, labels + 4);
      }
    }
  }

  void Step(const SheetStep& step, const std::string& number) {
    Line();
    Wrapped(number + "  ", step.Title, number.size() + 2);
    if (step.Law != nullptr) {
      Formula(step, FormulaText(step.Law->Formula));
      Formula(step, InsertedText(step));
    }
    if (step.Value) {
      Formula(step, WithUnit(step.Text, step.Unit));
    } else {
      Wrapped("    " + std::string(step.Letter) + " ", FailureText(step), 6);
    }
    for (const std::string& detail : DetailsOf(step)) Wrapped("      ", detail, 6);
  }

  void Judgement(const SheetJudgement& judgement) {
    Line();
    Wrapped(">>> ", judgement.Line, 4);
  }

  void Remark(const SheetRemark& remark) {
    Line();
    Wrapped("  ", remark.Text, 2);
  }

  void Table(const SheetTable& table) {
    Line();
    std::vector<std::size_t> widths;
    const auto measure = [&](const std::vector<std::string>& row) {
      widths.resize(std::max(widths.size(), row.size()));
      for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], CharacterCount(row[i]));
    };
    measure(table.Heads);
    for (const auto& row : table.Rows) measure(row);
    Row(table.Heads, widths);
    for (const auto& row : table.Rows) Row(row, widths);
  }

 private:
  void Formula(const SheetStep& step, const std::string& formula) {
    const std::string head = "    " + std::string(step.Letter) + " = ";
    Wrapped(head, formula, CharacterCount(head), true);
  }

  void Row(const std::vector<std::string>& row, const std::vector<std::size_t>& widths) {
    std::string line = "  " + PadSpaces(row.at(0), widths[0]);
    for (std::size_t i = 1; i < row.size(); ++i) line += "  " + AlignRight(row[i], widths[i]);
    Line(line);
  }

  void Symbols(const SheetSection& section) {
    const std::vector<InsertedNumber> symbols = SymbolsOf(section, units_);
    if (symbols.empty()) return;
    Line();
    Line("Symbols");
    for (const InsertedNumber& symbol : symbols) {
      std::string meaning(symbol.Meaning);
      if (!symbol.Unit.empty()) meaning.append(", ").append(symbol.Unit);
      Wrapped("    " + PadSpaces(symbol.Letter, 6) + "  ", meaning, 12);
    }
  }

  std::string text_;
  UnitSystem units_;
};

}  // namespace

std::string SheetText(const DesignSheet& sheet) { return WriteSheet<TextOutput>(sheet); }

}  // namespace orby
