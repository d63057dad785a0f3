// Writes the sections of a sheet step by step.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/number_text.h"
#include "base/runtime_error.h"
#include "sheet/sheet.h"

namespace orby {

// A number on its way from step to step: the result of one, or an input.
struct SheetNumber {
  std::optional<double> Value;
  std::string Text;
};

// Where the program shows a result.
inline constexpr std::string_view InReport = "report";
inline constexpr std::string_view InDialog = "dialog";

// An input, with its own text.
inline SheetNumber InputNumber(Single value) { return {value, NumberText(value)}; }

// Returns a number with seven significant digits.
std::string SevenDigits(double value);

// Returns why a run-time error ends a computation: "division by zero".
std::string_view ErrorReason(int error);

struct Inserted {
  std::string_view Letter;
  SheetNumber Number;
};

class SheetWriter {
 public:
  SheetWriter(DesignSheet& sheet, std::string_view key, std::string title);

  // Applies a relation to these numbers, one for each of its symbols in their order. A result that cannot be computed
  // is told in the step. `unit` replaces that of the relation's result.
  SheetNumber Step(Law law, std::string title, const std::vector<SheetNumber>& numbers,
                   std::optional<SheetUnit> unit = std::nullopt);
  // A number that is looked up or chosen.
  SheetNumber Found(std::string title, const SymbolMeaning& symbol, std::optional<double> value, std::string note);

  // Each adds to the last step.
  void ShowAs(std::string_view where, const std::string& text, SheetUnit unit);
  void Note(std::string note);
  void Figure(const std::optional<Single>& figure);

  void Input(std::string_view label, std::string text, UnitSuffix unit, std::string source);
  void Remark(std::string text);
  void Judgement(const Verdict& verdict);
  void Table(SheetTable table);

  UnitSystem Units() const { return units_; }

 private:
  void Insert(SheetStep& step, const std::vector<SheetNumber>& numbers) const;
  SheetStep& Last();
  std::vector<SheetPart>& Parts() { return sheet_.Sections[section_].Parts; }

  DesignSheet& sheet_;
  std::size_t section_;
  UnitSystem units_;
};

}  // namespace orby
