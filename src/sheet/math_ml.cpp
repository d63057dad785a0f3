#include "sheet/math_ml.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"
#include "sheet/formula_text.h"
#include "sheet/html_text.h"

namespace orby {
namespace {

constexpr std::size_t LongFormula = 48;  // characters of its text

// A set formula, and how tightly it binds. A fraction and a root hold together by their lines.
struct MathPart {
  std::string Math;
  Binding Binds = Binding::Whole;
};

std::string Sign(std::string_view sign) { return Element("mo form=\"infix\"", sign); }
std::string Row(const std::string& math) { return "<mrow>" + math + "</mrow>"; }
std::string Bracketed(const std::string& math) { return Row("<mo>(</mo>" + math + "<mo>)</mo>"); }

MathPart SetNumber(std::string_view text) {
  if (text.starts_with('-')) return {"<mo form=\"prefix\">−</mo>" + SetNumber(text.substr(1)).Math, Binding::Sign};
  const auto [mantissa, exponent] = PartsOfNumber(text);
  if (exponent.empty()) return {Element("mn", text), Binding::Whole};
  return {Element("mn", mantissa) + Sign("×") + "<msup><mn>10</mn>" + Row(SetNumber(exponent).Math) + "</msup>",
          Binding::Product};
}

class FormulaSetter {
 public:
  // With `inserted`, its numbers take the places of the symbols.
  explicit FormulaSetter(const SheetStep* inserted) : inserted_(inserted) {}

  // Sets the parts of a sum or a product by themselves.
  MathPieces Pieces(const Expression& formula) const {
    const bool isSum = formula.What == Operation::Sum || formula.What == Operation::Difference;
    if (!isSum && formula.What != Operation::Product) return {Set(formula).Math};
    const Binding binding = BindingOf(formula);
    const Expression& first = formula.Parts.at(0);
    MathPieces pieces =
        isSum && BindingOf(first) == Binding::Sum ? Pieces(first) : MathPieces{InBrackets(first, binding, false)};
    for (std::size_t i = 1; i < formula.Parts.size(); ++i) {
      pieces.push_back(Sign(SignOf(formula.What)) + InBrackets(formula.Parts[i], binding, true));
    }
    return pieces;
  }

 private:
  MathPart Set(const Expression& formula) const {
    const auto part = [&](std::size_t i) { return Set(formula.Parts.at(i)).Math; };
    switch (formula.What) {
      case Operation::Number: return SetNumber(NumberText(formula.Value));
      case Operation::Constant: return {LetterMath(formula.Letter)};
      case Operation::Symbol: return SetSymbol(formula.Letter);
      case Operation::Sum:
      case Operation::Difference:
      case Operation::Product: return {Joined(formula), BindingOf(formula)};
      case Operation::Quotient: return SetFraction(formula);
      case Operation::Power: return SetPower(formula);
      case Operation::Root: return {"<msqrt>" + part(0) + "</msqrt>"};
      case Operation::NaturalLog: return SetFunction("ln", part(0));
      case Operation::DecimalLog: return SetFunction("log", part(0));
      case Operation::Tangent: return SetFunction("tan", part(0) + "<mtext>°</mtext>");
      case Operation::Cosine: return SetFunction("cos", part(0) + "<mtext>°</mtext>");
      case Operation::Least: return SetFunction("min", part(0) + Comma + part(1));
      case Operation::Greatest: return SetFunction("max", part(0) + Comma + part(1));
      case Operation::Cases: return {Cases(formula), Binding::Condition};
      case Operation::Below: return {part(0) + Sign("<") + part(1), Binding::Condition};
      case Operation::AtMost: return {part(0) + Sign("≤") + part(1), Binding::Condition};
      case Operation::Equal: return {part(0) + Sign("=") + part(1), Binding::Condition};
    }
    return {};
  }

  MathPart SetSymbol(std::string_view letter) const {
    if (inserted_ == nullptr) return {LetterMath(letter)};
    const auto number = std::ranges::find(inserted_->Numbers, letter, &InsertedNumber::Letter);
    return number->Text == letter ? MathPart{LetterMath(letter)} : SetNumber(number->Text);
  }

  static MathPart SetFunction(std::string_view name, const std::string& argument) {
    return {Element("mi", name) + "<mo>&#x2061;</mo>" + Bracketed(argument)};
  }

