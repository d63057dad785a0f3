// Formulas as data: their values, errors and texts.
#include "sheet/expression.h"

#include <gmock/gmock.h>

#include <cmath>
#include <stdexcept>

#include "base/runtime_error.h"
#include "sheet/formula_text.h"
#include "sheet/printed_formula.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

const Expression X = Symbol("x");
const Expression Y = Symbol("y");

int ErrorOf(const Expression& formula, double x) {
  try {
    static_cast<void>(Evaluate(formula, {{"x", x}}));
  } catch (const RuntimeError& error) {
    return error.number();
  }
  return 0;
}

TEST(AnExpression, IsComputedFromLeftToRight) {
  const std::vector<SymbolValue> values{{"x", 0.1}, {"y", 0.7}};

  EXPECT_EQ(Evaluate(X + Y + 0.2, values), 0.1 + 0.7 + 0.2);
  EXPECT_EQ(Evaluate(2 * X * Y, values), 2 * 0.1 * 0.7);
  EXPECT_EQ(Evaluate(X - Y - 0.2, values), 0.1 - 0.7 - 0.2);
  EXPECT_EQ(Evaluate(X / Y / 3, values), 0.1 / 0.7 / 3);
  EXPECT_EQ(Evaluate(SquareOf(X), values), 0.1 * 0.1);
  EXPECT_EQ(Evaluate(PowerOf(Y, 1.5), values), std::pow(0.7, 1.5));
  EXPECT_EQ(Evaluate(LeastOf(X, Y), values), 0.1);
  EXPECT_EQ(Evaluate(GreatestOf(X, Y), values), 0.7);
}

TEST(AnExpression, TakesAnglesInDegrees) {
  EXPECT_NEAR(Evaluate(TangentOf(X), {{"x", 45}}), 1, 1e-12);
  EXPECT_NEAR(Evaluate(CosineOf(X), {{"x", 60}}), 0.5, 1e-12);
}

TEST(AnExpression, FailsAsTheEngineDoes) {
  EXPECT_EQ(ErrorOf(1 / X, 0), error_number::DivisionByZero);
  EXPECT_EQ(ErrorOf(NaturalLogOf(X), 0), error_number::BadCall);
  EXPECT_EQ(ErrorOf(DecimalLogOf(X), -1), error_number::BadCall);
  EXPECT_EQ(ErrorOf(RootOf(X), -1), error_number::BadCall);
  EXPECT_EQ(ErrorOf(PowerOf(X, 1.5), -1), error_number::BadCall);
  EXPECT_EQ(ErrorOf(SquareOf(X), 1e200), error_number::Overflow);
  EXPECT_THROW(static_cast<void>(Evaluate(X, {})), std::logic_error) << "no value of x";
}

TEST(AnExpression, OfCasesIsTheFirstThatApplies) {
  const Expression cases = CasesOf({{3, X <= 20}, {1 / Y, Y < 0}}, Y);

  EXPECT_EQ(Evaluate(cases, {{"x", 20}, {"y", 0}}), 3);
  EXPECT_EQ(Evaluate(cases, {{"x", 21}, {"y", -2}}), -0.5);
  EXPECT_EQ(Evaluate(cases, {{"x", 21}, {"y", 0}}), 0);
}

TEST(AnExpression, OfCasesNeedsOnlyTheSymbolsUpToItsCase) {
  const Expression cases = CasesOf({{3, X <= 20}}, Y * Symbol("z"));
  std::vector<std::string_view> needed;

  Applying(cases, {{"x", 20}}, &needed);
  EXPECT_THAT(needed, ElementsAre("x"));

  needed.clear();
  Applying(cases, {{"x", 21}}, &needed);
  EXPECT_THAT(needed, ElementsAre("x", "y", "z"));
}

TEST(AFormula, IsWrittenWithTheBracketsThatItNeeds) {
  EXPECT_EQ(FormulaText(0.38 * X + 46.1), "0.38 · x + 46.1");
  EXPECT_EQ(FormulaText((X + Y) * 2), "(x + y) · 2");
  EXPECT_EQ(FormulaText(X - (Y - 2)), "x - (y - 2)");
  EXPECT_EQ(FormulaText(X / (Y * 2)), "x / (y · 2)");
  EXPECT_EQ(FormulaText(X / Y * 2), "x / y · 2");
  EXPECT_EQ(FormulaText(SquareOf(X / 2) / 2), "(x / 2)^2 / 2");
  EXPECT_EQ(FormulaText(PowerOf(SquareOf(X), 1.5)), "(x^2)^1.5");
  EXPECT_EQ(FormulaText(RootOf(2 * SquareOf(X)) + PiSymbol()), "√(2 · x^2) + π");
  EXPECT_EQ(FormulaText(X - 2 * Y * TangentOf(Symbol("α"))), "x - 2 · y · tan(α°)");
  EXPECT_EQ(FormulaText(GreatestOf(4, NaturalLogOf(X - 20))), "max(4, ln(x - 20))");
  EXPECT_EQ(FormulaText(CasesOf({{3, X <= 20}, {0, Y < 0}}, IsEqual(X, Y))), "3 if x ≤ 20; 0 if y < 0; else x = y");
}

TEST(APrintedFormula, IsReadAsAPersonReadsIt) {
  EXPECT_DOUBLE_EQ(ValueOfPrinted("2 + 3 · 4 - 6 / 2"), 11);
  EXPECT_DOUBLE_EQ(ValueOfPrinted("(2 + 3)^2 / 5"), 5);
  EXPECT_DOUBLE_EQ(ValueOfPrinted("max(4, √(2 · 8)) + min(1, -2)"), 2);
  EXPECT_DOUBLE_EQ(ValueOfPrinted("log(1000) + tan(45°)"), 4);
  EXPECT_THROW(ValueOfPrinted("2 +"), std::invalid_argument);
  EXPECT_THROW(ValueOfPrinted("2 x"), std::invalid_argument);
}

}  // namespace
}  // namespace orby::test
