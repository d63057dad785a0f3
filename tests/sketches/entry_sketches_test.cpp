#include <gmock/gmock.h>

#include "sketches/drawn.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::DoubleNear;
using testing::SizeIs;

constexpr double RodBelowRoof = 2;  // a rod begins this much below the roof

// Returns the length of the first rod above the roof.
double RodLength(const Sketch& sketch, Ink colour) { return RodsOf(sketch, colour).front().Length() - RodBelowRoof; }

// Returns the sides of the rock body in the section: left, top and right.
std::vector<Stroke> RockOf(const Sketch& sketch) { return StrokesOf(OutlineOf(sketch, Ink::Rock, 1.5)); }

double WidthOfEntry(const Sketch& sketch) {
  const SceneOutline rock = OutlineOf(sketch, Ink::Rock, 1.5);
  return rock.Steps[3].To.X - rock.Steps[0].To.X;
}

TEST(PrimarySketch, DrawsAsManyBoltsAsARowHas) {
  Design design = EnglishPlace();
  for (const Single count : {1.0F, 4.0F, 7.0F}) {
    design.Primary.BoltsperRow = count;
    EXPECT_THAT(RodsOf(PrimaryOf(design), Ink::Bolt), SizeIs(static_cast<std::size_t>(count)));
  }
}

TEST(PrimarySketch, DrawsTheBoltsAtEqualDistancesToScale) {
  const Sketch sketch = PrimaryOf(EnglishPlace());
  const auto rods = RodsOf(sketch, Ink::Bolt);
  const double foot = WidthOfEntry(sketch) / 20;

  ASSERT_THAT(rods, SizeIs(4));
  for (std::size_t i = 1; i < rods.size(); ++i) {
    EXPECT_THAT(rods[i].From.X - rods[i - 1].From.X, DoubleNear(5 * foot, Exactly));
  }
  EXPECT_THAT(RodLength(sketch, Ink::Bolt), DoubleNear(6 * foot, Exactly));
  EXPECT_TRUE(Shows(sketch, "5 ft"));
  EXPECT_TRUE(Shows(sketch, "6 ft"));
}

TEST(PrimarySketch, DrawsABoltOfTwiceTheLengthTwiceAsLong) {
  Design design = EnglishPlace();
  design.Primary.Length = 3;
  const double before = RodLength(PrimaryOf(design), Ink::Bolt);

  design.Primary.Length = 6;

  EXPECT_THAT(RodLength(PrimaryOf(design), Ink::Bolt), DoubleNear(2 * before, Exactly));
}

TEST(PrimarySketch, BreaksABoltOffThatIsLongerThanThePicture) {
  Design design = EnglishPlace();
  design.Primary.Length = 600;
  const Sketch sketch = PrimaryOf(design);

  EXPECT_LT(RodLength(sketch, Ink::Bolt), Paper.Height);
  EXPECT_EQ(PartsOf(OutlineOf(sketch, Ink::Bolt, 1)), 8) << "two slanted lines at each bolt";
  EXPECT_TRUE(Shows(sketch, "600 ft"));
  EXPECT_EQ(PartsOf(OutlineOf(PrimaryOf(EnglishPlace()), Ink::Bolt, 1)), 0);
}

TEST(PrimarySketch, DrawsTheRowsOfThePlanInTheScaleOfTheSection) {
  const Sketch sketch = PrimaryOf(EnglishPlace());
  const SceneOutline dots = OutlineOf(sketch, Ink::Bolt, 1.5);
  const double foot = WidthOfEntry(sketch) / 20;

  std::vector<ScenePoint> centres;
  for (const PathStep& step : dots.Steps) {
    if (step.What == PathStep::Kind::Circle) centres.push_back(step.To);
  }
  ASSERT_GE(centres.size(), 8U);
  EXPECT_THAT(centres[1].X - centres[0].X, DoubleNear(5 * foot, Exactly));
  EXPECT_THAT(centres[4].Y - centres[0].Y, DoubleNear(4 * foot, Exactly));
}

TEST(PrimarySketch, MarksTheSuggestedBoltLength) {
  const Sketch sketch = PrimaryOf(EnglishPlace());
  const auto mark = StrokesOf(OutlineOf(sketch, Ink::Limit, 1.5));
  const double foot = WidthOfEntry(sketch) / 20;

  ASSERT_THAT(mark, SizeIs(1));
  const double roof = RockOf(sketch).front().From.Y;
  EXPECT_THAT((roof - mark[0].From.Y) / foot, DoubleNear(4.9, 0.05));
  EXPECT_THAT(sketch.Facts, Contains("Suggested bolt length 4.9 ft"));
}

