// The point of the design on its curves, and what the curves are compared with.
#include <gmock/gmock.h>

#include <array>
#include <cmath>

#include "engine/curve_bench.h"

namespace orby::test {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

struct MarksOfCurves : CurveBench {
  Point Own(Integer index) const {
    const auto own = DesignPoint(design, index).value();
    return {own.X, own.Y};
  }
};

TEST_F(MarksOfCurves, HaveTheDesignWhereTheReportHasIt) {
  constexpr double Inputs[] = {45, 400, 1, 60};
  for (Integer index = 0; index < 4; ++index) {
    EXPECT_EQ(Own(index).first, Inputs[index]) << index;
    EXPECT_NEAR(Own(index).second, 7.606839, 1e-6) << index;
  }
}

TEST_F(MarksOfCurves, HaveTheDesignOnTheSweptCurve) {
  const std::array<std::size_t, 10> columns{5, 5, 5, 0, 12, 12, 30, 12, 40, 30};
  for (const Integer index : std::initializer_list<Integer>{1, 4, 5, 6, 7, 8, 9}) {
    Generate(index);
    const Point swept = PointAt(columns[static_cast<std::size_t>(index)]);
    EXPECT_NEAR(Own(index).first, swept.first, 1e-4F * std::abs(swept.first)) << index;
    EXPECT_NEAR(Own(index).second, swept.second, 1e-4F * std::abs(swept.second)) << index;
  }
}

TEST_F(MarksOfCurves, AreInTheUnitsOfTheDesign) {
  UseMetricDesign();

  EXPECT_NEAR(Own(1).first, 150, 0.001);
  EXPECT_NEAR(Own(1).second, 10.20366, 0.0001);
  EXPECT_NEAR(Own(4).second, 335.118, 0.001);
}

TEST_F(MarksOfCurves, HaveALimitedHeightWhereTheAngleLimitsIt) {
  design.Entries.RockLoadHeight = 40;

  EXPECT_NEAR(Own(4).first, 17.32051, 0.0001);  // 10 / tan(30 degrees)
}

TEST_F(MarksOfCurves, HaveNoDesignThatCannotBeComputed) {
  design.Place.ActualSpanDiagonals = 1e30F;

  EXPECT_EQ(DesignPoint(design, 3), std::nullopt);
  EXPECT_EQ(ErrorNumberOf([this] { DesignPoint(design, 10); }), 9);
}

TEST_F(MarksOfCurves, CompareTheSuggestedSupportWithTheActualOne) {
  design.Primary.Analysed = 1;
  const auto references = ReferencesOf(design, 9.94F, 1);

  ASSERT_THAT(references, SizeIs(1));
  EXPECT_EQ(references[0].What, ReferenceKind::ActualPSUP);
  EXPECT_EQ(references[0].Value, 9.94F);
  EXPECT_FALSE(references[0].IsOfX);
}

TEST_F(MarksOfCurves, CompareTheSpanWithTheSuggestedOne) {
  design.Primary.Analysed = 0;
  const auto references = ReferencesOf(design, 9.94F, 3);

  ASSERT_THAT(references, SizeIs(1));
  EXPECT_EQ(references[0].What, ReferenceKind::SuggestedSpan);
  EXPECT_TRUE(references[0].IsOfX);
  EXPECT_FLOAT_EQ(references[0].Value, 63.2F);
}

TEST_F(MarksOfCurves, CompareTheRockLoadWithTheCapacitiesInUse) {
  design.Entries.Analysed = 1;
  design.Entries.Cable.Use = 1;
  design.Entries.Cable.SupportCap = 10.6F;
  design.Entries.Truss.Use = 0;
  design.Entries.Truss.SupportCap = 4;
  design.Entries.Bolt.Use = 1;
  design.Entries.Bolt.SupportCap = 0;
  design.Intersections.Analysed = 1;
  design.Intersections.Standing.Use = 1;
  design.Intersections.Standing.SupportCap = 264;

  const auto entries = ReferencesOf(design, {}, 5);
  ASSERT_THAT(entries, SizeIs(1));
  EXPECT_EQ(entries[0].What, ReferenceKind::Cables);
  EXPECT_EQ(entries[0].Value, 10.6F);

  const auto intersections = ReferencesOf(design, {}, 9);
  ASSERT_THAT(intersections, SizeIs(1));
  EXPECT_EQ(intersections[0].What, ReferenceKind::StandingSupports);
}

TEST_F(MarksOfCurves, CompareWithNothingThatIsNotAnalysed) {
  design.Primary.Analysed = 0;
  design.Entries.Analysed = 0;
  design.Entries.Cable.Use = 1;
  design.Entries.Cable.SupportCap = 10.6F;

  EXPECT_THAT(ReferencesOf(design, 9.94F, 0), IsEmpty());
  EXPECT_THAT(ReferencesOf(design, 9.94F, 4), IsEmpty());
}

}  // namespace
}  // namespace orby::test
