// Maps of a figure over two numbers.
#include "sketches/map_sketch.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>

namespace orby::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;

constexpr SheetSize MapSheet{720, 440};

// A figure from 0 to 40 that grows with both numbers.
DesignMap Slope() {
  DesignMap map;
  map.Title = "Suggested PSUP";
  map.Across = {"Depth of Cover (ft)", 200, 600};
  map.Up = {"CMRR", 25, 65};
  map.Figure = "Suggested PSUP";
  map.Grid = {21, 21, {}};
  for (int row = 0; row < 21; ++row) {
    for (int column = 0; column < 21; ++column) map.Grid.Values.push_back(row + column);
  }
  map.Blank = "cannot be computed";
  map.Own = ScenePoint{10, 10};
  return map;
}

std::vector<std::string> TextsIn(const Sketch& sketch) {
  std::vector<std::string> texts;
  for (const SceneLabel& label : sketch.Picture.Labels) texts.push_back(label.Text);
  return texts;
}

TEST(MapOfAFigure, HasContourLinesAtRoundValues) {
  const MapSketch map(Slope());

  EXPECT_THAT(map.Levels(), ElementsAre(5, 10, 15, 20, 25, 30, 35));
  EXPECT_THAT(map.On(MapSheet).Facts, Contains("Contour lines at 5, 10, 15, 20, 25, 30, 35"));
  EXPECT_THAT(map.On(MapSheet).Facts, Contains("From 0 to 40"));
}

TEST(MapOfAFigure, WritesEachValueOnItsLineAndInTheLegend) {
  const std::vector<std::string> texts = TextsIn(MapSketch(Slope()).On(MapSheet));

  for (const char* level : {"10", "15", "20"}) EXPECT_EQ(std::ranges::count(texts, level), 2) << level;
  EXPECT_THAT(texts, IsSupersetOf({"Depth of Cover (ft)", "CMRR", "200", "600", "this design"}));
}

TEST(MapOfAFigure, HasWholeLevelsOfCountedNumbers) {
  DesignMap counted = Slope();
  for (double& value : counted.Grid.Values) value = 3 + value / 16;
  counted.IsCounted = true;

  EXPECT_THAT(MapSketch(counted).Levels(), ElementsAre(4, 5));
}

TEST(MapOfAFigure, HasNoLevelsAboveTheMost) {
  DesignMap map = Slope();
  map.Most = 20;

  EXPECT_THAT(MapSketch(map).Levels(), ElementsAre(5, 10, 15));
  EXPECT_THAT(MapSketch(map).On(MapSheet).Facts, Contains("From 0 to 20"));
}

TEST(MapOfAFigure, SaysWhyPointsAreBlank) {
  DesignMap gap = Slope();
  EXPECT_THAT(MapSketch(gap).On(MapSheet).Facts, Not(Contains("blank: cannot be computed")));
  gap.Grid.Values[50] = std::numeric_limits<double>::quiet_NaN();

  EXPECT_THAT(MapSketch(gap).On(MapSheet).Facts, Contains("blank: cannot be computed"));
}

TEST(MapOfAFigure, MayHaveNoValueAtAll) {
  DesignMap empty = Slope();
  std::ranges::fill(empty.Grid.Values, std::numeric_limits<double>::quiet_NaN());

  const Sketch sketch = MapSketch(empty).On(MapSheet);

  EXPECT_THAT(sketch.Facts, ElementsAre("Suggested PSUP", "blank: cannot be computed"));
}

TEST(MapOfAFigure, MayBeTheSameEverywhere) {
  DesignMap flat = Slope();
  std::ranges::fill(flat.Grid.Values, 3);

  const MapSketch map(flat);

  EXPECT_TRUE(map.Levels().empty());
  EXPECT_THAT(TextsIn(map.On(MapSheet)), Contains("3")) << "beside the only colour";
}

TEST(MapOfAFigure, SaysThatTheDesignIsOutside) {
  DesignMap map = Slope();
  map.Own.reset();

  EXPECT_THAT(MapSketch(map).On(MapSheet).Facts, Contains("this design is outside the chart"));
}

