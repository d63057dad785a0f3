// Span, suggested PSUP and bolt length, and the helpers of the relations.
#include <gtest/gtest.h>

#include <cmath>

#include "engine/designs.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

TEST(SuggestedSpan, GrowsWithTheRoofRating) {
  EXPECT_EQ(SuggestedSumDiagonals(0).Value, 46.1F);
  EXPECT_EQ(SuggestedSumDiagonals(20).Value, 53.7F);
  EXPECT_EQ(SuggestedSumDiagonals(45).Value, 63.2F);
  EXPECT_EQ(SuggestedSumDiagonals(100).Value, 84.1F);
}

TEST(SmallestSpan, HasAMarginOfFourFeetInEnglishDesigns) {
  EXPECT_EQ(MinimumSumDiagonals(Feet(0), English).Value, 4.0F);
  EXPECT_EQ(MinimumSumDiagonals(Feet(10), English).Value, 18.1421356F);
  EXPECT_EQ(MinimumSumDiagonals(Feet(18.5F), English).Value, 30.1629505F);
  EXPECT_EQ(MinimumSumDiagonals(Feet(20), English).Value, 32.2842712F);
}

TEST(SmallestSpan, HasAMarginOfFourMetresInMetricDesigns) {
  EXPECT_EQ(MinimumSumDiagonals(Feet(0), Metric).Value, 13.1233597F);
  EXPECT_EQ(MinimumSumDiagonals(Feet(10), Metric).Value, 27.2654953F);
  EXPECT_EQ(MinimumSumDiagonals(Feet(18.5F), Metric).Value, 39.2863121F);
  EXPECT_EQ(MinimumSumDiagonals(Feet(20), Metric).Value, 41.4076309F);
}

TEST(SuggestedPsup, DependsOnSpanDepthAndRating) {
  EXPECT_EQ(SuggestedPSUP({1, 45, Feet(400), Feet(60)}, Feet(63.2F)), 7.6068387F);
  EXPECT_EQ(SuggestedPSUP({2, 35, Feet(1000), Feet(70)}, Feet(59.4F)), 61.4361992F);
}

TEST(SuggestedPsup, IsMultipliedByTheStabilityFactor) {
  EXPECT_EQ(SuggestedPSUP({1.5F, 45, Feet(400), Feet(60)}, Feet(63.2F)), 11.4102583F);
}

TEST(SuggestedPsup, IsNotScaledWhenTheSpanIsTheSuggestedOne) {
  EXPECT_EQ(SuggestedPSUP({1, 45, Feet(400), Feet(63.2F)}, Feet(63.2F)), 8.43987179F);
  EXPECT_EQ(SuggestedPSUP({1, 21, Feet(400), Feet(54.08F)}, Feet(54.08F)), 66.0577469F);
}

TEST(SuggestedPsup, IsThreeForTheWeakestRoofs) {
  EXPECT_EQ(SuggestedPSUP({1, 20, Feet(400), Feet(60)}, Feet(53.7F)), 3.0F);
  EXPECT_EQ(SuggestedPSUP({5, 0, Feet(400), Feet(60)}, Feet(46.1F)), 3.0F);
}

TEST(SuggestedPsup, HasNoTermOfTheRatingAtARatingOf21) {
  EXPECT_EQ(SuggestedPSUP({1, 21, Feet(400), Feet(60)}, Feet(54.08F)), 81.3116684F);
  EXPECT_EQ(SuggestedPSUP({1, 20.5F, Feet(400), Feet(60)}, Feet(63.2F)), 70.7204132F);
}

TEST(SuggestedPsup, IsZeroAtTheSurfaceExceptForTheWeakestRoofs) {
  EXPECT_EQ(SuggestedPSUP({1, 45, Feet(0), Feet(60)}, Feet(63.2F)), 0.0F);
  EXPECT_EQ(SuggestedPSUP({1, 45, Feet(-10), Feet(60)}, Feet(63.2F)), 0.0F);
  EXPECT_EQ(SuggestedPSUP({1, 20, Feet(0), Feet(60)}, Feet(53.7F)), 3.0F);
}

