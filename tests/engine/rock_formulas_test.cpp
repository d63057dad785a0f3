// Weight of the rock that may fall, and the heights that the fall angle allows.
#include <gtest/gtest.h>

#include "engine/designs.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

struct EntryRow {
  Single angle;
  Single width;
  Single unitWeight;
  Single height;
  Single load;
  Single heightAfter;
};
constexpr EntryRow EntryRows[] = {
    {30, 20, 162, 8, 9.96701622F, 8},
    {15, 16, 150, 6, 6.47653723F, 6},
    {0, 20, 162, 8, 12.96F, 8},
    {30, 20, 162, 17.32F, 14.0296116F, 17.32F},
    {30, 20, 162, 18, 14.0296125F, 17.320509F},
    {45, 20, 162, 10.5F, 8.10000038F, 10},
    {60, 20, 162, 8, 4.67653751F, 5.77350283F},
    {30, 20, 162, 0, 0, 0},
    {30, 20, 162, -5, 0, -5},
    {30, 20, -162, 8, 0, 8},
};

TEST(RockLoadOfAnEntry, IsTheTrapezoidOrTheTriangleThatTheAngleAllows) {
  for (const auto& row : EntryRows) {
    SCOPED_TRACE(testing::Message() << "angle " << row.angle << ", height " << row.height);
    Single height = row.height;

    EXPECT_EQ(RockLoadEntry(row.angle, row.width, row.unitWeight, height), row.load);
    EXPECT_EQ(height, row.heightAfter);
  }
}

TEST(RockLoadOfAnEntry, IsNoneForANegativeWidthUnderVerticalSides) {
  Single height = 8;

  EXPECT_EQ(RockLoadEntry(0, -20, 162, height), 0.0F);
  EXPECT_EQ(height, 8.0F);
}

struct IntersectionRow {
  Single angle;
  Single span;
  Single unitWeight;
  Single height;
  Single load;
};
constexpr IntersectionRow IntersectionRows[] = {
    {30, 60, 162, 8, 183.050446F},      {45, 60, 162, 8, 126.957504F}, {0, 60, 162, 8, 291.600006F},
    {30, 70, 150, 10, 278.377991F},     {30, 60, 162, 18.5F, 0},       {30, 60, 162, 0, 0},
    {30, 40, 162, 0.01F, 0.161867753F}, {30, 60, 162, -2, 0},
};

// The sides meet in a point to the last bit: the height is just not too large.
constexpr IntersectionRow ExactPyramid{60, 39.5223961F, 162, 4.03373766F, 21.2651253F};

TEST(RockLoadOfAnIntersection, IsAFrustumAndNoneAboveTheLimitOfTheAngle) {
  for (const auto& row : IntersectionRows) {
    EXPECT_EQ(RockLoadIntersection(row.angle, row.span, row.unitWeight, row.height), row.load)
        << "angle " << row.angle << ", height " << row.height;
  }
}

TEST(RockLoadOfAnIntersection, IsAPyramidWhereTheSidesJustMeet) {
  const auto& [angle, span, unitWeight, height, load] = ExactPyramid;

  EXPECT_EQ(RockLoadIntersection(angle, span, unitWeight, height), load);
  EXPECT_EQ(RockLoadIntersection(angle, span, unitWeight, height * 1.001F), 0.0F);
}

TEST(GreatestHeight, OverAnEntryIsWhereTheSidesMeet) {
  EXPECT_EQ(MaxRockHeightEntry(20, 30), 17.320509F);
  EXPECT_EQ(MaxRockHeightEntry(20, 45), 10.0F);
  EXPECT_EQ(MaxRockHeightEntry(18, 60), 5.19615221F);
}

TEST(GreatestHeight, OverAnEntryFailsForVerticalSides) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(MaxRockHeightEntry(20, 0)); }), 11);
}

struct LimitRow {
  Single height;
  Single span;
  Single entryAngle;
  Single crosscutAngle;
  Single limited;
};
constexpr LimitRow LimitRows[] = {
    {8, 60, 30, 30, 8},
    {30, 60, 30, 30, 18.3711739F},
    {30, 60, 45, 30, 10.6066017F},
    {30, 60, 45, 60, 10.6066017F},
    {30, 60, 30, 0, 18.3711739F},
    {30, 60, 0, 0, 30},
    {99.5F, 60, 0, 0, 99.5F},
    {200, 60, 0, 0, 100},
    {200, 60, 1, 0, 100},
    {1000, 60, 1, 30, 607.651794F},
};

TEST(GreatestHeight, OverAnIntersectionFollowsTheEntrysAngleAlone) {
  for (const auto& row : LimitRows) {
    EXPECT_EQ(MaxRockHeightIntersection(row.height, row.span, row.entryAngle, row.crosscutAngle), row.limited)
        << "height " << row.height << ", angles " << row.entryAngle << " and " << row.crosscutAngle;
  }
}

TEST(GreatestHeight, OverAnIntersectionFailsWhenOnlyTheCrosscutsSidesSlope) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(MaxRockHeightIntersection(30, 60, 0, 30)); }), 11);
}

}  // namespace
}  // namespace orby::test
