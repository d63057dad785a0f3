// Curves of unusual designs: limits, adjustments, empty sweeps, and sweeps that cannot be made.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/curve_bench.h"

namespace orby::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

struct CurveLimits : CurveBench {};

TEST_F(CurveLimits, ARatingOf40StartsAt35) {
  design.CMRR = 40;

  GenerateCurve(program, 0);

  EXPECT_EQ(Points(), 8U);
  EXPECT_EQ(PointAt(0), Point(35, 16.8457603F));
  EXPECT_EQ(LastPoint(), Point(49, 5.54046631F));
  EXPECT_THAT(platform.boxes.Texts(), IsEmpty());
}

TEST_F(CurveLimits, ARatingUnderEnormousDepthIsNotTrimmed) {
  design.DepthofCover = 1E12F;

  GenerateCurve(program, 0);

  EXPECT_EQ(Points(), 11U);
  EXPECT_EQ(LastPoint(), Point(55, 98.7216949F));
  EXPECT_THAT(platform.boxes.Texts(), IsEmpty());
}

TEST_F(CurveLimits, ARatingEndsAtAHundred) {
  design.DepthofCover = 1E12F;
  design.CMRR = 95;

  GenerateCurve(program, 0);

  EXPECT_EQ(Points(), 8U);
  EXPECT_EQ(Columns(), 10U);
  EXPECT_EQ(PointAt(0), Point(85, 52.4545937F));
  EXPECT_EQ(LastPoint(), Point(99, 50.5943031F));
}

TEST_F(CurveLimits, ARatingOf91StaysBelowAHundredToo) {
  design.DepthofCover = 1E12F;
  design.CMRR = 91;

  GenerateCurve(program, 0);

  EXPECT_EQ(Points(), 10U);
  EXPECT_EQ(Columns(), 12U);
  EXPECT_EQ(LastPoint().first, 99.0F);
}

TEST_F(CurveLimits, ARatingAboveTheTrimmedLimitFailsAfterTheMessage) {
  design.CMRR = 95;

  EXPECT_EQ(ErrorOf(0), 9);
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Upper limit for CMRR trimmed to 51"));
}

TEST_F(CurveLimits, ARatingJustAboveTheTrimmedLimitIsAnEmptyCurve) {
  design.CMRR = 62;
  GenerateCurve(program, 0);
  EXPECT_EQ(Points(), 0U);
  EXPECT_THAT(program.curve.CurvePoints[0], ElementsAre(0, 0));

  design.CMRR = 64;
  GenerateCurve(program, 0);
  EXPECT_EQ(Points(), 0U);
  EXPECT_EQ(Columns(), 1U);

  design.CMRR = 65;
  EXPECT_EQ(ErrorOf(0), 9);
}

TEST_F(CurveLimits, HalfAColumnGoesToTheEvenNumber) {
  design.CMRR = 26;
  GenerateCurve(program, 0);
  EXPECT_EQ(Points(), 1U);
  EXPECT_EQ(Columns(), 2U);
  EXPECT_EQ(PointAt(0), Point(35, 20.1997395F));

  design.CMRR = 28;
  GenerateCurve(program, 0);
  EXPECT_EQ(Points(), 2U);
  EXPECT_EQ(Columns(), 4U);
  EXPECT_EQ(PointAt(1), Point(37, 17.156971F));
}

TEST_F(CurveLimits, ARatingWithoutADepthFails) {
  design.DepthofCover = 0;

  EXPECT_EQ(ErrorOf(0), 5);
  EXPECT_THAT(platform.boxes.Texts(), IsEmpty());
}

TEST_F(CurveLimits, ADepthOfZeroIsOnePoint) {
  design.DepthofCover = 0;

  GenerateCurve(program, 1);

  EXPECT_EQ(Points(), 1U);
  EXPECT_EQ(Columns(), 2U);
  EXPECT_EQ(PointAt(0), Point(0, 0));
}

TEST_F(CurveLimits, ANegativeDepthIsSweptDownwards) {
  design.DepthofCover = -400;

  GenerateCurve(program, 1);

  EXPECT_THAT(program.curve.CurvePoints[0],
              ElementsAre(-200, -240, -280, -320, -360, -400, -440, -480, -520, -560, -600, 0));
  EXPECT_THAT(program.curve.CurvePoints[1], Each(0));
}

