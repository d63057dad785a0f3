#include "sheet/sheet_content.h"

#include <algorithm>

#include "base/text.h"
#include "core/program.h"
#include "core/version.h"
#include "sheet/help_titles.h"

namespace orby {
namespace {

// Returns the text without blanks at its ends, and with blanks for control characters.
std::string InOneLine(std::string_view text) {
  std::string line(text);
  std::ranges::replace_if(
      line, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return std::string(Trim(line));
}

std::string PlacesText(const std::vector<std::string_view>& places) {
  std::string text;
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (i > 0) text += i + 1 < places.size() ? ", " : " and ";
    text += places[i];
  }
  return text;
}

bool IsSame(const InsertedNumber& symbol, const SymbolMeaning& other, std::string_view unit) {
  return symbol.Letter == other.Letter && symbol.Meaning == other.Meaning && symbol.Unit == unit;
}

}  // namespace

std::vector<TitleFact> TitleFacts(const DesignSheet& sheet) {
  std::vector<TitleFact> facts{
      {"Project file", InOneLine(sheet.Project.File)},
      {"Units", sheet.Units == Metric ? "Metric" : "English"},
      {"Bolt grades", sheet.Basis == StrengthBasis::Yield ? "yield strengths" : "ultimate strengths"},
      {"Program", std::string(ProgramTitle) + " " + VersionText()},
      {"SHA-256", sheet.Project.Sum},
  };
  std::erase_if(facts, [](const TitleFact& fact) { return fact.Text.empty(); });
  return facts;
}

std::string SheetHeading(const DesignSheet& sheet) {
  const std::string title = InOneLine(sheet.Project.Title);
  return title.empty() ? "Project without a title" : title;
}

std::vector<std::string> LinesOf(std::string_view rest) {
  std::vector<std::string> lines;
  while (!rest.empty()) {
    std::string line = InOneLine(TakeLine(rest));
    if (!line.empty()) lines.push_back(std::move(line));
  }
  return lines;
}

std::vector<InsertedNumber> SymbolsOf(const SheetSection& section, UnitSystem units) {
  std::vector<InsertedNumber> symbols;
  for (const SheetPart& part : section.Parts) {
    const auto* step = std::get_if<SheetStep>(&part);
    if (step == nullptr || step->Law == nullptr) continue;
    for (const SymbolMeaning& symbol : step->Law->Symbols) {
      const std::string_view unit = UnitText(symbol.Unit, units);
      const auto isThere = [&](const InsertedNumber& other) { return IsSame(other, symbol, unit); };
      if (std::ranges::none_of(symbols, isThere)) symbols.push_back({symbol.Letter, symbol.Meaning, unit, 0, {}});
    }
  }
  return symbols;
}

std::string WithUnit(std::string_view text, std::string_view unit) {
  std::string all(text);
  if (unit.empty()) return all;
  if (unit != "°") all += ' ';
  return all.append(unit);
}

std::vector<MergedResult> MergedResults(const SheetStep& step) {
  std::vector<MergedResult> merged;
  for (const ShownResult& shown : step.Shown) {
    const auto same = std::ranges::find(merged, shown.Text, &MergedResult::Text);
    if (same != merged.end()) {
      same->Where.push_back(shown.Where);
    } else {
      merged.push_back({{shown.Where}, shown.Text});
    }
  }
  return merged;
}

std::vector<std::string> DetailsOf(const SheetStep& step) {
  std::vector<std::string> details;
  for (const MergedResult& shown : MergedResults(step)) {
    details.push_back(Capitalised(PlacesText(shown.Where)) + ": " + shown.Text);
  }
  details.insert(details.end(), step.Notes.begin(), step.Notes.end());
  if (step.Law == nullptr) return details;
  if (!step.Law->Validity.empty()) details.push_back("Valid for: " + std::string(step.Law->Validity));
  if (!step.Law->HelpPage.empty()) details.push_back("Help: " + std::string(HelpTitle(step.Law->HelpPage)));
  return details;
}

std::string FailureText(const SheetStep& step) {
  return step.Failure.empty() ? "cannot be computed" : "cannot be computed: " + step.Failure;
}

}  // namespace orby
