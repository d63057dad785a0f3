#include "sheet/formula_layout.h"

#include <algorithm>

#include "base/number_text.h"
#include "sheet/formula_text.h"
#include "sheet/html_text.h"

namespace orby {
namespace {

// Shares of the size of the text.
constexpr double AscentShare = 0.74;
constexpr double DescentShare = 0.22;
constexpr double AxisShare = 0.28;  // of fraction bars above the base line
constexpr double IndexShare = 0.72;
constexpr double GapShare = 0.18;
constexpr double SignGapShare = 0.24;
constexpr double BracketShare = 0.32;
constexpr double BarWidthShare = 0.05;

SceneStroke Bar(double size) { return {.Colour = Ink::Text, .Width = size * BarWidthShare}; }

using PathKind = PathStep::Kind;

void AddTo(FormulaBox& box, FormulaBox part) {
  std::ranges::move(part.Labels, std::back_inserter(box.Labels));
  std::ranges::move(part.Lines, std::back_inserter(box.Lines));
}

// Returns a box with an exponent at its upper right.
FormulaBox WithExponent(FormulaBox box, FormulaBox exponent, double size) {
  const double raise = std::max(box.Ascent - exponent.Ascent / 2, size * 0.35);
  FormulaBox whole;
  whole.Width = box.Width + exponent.Width;
  whole.Ascent = std::max(box.Ascent, raise + exponent.Ascent);
  whole.Descent = box.Descent;
  const double right = box.Width;
  AddTo(whole, std::move(box));
  AddTo(whole, Placed(std::move(exponent), {right, -raise}));
  return whole;
}

class Setter {
 public:
  Setter(const TextWidth& width, const std::function<std::string(std::string_view)>& numbers)
      : width_(width), numbers_(numbers) {}

  FormulaBox Set(const Expression& formula, double size) const {
    const auto part = [&](std::size_t i) { return Set(formula.Parts.at(i), size); };
    switch (formula.What) {
      case Operation::Number: return SetNumber(NumberText(formula.Value), {.Size = size}, width_);
      case Operation::Constant: return Upright(std::string(formula.Letter), size);
      case Operation::Symbol: return OfSymbol(formula.Letter, size);
      case Operation::Sum: return Joined(formula, "+", Binding::Sum, size);
      case Operation::Difference: return Joined(formula, "−", Binding::Sum, size);
      case Operation::Product: return Joined(formula, "·", Binding::Product, size);
      case Operation::Quotient: return Quotient(formula, size);
      case Operation::Power: return Power(formula, size);
      case Operation::Root: return Root(part(0), size);
      case Operation::NaturalLog: return Function("ln", part(0), size);
      case Operation::DecimalLog: return Function("log", part(0), size);
      case Operation::Tangent: return Function("tan", Degrees(part(0), size), size);
      case Operation::Cosine: return Function("cos", Degrees(part(0), size), size);
      case Operation::Least: return Function("min", Listed(formula, size), size);
      case Operation::Greatest: return Function("max", Listed(formula, size), size);
      case Operation::Cases: return Cases(formula, size);
      case Operation::Below: return Joined(formula, "<", Binding::Condition, size);
      case Operation::AtMost: return Joined(formula, "≤", Binding::Condition, size);
      case Operation::Equal: return Joined(formula, "=", Binding::Condition, size);
    }
    return {};
  }

 private:
  FormulaBox Upright(const std::string& text, double size) const { return SetText(text, {.Size = size}, width_); }

  FormulaBox OfSymbol(std::string_view letter, double size) const {
    const std::string number = numbers_ ? numbers_(letter) : std::string();
    return number.empty() ? SetSymbol(letter, size, width_) : SetNumber(number, {.Size = size}, width_);
  }

  // Returns the text of a number, or of a symbol whose place a number takes; else nothing.
  std::string NumeralOf(const Expression& part) const {
    if (part.What == Operation::Number) return NumberText(part.Value);
    return part.What == Operation::Symbol && numbers_ ? numbers_(part.Letter) : std::string();
  }

