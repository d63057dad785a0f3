// The charts of what a figure depends on, on the design of a new project.
#include "dialogs/matters_charts.h"

#include "dialogs/parameters_fixture.h"

namespace orby::test {
namespace {

using testing::SizeIs;

struct ASpiderOfADesign : AParametersDialog {
  Spider Of(const GivenRanges& ranges = {}) {
    const FigureEffects effects = EffectsOn(Project(), program.session.catalogs, Suggested(), 0.1, ranges);
    return SpiderOf({Project(), program.session.catalogs, Suggested(), effects});
  }
  const Design& Project() const { return program.project.WorkParms; }
  const StudiedFigure& Suggested() const {
    for (const StudiedFigure* figure : FiguresInUse(Project())) {
      if (figure->Key == "suggested-psup") return *figure;
    }
    throw std::logic_error("no suggested PSUP");
  }
  const DesignNumber& Depth() const {
    for (const DesignNumber* number : NumbersInUse(Project())) {
      if (NameOf(*number) == "Depth of Cover") return *number;
    }
    throw std::logic_error("no depth");
  }
  static const SpiderLine& DepthIn(const Spider& spider) {
    return *std::ranges::find(spider.Lines, "Depth of Cover", &SpiderLine::Name);
  }
};

TEST_F(ASpiderOfADesign, HasTheFiguresOfTheTableAtTheEndsAndOfTheDesignInTheMiddle) {
  const Spider spider = Of();

  const SpiderLine& depth = DepthIn(spider);
  ASSERT_THAT(depth.Points, SizeIs(21));
  EXPECT_EQ(depth.Points[0].X, -100);
  EXPECT_EQ(depth.Points[10].X, 0);
  EXPECT_EQ(depth.Points[20].X, 100);
  EXPECT_EQ(EffectText({.Value = ToSingle(depth.Points[0].Y)}), depth.LowText);
  EXPECT_EQ(depth.Points[10].Y, spider.Present);
  EXPECT_EQ(EffectText({.Value = ToSingle(depth.Points[20].Y)}), depth.HighText);
  for (std::size_t i = 1; i < 21; ++i) EXPECT_GT(depth.Points[i].Y, depth.Points[i - 1].Y) << i;
}

TEST_F(ASpiderOfADesign, HasNoLinesOfNumbersWithoutEffect) {
  for (const SpiderLine& line : Of().Lines) EXPECT_NE(line.LowText, line.HighText) << line.Name;
}

// A new design is at 400 ft.
TEST_F(ASpiderOfADesign, KeepsTheDesignInTheMiddleOfAnUnevenRange) {
  const Spider spider = Of({{&Depth(), {300, 2000}}});

  const SpiderLine& depth = DepthIn(spider);
  ASSERT_THAT(depth.Points, SizeIs(21));
  EXPECT_EQ(depth.Points[10].X, 0);
  EXPECT_EQ(depth.Points[10].Y, spider.Present);
}

TEST_F(ASpiderOfADesign, GoesToOneSideIfTheRangeIsBeyondTheDesign) {
  const Spider deeper = Of({{&Depth(), {900, 2000}}});
  const Spider shallower = Of({{&Depth(), {100, 200}}});

  ASSERT_THAT(DepthIn(deeper).Points, SizeIs(11));
  EXPECT_EQ(DepthIn(deeper).Points.front().X, 0);
  EXPECT_EQ(DepthIn(deeper).Points.front().Y, deeper.Present);
  EXPECT_EQ(EffectText({.Value = ToSingle(DepthIn(deeper).Points.back().Y)}), DepthIn(deeper).HighText);
  ASSERT_THAT(DepthIn(shallower).Points, SizeIs(11));
  EXPECT_EQ(DepthIn(shallower).Points.back().X, 0);
  EXPECT_EQ(DepthIn(shallower).Points.back().Y, shallower.Present);
}

}  // namespace
}  // namespace orby::test
