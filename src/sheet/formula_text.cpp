#include "sheet/formula_text.h"

#include <algorithm>

#include "base/number_text.h"

namespace orby {
namespace {

using LetterText = std::function<std::string(std::string_view letter)>;

class FormulaWriter {
 public:
  explicit FormulaWriter(LetterText letterText) : letterText_(std::move(letterText)) {}

  std::string Text(const Expression& formula) const {
    const auto part = [&](std::size_t i) { return Text(formula.Parts.at(i)); };
    switch (formula.What) {
      case Operation::Number: return NumberText(formula.Value);
      case Operation::Constant: return std::string(formula.Letter);
      case Operation::Symbol: return letterText_(formula.Letter);
      case Operation::Sum: return Joined(formula, " + ", Binding::Sum);
      case Operation::Difference: return Joined(formula, " - ", Binding::Sum);
      case Operation::Product: return Joined(formula, " · ", Binding::Product);
      case Operation::Quotient: return Joined(formula, " / ", Binding::Product);
      case Operation::Power: return InBrackets(formula.Parts.at(0), Binding::Power, true) + "^" + part(1);
      case Operation::Root: return "√(" + part(0) + ")";
      case Operation::NaturalLog: return "ln(" + part(0) + ")";
      case Operation::DecimalLog: return "log(" + part(0) + ")";
      case Operation::Tangent: return "tan(" + part(0) + "°)";
      case Operation::Cosine: return "cos(" + part(0) + "°)";
      case Operation::Least: return "min(" + part(0) + ", " + part(1) + ")";
      case Operation::Greatest: return "max(" + part(0) + ", " + part(1) + ")";
      case Operation::Cases: return Cases(formula);
      case Operation::Below: return part(0) + " < " + part(1);
      case Operation::AtMost: return part(0) + " ≤ " + part(1);
      case Operation::Equal: return part(0) + " = " + part(1);
    }
    return {};
  }

 private:
  // Writes a part in brackets if it binds less tightly than the operation around it, or as tightly and not at its left.
  std::string InBrackets(const Expression& part, Binding around, bool evenIfAsTight) const {
    std::string text = Text(part);
    const bool isNegative = text.starts_with('-');
    const Binding own = isNegative && part.Parts.empty() ? Binding::Sign : BindingOf(part);
    const bool needs = own < around || (evenIfAsTight && own == around) || (isNegative && evenIfAsTight);
    return needs ? "(" + text + ")" : text;
  }

  std::string Joined(const Expression& formula, std::string_view sign, Binding binding) const {
    std::string text = InBrackets(formula.Parts.at(0), binding, false);
    for (std::size_t i = 1; i < formula.Parts.size(); ++i) {
      text += sign;
      text += InBrackets(formula.Parts[i], binding, true);
    }
    return text;
  }

  std::string Cases(const Expression& formula) const {
    std::string text;
    for (std::size_t i = 0; i + 1 < formula.Parts.size(); i += 2) {
      text += Text(formula.Parts[i]) + " if " + Text(formula.Parts[i + 1]) + "; ";
    }
    return text + "else " + Text(formula.Parts.back());
  }

  LetterText letterText_;
};

}  // namespace

Binding BindingOf(const Expression& formula) {
  switch (formula.What) {
    case Operation::Cases:
    case Operation::Below:
    case Operation::AtMost:
    case Operation::Equal: return Binding::Condition;
    case Operation::Sum:
    case Operation::Difference: return Binding::Sum;
    case Operation::Product:
    case Operation::Quotient: return Binding::Product;
    case Operation::Power: return Binding::Power;
    default: return Binding::Whole;
  }
}

std::string FormulaText(const Expression& formula) {
  return FormulaWriter([](std::string_view letter) { return std::string(letter); }).Text(formula);
}

const Expression& AppliedFormula(const SheetStep& step) {
  std::vector<SymbolValue> values;
  // Symbols of cases that do not apply have no number.
  for (const SymbolMeaning& symbol : step.Law->Symbols) values.push_back({symbol.Letter, 0});
  for (const InsertedNumber& number : step.Numbers) {
    std::ranges::find(values, number.Letter, &SymbolValue::Letter)->Value = number.Value;
  }
  return Applying(step.Law->Formula, values);
}

std::string InsertedText(const SheetStep& step) {
  const FormulaWriter writer(
      [&](std::string_view letter) { return std::ranges::find(step.Numbers, letter, &InsertedNumber::Letter)->Text; });
  return writer.Text(AppliedFormula(step));
}

NumberParts PartsOfNumber(std::string_view text) {
  const std::size_t mark = text.find_first_of("eE");
  if (mark == std::string_view::npos) return {text, {}};
  std::string_view digits = text.substr(mark + 1);
  const bool isSmall = digits.starts_with('-');
  digits.remove_prefix(std::min(digits.find_first_not_of("+-0"), digits.size()));
  return {text.substr(0, mark), (isSmall ? "-" : "") + std::string(digits)};
}

FlatQuotient FlatQuotientOf(const Expression& quotient) {
  FlatQuotient flat{.Dividend = &quotient, .Divisors = {}};
  while (flat.Dividend->What == Operation::Quotient) {
    flat.Divisors.insert(flat.Divisors.begin(), &flat.Dividend->Parts.at(1));
    flat.Dividend = &flat.Dividend->Parts.at(0);
  }
  return flat;
}

}  // namespace orby
