// The ten curves of the initial designs of a new project.
#include "engine/curves.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/curve_bench.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

struct CurveRow {
  Integer index;
  std::size_t points;
  std::size_t columns;
  CurveBench::Point first;
  CurveBench::Point middle;
  CurveBench::Point last;
};

const CurveRow EnglishRows[] = {
    {0, 9, 10, {35, 15.8481064F}, {43, 8.95205307F}, {51, 4.13639688F}},
    {1, 11, 12, {200, 4.51441479F}, {400, 7.6068387F}, {600, 9.41579056F}},
    {2, 10, 12, {0.5F, 3.80341935F}, {1.00000012F, 7.60683966F}, {1.40000021F, 10.6495762F}},
    {3, 4, 5, {50, 5.28252697F}, {62, 8.12241364F}, {68, 9.77056122F}},
    {4, 31, 33, {2, 3.05293846F}, {9.5F, 11.169425F}, {17, 14.0248079F}},
    {5, 25, 26, {14, 6.07901621F}, {20, 9.96701622F}, {26, 13.8550158F}},
    {6, 61, 62, {15, 11.5709515F}, {30, 9.96701622F}, {45, 7.77600002F}},
    {7, 33, 35, {2, 65.2516556F}, {10, 202.091324F}, {18, 223.207916F}},
    {8, 81, 82, {40, 63.377636F}, {60, 183.050446F}, {80, 367.523254F}},
    {9, 61, 62, {15, 236.637726F}, {30, 183.050446F}, {45, 126.957504F}},
};

const CurveRow MetricRows[] = {
    {0, 9, 11, {35, 20.0601349F}, {43, 11.8125229F}, {51, 6.05304575F}},
    {1, 11, 12, {75, 6.50515175F}, {149.999985F, 10.2036591F}, {224.999954F, 12.3671474F}},
    {2, 10, 12, {0.5F, 5.10183001F}, {1.00000012F, 10.203661F}, {1.40000021F, 14.2851257F}},
    {3, 4, 5, {16.9519997F, 7.33057213F}, {20.9519997F, 11.1981668F}, {22.9519997F, 13.4380732F}},
    {4, 32, 33, {0.609600008F, 89.1301422F}, {3.0480001F, 338.368439F}, {5.33400011F, 416.134735F}},
    {5, 25, 26, {4.34000015F, 195.609146F}, {6.16880035F, 332.778259F}, {7.99760008F, 469.947327F}},
    {6, 61, 62, {15, 404.738251F}, {30, 335.118408F}, {45, 240.0159F}},
    {7, 37, 38, {0.609600008F, 688.707703F}, {3.35279989F, 2315.31396F}, {6.09600019F, 2551.7207F}},
    {8, 81, 82, {12.1920004F, 573.67688F}, {18.2880001F, 1755.73389F}, {24.3840008F, 3634.60986F}},
    {9, 61, 62, {15, 2962.20435F}, {30, 2213.02954F}, {45, 1468.11682F}},
};

struct Curves : CurveBench {
  void ExpectCurve(const CurveRow& row) {
    SCOPED_TRACE(testing::Message() << "curve " << row.index);
    Generate(row.index);

    ASSERT_EQ(Points(), row.points);
    EXPECT_EQ(sweep.Points.CurvePoints[0].size(), row.columns);
    EXPECT_EQ(sweep.Points.CurvePoints[1].size(), row.columns);
    EXPECT_EQ(PointAt(0), row.first);
    EXPECT_EQ(PointAt(row.points / 2), row.middle);
    EXPECT_EQ(LastPoint(), row.last);
  }
};

TEST_F(Curves, AreComputedForTheEnglishDefaults) {
  for (const auto& row : EnglishRows) ExpectCurve(row);
}

TEST_F(Curves, AreInMetricUnitsForTheMetricDefaults) {
  UseMetricDesign();

  for (const auto& row : MetricRows) ExpectCurve(row);
}

TEST_F(Curves, OfTheRatingHaveAStepOfTwo) {
  Generate(0);

  EXPECT_THAT(sweep.Points.CurvePoints[0], ElementsAre(35, 37, 39, 41, 43, 45, 47, 49, 51, 0));
  EXPECT_THAT(sweep.Points.CurvePoints[1], ElementsAre(15.8481064F, 13.8288212F, 12.0343914F, 10.4197226F, 8.95205307F,
                                                       7.6068387F, 6.36520863F, 5.21234417F, 4.13639688F, 0));
}

