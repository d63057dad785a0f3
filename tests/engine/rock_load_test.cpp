// The rock loads of the dialog, and the inputs for which there is none.
#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <vector>

#include "engine/designs.h"
#include "engine/secondary_support.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

constexpr RockInputs EnglishRock{162, 8, 30, 30, 20, 60};
constexpr RockInputs MetricRock{25, 3, 30, 30, 6.2F, 20};

RockInputs With(RockInputs rock, Single RockInputs::*member, Single value) {
  rock.*member = value;
  return rock;
}

RockInputs Rock(Single height, Single entryAngle, Single crosscutAngle) {
  return {162, height, entryAngle, crosscutAngle, 20, 60};
}

TEST(UnitWeight, IsPlausibleAtItsLimitAndAbove) {
  EXPECT_FALSE(UnitWeightIsPlausible(99.99F, English));
  EXPECT_TRUE(UnitWeightIsPlausible(100, English));
  EXPECT_FALSE(UnitWeightIsPlausible(25, English));
  EXPECT_FALSE(UnitWeightIsPlausible(14.99F, Metric));
  EXPECT_TRUE(UnitWeightIsPlausible(15, Metric));
}

// Checks of the input that entries and intersections share.
struct Guard {
  Single RockInputs::*member;
  Single value;
  bool computes;
};

const std::vector<Guard> Guards{
    {&RockInputs::Height, -1, false},      {&RockInputs::Height, 0, false},
    {&RockInputs::Height, 0.01F, true},    {&RockInputs::EntryAngle, -0.01F, false},
    {&RockInputs::EntryAngle, 0, true},    {&RockInputs::EntryAngle, 89.99F, true},
    {&RockInputs::EntryAngle, 90, false},  {&RockInputs::EntryAngle, 91, false},
    {&RockInputs::EntryAngle, 200, false}, {&RockInputs::Width, -1, false},
    {&RockInputs::Width, 0, false},        {&RockInputs::Width, 0.01F, true},
};

// Only the load of an intersection depends on the crosscut angle.
const std::vector<Guard> CrosscutGuards{
    {&RockInputs::CrosscutAngle, -0.01F, false}, {&RockInputs::CrosscutAngle, 0, true},
    {&RockInputs::CrosscutAngle, 60, true},      {&RockInputs::CrosscutAngle, 90, false},
    {&RockInputs::CrosscutAngle, 200, false},
};

// The load function of entries or intersections, and its expected loads for English and Metric rock.
struct RockCase {
  const char* name;
  std::optional<Single> (*loadOf)(const RockInputs& rock, UnitSystem units);
  std::array<Single, 2> ofTheDefaults;
  std::array<Single, 2> ofTheLightest;
  bool hasCrosscut;
};

void PrintTo(const RockCase& place, std::ostream* out) { *out << place.name; }

class RockLoad : public testing::TestWithParam<RockCase> {
 protected:
  static auto English(const RockInputs& rock) { return GetParam().loadOf(rock, orby::English); }
  static auto Metric(const RockInputs& rock) { return GetParam().loadOf(rock, orby::Metric); }
};

TEST_P(RockLoad, IsComputedForTheDefaults) {
  EXPECT_EQ(English(EnglishRock), GetParam().ofTheDefaults[0]);
  EXPECT_EQ(Metric(MetricRock), GetParam().ofTheDefaults[1]);
}

TEST_P(RockLoad, IsComputedForTheLightestPlausibleRock) {
  EXPECT_EQ(English(With(EnglishRock, &RockInputs::UnitWeight, 100)), GetParam().ofTheLightest[0]);
  EXPECT_EQ(Metric(With(MetricRock, &RockInputs::UnitWeight, 15)), GetParam().ofTheLightest[1]);
}

TEST_P(RockLoad, IsMissingForTooLightRock) {
  EXPECT_FALSE(English(With(EnglishRock, &RockInputs::UnitWeight, 99)));
  EXPECT_FALSE(Metric(With(MetricRock, &RockInputs::UnitWeight, 14.99F)));
}

TEST_P(RockLoad, IsMissingForImplausibleInputInBothUnitSystems) {
  for (const auto& [member, value, computes] : Guards) {
    EXPECT_EQ(English(With(EnglishRock, member, value)).has_value(), computes) << "English " << value;
    EXPECT_EQ(Metric(With(MetricRock, member, value)).has_value(), computes) << "Metric " << value;
  }
}

