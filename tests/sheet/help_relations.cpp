#include "sheet/help_relations.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "base/markup_text.h"
#include "sheet/formula_text.h"
#include "sheet/html_text.h"

namespace orby::test {
namespace {

std::string BlockStart(std::string_view key) { return "<!-- relation " + std::string(key) + " -->"; }
std::string BlockEnd(std::string_view key) { return "<!-- /relation " + std::string(key) + " -->"; }

// Letters of symbols are set in italics, their index below the line: s_min.
std::string SymbolHtml(std::string_view letter) {
  const std::size_t mark = letter.find('_');
  std::string html = Element("i", letter.substr(0, mark));
  if (mark != std::string_view::npos) html += Element("sub", letter.substr(mark + 1));
  return html;
}

// Writes a formula of one line word by word.
class FormulaReader {
 public:
  explicit FormulaReader(std::string_view formula) : rest_(formula) {}

  std::string Html() {
    while (!rest_.empty()) Next();
    return html_;
  }

 private:
  void Next() {
    const char c = rest_.front();
    if (c == '^') {
      html_ += Element("sup", Take(1 + LengthOf("0123456789.", 1)).substr(1));
    } else if (rest_.starts_with(" - ")) {
      Take(3);
      html_ += " − ";
    } else if (rest_.starts_with(" · ")) {
      Take(std::string_view(" · ").size());
      html_ += " × ";
    } else if (const std::size_t length = LetterLength(); length > 0) {
      Word(Take(length));
    } else {
      AppendEscapedMarkup(html_, Take(1));
    }
  }

  // Words of formulas are upright.
  void Word(std::string_view word) {
    constexpr auto Upright =
        std::to_array<std::string_view>({"ln", "log", "tan", "cos", "min", "max", "if", "else", "π"});
    html_ += std::ranges::find(Upright, word) == Upright.end() ? SymbolHtml(word) : std::string(word);
  }

  // Returns the length of the symbol or word at the start, 0 if there is none.
  std::size_t LetterLength() const {
    constexpr auto Greek = std::to_array<std::string_view>({"α", "β", "γ", "π"});
    const auto greek = std::ranges::find_if(Greek, [&](std::string_view letter) { return rest_.starts_with(letter); });
    constexpr std::string_view Letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    std::size_t length = greek == Greek.end() ? LengthOf(Letters, 0) : greek->size();
    if (length > 0 && rest_.substr(length).starts_with('_')) {
      length += 1 + LengthOf(std::string(Letters) + "0123456789", length + 1);
    }
    return length;
  }

  std::size_t LengthOf(std::string_view letters, std::size_t from) const {
    return std::min(rest_.find_first_not_of(letters, from), rest_.size()) - from;
  }

  std::string_view Take(std::size_t count) {
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(count);
    return taken;
  }

  std::string_view rest_;
  std::string html_;
};

// "ft", "ft (m)", or the unit of the only designs that use the relation.
std::string UnitsHtml(SheetUnit unit, const std::optional<UnitSystem>& onlyIn) {
  if (unit == SheetUnit::OfTheStep) return "unit as stated";
  if (onlyIn) return UnitHtml(UnitText(unit, *onlyIn));
  const std::string english = UnitHtml(UnitText(unit, English));
  const std::string metric = UnitHtml(UnitText(unit, Metric));
  return english == metric ? english : english + " (" + metric + ")";
}

std::string SymbolLine(const SymbolMeaning& symbol, const std::optional<UnitSystem>& onlyIn) {
  const std::string unit = UnitsHtml(symbol.Unit, onlyIn);
  return SymbolHtml(symbol.Letter) + ": " + EscapedMarkup(symbol.Meaning) + (unit.empty() ? "" : ", " + unit);
}

}  // namespace

std::string HelpBlock(const Relation& relation) {
  std::string name(relation.Name);
  if (relation.OnlyIn) name += *relation.OnlyIn == Metric ? ", Metric designs" : ", English designs";
  std::string html = "\n<p>" + Element("b", name) + "<br>" + SymbolHtml(relation.Result.Letter) + " = " +
                     FormulaReader(FormulaText(relation.Formula)).Html() + "</p>\n<p>" +
                     SymbolLine(relation.Result, relation.OnlyIn);
  for (const SymbolMeaning& symbol : relation.Symbols) html += "<br>" + SymbolLine(symbol, relation.OnlyIn);
  if (!relation.Validity.empty()) html += "<br>Valid for: " + EscapedMarkup(relation.Validity);
  return html + "</p>\n";
}

std::string_view BlockOnPage(std::string_view page, std::string_view key) {
  const std::string opening = BlockStart(key);
  const std::string closing = BlockEnd(key);
  const std::size_t start = page.find(opening);
  const std::size_t end = page.find(closing);
  const bool isThere = start != std::string_view::npos && end != std::string_view::npos && start < end;
  if (!isThere || page.rfind(opening) != start || page.rfind(closing) != end) {
    throw std::runtime_error("no single block of the relation " + std::string(key));
  }
  const std::size_t inside = start + opening.size();
  return page.substr(inside, end - inside);
}

std::string WithHelpBlocks(std::string page, std::string_view name) {
  for (const Relation& relation : Relations()) {
    if (PlaceInHelp(relation).Page != name) continue;
    const std::string_view block = BlockOnPage(page, relation.Key);
    page.replace(static_cast<std::size_t>(block.data() - page.data()), block.size(), HelpBlock(relation));
  }
  return page;
}

HelpPlace PlaceInHelp(const Relation& relation) {
  const std::size_t mark = relation.HelpPage.find('#');
  if (mark == std::string_view::npos) throw std::runtime_error(std::string(relation.Key) + " leads to no paragraph");
  return {relation.HelpPage.substr(0, mark), relation.HelpPage.substr(mark + 1)};
}

}  // namespace orby::test