  // A part with a sign or a power of ten binds less tightly than a plain number.
  Binding OwnBinding(const Expression& part) const {
    const std::string numeral = NumeralOf(part);
    if (!PartsOfNumber(numeral).Exponent.empty()) return Binding::Product;
    return numeral.starts_with('-') ? Binding::Sign : BindingOf(part);
  }

  bool StartsWithMinus(const Expression& part) const {
    const bool isRow = BindingOf(part) == Binding::Sum || part.What == Operation::Product;
    return isRow ? StartsWithMinus(part.Parts.at(0)) : NumeralOf(part).starts_with('-');
  }

  // A part in the brackets that it needs. A fraction needs none, because its bar holds it together.
  FormulaBox Bracketed(const Expression& part, Binding around, bool isFirst, double size) const {
    FormulaBox box = Set(part, size);
    const bool isFraction = part.What == Operation::Quotient && around <= Binding::Product;
    const Binding own = OwnBinding(part);
    const bool needs =
        !isFraction && (own < around || (!isFirst && own == around) || (!isFirst && StartsWithMinus(part)));
    return needs ? InBrackets(std::move(box), size) : box;
  }

  FormulaBox Joined(const Expression& formula, const std::string& sign, Binding binding, double size) const {
    std::vector<FormulaBox> boxes{Bracketed(formula.Parts.at(0), binding, true, size)};
    for (std::size_t i = 1; i < formula.Parts.size(); ++i) {
      boxes.push_back(Upright(sign, size));
      boxes.push_back(Bracketed(formula.Parts[i], binding, false, size));
    }
    return SideBySide(std::move(boxes), size * SignGapShare);
  }

  // Quotients of quotients are one fraction, whose divisors are a product.
  FormulaBox Quotient(const Expression& formula, double size) const {
    const auto [dividend, divisors] = FlatQuotientOf(formula);
    if (divisors.size() == 1) return Fraction(Set(*dividend, size), Set(*divisors[0], size), size);
    std::vector<FormulaBox> boxes;
    for (const Expression* divisor : divisors) {
      if (!boxes.empty()) boxes.push_back(Upright("·", size));
      boxes.push_back(Bracketed(*divisor, Binding::Product, boxes.empty(), size));
    }
    return Fraction(Set(*dividend, size), SideBySide(std::move(boxes), size * SignGapShare), size);
  }

  static FormulaBox Fraction(FormulaBox dividend, FormulaBox divisor, double size) {
    const double axis = size * AxisShare;
    const double gap = size * GapShare;
    FormulaBox box;
    box.Width = std::max(dividend.Width, divisor.Width) + 2 * gap;
    box.Ascent = axis + gap + dividend.Height();
    box.Descent = gap - axis + divisor.Height();
    const ScenePoint above{(box.Width - dividend.Width) / 2, -axis - gap - dividend.Descent};
    const ScenePoint below{(box.Width - divisor.Width) / 2, -axis + gap + divisor.Ascent};
    AddTo(box, Placed(std::move(dividend), above));
    AddTo(box, Placed(std::move(divisor), below));
    box.Lines.push_back(
        {{{PathKind::Move, {0, -axis}, {}, {}}, {PathKind::Line, {box.Width, -axis}, {}, {}}}, {}, Bar(size)});
    return box;
  }

  FormulaBox Power(const Expression& formula, double size) const {
    const Expression& base = formula.Parts.at(0);
    FormulaBox box = Set(base, size);
    const bool needs = OwnBinding(base) < Binding::Whole;
    if (needs) box = InBrackets(std::move(box), size);
    return WithExponent(std::move(box), Set(formula.Parts.at(1), size * IndexShare), size);
  }