TEST(EntrySketch, DrawsTheRockAsWideAsItsFallAngleLeavesIt) {
  const auto rock = RockOf(EntryOf(EnglishPlace()));

  ASSERT_THAT(rock, SizeIs(3));
  const double foot = (rock[2].To.X - rock[0].From.X) / 20;
  EXPECT_THAT(rock[0].From.Y - rock[0].To.Y, DoubleNear(8 * foot, Exactly));
  EXPECT_THAT(rock[1].Length() / foot, DoubleNear(10.76, 0.01)) << "20 - 2 x 8 tan 30";
}

TEST(EntrySketch, EndsTheRockInARidgeWhereItsSidesMeet) {
  Design design = EnglishPlace();
  design.Entries.RockLoadHeight = 30;
  const auto rock = RockOf(EntryOf(design));

  ASSERT_THAT(rock, SizeIs(3));
  const double foot = (rock[2].To.X - rock[0].From.X) / 20;
  EXPECT_THAT((rock[0].From.Y - rock[0].To.Y) / foot, DoubleNear(17.32, 0.01)) << "10 / tan 30";
  EXPECT_THAT(rock[1].Length(), DoubleNear(0, Exactly));
}

TEST(EntrySketch, DashesTheRockWhenNoLoadIsComputed) {
  Design design = EnglishPlace();
  EXPECT_FALSE(OutlineOf(EntryOf(design), Ink::Rock, 1.5).Line.IsDashed);

  design.Place.UnitWeight = 10;
  const Sketch sketch = EntryOf(design);

  EXPECT_TRUE(OutlineOf(sketch, Ink::Rock, 1.5).Line.IsDashed);
  EXPECT_EQ(OutlineOf(sketch, Ink::Rock, 1.5).Inside.Colour, Ink::None);
  EXPECT_THAT(sketch.Facts, Contains("Rock load height 8 ft, fall angle 30°, no rock load"));
}

TEST(EntrySketch, DrawsTheSystemsInUse) {
  Design design = EnglishPlace();
  EXPECT_THAT(RodsOf(EntryOf(design), Ink::Cable), SizeIs(0));

  for (SupportSystem* system : design.Entries.Systems()) system->Use = 1;
  const Sketch sketch = EntryOf(design);

  EXPECT_THAT(RodsOf(sketch, Ink::Muted), SizeIs(4)) << "primary bolts";
  EXPECT_THAT(RodsOf(sketch, Ink::Cable), SizeIs(2));
  EXPECT_THAT(RodsOf(sketch, Ink::Truss), SizeIs(2));
  EXPECT_THAT(RodsOf(sketch, Ink::Bolt), SizeIs(4));
  EXPECT_EQ(PartsOf(OutlineOf(sketch, Ink::Standing, 4)), 2);
  EXPECT_THAT(
      sketch.Facts,
      testing::ElementsAre("Entry width 20 ft", "Depth of cover 400 ft", "4 primary bolts per row, 6 ft, every 4 ft",
                           "2 cable bolts per row, 12 ft, every 8 ft", "Trusses, members 8 ft at 45°, every 4 ft",
                           "4 secondary bolts per row, 6 ft, every 4 ft", "2 standing supports per row, every 8 ft",
                           "Rock load height 8 ft, fall angle 30°"));
}

TEST(EntrySketch, LeansTheTrussMembersByTheirAngleFromTheVertical) {
  Design design = EnglishPlace();
  design.Entries.Truss.Use = 1;
  design.Entries.Truss.Angle = 30;
  const Sketch sketch = EntryOf(design);
  const auto members = RodsOf(sketch, Ink::Truss);

  ASSERT_THAT(members, SizeIs(2));
  const double foot = WidthOfEntry(sketch) / 20;
  EXPECT_THAT((members[0].From.X - members[0].To.X) / foot, DoubleNear(4, 0.01)) << "8 sin 30, outwards";
  EXPECT_THAT((members[1].To.X - members[1].From.X) / foot, DoubleNear(4, 0.01));
  EXPECT_THAT((members[0].From.Y - members[0].To.Y) / foot, DoubleNear(6.93, 0.01)) << "8 cos 30";
}

