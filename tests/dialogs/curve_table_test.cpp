#include "dialogs/curve_table.h"

#include <gmock/gmock.h>

namespace orby::test {
namespace {

ChartSeries Points(std::vector<double> x, std::vector<double> y) {
  ChartSeries series;
  series.x = std::move(x);
  series.y = std::move(y);
  return series;
}

TEST(ATableOfACurve, HasAHeaderWithUnitsAndARecordForEachPoint) {
  EXPECT_EQ(CurveTable("Depth of Cover (ft)", "Suggested PSUP", {Points({200, 240.5F}, {3.25, 0.1F})}),
            "Depth of Cover (ft),Suggested PSUP\r\n200,3.25\r\n240.5,0.1\r\n");
}

TEST(ATableOfACurve, HasNumbersOfSevenDigits) {
  EXPECT_EQ(CurveTable("x", "y", {Points({1234567.5F, 1.0F / 3}, {1e20F, -2.0F / 3})}),
            "x,y\r\n1234568,1E+20\r\n0.3333333,-0.6666667\r\n");
}

TEST(ATableOfACurve, NamesKeptCurvesAndQuotesTheirNames) {
  ChartSeries kept = Points({100}, {2});
  kept.isKept = true;
  kept.legend = "Kept 1: a \"b\"";

  EXPECT_EQ(CurveTable("Angle (deg)", "Load (tons)", {Points({10, 20}, {5, 6}), kept}),
            "Angle (deg),Load (tons),Angle (deg),\"Load (tons), Kept 1: a \"\"b\"\"\"\r\n"
            "10,5,100,2\r\n"
            "20,6,,\r\n");
}

TEST(ATableOfACurve, WithoutPointsHasOnlyItsHeader) { EXPECT_EQ(CurveTable("x", "y", {Points({}, {})}), "x,y\r\n"); }

}  // namespace
}  // namespace orby::test
