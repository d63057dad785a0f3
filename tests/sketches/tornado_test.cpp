// Tornado charts.
#include "sketches/tornado.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace orby::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::SizeIs;

constexpr SheetSize TornadoSheet{600, 400};

Tornado TwoBars() {
  return {"Suggested PSUP", 10, "10.000", {{"CMRR", 14, 6, "14.000", "6.000"}, {"Depth", 9, 11, "9.000", "11.000"}}};
}

struct Extent {
  double Left = 0;
  double Right = 0;
};

// Returns the bars of a colour from above.
std::vector<Extent> BarsOf(const Sketch& sketch, Ink ink) {
  std::vector<Extent> bars;
  for (const SceneOutline& outline : sketch.Picture.Outlines) {
    if (outline.Inside.Colour != ink || outline.Steps.size() != 5) continue;
    const double width = outline.Steps[1].To.X - outline.Steps[0].To.X;
    if (std::abs(width) > 20) bars.push_back({outline.Steps[0].To.X, outline.Steps[1].To.X});
  }
  return bars;
}

TEST(TornadoChart, DrawsEachBarFromTheFigureOfTheDesignToItsEnds) {
  const Sketch sketch = TornadoSketch(TwoBars(), TornadoSheet);

  const std::vector<Extent> low = BarsOf(sketch, Ink::FirstKept);
  const std::vector<Extent> high = BarsOf(sketch, Ink::Curve);
  ASSERT_THAT(low, SizeIs(2));
  ASSERT_THAT(high, SizeIs(2));
  const double centre = low[0].Left;
  EXPECT_DOUBLE_EQ(high[0].Right, centre) << "both halves meet at the figure of the design";
  EXPECT_DOUBLE_EQ(low[1].Right, centre);
  EXPECT_NEAR(low[0].Right - low[0].Left, 4 * (low[1].Right - low[1].Left), 1e-9) << "4 to 1";
}

TEST(TornadoChart, TellsItsBarsInWords) {
  EXPECT_THAT(TornadoSketch(TwoBars(), TornadoSheet).Facts,
              Contains("CMRR: 14.000 at the low end, 6.000 at the high end"));
}

TEST(TornadoChart, LeavesOutWhatHasNoRoom) {
  Tornado tornado = TwoBars();
  tornado.Bars.assign(100, tornado.Bars.front());

  const Sketch sketch = TornadoSketch(tornado, TornadoSheet);

  EXPECT_LT(BarsOf(sketch, Ink::Curve).size(), 30U);
  EXPECT_THAT(sketch.Facts.back(), testing::EndsWith(" more are not drawn"));
}

TEST(TornadoChart, MayHaveNoBars) {
  const Sketch sketch = TornadoSketch({"Suggested PSUP", 10, "10.000", {}}, TornadoSheet);

  EXPECT_THAT(BarsOf(sketch, Ink::Curve), SizeIs(0));
}

TEST(TornadoChart, StaysInsideItsSheet) {
  for (const SheetSize& sheet : {TornadoSheet, SheetSize{40, 30}, SheetSize{1, 1}}) {
    const Scene picture = TornadoSketch(TwoBars(), sheet).Picture;
    for (const SceneOutline& outline : picture.Outlines) {
      for (const PathStep& step : outline.Steps) {
        EXPECT_GE(step.To.X, 0);
        EXPECT_LE(step.To.X, sheet.Width);
        EXPECT_LE(step.To.Y, sheet.Height);
      }
    }
  }
}

}  // namespace
}  // namespace orby::test