  MathPart SetFraction(const Expression& formula) const {
    const auto [dividend, divisors] = FlatQuotientOf(formula);
    std::string below =
        divisors.size() == 1 ? Set(*divisors[0]).Math : InBrackets(*divisors[0], Binding::Product, false);
    for (std::size_t i = 1; i < divisors.size(); ++i) {
      below += Sign(SignOf(Operation::Product)) + InBrackets(*divisors[i], Binding::Product, true);
    }
    return {"<mfrac>" + Row(Set(*dividend).Math) + Row(below) + "</mfrac>"};
  }

  // A fraction needs brackets around it only here.
  MathPart SetPower(const Expression& formula) const {
    const Expression& base = formula.Parts.at(0);
    const bool isFraction = base.What == Operation::Quotient;
    const std::string math = isFraction ? Bracketed(Set(base).Math) : InBrackets(base, Binding::Power, true);
    return {"<msup>" + Row(math) + Row(Set(formula.Parts.at(1)).Math) + "</msup>", Binding::Power};
  }

  // Sets a part in brackets if it binds less tightly than the operation around it, or as tightly and not at its left.
  std::string InBrackets(const Expression& part, Binding around, bool evenIfAsTight) const {
    const MathPart set = Set(part);
    const bool needs = set.Binds < around || (evenIfAsTight && (set.Binds == around || set.Binds == Binding::Sign));
    return needs ? Bracketed(set.Math) : set.Math;
  }

  std::string_view SignOf(Operation what) const {
    if (what == Operation::Sum) return "+";
    if (what == Operation::Difference) return "−";
    return inserted_ == nullptr ? "·" : "×";
  }

  std::string Joined(const Expression& formula) const {
    std::string math;
    for (const std::string& piece : Pieces(formula)) math += piece;
    return math;
  }

  std::string Cases(const Expression& formula) const {
    std::string rows;
    const auto add = [&](const Expression& value, const std::string& condition) {
      rows += "<mtr><mtd>" + Set(value).Math + "</mtd><mtd>" + condition + "</mtd></mtr>";
    };
    for (std::size_t i = 0; i + 1 < formula.Parts.size(); i += 2) {
      add(formula.Parts[i], "<mtext>if&#xA0;</mtext>" + Set(formula.Parts[i + 1]).Math);
    }
    add(formula.Parts.back(), "<mtext>otherwise</mtext>");
    return Row("<mo form=\"prefix\" stretchy=\"true\">{</mo><mtable displaystyle=\"true\">" + rows + "</mtable>");
  }

  inline static const std::string Comma = "<mo separator=\"true\">,</mo>";

  const SheetStep* inserted_;
};

MathPieces PiecesOf(const FormulaSetter& setter, const Expression& formula, const std::string& text) {
  MathPieces pieces = setter.Pieces(formula);
  if (CharacterCount(text) > LongFormula) return pieces;
  std::string whole;
  for (const std::string& piece : pieces) whole += piece;
  return {whole};
}

}  // namespace

MathPieces FormulaMath(const Expression& formula) {
  return PiecesOf(FormulaSetter(nullptr), formula, FormulaText(formula));
}

MathPieces InsertedMath(const SheetStep& step) {
  return PiecesOf(FormulaSetter(&step), AppliedFormula(step), InsertedText(step));
}

std::string LetterMath(std::string_view letter) {
  const std::size_t index = letter.find('_');
  if (index == std::string_view::npos) return Element("mi", letter);
  const std::string_view text = letter.substr(index + 1);
  const bool isNumber = text.find_first_not_of("0123456789") == std::string_view::npos;
  return "<msub>" + Element("mi", letter.substr(0, index)) + Element(isNumber ? "mn" : "mi", text) + "</msub>";
}

std::string NumberMath(std::string_view text, std::string_view unit) {
  std::string math = SetNumber(text).Math;
  if (unit.empty()) return math;
  if (unit != "°") math += "<mspace width=\"0.3em\"/>";
  const auto [name, exponent] = PartsOfUnit(unit);
  if (exponent.empty()) return math + Element("mtext", name);
  return math + "<msup>" + Element("mtext", name) + Element("mn", exponent) + "</msup>";
}

}  // namespace orby
