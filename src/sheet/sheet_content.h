// What the text, the Markdown and the HTML of a sheet say in the same words.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "sheet/sheet.h"

namespace orby {

inline constexpr std::string_view SheetKind = "Calculation sheet";

// ---- title block: texts of one line --------------------------------------------------------------------------------

struct TitleFact {
  std::string_view Label;
  std::string Text;
};

// Returns file, units, basis of the grades, program and checksum. Leaves out what is unknown.
std::vector<TitleFact> TitleFacts(const DesignSheet& sheet);

// Returns the title of the project.
std::string SheetHeading(const DesignSheet& sheet);

// Returns the lines of a text that say something, for a place without control characters.
std::vector<std::string> LinesOf(std::string_view text);

// ---- sections ------------------------------------------------------------------------------------------------------

// Returns the symbols of the formulas of a section, each once with each of its meanings and units.
std::vector<InsertedNumber> SymbolsOf(const SheetSection& section, UnitSystem units);

// Returns the value with its unit: "20 ft", "35°".
std::string WithUnit(std::string_view text, std::string_view unit);

// Calls a function of `output` for each part of a section in their order: Step(step, "3.2"), Judgement(judgement),
// Table(table) and Remark(remark); and Inputs(inputs) for inputs that follow each other.
template <class Output>
void WriteParts(const SheetSection& section, std::size_t sectionNumber, Output& output) {
  std::vector<const SheetInput*> inputs;
  std::size_t steps = 0;
  const auto writeInputs = [&] {
    if (!inputs.empty()) output.Inputs(inputs);
    inputs.clear();
  };
  for (const SheetPart& part : section.Parts) {
    if (const auto* input = std::get_if<SheetInput>(&part)) {
      inputs.push_back(input);
      continue;
    }
    writeInputs();
    if (const auto* step = std::get_if<SheetStep>(&part)) {
      output.Step(*step, std::to_string(sectionNumber) + "." + std::to_string(++steps));
    } else if (const auto* judgement = std::get_if<SheetJudgement>(&part)) {
      output.Judgement(*judgement);
    } else if (const auto* table = std::get_if<SheetTable>(&part)) {
      output.Table(*table);
    } else if (const auto* remark = std::get_if<SheetRemark>(&part)) {
      output.Remark(*remark);
    }
  }
  writeInputs();
}

// Returns what `Output` writes of a sheet: Head(sheet), Section(section, number) for each section, and what Take
// returns.
template <class Output>
std::string WriteSheet(const DesignSheet& sheet) {
  Output output(sheet.Units);
  output.Head(sheet);
  for (std::size_t i = 0; i < sheet.Sections.size(); ++i) output.Section(sheet.Sections[i], i + 1);
  return output.Take();
}

// ---- steps ---------------------------------------------------------------------------------------------------------

// A result that the program shows in the same text in some places.
struct MergedResult {
  std::vector<std::string_view> Where;
  std::string Text;
};
std::vector<MergedResult> MergedResults(const SheetStep& step);

// Returns what a step says after its result, one sentence each: "Report and dialog: 63.2 ft", notes, where the formula
// holds, and the page of the help.
std::vector<std::string> DetailsOf(const SheetStep& step);

// Returns why a step has no value: "cannot be computed: it divides by zero".
std::string FailureText(const SheetStep& step);

// Returns false for a number that could not be computed. It is inserted as its letter.
inline bool IsKnown(const InsertedNumber& number) { return number.Text != number.Letter; }

}  // namespace orby
