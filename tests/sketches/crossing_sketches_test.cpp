#include <gmock/gmock.h>

#include "sketches/drawn.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::DoubleNear;
using testing::SizeIs;

std::vector<Stroke> Diagonals(const Sketch& sketch) { return StrokesOf(OutlineOf(sketch, Ink::Bolt, 2)); }

double CircleDiameter(const Sketch& sketch) {
  const PathStep circle = OutlineOf(sketch, Ink::Limit, 1.5).Steps.at(0);
  return 2 * (circle.FirstControl.X - circle.To.X);
}

// Returns the ribs of the pillars: each has a rib along the entry, a cut corner and a rib along the crosscut.
std::vector<SceneOutline> Pillars(const Sketch& sketch) {
  std::vector<SceneOutline> pillars;
  for (const SceneOutline& outline : sketch.Picture.Outlines) {
    if (outline.Line.Colour == Ink::Text && outline.Line.Width == 1.5 && outline.Steps.size() == 4) {
      pillars.push_back(outline);
    }
  }
  return pillars;
}

TEST(DiagonalsSketch, DrawsDiagonalsAndCircleInOneScale) {
  const Sketch sketch = DiagonalsOf(EnglishPlace());
  const auto diagonals = Diagonals(sketch);

  ASSERT_THAT(diagonals, SizeIs(2));
  EXPECT_THAT(diagonals[0].Length(), DoubleNear(diagonals[1].Length(), Exactly));
  const double foot = diagonals[0].Length() / 30;
  EXPECT_THAT(CircleDiameter(sketch) / foot, DoubleNear(31.6, 0.01)) << "half of the suggested sum of 63.2 ft";
  EXPECT_THAT(sketch.Facts, Contains("Sum of the diagonals d1 + d2 = 60 ft"));
  EXPECT_THAT(sketch.Facts, Contains("Suggested sum of the diagonals 63.2 ft"));
}

TEST(DiagonalsSketch, DrawsFourPillarsWithTheEntryBetweenThem) {
  const Sketch sketch = DiagonalsOf(EnglishPlace());
  const auto pillars = Pillars(sketch);

  ASSERT_THAT(pillars, SizeIs(4));
  const double foot = Diagonals(sketch)[0].Length() / 30;
  EXPECT_THAT((pillars[1].Steps[0].To.Y - pillars[0].Steps[0].To.Y) / foot, DoubleNear(20, 0.01));
  EXPECT_THAT((pillars[2].Steps[3].To.X - pillars[0].Steps[3].To.X) / foot, DoubleNear(20, 0.01));
}

TEST(DiagonalsSketch, CutsThePillarsCornersWhereTheDiagonalsEnd) {
  const Sketch sketch = DiagonalsOf(EnglishPlace());
  const auto corner = StrokesOf(Pillars(sketch)[0])[1];
  const ScenePoint end = Diagonals(sketch)[0].From;

  EXPECT_NEAR((corner.From.X + corner.To.X) / 2, end.X, Exactly);
  EXPECT_NEAR((corner.From.Y + corner.To.Y) / 2, end.Y, Exactly);
}

TEST(DiagonalsSketch, DashesTheCircleWithoutASuggestion) {
  Design design = EnglishPlace();
  EXPECT_FALSE(OutlineOf(DiagonalsOf(design), Ink::Limit, 1.5).Line.IsDashed);

  design.Place.CMRR = 300;
  const Sketch sketch = DiagonalsOf(design);

  EXPECT_TRUE(OutlineOf(sketch, Ink::Limit, 1.5).Line.IsDashed);
  EXPECT_THAT(sketch.Facts, Contains("Suggested sum of the diagonals --"));
}

TEST(DiagonalsSketch, BreaksDiagonalsOffThatAreLongerThanThePicture) {
  Design design = EnglishPlace();
  design.Place.ActualSpanDiagonals = 60000;

  EXPECT_EQ(PartsOf(OutlineOf(DiagonalsOf(design), Ink::Bolt, 1)), 8) << "two slanted lines at each end";
}

TEST(IntersectionSketch, DrawsTheRockOverTheSquareOfTheDiagonals) {
  const Sketch sketch = IntersectionOf(EnglishPlace());
  const SceneOutline top = OutlineOf(sketch, Ink::Rock, 1);
  const double foot = Diagonals(sketch)[0].Length() / 30;

  EXPECT_FALSE(top.Line.IsDashed);
  EXPECT_THAT((top.Steps[1].To.X - top.Steps[0].To.X) / foot, DoubleNear(11.98, 0.01)) << "60 / 2.828 - 2 x 8 tan 30";
  EXPECT_EQ(PartsOf(top), 5) << "the top and its four edges";
}

TEST(IntersectionSketch, ShrinksEachPairOfSidesByItsOwnAngle) {
  Design design = EnglishPlace();
  design.Intersections.RockFallAngle = 0;
  const Sketch sketch = IntersectionOf(design);
  const SceneOutline top = OutlineOf(sketch, Ink::Rock, 1);
  const double foot = Diagonals(sketch)[0].Length() / 30;

  EXPECT_THAT((top.Steps[1].To.X - top.Steps[0].To.X) / foot, DoubleNear(21.21, 0.01)) << "along the entry";
  EXPECT_THAT((top.Steps[2].To.Y - top.Steps[1].To.Y) / foot, DoubleNear(11.98, 0.01)) << "along the crosscut";
}

TEST(IntersectionSketch, DrawsEachUnitOfASystemOnce) {
  Design design = EnglishPlace();
  for (SupportSystem* system : design.Intersections.Systems()) system->Use = 1;
  const Sketch sketch = IntersectionOf(design);

  EXPECT_EQ(PartsOf(OutlineOf(sketch, Ink::Bolt, 1.5)), 9);
  EXPECT_EQ(PartsOf(OutlineOf(sketch, Ink::Cable, 1.5)), 4);
  EXPECT_EQ(PartsOf(OutlineOf(sketch, Ink::Standing, 1.5)), 4);
  EXPECT_THAT(RodsOf(sketch, Ink::Bolt), SizeIs(3)) << "one row of the square of nine";
  EXPECT_THAT(sketch.Facts, Contains("9 secondary bolts, 6 ft"));
  EXPECT_THAT(sketch.Facts, Contains("4 trusses, members 8 ft at 45°"));
}

TEST(IntersectionSketch, DashesTheRockWhenNoLoadIsComputed) {
  Design design = EnglishPlace();
  design.Intersections.RockLoadHeight = 0;
  const Sketch sketch = IntersectionOf(design);

  for (const SceneOutline& outline : sketch.Picture.Outlines) {
    if (outline.Line.Colour == Ink::Rock && outline.Line.Width == 1.5) {
      EXPECT_TRUE(outline.Line.IsDashed);
    }
  }
  EXPECT_THAT(sketch.Facts, Contains("Rock load height 0 ft, fall angles 30° and 30°, no rock load"));
}

}  // namespace
}  // namespace orby::test
