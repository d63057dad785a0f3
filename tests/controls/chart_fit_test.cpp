#include "controls/chart_fit.h"

#include <gmock/gmock.h>

#include "controls/plain_form.h"

namespace orby::test {
namespace {

using testing::DoubleEq;
using testing::DoubleNear;
using testing::ElementsAre;

struct AChart : testing::Test {
  ChartSeries Line(std::vector<double> x, std::vector<double> y) const {
    ChartSeries series;
    series.x = std::move(x);
    series.y = std::move(y);
    return series;
  }

  PlainForm form;
  Chart chart{form, "graph1"};
};

void ExpectRange(const ChartRange& range, double lower, double upper) {
  EXPECT_THAT(range.lower, DoubleNear(lower, 1e-9));
  EXPECT_THAT(range.upper, DoubleNear(upper, 1e-9));
}

TEST_F(AChart, ShowsAllItsSeriesWithAMargin) {
  chart.SetSeries({Line({0, 50}, {1, 2}), Line({100}, {6})});

  const ChartExtent extent = WholeExtent(chart);

  ExpectRange(extent.x, -4, 104);
  ExpectRange(extent.y, 0.8, 6.2);
}

TEST_F(AChart, ShowsThePointOfTheDesignAndNearLinesToo) {
  chart.SetSeries({Line({0, 50}, {1, 2})});
  chart.SetOwn(ChartPoint{100, 1.5, "This design"});
  chart.SetReferences({{false, 6, "Actual PSUP 6.0"}, {true, -100, "Suggested sum"}, {false, 900, "far"}});

  const ChartExtent extent = WholeExtent(chart);

  ExpectRange(extent.x, -108, 108);
  ExpectRange(extent.y, 0.8, 6.2);
}

TEST_F(AChart, OfOnePointShowsItsSurroundings) {
  chart.SetSeries({Line({0}, {4e6})});

  const ChartExtent extent = WholeExtent(chart);

  ExpectRange(extent.x, -1.08, 1.08);
  ExpectRange(extent.y, 4e6 - 4320, 4e6 + 4320);
}

TEST_F(AChart, WithoutPointsShowsSomeRange) { ExpectRange(WholeExtent(chart).x, -0.08, 2.08); }

TEST_F(AChart, OnlyNamesALineBeyondFourTimesItsValues) {
  chart.SetSeries({Line({10, 20}, {-5, 2})});

  EXPECT_TRUE(IsNear(chart, {false, 20, ""}));
  EXPECT_TRUE(IsNear(chart, {false, -20, ""}));
  EXPECT_FALSE(IsNear(chart, {false, 20.1, ""}));
  EXPECT_TRUE(IsNear(chart, {true, 80, ""}));
  EXPECT_FALSE(IsNear(chart, {true, 80.1, ""}));
}

TEST_F(AChart, HasAFreeCornerBesideItsCurve) {
  chart.SetSeries({Line({0, 1, 2}, {0, 1, 2})});
  EXPECT_FALSE(FreeCorner(chart, WholeExtent(chart)).isRight);
  EXPECT_TRUE(FreeCorner(chart, WholeExtent(chart)).isTop);

  chart.SetSeries({Line({0, 1, 2}, {2, 1, 0})});
  EXPECT_TRUE(FreeCorner(chart, WholeExtent(chart)).isRight);
  EXPECT_TRUE(FreeCorner(chart, WholeExtent(chart)).isTop);

  chart.SetReferences({{true, 1.9, "Suggested sum of diagonals"}});
  EXPECT_FALSE(FreeCorner(chart, WholeExtent(chart)).isRight);
  EXPECT_FALSE(FreeCorner(chart, WholeExtent(chart)).isTop);
}

TEST_F(AChart, NamesThePointOfTheDesignBesideTheCurve) {
  struct Row {
    std::vector<double> y;
    double own;
    bool isRight;
    bool isTop;
  };
  for (const Row& row : {Row{{0, 2}, 2, false, true}, Row{{0, 2}, 0, true, false}, Row{{2, 0}, 2, false, false},
                         Row{{2, 0}, 0, true, true}}) {
    chart.SetSeries({Line({0, 2}, row.y)});
    chart.SetOwn(ChartPoint{row.own, 1, "This design"});

    const ChartCorner side = SideOfOwnName(chart, WholeExtent(chart));

    EXPECT_EQ(side.isRight, row.isRight) << row.own << " on a curve from " << row.y[0];
    EXPECT_EQ(side.isTop, row.isTop) << row.own << " on a curve from " << row.y[0];
  }
}

TEST_F(AChart, HasALegendIfTheUserWantsItOrACurveIsKept) {
  EXPECT_FALSE(chart.HasLegend());

  ChartSeries kept;
  kept.isKept = true;
  chart.SetSeries({kept});
  EXPECT_TRUE(chart.HasLegend());

  ChartSeries numbered;
  numbered.number = 1;
  numbered.own = ChartPoint{400, 9, "panel 3"};
  chart.SetSeries({numbered});
  EXPECT_TRUE(chart.HasLegend());
  EXPECT_TRUE(HasLegendBelow(chart));
  EXPECT_GE(WholeExtent(chart).y.upper, 9);

  chart.SetSeries({});
  chart.SetLegendShown(true);
  EXPECT_TRUE(chart.HasLegend());
}

TEST(TicksOfAnAxis, AreRoundNumbersInsideTheRange) {
  EXPECT_THAT(TicksIn({0, 10}, 6), ElementsAre(0, 2, 4, 6, 8, 10));
  EXPECT_THAT(TicksIn({195, 305}, 9), ElementsAre(200, 220, 240, 260, 280, 300));
  EXPECT_THAT(TicksIn({-0.3, 0.45}, 5), ElementsAre(DoubleEq(-0.2), DoubleEq(0), DoubleEq(0.2), DoubleEq(0.4)));
  EXPECT_THAT(TicksIn({1.05e-7, 1.95e-7}, 11),
              ElementsAre(DoubleEq(1.1e-7), DoubleEq(1.2e-7), DoubleEq(1.3e-7), DoubleEq(1.4e-7), DoubleEq(1.5e-7),
                          DoubleEq(1.6e-7), DoubleEq(1.7e-7), DoubleEq(1.8e-7), DoubleEq(1.9e-7)));
}

}  // namespace
}  // namespace orby::test