TEST(SuggestedPsup, IsAtLeastThree) {
  EXPECT_EQ(SuggestedPSUP({1, 80, Feet(100), Feet(60)}, Feet(76.5F)), 3.0F);
  EXPECT_EQ(SuggestedPSUP({1, 45, Feet(1), Feet(60)}, Feet(63.2F)), 3.0F);
}

TEST(SuggestedPsup, FailsForASuggestedSpanOfZero) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(SuggestedPSUP({1, 45, Feet(400), Feet(60)}, Feet(0))); }), 11);
}

TEST(SuggestedPsup, FailsBeyondTheRangeOfASingle) {
  EXPECT_EQ(ErrorNumberOf([] {
              static_cast<void>(SuggestedPSUP({1E30F, 45, Feet(400), Feet(1E10F)}, Feet(63.2F)));
            }),
            6);
}

TEST(SuggestedLength, DependsOnSpanDepthAndRating) {
  EXPECT_EQ(SuggestedBoltLength({1, 45, Feet(400), Feet(60)}).Value, 4.89856911F);
  EXPECT_EQ(SuggestedBoltLength({1, 35, Feet(1000), Feet(60)}).Value, 7.25603199F);
  EXPECT_EQ(SuggestedBoltLength({1, 30, Feet(1500), Feet(70)}).Value, 10.0160093F);
  EXPECT_EQ(SuggestedBoltLength({1, 0, Feet(400), Feet(60)}).Value, 12.0095081F);
}

TEST(SuggestedLength, IsAtLeastFourFeet) {
  EXPECT_EQ(SuggestedBoltLength({1, 80, Feet(400), Feet(60)}).Value, 4.0F);
  EXPECT_EQ(SuggestedBoltLength({1, 100, Feet(400), Feet(60)}).Value, 4.0F);
  EXPECT_EQ(SuggestedBoltLength({1, 45, Feet(1), Feet(60)}).Value, 4.0F);
  EXPECT_EQ(SuggestedBoltLength({1, 45, Feet(0.5F), Feet(60)}).Value, 4.0F);
}

TEST(SuggestedLength, FailsWithoutADepth) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(SuggestedBoltLength({1, 45, Feet(0), Feet(60)}).Value); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(SuggestedBoltLength({1, 45, Feet(-1), Feet(60)}).Value); }), 5);
}

TEST(SuggestedLength, FailsForARatingAbove100) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(SuggestedBoltLength({1, 100.5F, Feet(400), Feet(60)}).Value); }), 5);
}

TEST(DecimalLogarithm, HasBaseTen) {
  EXPECT_EQ(Log10(0.5F), -0.30103001F);
  EXPECT_EQ(Log10(1), 0.0F);
  EXPECT_EQ(Log10(2), 0.30103001F);
  EXPECT_EQ(Log10(10), 1.0F);
  EXPECT_EQ(Log10(100), 2.0F);
  EXPECT_EQ(Log10(400), 2.60206008F);
  EXPECT_EQ(Log10(1000), 3.0F);
  EXPECT_EQ(Log10(1500), 3.17609119F);
}

TEST(DecimalLogarithm, FailsAtZeroAndBelow) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(Log10(0)); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(Log10(-400)); }), 5);
}

TEST(SmallerNumber, IsFoundInEitherPosition) {
  EXPECT_EQ(MinOf(8, 18.371174F), 8.0F);
  EXPECT_EQ(MinOf(18.371174F, 8), 8.0F);
  EXPECT_EQ(MinOf(-1, 0), -1.0F);
}

TEST(SmallerNumber, IsTheSecondOfTwoEqualNumbers) {
  EXPECT_FALSE(std::signbit(MinOf(-0.0F, 0.0F)));
  EXPECT_TRUE(std::signbit(MinOf(0.0F, -0.0F)));
}

}  // namespace
}  // namespace orby::test