TEST_F(CurveLimits, AStabilityFactorOfZeroIsOnePoint) {
  design.StabilityFactor = 0;

  GenerateCurve(program, 2);

  EXPECT_EQ(Points(), 1U);
  EXPECT_EQ(Columns(), 2U);
  EXPECT_EQ(PointAt(0), Point(0, 3));
}

TEST_F(CurveLimits, ASpanOfZeroGoesByOnes) {
  design.ActualSpanDiagonals = 0;

  GenerateCurve(program, 3);

  EXPECT_EQ(Points(), 21U);
  EXPECT_EQ(Columns(), 22U);
  EXPECT_EQ(PointAt(0), Point(-10, 3));
  EXPECT_EQ(LastPoint(), Point(10, 3));
  EXPECT_THAT(platform.boxes.Texts(), IsEmpty());
}

TEST_F(CurveLimits, ANegativeSpanKeepsItsLimitsAndGoesByTheStepOfThree) {
  design.ActualSpanDiagonals = -5;

  GenerateCurve(program, 3);

  EXPECT_EQ(Points(), 67U);
  EXPECT_EQ(Columns(), 69U);
  EXPECT_EQ(PointAt(0), Point(-15, 3));
  EXPECT_EQ(LastPoint(), Point(4.80000639F, 3));
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Lower limit for IntersectionSpan adjusted > 0"));
  EXPECT_EQ(design.ActualSpanDiagonals, -5.0F);
}

// So far from zero the steps are rounded down, and more of them fit in than there are columns.
TEST_F(CurveLimits, ASpanWithMorePointsThanColumnsFails) {
  design.ActualSpanDiagonals = -3000000;

  EXPECT_EQ(ErrorOf(3), 9);
}

TEST_F(CurveLimits, AHeightWithoutAFallAngleFails) {
  design.RockFallAngle = 0;

  EXPECT_EQ(ErrorOf(4), 11);
}

TEST_F(CurveLimits, AHeightOverANarrowEntryIsAnEmptyCurveOrFails) {
  design.EntryWidth = 2.2F;
  GenerateCurve(program, 4);
  EXPECT_EQ(Points(), 0U);
  EXPECT_EQ(Columns(), 2U);

  design.EntryWidth = 1;
  EXPECT_EQ(ErrorOf(4), 9);
}

TEST_F(CurveLimits, AnAngleOfZeroIsOnePointInTwoColumns) {
  design.RockFallAngle = 0;

  GenerateCurve(program, 6);
  EXPECT_EQ(Points(), 1U);
  EXPECT_EQ(Columns(), 2U);
  EXPECT_EQ(PointAt(0), Point(0, 12.96F));

  GenerateCurve(program, 9);
  EXPECT_EQ(Points(), 1U);
  EXPECT_EQ(Columns(), 2U);
  EXPECT_EQ(PointAt(0), Point(0, 291.600006F));
}

TEST_F(CurveLimits, AnIntersectionHeightUnderVerticalSidesEndsAtTheEntryWidth) {
  design.RockFallAngle = 0;

  GenerateCurve(program, 7);

  EXPECT_EQ(Points(), 37U);
  EXPECT_EQ(PointAt(0), Point(2, 72.9000015F));
  EXPECT_EQ(LastPoint(), Point(20, 729));
}

TEST_F(CurveLimits, MorePointsThanCanBeNumberedFail) {
  design.EntryWidth = 50000;

  EXPECT_EQ(ErrorOf(5), 6);
}

TEST_F(CurveLimits, ACurveThatDoesNotExistFails) {
  EXPECT_EQ(ErrorOf(-1), 9);
  EXPECT_EQ(ErrorOf(10), 9);
}

TEST_F(CurveLimits, ACurveThatFailsBeforeItsFirstPointLeavesTheOneBefore) {
  GenerateCurve(program, 3);
  design.CMRR = 95;

  EXPECT_EQ(ErrorOf(0), 9);

  EXPECT_EQ(program.curve.CurveIndex, 3);
  EXPECT_EQ(Points(), 4U);
}

}  // namespace
}  // namespace orby::test
