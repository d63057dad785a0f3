// Span, suggested PSUP and bolt length, and the two helpers of the relations.
#include <gtest/gtest.h>

#include <cmath>

#include "engine/designs.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

TEST(SuggestedSpan, GrowsWithTheRoofRating) {
  EXPECT_EQ(SuggestedSumDiagonals(0), 46.1F);
  EXPECT_EQ(SuggestedSumDiagonals(20), 53.7F);
  EXPECT_EQ(SuggestedSumDiagonals(45), 63.2F);
  EXPECT_EQ(SuggestedSumDiagonals(100), 84.1F);
}

TEST(SmallestSpan, HasAMarginOfFourFeetInEnglishDesigns) {
  EXPECT_EQ(MinimumSumDiagonals(0, English), 4.0F);
  EXPECT_EQ(MinimumSumDiagonals(10, English), 18.1421356F);
  EXPECT_EQ(MinimumSumDiagonals(18.5F, English), 30.1629505F);
  EXPECT_EQ(MinimumSumDiagonals(20, English), 32.2842712F);
}

TEST(SmallestSpan, HasAMarginOfFourMetresInMetricDesigns) {
  EXPECT_EQ(MinimumSumDiagonals(0, Metric), 13.1233597F);
  EXPECT_EQ(MinimumSumDiagonals(10, Metric), 27.2654953F);
  EXPECT_EQ(MinimumSumDiagonals(18.5F, Metric), 39.2863121F);
  EXPECT_EQ(MinimumSumDiagonals(20, Metric), 41.4076309F);
}

TEST(SuggestedPsup, IsThatOfTheSpanDepthAndRating) {
  EXPECT_EQ(SuggestedPSUP(1, 63.2F, 60, 400, 45), 7.6068387F);
  EXPECT_EQ(SuggestedPSUP(2, 59.4F, 70, 1000, 35), 61.4361992F);
}

TEST(SuggestedPsup, IsMultipliedByTheStabilityFactor) {
  EXPECT_EQ(SuggestedPSUP(1.5F, 63.2F, 60, 400, 45), 11.4102583F);
}

TEST(SuggestedPsup, TakesTheSpanAsItIsWhenItEqualsTheSuggestedOne) {
  EXPECT_EQ(SuggestedPSUP(1, 63.2F, 63.2F, 400, 45), 8.43987179F);
  EXPECT_EQ(SuggestedPSUP(1, 54.08F, 54.08F, 400, 21), 66.0577469F);
}

TEST(SuggestedPsup, IsThreeForTheWeakestRoofs) {
  EXPECT_EQ(SuggestedPSUP(1, 53.7F, 60, 400, 20), 3.0F);
  EXPECT_EQ(SuggestedPSUP(5, 46.1F, 60, 400, 0), 3.0F);
}

TEST(SuggestedPsup, LosesTheRatingsTermAtARatingOf21) {
  EXPECT_EQ(SuggestedPSUP(1, 54.08F, 60, 400, 21), 81.3116684F);
  EXPECT_EQ(SuggestedPSUP(1, 63.2F, 60, 400, 20.5F), 70.7204132F);
}

TEST(SuggestedPsup, IsNoneAtTheSurfaceUnlessTheRoofIsAtItsWeakest) {
  EXPECT_EQ(SuggestedPSUP(1, 63.2F, 60, 0, 45), 0.0F);
  EXPECT_EQ(SuggestedPSUP(1, 63.2F, 60, -10, 45), 0.0F);
  EXPECT_EQ(SuggestedPSUP(1, 53.7F, 60, 0, 20), 3.0F);
}

TEST(SuggestedPsup, DoesNotFallBelowThree) {
  EXPECT_EQ(SuggestedPSUP(1, 76.5F, 60, 100, 80), 3.0F);
  EXPECT_EQ(SuggestedPSUP(1, 63.2F, 60, 1, 45), 3.0F);
}

TEST(SuggestedPsup, FailsOnASuggestedSpanOfZero) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(SuggestedPSUP(1, 0, 60, 400, 45)); }), 11);
}

TEST(SuggestedPsup, FailsBeyondTheRangeOfASingle) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(SuggestedPSUP(1E30F, 63.2F, 1E10F, 400, 45)); }), 6);
}

TEST(SuggestedLength, IsThatOfTheSpanDepthAndRating) {
  EXPECT_EQ(SuggestedBoltLength(60, 400, 45), 4.89856911F);
  EXPECT_EQ(SuggestedBoltLength(60, 1000, 35), 7.25603199F);
  EXPECT_EQ(SuggestedBoltLength(70, 1500, 30), 10.0160093F);
  EXPECT_EQ(SuggestedBoltLength(60, 400, 0), 12.0095081F);
}

TEST(SuggestedLength, IsFourFeetAtLeast) {
  EXPECT_EQ(SuggestedBoltLength(60, 400, 80), 4.0F);
  EXPECT_EQ(SuggestedBoltLength(60, 400, 100), 4.0F);
  EXPECT_EQ(SuggestedBoltLength(60, 1, 45), 4.0F);
  EXPECT_EQ(SuggestedBoltLength(60, 0.5F, 45), 4.0F);
}

TEST(SuggestedLength, FailsWithoutADepth) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(SuggestedBoltLength(60, 0, 45)); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(SuggestedBoltLength(60, -1, 45)); }), 5);
}

TEST(SuggestedLength, FailsOnARatingAboveAHundred) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(SuggestedBoltLength(60, 400, 100.5F)); }), 5);
}

TEST(DecimalLogarithm, IsThatOfBaseTen) {
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

TEST(SmallerOne, IsFoundInEitherPlace) {
  EXPECT_EQ(MinOf(8, 18.371174F), 8.0F);
  EXPECT_EQ(MinOf(18.371174F, 8), 8.0F);
  EXPECT_EQ(MinOf(-1, 0), -1.0F);
}

TEST(SmallerOne, IsTheSecondOfTwoThatAreEqual) {
  EXPECT_FALSE(std::signbit(MinOf(-0.0F, 0.0F)));
  EXPECT_TRUE(std::signbit(MinOf(0.0F, -0.0F)));
}

}  // namespace
}  // namespace orby::test