TEST_P(RockLoad, IsMissingForAnImplausibleCrosscutAngleInIntersections) {
  for (const auto& [member, value, computes] : CrosscutGuards) {
    const bool isThere = computes || !GetParam().hasCrosscut;
    EXPECT_EQ(English(With(EnglishRock, member, value)).has_value(), isThere) << "English " << value;
    EXPECT_EQ(Metric(With(MetricRock, member, value)).has_value(), isThere) << "Metric " << value;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Of, RockLoad,
    testing::Values(
        RockCase{"Entries", EntryRockLoad, {9.96701622F, 335.096161F}, {6.15247917F, 201.057709F}, false},
        RockCase{"Intersections", IntersectionRockLoad, {183.050446F, 2212.88281F}, {112.994102F, 1327.72961F}, true}),
    [](const auto& place) { return place.param.name; });

TEST(EntryRock, WithVerticalSidesHasTheFullWidth) {
  EXPECT_EQ(EntryRockLoad(With(EnglishRock, &RockInputs::EntryAngle, 0), English), 12.96F);
  EXPECT_EQ(EntryRockLoad(With(MetricRock, &RockInputs::EntryAngle, 0), Metric), 465.0F);
}

TEST(EntryRock, AboveTheLimitOfTheAngleIsATriangle) {
  EXPECT_EQ(EntryRockLoad(With(EnglishRock, &RockInputs::Height, 17.32051F), English), 14.0296125F);
  EXPECT_EQ(EntryRockLoad(With(EnglishRock, &RockInputs::Height, 20), English), 14.0296125F);
  EXPECT_EQ(EntryRockLoad(With(EnglishRock, &RockInputs::EntryAngle, 60), English), 4.67653751F);
  EXPECT_EQ(EntryRockLoad(With(EnglishRock, &RockInputs::EntryAngle, 89), English), 0.14138603F);
  EXPECT_EQ(EntryRockLoad(With(MetricRock, &RockInputs::Height, 8), Metric), 416.125153F);
}

TEST(EntryRock, JustBelowTheLimitOfTheAngleIsStillATrapezoid) {
  EXPECT_EQ(EntryRockLoad(With(EnglishRock, &RockInputs::Height, 17.3F), English), 14.0295916F);
  EXPECT_EQ(EntryRockLoad(With(EnglishRock, &RockInputs::Height, 17.32F), English), 14.0296116F);
  EXPECT_EQ(EntryRockLoad(With(EnglishRock, &RockInputs::Height, 17.3205F), English), 14.0296116F);
}

TEST(EntryRock, DoesNotDependOnTheIntersection) {
  const RockInputs rock{162, 8, 30, -10, 20, 0};

  EXPECT_EQ(EntryRockLoad(rock, English), 9.96701622F);
}

TEST(EntryRock, TooSmallForASingleHasNoLoad) { EXPECT_FALSE(EntryRockLoad({162, 1E-30F, 0, 0, 1E-30F, 0}, English)); }

TEST(IntersectionRock, AboveTheLimitOfTheAnglesIsAPyramid) {
  EXPECT_EQ(IntersectionRockLoad(Rock(30, 30, 30), English), 223.209747F);
  EXPECT_EQ(IntersectionRockLoad(With(MetricRock, &RockInputs::Height, 10), Metric), 2551.55176F);
}

TEST(IntersectionRock, UsesTheAngleOfEachSide) {
  EXPECT_EQ(IntersectionRockLoad(Rock(8, 30, 20), English), 199.703506F);
  EXPECT_EQ(IntersectionRockLoad(Rock(8, 20, 30), English), 199.703506F);
  EXPECT_EQ(IntersectionRockLoad(Rock(8, 30, 60), English), 92.9329071F);
  EXPECT_EQ(IntersectionRockLoad({25, 3, 45, 20, 6.2F, 20}, Metric), 1907.50989F);
}

TEST(IntersectionRock, WithDifferentAnglesDiffersFromTheCurve) {
  EXPECT_EQ(IntersectionRockLoad(Rock(8, 30, 20), English), 199.703506F);
  EXPECT_EQ(RockLoadIntersection({Pcf(162), Feet(8), FallAngle(30), Feet(20), Feet(60)}), 183.050446F);
}

TEST(IntersectionRock, IsLimitedByTheEntryAngleOnly) {
  EXPECT_EQ(IntersectionRockLoad(Rock(20, 30, 20), English), 264.457245F);
  EXPECT_EQ(IntersectionRockLoad(Rock(20, 40, 20), English), 197.063324F);
  EXPECT_EQ(IntersectionRockLoad(Rock(20, 20, 40), English), 165.9926F);
}

TEST(IntersectionRock, WithVerticalSidesIsABlock) {
  EXPECT_EQ(IntersectionRockLoad(Rock(8, 0, 0), English), 291.600006F);
  EXPECT_EQ(IntersectionRockLoad(Rock(40, 0, 0), English), 1458.0F);
}

TEST(IntersectionRock, WithANegativeWeightHasNoLoad) { EXPECT_FALSE(IntersectionRockLoad(Rock(8, 30, 89), English)); }

TEST(IntersectionRock, FailsWhenTheHeightIsLimitedAndTheEntryAngleIsZero) {
  EXPECT_EQ(IntersectionRockLoad(Rock(8, 0, 45), English), 181.630753F);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(IntersectionRockLoad(Rock(30, 0, 45), English)); }), 11);
}

TEST(IntersectionRock, NeedsASpanAboveTheEntryWidth) {
  EXPECT_FALSE(IntersectionRockLoad(With(EnglishRock, &RockInputs::Span, 19.99F), English));
  EXPECT_FALSE(IntersectionRockLoad(With(EnglishRock, &RockInputs::Span, 20), English));
  EXPECT_EQ(IntersectionRockLoad(With(EnglishRock, &RockInputs::Span, 20.5F), English), 8.90268517F);
  EXPECT_FALSE(IntersectionRockLoad(With(MetricRock, &RockInputs::Span, 6.2F), Metric));
  EXPECT_TRUE(IntersectionRockLoad(With(MetricRock, &RockInputs::Span, 6.21F), Metric));
}

}  // namespace
}  // namespace orby::test
