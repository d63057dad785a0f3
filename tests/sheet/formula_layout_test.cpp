// Formulas as they are set on paper.
#include "sheet/formula_layout.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "base/text.h"
#include "sheet/relations.h"

namespace orby::test {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::SizeIs;

constexpr double Size = 10;
const Expression Base = Symbol("x");
const Expression Other = Symbol("y");

double SetWidth(const std::string& text, const TextStyle& style) {
  return 0.6 * style.Size * static_cast<double>(CharacterCount(text));
}

FormulaBox Set(const Expression& formula) { return SetFormula(formula, Size, SetWidth); }

std::vector<std::string> TextsOf(const FormulaBox& box) {
  std::vector<std::string> texts;
  for (const SceneLabel& label : box.Labels) texts.push_back(label.Text);
  return texts;
}

const SceneLabel& LabelOf(const FormulaBox& box, const std::string& text) {
  const auto found = std::ranges::find(box.Labels, text, &SceneLabel::Text);
  if (found == box.Labels.end()) throw std::runtime_error("no label " + text);
  return *found;
}

TEST(ASetFormula, HasDividendAndDivisorAboveAndBelowTheBar) {
  const FormulaBox box = Set((Base + 1) / Other);

  ASSERT_THAT(box.Lines, SizeIs(1)) << "no brackets";
  const double bar = box.Lines[0].Steps[0].To.Y;
  EXPECT_LT(LabelOf(box, "x").At.Y, bar);
  EXPECT_GT(LabelOf(box, "y").At.Y - Size / 2, bar);
  EXPECT_THAT(LabelOf(box, "y").At.X + 3, DoubleNear(box.Width / 2, 0.01)) << "in the middle";
}

TEST(ASetFormula, JoinsQuotientsOfQuotientsInOneFraction) {
  const FormulaBox box = Set(Base / Other / 2);

  EXPECT_THAT(box.Lines, SizeIs(1));
  EXPECT_THAT(TextsOf(box), ElementsAre("x", "y", "·", "2"));
}

TEST(ASetFormula, RaisesPowersAndLowersIndices) {
  const FormulaBox power = Set(SquareOf(Base));
  EXPECT_LT(LabelOf(power, "2").At.Y, LabelOf(power, "x").At.Y);
  EXPECT_LT(LabelOf(power, "2").Size, Size);

  const FormulaBox index = Set(Symbol("s_min"));
  EXPECT_THAT(TextsOf(index), ElementsAre("s", "min"));
  EXPECT_GT(LabelOf(index, "min").At.Y, LabelOf(index, "s").At.Y);
  EXPECT_TRUE(LabelOf(index, "s").IsItalic);
  EXPECT_FALSE(LabelOf(index, "min").IsItalic);
}

TEST(ASetFormula, DrawsBracketsWhereThePrecedenceNeedsThem) {
  EXPECT_THAT(Set((Base + Other) * 2).Lines, SizeIs(2));
  EXPECT_THAT(Set(Base * Other + 2).Lines, SizeIs(0));
  EXPECT_THAT(Set(SquareOf(Base + Other)).Lines, SizeIs(2));
  EXPECT_THAT(Set(NaturalLogOf(Base)).Lines, SizeIs(2));
  EXPECT_THAT(Set(Base - (Other - 2)).Lines, SizeIs(2));
}

TEST(ASetFormula, PutsNumbersInThePlacesOfSymbols) {
  const auto numbers = [](std::string_view letter) { return std::string(letter == "x" ? "-2.5" : "4"); };
  const FormulaBox box = SetFormula(Other * Base, Size, SetWidth, numbers);

  EXPECT_THAT(TextsOf(box), ElementsAre("4", "·", "-2.5"));
  EXPECT_THAT(box.Lines, SizeIs(2)) << "a negative factor has brackets";
}

FormulaBox WithNumbers(const Expression& formula, const std::string& x, const std::string& y) {
  return SetFormula(formula, Size, SetWidth, [&](std::string_view letter) { return letter == "x" ? x : y; });
}

TEST(ASetFormula, HasPowersOfTenForSmallNumbers) {
  const FormulaBox sum = WithNumbers(Base + Other, "3", "4.2e-07");
  EXPECT_THAT(TextsOf(sum), ElementsAre("3", "+", "4.2", "·", "10", "-7"));
  EXPECT_LT(LabelOf(sum, "-7").At.Y, LabelOf(sum, "10").At.Y);
  EXPECT_THAT(sum.Lines, SizeIs(0)) << "no brackets";

  EXPECT_THAT(WithNumbers(SquareOf(Base), "1e+12", "").Lines, SizeIs(2)) << "brackets around the base";
}

TEST(ASetFormula, HasBracketsAroundAProductThatStartsWithAMinus) {
  EXPECT_THAT(WithNumbers(Symbol("y") + Base * Symbol("y"), "-2", "5").Lines, SizeIs(2));
  EXPECT_THAT(WithNumbers(Base * Symbol("y") + Symbol("y"), "-2", "5").Lines, SizeIs(0));
}

TEST(ASetUnit, HasARaisedExponent) {
  const FormulaBox box = SetUnit("24.5 kN/m3", {.Size = Size}, SetWidth);

  EXPECT_THAT(TextsOf(box), ElementsAre("24.5 kN/m", "3"));
  EXPECT_LT(LabelOf(box, "3").At.Y, 0);
  EXPECT_THAT(TextsOf(SetUnit("a factor of 1", {.Size = Size}, SetWidth)), ElementsAre("a factor of 1"));
}

TEST(ASetFormula, HasALineForEachCase) {
  const FormulaBox box = Set(CasesOf({{3, Base <= 20}}, Other));

  EXPECT_LT(LabelOf(box, "3").At.Y, LabelOf(box, "y").At.Y);
  EXPECT_THAT(TextsOf(box), ElementsAre("3", "if", "x", "≤", "20", "y", "else"));
}

TEST(ASetFormula, StaysInItsBoxWhateverTheRelation) {
  for (const Relation& relation : Relations()) {
    const FormulaBox box = Set(relation.Formula);
    constexpr double Slack = 0.5;  // lines have a width
    const auto expectInside = [&](const ScenePoint& at) {
      EXPECT_GE(at.X, -Slack) << relation.Key;
      EXPECT_LE(at.X, box.Width + Slack) << relation.Key;
      EXPECT_GE(at.Y, -box.Ascent - Slack) << relation.Key;
      EXPECT_LE(at.Y, box.Descent + Slack) << relation.Key;
    };
    for (const SceneLabel& label : box.Labels) {
      expectInside(label.At);
      expectInside({label.At.X + SetWidth(label.Text, {.Size = label.Size}), label.At.Y - label.Size * 0.7});
    }
    for (const SceneOutline& line : box.Lines) {
      for (const PathStep& step : line.Steps) expectInside(step.To);
    }
  }
}

TEST(APlacedFormula, IsMovedAndScaled) {
  const FormulaBox box = Placed(Set(Base / Other), {100, 50}, 0.5);

  EXPECT_EQ(LabelOf(box, "x").Size, 5);
  EXPECT_THAT(box.Width, DoubleNear(Set(Base / Other).Width / 2, 1e-9));
  EXPECT_GT(LabelOf(box, "x").At.X, 100);
}

}  // namespace
}  // namespace orby::test