TEST(EntrySketch, LeavesOutATrussOfNoPossibleAngle) {
  Design design = EnglishPlace();
  design.Entries.Truss.Use = 1;
  for (const Single angle : {-1.0F, 91.0F, Unfit}) {
    design.Entries.Truss.Angle = angle;
    EXPECT_THAT(RodsOf(EntryOf(design), Ink::Truss), SizeIs(0)) << angle;
  }
}

TEST(EntrySketch, DashesTheEntryWithoutAWidth) {
  Design design = EnglishPlace();
  design.Place.EntryWidth = 0;

  const Sketch sketch = EntryOf(design);

  EXPECT_TRUE(Shows(sketch, "Entry width 0 ft"));
  const auto isDashedRib = [](const SceneOutline& outline) {
    return outline.Line.Colour == Ink::Text && outline.Line.IsDashed;
  };
  EXPECT_EQ(std::ranges::count_if(sketch.Picture.Outlines, isDashedRib), 2) << "in the section and in the plan";
}

TEST(EntrySketch, DashesOneRowWhereTheSpacingIsNone) {
  Design design = EnglishPlace();
  design.Primary.RowSpacing = 0;

  const SceneOutline row = OutlineOf(EntryOf(design), Ink::Muted, 1.5);

  EXPECT_TRUE(row.Line.IsDashed);
  EXPECT_THAT(StrokesOf(row), SizeIs(1));
}

TEST(EntrySketch, IsTheSamePictureInEnglishAndMetric) {
  Design design = EnglishPlace();
  for (SupportSystem* system : design.Entries.Systems()) system->Use = 1;
  const Scene english = EntryOf(design).Picture;
  const Scene metric = EntryOf(InMetres(design)).Picture;

  ASSERT_EQ(english.Outlines.size(), metric.Outlines.size());
  for (std::size_t i = 0; i < english.Outlines.size(); ++i) {
    const auto& steps = english.Outlines[i].Steps;
    ASSERT_EQ(steps.size(), metric.Outlines[i].Steps.size());
    for (std::size_t j = 0; j < steps.size(); ++j) {
      EXPECT_NEAR(steps[j].To.X, metric.Outlines[i].Steps[j].To.X, Exactly);
      EXPECT_NEAR(steps[j].To.Y, metric.Outlines[i].Steps[j].To.Y, Exactly);
    }
  }
}

TEST(EntrySketch, NamesMetricLengthsInMetres) {
  Design design = EnglishPlace();
  design.Units = Metric;
  design.Place.EntryWidth = 6.2F;

  EXPECT_TRUE(Shows(EntryOf(design), "Entry width 6.2 m"));
}

// ---- small pictures -------------------------------------------------------------------------------------------------

Sketch MiniatureOf(const Design& design) { return {EntryMiniature(design, FiguresOf(design), {96, 64}), {}}; }

TEST(EntryMiniature, ShowsAllSupportsOfAnEntryWithoutTexts) {
  Design design = EnglishPlace();
  design.Entries.Cable.Use = 1;
  design.Entries.Cable.BoltsPerRow = 2;

  const Sketch sketch = MiniatureOf(design);

  EXPECT_THAT(RodsOf(sketch, Ink::Bolt), SizeIs(4));
  EXPECT_THAT(RodsOf(sketch, Ink::Cable), SizeIs(2));
  EXPECT_THAT(sketch.Picture.Labels, testing::IsEmpty());
}

TEST(EntryMiniature, HasNoDimensionLines) {
  EXPECT_THAT(OutlineOf(PrimaryOf(EnglishPlace()), Ink::Text, 0.8).Steps, testing::Not(testing::IsEmpty()));
  EXPECT_THAT(OutlineOf(MiniatureOf(EnglishPlace()), Ink::Text, 0.8).Steps, testing::IsEmpty());
}

TEST(EntryMiniature, UsesTheSizeOfItsSheet) {
  const Sketch sketch = MiniatureOf(EnglishPlace());

  EXPECT_EQ(sketch.Picture.Width, 96);
  EXPECT_EQ(sketch.Picture.Height, 64);
  EXPECT_GT(WidthOfEntry(sketch), 96 / 3);
}

}  // namespace
}  // namespace orby::test