TEST(MapOfAFigure, NamesBothSidesOfTheLineThatTurns) {
  DesignMap map = Slope();
  map.Turn = {{{{{5, 0}, {5, 10}, {5, 20}}, false}}, "Actual PSUP turns", "holds", "falls short"};

  const Sketch sketch = MapSketch(map).On(MapSheet);

  EXPECT_THAT(sketch.Facts, Contains("Actual PSUP turns"));
  const auto holds = std::ranges::find(sketch.Picture.Labels, "holds", &SceneLabel::Text);
  const auto falls = std::ranges::find(sketch.Picture.Labels, "falls short", &SceneLabel::Text);
  ASSERT_NE(holds, sketch.Picture.Labels.end());
  ASSERT_NE(falls, sketch.Picture.Labels.end());
  EXPECT_LT(holds->At.X, falls->At.X) << "a line upwards has its left side on the left";
}

TEST(MapOfAFigure, ReadsOutThePointFirst) {
  const Sketch sketch = MapSketch(Slope()).On(MapSheet, MapReading{{4, 4}, "Depth of Cover 280 ft, CMRR 33: 8"});

  EXPECT_EQ(sketch.Facts.front(), "Depth of Cover 280 ft, CMRR 33: 8");
}

TEST(MapOfAFigure, FindsThePointUnderThePointer) {
  const MapSketch map(Slope());
  const Sketch sketch = map.On(MapSheet);
  // The square of the design is in the middle of the map.
  const auto square = std::ranges::find_if(
      sketch.Picture.Outlines, [](const SceneOutline& outline) { return outline.Line.Colour == Ink::OwnPoint; });
  ASSERT_NE(square, sketch.Picture.Outlines.end());
  const ScenePoint corner = square->Steps[0].To;
  const ScenePoint opposite = square->Steps[2].To;

  const auto at = map.PointAt({(corner.X + opposite.X) / 2, (corner.Y + opposite.Y) / 2}, MapSheet);

  ASSERT_TRUE(at);
  EXPECT_NEAR(at->X, 10, 1e-9);
  EXPECT_NEAR(at->Y, 10, 1e-9);
  EXPECT_FALSE(map.PointAt({2, 2}, MapSheet));
}

TEST(MapOfAFigure, StaysInsideAnySheet) {
  DesignMap drawn = Slope();
  drawn.Turn = {ContourLines(drawn.Grid, 17.5), "Actual PSUP turns", "holds", "falls short"};
  const MapSketch map(drawn);
  for (const SheetSize& sheet : {MapSheet, SheetSize{170, 150}, SheetSize{60, 400}, SheetSize{1, 1}}) {
    const Scene picture = map.On(sheet, MapReading{{0, 0}, "here"}).Picture;
    for (const SceneOutline& outline : picture.Outlines) {
      for (const PathStep& step : outline.Steps) {
        EXPECT_GE(step.To.X, 0);
        EXPECT_LE(step.To.X, sheet.Width);
        EXPECT_LE(step.To.Y, sheet.Height);
      }
    }
  }
}

TEST(MapOfAFigure, KeepsItsTextsApart) {
  DesignMap drawn = Slope();
  drawn.Turn = {ContourLines(drawn.Grid, 17.5), "Actual PSUP turns", "holds", "falls short"};
  for (const SheetSize& sheet : {MapSheet, SheetSize{480, 380}, SheetSize{1000, 620}}) {
    const Scene picture = MapSketch(drawn).On(sheet).Picture;
    for (std::size_t i = 0; i < picture.Labels.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        const SceneLabel& one = picture.Labels[i];
        const SceneLabel& other = picture.Labels[j];
        if (one.Side != Anchor::Middle || other.Side != Anchor::Middle || one.Turn != 0 || other.Turn != 0) continue;
        const double room = (WidthOf(one.Text) + WidthOf(other.Text)) / 2;
        const bool isApart = std::abs(one.At.X - other.At.X) >= room || std::abs(one.At.Y - other.At.Y) >= TextSize;
        EXPECT_TRUE(isApart) << one.Text << " and " << other.Text << " on " << sheet.Width;
      }
    }
  }
}

}  // namespace
}  // namespace orby::test
