// The weight of the rock that may fall, and the heights that the fall angle allows.
#include <gtest/gtest.h>

#include "engine/designs.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

constexpr WorkingRock EntryRock(FallAngle angle, Feet width, Pcf unitWeight, Feet height) {
  return {.UnitWeight = unitWeight, .Height = height, .Angle = angle, .Width = width};
}

constexpr WorkingRock CrossingRock(FallAngle angle, Feet span, Pcf unitWeight, Feet height) {
  return {.UnitWeight = unitWeight, .Height = height, .Angle = angle, .Span = span};
}

struct EntryRow {
  WorkingRock rock;
  Single load;
  Single heightAfter;
};
constexpr EntryRow EntryRows[] = {
    {EntryRock(FallAngle(30), Feet(20), Pcf(162), Feet(8)), 9.96701622F, 8},
    {EntryRock(FallAngle(15), Feet(16), Pcf(150), Feet(6)), 6.47653723F, 6},
    {EntryRock(FallAngle(0), Feet(20), Pcf(162), Feet(8)), 12.96F, 8},
    {EntryRock(FallAngle(30), Feet(20), Pcf(162), Feet(17.32F)), 14.0296116F, 17.32F},
    {EntryRock(FallAngle(30), Feet(20), Pcf(162), Feet(18)), 14.0296125F, 17.320509F},
    {EntryRock(FallAngle(45), Feet(20), Pcf(162), Feet(10.5F)), 8.10000038F, 10},
    {EntryRock(FallAngle(60), Feet(20), Pcf(162), Feet(8)), 4.67653751F, 5.77350283F},
    {EntryRock(FallAngle(30), Feet(20), Pcf(162), Feet(0)), 0, 0},
    {EntryRock(FallAngle(30), Feet(20), Pcf(162), Feet(-5)), 0, -5},
    {EntryRock(FallAngle(30), Feet(20), Pcf(-162), Feet(8)), 0, 8},
};

TEST(RockLoadOfAnEntry, IsTheTrapezoidOrTheTriangleThatTheAngleAllows) {
  for (const auto& row : EntryRows) {
    SCOPED_TRACE(testing::Message() << "angle " << row.rock.Angle.Value << ", height " << row.rock.Height.Value);

    const LimitedLoad limited = RockLoadEntry(row.rock);

    EXPECT_EQ(limited.Load, row.load);
    EXPECT_EQ(limited.Height.Value, row.heightAfter);
  }
}

TEST(RockLoadOfAnEntry, IsZeroForANegativeWidthAndVerticalSides) {
  const LimitedLoad limited = RockLoadEntry(EntryRock(FallAngle(0), Feet(-20), Pcf(162), Feet(8)));

  EXPECT_EQ(limited.Load, 0.0F);
  EXPECT_EQ(limited.Height.Value, 8.0F);
}

struct IntersectionRow {
  WorkingRock rock;
  Single load;
};
constexpr IntersectionRow IntersectionRows[] = {
    {CrossingRock(FallAngle(30), Feet(60), Pcf(162), Feet(8)), 183.050446F},
    {CrossingRock(FallAngle(45), Feet(60), Pcf(162), Feet(8)), 126.957504F},
    {CrossingRock(FallAngle(0), Feet(60), Pcf(162), Feet(8)), 291.600006F},
    {CrossingRock(FallAngle(30), Feet(70), Pcf(150), Feet(10)), 278.377991F},
    {CrossingRock(FallAngle(30), Feet(60), Pcf(162), Feet(18.5F)), 0},
    {CrossingRock(FallAngle(30), Feet(60), Pcf(162), Feet(0)), 0},
    {CrossingRock(FallAngle(30), Feet(40), Pcf(162), Feet(0.01F)), 0.161867753F},
    {CrossingRock(FallAngle(30), Feet(60), Pcf(162), Feet(-2)), 0},
};

// The sides meet exactly in a point, so the height is the greatest possible.
constexpr IntersectionRow ExactPyramid{CrossingRock(FallAngle(60), Feet(39.5223961F), Pcf(162), Feet(4.03373766F)),
                                       21.2651253F};

TEST(RockLoadOfAnIntersection, IsAFrustumAndZeroAboveTheLimitOfTheAngle) {
  for (const auto& row : IntersectionRows) {
    EXPECT_EQ(RockLoadIntersection(row.rock), row.load)
        << "angle " << row.rock.Angle.Value << ", height " << row.rock.Height.Value;
  }
}

TEST(RockLoadOfAnIntersection, IsAPyramidWhenTheSidesJustMeet) {
  WorkingRock tooHigh = ExactPyramid.rock;
  tooHigh.Height.Value *= 1.001F;

  EXPECT_EQ(RockLoadIntersection(ExactPyramid.rock), ExactPyramid.load);
  EXPECT_EQ(RockLoadIntersection(tooHigh), 0.0F);
}

TEST(GreatestHeight, OverAnEntryIsWhereTheSidesMeet) {
  EXPECT_EQ(MaxRockHeightEntry(20, FallAngle(30)), 17.320509F);
  EXPECT_EQ(MaxRockHeightEntry(20, FallAngle(45)), 10.0F);
  EXPECT_EQ(MaxRockHeightEntry(18, FallAngle(60)), 5.19615221F);
}

TEST(GreatestHeight, OverAnEntryFailsForVerticalSides) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(MaxRockHeightEntry(20, FallAngle(0))); }), 11);
}

struct LimitRow {
  RockAtCrossing rock;
  Single limited;
};
constexpr LimitRow LimitRows[] = {
    {{8, 60, FallAngle(30), FallAngle(30)}, 8},
    {{30, 60, FallAngle(30), FallAngle(30)}, 18.3711739F},
    {{30, 60, FallAngle(45), FallAngle(30)}, 10.6066017F},
    {{30, 60, FallAngle(45), FallAngle(60)}, 10.6066017F},
    {{30, 60, FallAngle(30), FallAngle(0)}, 18.3711739F},
    {{30, 60, FallAngle(0), FallAngle(0)}, 30},
    {{99.5F, 60, FallAngle(0), FallAngle(0)}, 99.5F},
    {{200, 60, FallAngle(0), FallAngle(0)}, 100},
    {{200, 60, FallAngle(1), FallAngle(0)}, 100},
    {{1000, 60, FallAngle(1), FallAngle(30)}, 607.651794F},
};

TEST(GreatestHeight, OverAnIntersectionDependsOnlyOnTheEntryAngle) {
  for (const auto& row : LimitRows) {
    EXPECT_EQ(MaxRockHeightIntersection(row.rock), row.limited)
        << "height " << row.rock.Height << ", angles " << row.rock.EntryAngle.Value << " and "
        << row.rock.CrosscutAngle.Value;
  }
}

TEST(GreatestHeight, OverAnIntersectionFailsWhenOnlyTheCrosscutHasAnAngle) {
  EXPECT_EQ(ErrorNumberOf([] {
              static_cast<void>(MaxRockHeightIntersection({30, 60, FallAngle(0), FallAngle(30)}));
            }),
            11);
}

}  // namespace
}  // namespace orby::test
