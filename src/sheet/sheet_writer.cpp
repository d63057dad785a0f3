#include "sheet/sheet_writer.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/arithmetic.h"
#include "reports/design_numbers.h"
#include "reports/verdict_text.h"

namespace orby {
namespace {

std::vector<SymbolValue> ValuesOf(const SheetStep& step) {
  std::vector<SymbolValue> values;
  for (const InsertedNumber& number : step.Numbers) values.push_back({number.Letter, number.Value});
  return values;
}

void Compute(SheetStep& step) {
  try {
    const double value = Evaluate(step.Law->Formula, ValuesOf(step));
    step.Value = step.Law->IsRounded ? ToSingle(value) : WithinDouble(value);
    step.Text = SevenDigits(*step.Value);
  } catch (const RuntimeError& error) {
    step.Failure = ErrorReason(error.number());
  }
}

}  // namespace

std::string SevenDigits(double value) {
  constexpr int Digits = 7;
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, Digits).ptr;
  return {text.data(), end};
}

std::string_view ErrorReason(int error) {
  switch (error) {
    case error_number::DivisionByZero: return "it divides by zero";
    case error_number::BadCall: return "it has no logarithm or no root";
    default: return "it is outside the range of the numbers";
  }
}

SheetWriter::SheetWriter(DesignSheet& sheet, std::string_view key, std::string title)
    : sheet_(sheet), section_(sheet.Sections.size()), units_(sheet.Units) {
  sheet.Sections.push_back({key, std::move(title), {}});
}

// Inserts the numbers that the case in force needs.
void SheetWriter::Insert(SheetStep& step, const std::vector<SheetNumber>& numbers) const {
  const std::vector<SymbolMeaning>& symbols = step.Law->Symbols;
  std::vector<SymbolValue> values;
  for (std::size_t i = 0; i < symbols.size(); ++i)
    values.push_back({symbols[i].Letter, numbers.at(i).Value.value_or(0)});
  std::vector<std::string_view> needed;
  static_cast<void>(Applying(step.Law->Formula, values, &needed));
  for (std::size_t i = 0; i < symbols.size(); ++i) {
    const auto& [letter, meaning, unit] = symbols[i];
    if (std::ranges::find(needed, letter) == needed.end()) continue;
    const bool isThere = numbers[i].Value.has_value();
    if (!isThere) step.Failure = "the " + std::string(meaning) + " cannot be computed";
    step.Numbers.push_back(
        {letter, meaning, UnitText(unit, units_), values[i].Value, isThere ? numbers[i].Text : std::string(letter)});
  }
}

SheetNumber SheetWriter::Step(Law law, std::string title, const std::vector<SheetNumber>& numbers,
                              std::optional<SheetUnit> unit) {
  const Relation& relation = RelationOf(law);
  SheetStep step;
  step.Title = std::move(title);
  step.Law = &relation;
  step.Letter = relation.Result.Letter;
  step.Unit = UnitText(unit.value_or(relation.Result.Unit), units_);
  Insert(step, numbers);
  if (step.Failure.empty()) Compute(step);
  SheetNumber result{step.Value, step.Text};
  Parts().emplace_back(std::move(step));
  return result;
}

SheetNumber SheetWriter::Found(std::string title, const SymbolMeaning& symbol, std::optional<double> value,
                               std::string note) {
  SheetStep step;
  step.Title = std::move(title);
  step.Letter = symbol.Letter;
  step.Unit = UnitText(symbol.Unit, units_);
  step.Value = value;
  if (value) step.Text = SevenDigits(*value);
  step.Notes.push_back(std::move(note));
  SheetNumber result{step.Value, step.Text};
  Parts().emplace_back(std::move(step));
  return result;
}

SheetStep& SheetWriter::Last() { return std::get<SheetStep>(Parts().back()); }

void SheetWriter::ShowAs(std::string_view where, const std::string& text, SheetUnit unit) {
  const std::string_view name = UnitText(unit, units_);
  std::string shown = text;
  if (!name.empty()) shown.append(" ").append(name);
  Last().Shown.push_back({where, std::move(shown)});
}

void SheetWriter::Note(std::string note) { Last().Notes.push_back(std::move(note)); }

void SheetWriter::Figure(const std::optional<Single>& figure) { Last().Figure = figure; }

void SheetWriter::Input(std::string_view label, std::string text, UnitSuffix unit, std::string source) {
  Parts().emplace_back(SheetInput{label, std::move(text), UnitOf(unit, units_), std::move(source)});
}

void SheetWriter::Remark(std::string text) { Parts().emplace_back(SheetRemark{std::move(text)}); }

void SheetWriter::Judgement(const Verdict& verdict) {
  Parts().emplace_back(SheetJudgement{verdict, VerdictLine(verdict, units_)});
}

void SheetWriter::Table(SheetTable table) { Parts().emplace_back(std::move(table)); }

}  // namespace orby