TEST_F(Curves, OfTheDepthHaveAStepOfATenthOfIt) {
  Generate(1);

  EXPECT_THAT(sweep.Points.CurvePoints[0], ElementsAre(200, 240, 280, 320, 360, 400, 440, 480, 520, 560, 600, 0));
  EXPECT_THAT(sweep.Points.CurvePoints[1],
              ElementsAre(4.51441479F, 5.32782888F, 6.01556063F, 6.61130047F, 7.13678074F, 7.6068387F, 8.03205776F,
                          8.4202528F, 8.7773571F, 9.10798454F, 9.41579056F, 0));
}

// The sum of tenths in single precision is slightly above 1.5, so the last point is missing.
TEST_F(Curves, OfTheStabilityFactorEndOneStepBeforeTheirLimit) {
  Generate(2);

  EXPECT_THAT(sweep.Points.CurvePoints[0],
              ElementsAre(0.5F, 0.600000024F, 0.700000048F, 0.800000072F, 0.900000095F, 1.00000012F, 1.10000014F,
                          1.20000017F, 1.30000019F, 1.40000021F, 0, 0));
}

TEST_F(Curves, OfTheSpanHaveAStepOfATenthOfIt) {
  Generate(3);

  EXPECT_THAT(sweep.Points.CurvePoints[0], ElementsAre(50, 56, 62, 68, 0));
  EXPECT_THAT(sweep.Points.CurvePoints[1], ElementsAre(5.28252697F, 6.6264019F, 8.12241364F, 9.77056122F, 0));
}

TEST_F(Curves, OfTheRatingReportThatTheyWereTrimmed) {
  Generate(0);

  EXPECT_EQ(sweep.Notice, CurveNotice::RatingLimitTrimmed);
}

TEST_F(Curves, OtherThanOfTheRatingReportNothing) {
  for (Integer index = 1; index < 10; ++index) {
    Generate(index);
    EXPECT_EQ(sweep.Notice, std::nullopt) << index;
  }
}

TEST_F(Curves, OfIntersectionsUseTheHeightAndAngleOfTheEntry) {
  design.Intersections.RockLoadHeight = 3;
  design.Intersections.RockFallAngle = 10;
  design.Intersections.RockFallAngleXcut = 50;

  Generate(8);

  EXPECT_EQ(PointAt(40), Point(60, 183.050446F));
}

// At the narrowest entry the angle allows 12.1 ft. At wider entries it would allow the 15 ft again.
TEST_F(Curves, OfTheWidthKeepALimitedHeight) {
  design.Entries.RockLoadHeight = 15;

  Generate(5);

  EXPECT_EQ(PointAt(0), Point(14, 6.87450933F));
  EXPECT_EQ(PointAt(12), Point(20, 12.7669468F));
  EXPECT_EQ(LastPoint(), Point(26, 18.6593838F));
}

TEST_F(Curves, OfTheAngleAreLimitedToTheTriangle) {
  design.Entries.RockLoadHeight = 15;

  Generate(6);

  EXPECT_EQ(PointAt(0), Point(15, 19.416626F));
  EXPECT_EQ(PointAt(30), Point(30, 13.777791F));
  EXPECT_EQ(LastPoint(), Point(45, 8.10000038F));
}

TEST_F(Curves, DoNotChangeTheDesign) {
  design.Entries.RockLoadHeight = 15;

  for (Integer index = 0; index < 10; ++index) Generate(index);

  EXPECT_EQ(design.Entries.RockLoadHeight, 15.0F);
  EXPECT_EQ(design.Place.CMRR, 45);
  EXPECT_EQ(design.Place.DepthofCover, 400.0F);
  EXPECT_EQ(design.Place.ActualSpanDiagonals, 60.0F);
  EXPECT_EQ(design.Place.EntryWidth, 20.0F);
  EXPECT_EQ(design.Primary.StabilityFactor, 1.0F);
  EXPECT_EQ(design.Entries.RockFallAngle, 30.0F);
}

TEST(CurveSubjects, NameTheSweptInputAndTheFigure) {
  const CurveSubject& depth = SubjectOfCurve(1);
  const CurveSubject& angle = SubjectOfCurve(9);

  EXPECT_EQ(depth.Name, "Suggested PSUP vs Depth of Cover");
  EXPECT_EQ(depth.Independent, "Depth of Cover");
  EXPECT_EQ(depth.Figure, CurveFigure::Support);
  EXPECT_EQ(angle.Name, "Rock Load vs Roof Fall Angle (Intersections)");
  EXPECT_EQ(angle.Independent, "Roof Fall Angle");
  EXPECT_EQ(angle.Figure, CurveFigure::IntersectionLoad);
}

TEST(CurveSubjects, OutsideTheTenCurvesAreRefused) {
  EXPECT_EQ(ErrorNumberOf([] { SubjectOfCurve(-1); }), 9);
  EXPECT_EQ(ErrorNumberOf([] { SubjectOfCurve(10); }), 9);
}

}  // namespace
}  // namespace orby::test
