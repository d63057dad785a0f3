// Formulas as MathML.
#include "sheet/math_ml.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace orby::test {
namespace {

using testing::ElementsAre;

const Expression Left = Symbol("x");
const Expression Right = Symbol("y");

// Returns the formula in short: mi, mn and mtext without their tags, mo without its attributes, mrow in braces.
std::string Short(std::string math) {
  const auto replace = [&](const std::string& what, const std::string& by) {
    for (std::size_t at = math.find(what); at != std::string::npos; at = math.find(what, at))
      math.replace(at, what.size(), by);
  };
  for (const char* name : {"mi", "mn", "mtext", "mo", "mo form=\"infix\"", "mo form=\"prefix\"",
                           "mo separator=\"true\"", "mo form=\"prefix\" stretchy=\"true\""}) {
    replace("<" + std::string(name) + ">", "");
    replace("</" + std::string(name) + ">", "");
  }
  replace("&#x2061;", "");
  replace("<mrow>", "{");
  replace("</mrow>", "}");
  return math;
}

std::string ShortMath(const Expression& formula) {
  std::string math;
  for (const std::string& piece : FormulaMath(formula)) math += piece;
  return Short(math);
}

TEST(ASetFormula, HasFractionsWithoutBracketsAroundTheirParts) {
  EXPECT_EQ(ShortMath((Left + Right) / (Left * 2)), "<mfrac>{x+y}{x·2}</mfrac>");
  EXPECT_EQ(ShortMath(Left / 2 * Right), "<mfrac>{x}{2}</mfrac>·y");
  EXPECT_EQ(ShortMath(Right * (Left / 2)), "y·<mfrac>{x}{2}</mfrac>");
  EXPECT_EQ(ShortMath(RootOf(Left - 1)), "<msqrt>x−1</msqrt>");
}

TEST(ASetFormula, HasAllDivisorsUnderOneLine) {
  EXPECT_EQ(ShortMath(Left / Right / (Left + 1) / 3), "<mfrac>{x}{y·{(x+1)}·3}</mfrac>");
  EXPECT_EQ(ShortMath(Left / (Right / 3)), "<mfrac>{x}{<mfrac>{y}{3}</mfrac>}</mfrac>");
}

TEST(ASetFormula, HasTheBracketsThatItNeeds) {
  EXPECT_EQ(ShortMath((Left + Right) * 2), "{(x+y)}·2");
  EXPECT_EQ(ShortMath(Left - (Right - 2)), "x−{(y−2)}");
  EXPECT_EQ(ShortMath(Left - Right - 2), "x−y−2");
  EXPECT_EQ(ShortMath(SquareOf(Left / 2)), "<msup>{{(<mfrac>{x}{2}</mfrac>)}}{2}</msup>");
  EXPECT_EQ(ShortMath(PowerOf(SquareOf(Left), 1.5)), "<msup>{{(<msup>{x}{2}</msup>)}}{1.5}</msup>");
  EXPECT_EQ(ShortMath(SquareOf(RootOf(Left))), "<msup>{<msqrt>x</msqrt>}{2}</msup>");
}

TEST(ASetFormula, HasFunctionsAndAngles) {
  EXPECT_EQ(ShortMath(2 * NaturalLogOf(Left - 20)), "2·ln{(x−20)}");
  EXPECT_EQ(ShortMath(DecimalLogOf(Left)), "log{(x)}");
  EXPECT_EQ(ShortMath(TangentOf(Left)), "tan{(x°)}");
  EXPECT_EQ(ShortMath(CosineOf(Left)), "cos{(x°)}");
  EXPECT_EQ(ShortMath(LeastOf(Left, GreatestOf(Right, 4))), "min{(x,max{(y,4)})}");
  EXPECT_EQ(ShortMath(PiSymbol() * Left), "π·x");
}

TEST(ASetFormula, HasCasesAsATableWithABrace) {
  EXPECT_EQ(ShortMath(CasesOf({{3, Left <= 20}, {0, Right < 0}}, IsEqual(Left, Right))),
            "{{<mtable displaystyle=\"true\"><mtr><mtd>3</mtd><mtd>if&#xA0;x≤20</mtd></mtr>"
            "<mtr><mtd>0</mtd><mtd>if&#xA0;y&lt;0</mtd></mtr><mtr><mtd>x=y</mtd><mtd>otherwise</mtd></mtr></mtable>}");
}

TEST(ASetFormula, HasIndices) {
  EXPECT_EQ(LetterMath("CMRR"), "<mi>CMRR</mi>");
  EXPECT_EQ(LetterMath("s_min"), "<msub><mi>s</mi><mi>min</mi></msub>");
  EXPECT_EQ(LetterMath("b_2"), "<msub><mi>b</mi><mn>2</mn></msub>");
}

TEST(ASetNumber, HasItsUnitAndItsPowerOfTen) {
  EXPECT_EQ(Short(NumberMath("63.2", "ft")), "63.2<mspace width=\"0.3em\"/>ft");
  EXPECT_EQ(Short(NumberMath("8", "kN/m3")), "8<mspace width=\"0.3em\"/><msup>kN/m3</msup>");
  EXPECT_EQ(Short(NumberMath("30", "°")), "30°");
  EXPECT_EQ(Short(NumberMath("-1.5", "")), "−1.5");
  EXPECT_EQ(Short(NumberMath("1.5e-07", "")), "1.5×<msup>10{−7}</msup>");
  EXPECT_EQ(Short(NumberMath("-2e+20", "")), "−2×<msup>10{20}</msup>");
}

Relation RelationWith(std::vector<SymbolMeaning> symbols, const Expression& formula) {
  return {Law{}, "", "", {}, std::move(symbols), formula, true, "", ""};
}

SheetStep Inserted(const Relation& law, std::vector<InsertedNumber> numbers) {
  SheetStep step;
  step.Law = &law;
  step.Numbers = std::move(numbers);
  return step;
}

TEST(AFormulaWithNumbers, HasBracketsAroundNegativeNumbersAndPowersOfTen) {
  const Relation law =
      RelationWith({{"x", "", SheetUnit::None}, {"y", "", SheetUnit::None}}, Left - Right * SquareOf(Left));
  const MathPieces pieces = InsertedMath(Inserted(law, {{"x", "", "", -2, "-2"}, {"y", "", "", 1e-7, "1e-07"}}));

  ASSERT_EQ(pieces.size(), 1U);
  EXPECT_EQ(Short(pieces[0]), "−2−1×<msup>10{−7}</msup>×<msup>{{(−2)}}{2}</msup>");
}

TEST(AFormulaWithNumbers, KeepsTheLetterOfANumberThatCannotBeComputed) {
  const Relation law = RelationWith({{"x", "", SheetUnit::None}, {"h_1", "", SheetUnit::None}}, Left * Symbol("h_1"));
  const MathPieces pieces = InsertedMath(Inserted(law, {{"x", "", "", 4, "4"}, {"h_1", "", "", 0, "h_1"}}));

  EXPECT_THAT(pieces, ElementsAre("<mn>4</mn><mo form=\"infix\">×</mo><msub><mi>h</mi><mn>1</mn></msub>"));
}

TEST(AFormulaWithNumbers, MayBeBrokenBetweenItsPartsIfItIsLong) {
  const Relation law = RelationWith({{"x", "", SheetUnit::None}}, Left * 2 + Left / 3 + Left + Left - Left);
  const std::string number = "1234567.5";
  const MathPieces pieces = InsertedMath(Inserted(law, {{"x", "", "", 1234567.5, number}}));

  ASSERT_EQ(pieces.size(), 5U);
  EXPECT_EQ(Short(pieces[0]), number + "×2");
  EXPECT_EQ(Short(pieces[1]), "+<mfrac>{" + number + "}{3}</mfrac>");
  EXPECT_EQ(Short(pieces[4]), "−" + number);
}

}  // namespace
}  // namespace orby::test