  static FormulaBox Root(FormulaBox radicand, double size) {
    const double sign = size * 0.6;
    const double over = size * 0.14;
    FormulaBox box;
    box.Width = sign + radicand.Width + over;
    box.Ascent = radicand.Ascent + over;
    box.Descent = radicand.Descent;
    const double top = -box.Ascent;
    const double bottom = box.Descent;
    const double middle = (top + bottom) / 2;
    box.Lines.push_back({{{PathKind::Move, {size * 0.05, middle}, {}, {}},
                          {PathKind::Line, {size * 0.2, middle - size * 0.08}, {}, {}},
                          {PathKind::Line, {size * 0.38, bottom}, {}, {}},
                          {PathKind::Line, {sign - size * 0.04, top}, {}, {}},
                          {PathKind::Line, {box.Width, top}, {}, {}}},
                         {},
                         Bar(size)});
    AddTo(box, Placed(std::move(radicand), {sign, 0}));
    return box;
  }

  FormulaBox Function(const std::string& name, FormulaBox argument, double size) const {
    return SideBySide({Upright(name, size), InBrackets(std::move(argument), size)}, size * 0.06);
  }

  FormulaBox Degrees(FormulaBox angle, double size) const { return SideBySide({std::move(angle), Upright("°", size)}); }

  FormulaBox Listed(const Expression& formula, double size) const {
    FormulaBox first = SideBySide({Set(formula.Parts.at(0), size), Upright(",", size)});
    return SideBySide({std::move(first), Set(formula.Parts.at(1), size)}, size * SignGapShare);
  }

  // A line for each case, behind a brace.
  FormulaBox Cases(const Expression& formula, double size) const {
    std::vector<FormulaBox> rows;
    for (std::size_t i = 0; i + 1 < formula.Parts.size(); i += 2) {
      rows.push_back(
          SideBySide({Set(formula.Parts[i], size), Upright("if", size), Set(formula.Parts[i + 1], size)}, size * 0.5));
    }
    rows.push_back(SideBySide({Set(formula.Parts.back(), size), Upright("else", size)}, size * 0.5));
    FormulaBox box;
    double height = 0;
    for (const FormulaBox& row : rows) height += row.Height() + size * 0.3;
    box.Ascent = height / 2 + size * AxisShare;
    box.Descent = height / 2 - size * AxisShare;
    double top = -box.Ascent + size * 0.15;
    for (FormulaBox& row : rows) {
      const double base = top + row.Ascent;
      top += row.Height() + size * 0.3;
      box.Width = std::max(box.Width, size * 0.7 + row.Width);
      AddTo(box, Placed(std::move(row), {size * 0.7, base}));
    }
    AddBrace(box, size);
    return box;
  }

  static void AddBrace(FormulaBox& box, double size) {
    const double top = -box.Ascent;
    const double bottom = box.Descent;
    const double middle = (top + bottom) / 2;
    const double stem = size * 0.3;
    const double tip = size * 0.1;
    const double end = size * 0.48;
    const double bend = size * 0.2;
    box.Lines.push_back({{{PathKind::Move, {end, top}, {}, {}},
                          {PathKind::Line, {stem, top + bend}, {}, {}},
                          {PathKind::Line, {stem, middle - bend}, {}, {}},
                          {PathKind::Line, {tip, middle}, {}, {}},
                          {PathKind::Line, {stem, middle + bend}, {}, {}},
                          {PathKind::Line, {stem, bottom - bend}, {}, {}},
                          {PathKind::Line, {end, bottom}, {}, {}}},
                         {},
                         Bar(size)});
  }

  // Brackets are drawn, so that they are as high as what they hold.
  static FormulaBox InBrackets(FormulaBox inside, double size) {
    const double side = size * BracketShare;
    FormulaBox box;
    box.Width = inside.Width + 2 * side;
    box.Ascent = inside.Ascent;
    box.Descent = inside.Descent;
    const double top = -box.Ascent;
    const double bottom = box.Descent;
    const auto bracket = [&](double from, double to) {
      const double bulge = to + (to - from) * 0.1;
      box.Lines.push_back(
          {{{PathKind::Move, {from, top}, {}, {}},
            {PathKind::Curve, {from, bottom}, {bulge, top * 0.6 + bottom * 0.4}, {bulge, top * 0.4 + bottom * 0.6}}},
           {},
           Bar(size)});
    };
    bracket(side * 0.75, side * 0.15);
    bracket(box.Width - side * 0.75, box.Width - side * 0.15);
    AddTo(box, Placed(std::move(inside), {side, 0}));
    return box;
  }

