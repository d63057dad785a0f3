// Curves of unusual designs: limits, adjustments, empty sweeps and sweeps that fail.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "design/field.h"
#include "engine/curve_bench.h"

namespace orby::test {
namespace {

using testing::Each;
using testing::ElementsAre;

struct CurveLimits : CurveBench {};

TEST_F(CurveLimits, ARatingOf40StartsAt35) {
  design.Place.CMRR = 40;

  Generate(0);

  EXPECT_EQ(Points(), 8U);
  EXPECT_EQ(PointAt(0), Point(35, 16.8457603F));
  EXPECT_EQ(LastPoint(), Point(49, 5.54046631F));
  EXPECT_EQ(sweep.Notice, std::nullopt);
}

struct TrimmedRow {
  Single depth;
  std::size_t points;
};
constexpr TrimmedRow TrimmedRows[] = {
    // A sweep from 35 in steps of 2 reaches 51 at 360.18 ft or more, and 37 at 21.83 ft or more.
    {360, 8}, {361, 9}, {360.18158F, 8}, {360.18161F, 9}, {21.8338432F, 1}, {21.8338451F, 2},
};

TEST_F(CurveLimits, ARatingIsTrimmedByTheDepth) {
  for (const auto& [depth, points] : TrimmedRows) {
    design.Place.DepthofCover = depth;

    Generate(0);

    EXPECT_EQ(Points(), points) << depth;
  }
}

struct UpperEndRow {
  Integer index;
  SingleField swept;
  Single value;
  std::size_t points;
};
constexpr UpperEndRow UpperEndRows[] = {
    // In each pair the first sweep just reaches its end, and the second one just does not.
    {1, [](auto& d) { return &d.Place.DepthofCover; }, 340, 11},
    {1, [](auto& d) { return &d.Place.DepthofCover; }, 58, 10},
    {2, [](auto& d) { return &d.Primary.StabilityFactor; }, 1.1F, 11},
    {2, [](auto& d) { return &d.Primary.StabilityFactor; }, 1.15F, 10},
    {3, [](auto& d) { return &d.Place.ActualSpanDiagonals; }, 25.0000057F, 9},
    {3, [](auto& d) { return &d.Place.ActualSpanDiagonals; }, 25.0000019F, 8},
    {5, [](auto& d) { return &d.Place.EntryWidth; }, 20, 25},
    {5, [](auto& d) { return &d.Place.EntryWidth; }, 19.9999962F, 24},
    {6, [](auto& d) { return &d.Entries.RockFallAngle; }, 42.5F, 86},
    {6, [](auto& d) { return &d.Entries.RockFallAngle; }, 29.9999981F, 60},
    {9, [](auto& d) { return &d.Entries.RockFallAngle; }, 42.5F, 86},
    {9, [](auto& d) { return &d.Entries.RockFallAngle; }, 29.9999981F, 60},
};

TEST_F(CurveLimits, ASweepEndsExactlyAtItsUpperLimit) {
  for (const auto& [index, swept, value, points] : UpperEndRows) {
    design = EnglishDesign();
    swept.In(design) = value;

    Generate(index);

    EXPECT_EQ(Points(), points) << "curve " << index << " around " << value;
  }
}

TEST_F(CurveLimits, ARatingAtAnEnormousDepthIsNotTrimmed) {
  design.Place.DepthofCover = 1E12F;

  Generate(0);

  EXPECT_EQ(Points(), 11U);
  EXPECT_EQ(LastPoint(), Point(55, 98.7216949F));
  EXPECT_EQ(sweep.Notice, std::nullopt);
}

TEST_F(CurveLimits, ARatingEndsAt100) {
  design.Place.DepthofCover = 1E12F;
  design.Place.CMRR = 95;

  Generate(0);

  EXPECT_EQ(Points(), 8U);
  EXPECT_EQ(Columns(), 10U);
  EXPECT_EQ(PointAt(0), Point(85, 52.4545937F));
  EXPECT_EQ(LastPoint(), Point(99, 50.5943031F));
}

TEST_F(CurveLimits, ARatingOf91EndsAt99) {
  design.Place.DepthofCover = 1E12F;
  design.Place.CMRR = 91;

  Generate(0);

  EXPECT_EQ(Points(), 10U);
  EXPECT_EQ(Columns(), 12U);
  EXPECT_EQ(LastPoint().first, 99.0F);
}

TEST_F(CurveLimits, ARatingAboveTheTrimmedLimitFailsAfterTheNotice) {
  design.Place.CMRR = 95;

  EXPECT_EQ(ErrorOf(0), 9);
  EXPECT_EQ(sweep.Notice, CurveNotice::RatingLimitTrimmed);
}

TEST_F(CurveLimits, ARatingJustAboveTheTrimmedLimitIsAnEmptyCurve) {
  design.Place.CMRR = 62;
  Generate(0);
  EXPECT_EQ(Points(), 0U);
  EXPECT_THAT(sweep.Points.CurvePoints[0], ElementsAre(0, 0));

  design.Place.CMRR = 64;
  Generate(0);
  EXPECT_EQ(Points(), 0U);
  EXPECT_EQ(Columns(), 1U);

  design.Place.CMRR = 65;
  EXPECT_EQ(ErrorOf(0), 9);
}

TEST_F(CurveLimits, HalfAColumnRoundsToTheEvenNumber) {
  design.Place.CMRR = 26;
  Generate(0);
  EXPECT_EQ(Points(), 1U);
  EXPECT_EQ(Columns(), 2U);
  EXPECT_EQ(PointAt(0), Point(35, 20.1997395F));

  design.Place.CMRR = 28;
  Generate(0);
  EXPECT_EQ(Points(), 2U);
  EXPECT_EQ(Columns(), 4U);
  EXPECT_EQ(PointAt(1), Point(37, 17.156971F));
}

TEST_F(CurveLimits, ARatingWithoutADepthFails) {
  design.Place.DepthofCover = 0;

  EXPECT_EQ(ErrorOf(0), 5);
  EXPECT_EQ(sweep.Notice, std::nullopt);
}

TEST_F(CurveLimits, ADepthOfZeroIsOnePoint) {
  design.Place.DepthofCover = 0;

  Generate(1);

  EXPECT_EQ(Points(), 1U);
  EXPECT_EQ(Columns(), 2U);
  EXPECT_EQ(PointAt(0), Point(0, 0));
}

TEST_F(CurveLimits, ANegativeDepthIsSweptDownward) {
  design.Place.DepthofCover = -400;

  Generate(1);

  EXPECT_THAT(sweep.Points.CurvePoints[0],
              ElementsAre(-200, -240, -280, -320, -360, -400, -440, -480, -520, -560, -600, 0));
  EXPECT_THAT(sweep.Points.CurvePoints[1], Each(0));
}

TEST_F(CurveLimits, AStabilityFactorOfZeroIsOnePoint) {
  design.Primary.StabilityFactor = 0;

  Generate(2);

  EXPECT_EQ(Points(), 1U);
  EXPECT_EQ(Columns(), 2U);
  EXPECT_EQ(PointAt(0), Point(0, 3));
}

TEST_F(CurveLimits, ASpanOfZeroHasAStepOfOne) {
  design.Place.ActualSpanDiagonals = 0;

  Generate(3);

  EXPECT_EQ(Points(), 21U);
  EXPECT_EQ(Columns(), 22U);
  EXPECT_EQ(PointAt(0), Point(-10, 3));
  EXPECT_EQ(LastPoint(), Point(10, 3));
  EXPECT_EQ(sweep.Notice, std::nullopt);
}

TEST_F(CurveLimits, ANegativeSpanKeepsItsLimitsAndHasTheStepOfASpanOfThree) {
  design.Place.ActualSpanDiagonals = -5;

  Generate(3);

  EXPECT_EQ(Points(), 67U);
  EXPECT_EQ(Columns(), 69U);
  EXPECT_EQ(PointAt(0), Point(-15, 3));
  EXPECT_EQ(LastPoint(), Point(4.80000639F, 3));
  EXPECT_EQ(sweep.Notice, CurveNotice::SpanAdjusted);
  EXPECT_EQ(design.Place.ActualSpanDiagonals, -5.0F);
}

// For such large numbers the steps are rounded down, so that more of them fit than there are columns.
TEST_F(CurveLimits, ASpanWithMorePointsThanColumnsFails) {
  design.Place.ActualSpanDiagonals = -3000000;

  EXPECT_EQ(ErrorOf(3), 9);
}

TEST_F(CurveLimits, ASpanWithAsManyPointsAsColumnsIsTheLargestThatWorks) {
  design.Place.ActualSpanDiagonals = -1048572.5F;
  EXPECT_EQ(ErrorOf(3), 9);

  design.Place.ActualSpanDiagonals = -1048571.25F;
  Generate(3);
  EXPECT_EQ(Points(), 69U);
  EXPECT_EQ(Columns(), 69U);
}

TEST_F(CurveLimits, AHeightWithoutAFallAngleFails) {
  design.Entries.RockFallAngle = 0;

  EXPECT_EQ(ErrorOf(4), 11);
}

TEST_F(CurveLimits, AHeightOverANarrowEntryIsAnEmptyCurveOrFails) {
  design.Place.EntryWidth = 2.2F;
  Generate(4);
  EXPECT_EQ(Points(), 0U);
  EXPECT_EQ(Columns(), 2U);

  design.Place.EntryWidth = 1;
  EXPECT_EQ(ErrorOf(4), 9);
}

TEST_F(CurveLimits, AnAngleOfZeroIsOnePointInTwoColumns) {
  design.Entries.RockFallAngle = 0;

  Generate(6);
  EXPECT_EQ(Points(), 1U);
  EXPECT_EQ(Columns(), 2U);
  EXPECT_EQ(PointAt(0), Point(0, 12.96F));

  Generate(9);
  EXPECT_EQ(Points(), 1U);
  EXPECT_EQ(Columns(), 2U);
  EXPECT_EQ(PointAt(0), Point(0, 291.600006F));
}

TEST_F(CurveLimits, AnIntersectionHeightUnderVerticalSidesEndsAtTheEntryWidth) {
  design.Entries.RockFallAngle = 0;

  Generate(7);

  EXPECT_EQ(Points(), 37U);
  EXPECT_EQ(PointAt(0), Point(2, 72.9000015F));
  EXPECT_EQ(LastPoint(), Point(20, 729));
}

struct LongRow {
  Integer index;
  Single width;
  Single angle;
};

TEST_F(CurveLimits, ACurveOf32767ColumnsWorks) {
  const auto columnsOf = [this](const LongRow& row) {
    design.Place.EntryWidth = row.width;
    design.Entries.RockFallAngle = row.angle;
    Generate(row.index);
    return Columns();
  };

  EXPECT_EQ(columnsOf({4, 20, 0.04F}), 28646U);
  EXPECT_EQ(Points(), 28644U);
  EXPECT_EQ(columnsOf({5, 27304, 30}), 32767U);
  EXPECT_EQ(columnsOf({7, 16384.5F, 0.01F}), 32767U);
}

TEST_F(CurveLimits, ACurveOfMoreThan32767ColumnsFails) {
  for (const auto& [index, width, angle] :
       {LongRow{4, 20, 0.03F}, LongRow{5, 27305, 30}, LongRow{5, 50000, 30}, LongRow{7, 16385, 0.01F}}) {
    design.Place.EntryWidth = width;
    design.Entries.RockFallAngle = angle;

    EXPECT_EQ(ErrorOf(index), 6) << "curve " << index << " over " << width;
  }
}

TEST_F(CurveLimits, ACurveThatDoesNotExistFails) {
  EXPECT_EQ(ErrorOf(-1), 9);
  EXPECT_EQ(ErrorOf(10), 9);
}

}  // namespace
}  // namespace orby::test