  const TextWidth& width_;
  const std::function<std::string(std::string_view)>& numbers_;
};

}  // namespace

FormulaBox SetText(const std::string& text, const TextStyle& style, const TextWidth& width) {
  FormulaBox box;
  box.Width = width(text, style);
  box.Ascent = style.Size * AscentShare;
  box.Descent = style.Size * DescentShare;
  box.Labels.push_back(
      {.Text = text, .At = {0, 0}, .Size = style.Size, .IsBold = style.IsBold, .IsItalic = style.IsItalic});
  return box;
}

FormulaBox SetNumber(const std::string& text, const TextStyle& style, const TextWidth& width) {
  const auto [mantissa, exponent] = PartsOfNumber(text);
  if (exponent.empty()) return SetText(text, style, width);
  TextStyle small = style;
  small.Size *= IndexShare;
  return SideBySide({SetText(std::string(mantissa), style, width), SetText("·", style, width),
                     WithExponent(SetText("10", style, width), SetText(exponent, small, width), style.Size)},
                    style.Size * SignGapShare);
}

FormulaBox SetUnit(const std::string& text, const TextStyle& style, const TextWidth& width) {
  const auto [name, exponent] = PartsOfUnit(text);
  if (exponent.empty() || name.empty() || name.ends_with(' ')) return SetText(text, style, width);
  TextStyle small = style;
  small.Size *= IndexShare;
  return WithExponent(SetText(std::string(name), style, width), SetText(std::string(exponent), small, width),
                      style.Size);
}

FormulaBox SetSymbol(std::string_view letter, double size, const TextWidth& width) {
  const std::size_t mark = letter.find('_');
  FormulaBox box = SetText(std::string(letter.substr(0, mark)), {.Size = size, .IsItalic = true}, width);
  if (mark == std::string_view::npos) return box;
  const double drop = size * 0.22;
  FormulaBox index = SetText(std::string(letter.substr(mark + 1)), {.Size = size * IndexShare}, width);
  index = Placed(std::move(index), {box.Width, drop});
  box.Width += index.Width;
  box.Descent = std::max(box.Descent, drop + index.Descent);
  std::ranges::move(index.Labels, std::back_inserter(box.Labels));
  return box;
}

FormulaBox SideBySide(std::vector<FormulaBox> boxes, double gap) {
  FormulaBox row;
  for (FormulaBox& box : boxes) {
    if (row.Width > 0) row.Width += gap;
    row.Ascent = std::max(row.Ascent, box.Ascent);
    row.Descent = std::max(row.Descent, box.Descent);
    const double left = row.Width;
    row.Width += box.Width;
    box = Placed(std::move(box), {left, 0});
    std::ranges::move(box.Labels, std::back_inserter(row.Labels));
    std::ranges::move(box.Lines, std::back_inserter(row.Lines));
  }
  return row;
}

FormulaBox Placed(FormulaBox box, const ScenePoint& at, double scale) {
  const auto moved = [&](const ScenePoint& point) {
    return ScenePoint{at.X + point.X * scale, at.Y + point.Y * scale};
  };
  for (SceneLabel& label : box.Labels) {
    label.At = moved(label.At);
    label.Size *= scale;
  }
  for (SceneOutline& line : box.Lines) {
    line.Line.Width *= scale;
    for (PathStep& step : line.Steps) {
      step.To = moved(step.To);
      step.FirstControl = moved(step.FirstControl);
      step.SecondControl = moved(step.SecondControl);
    }
  }
  box.Width *= scale;
  box.Ascent *= scale;
  box.Descent *= scale;
  return box;
}

FormulaBox SetFormula(const Expression& formula, double size, const TextWidth& width,
                      const std::function<std::string(std::string_view letter)>& numbers) {
  return Setter(width, numbers).Set(formula, size);
}

}  // namespace orby
