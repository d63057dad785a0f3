// Spider charts.
#include "sketches/spider.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>
#include <set>

namespace orby::test {
namespace {

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr SheetSize SpiderSheet{600, 400};
constexpr double NoFigure = std::numeric_limits<double>::quiet_NaN();

// The suggested PSUP of a design rises with the depth and falls with the rating.
Spider TwoLines() {
  return {.Title = "Suggested PSUP",
          .Present = 10,
          .PresentText = "10.000",
          .Lines = {{"CMRR", {{-100, 14}, {0, 10}, {100, 6}}, "14.000", "6.000"},
                    {"Depth of Cover", {{-100, 9}, {0, 10}, {100, 11}}, "9.000", "11.000"}}};
}

// Has lines that all end at the same figure.
Spider ManyLines(std::size_t count) {
  Spider spider = TwoLines();
  spider.Lines.assign(count, spider.Lines.front());
  for (std::size_t i = 0; i < count; ++i) spider.Lines[i].Name = "Number " + std::to_string(i);
  return spider;
}

// Returns the lines from the lowest, the solid ones below the dashed ones.
std::vector<const SceneOutline*> LinesDrawn(const Sketch& sketch) {
  std::vector<const SceneOutline*> lines;
  for (const SceneOutline& outline : sketch.Picture.Outlines) {
    if (outline.Line.Width == 2 && outline.Line.Colour != Ink::OwnPoint) lines.push_back(&outline);
  }
  return lines;
}

std::vector<PathStep::Kind> KindsOf(const SceneOutline& outline) {
  std::vector<PathStep::Kind> kinds;
  for (const PathStep& step : outline.Steps) kinds.push_back(step.What);
  return kinds;
}

const SceneLabel& LabelOf(const Sketch& sketch, const std::string& text) {
  return *std::ranges::find(sketch.Picture.Labels, text, &SceneLabel::Text);
}

bool HasLabel(const Sketch& sketch, const std::string& text) {
  return std::ranges::find(sketch.Picture.Labels, text, &SceneLabel::Text) != sketch.Picture.Labels.end();
}

// Returns the base lines of the names from above.
std::vector<double> NameHeights(const Sketch& sketch) {
  std::vector<double> heights;
  for (const SceneLabel& label : sketch.Picture.Labels) {
    if (label.Text.starts_with("Number ")) heights.push_back(label.At.Y);
  }
  std::ranges::sort(heights);
  return heights;
}

TEST(SpiderChart, DrawsEachLineFromItsLowToItsHighEndThroughTheDesign) {
  const Sketch sketch = SpiderSketch(TwoLines(), SpiderSheet);

  ASSERT_THAT(LinesDrawn(sketch), SizeIs(2));
  const SceneOutline& rating = *LinesDrawn(sketch)[0];
  const SceneOutline& depth = *LinesDrawn(sketch)[1];
  ASSERT_THAT(rating.Steps, SizeIs(3));
  EXPECT_EQ(rating.Steps[1].To, depth.Steps[1].To) << "all lines meet at the design";
  EXPECT_NEAR(rating.Steps[1].To.X - rating.Steps[0].To.X, rating.Steps[2].To.X - rating.Steps[1].To.X, 1e-9);
  const double fall = rating.Steps[1].To.Y - rating.Steps[0].To.Y;
  EXPECT_GT(fall, 50) << "a greater figure is higher on the sheet";
  EXPECT_NEAR(rating.Steps[2].To.Y - rating.Steps[1].To.Y, fall, 1e-9);
  EXPECT_NEAR(depth.Steps[0].To.Y - depth.Steps[1].To.Y, fall / 4, 1e-9) << "1 to 4";
}

TEST(SpiderChart, HasRoundTicksOnBothAxes) {
  const Sketch sketch = SpiderSketch(TwoLines(), SpiderSheet);

  for (const char* text : {"-100", "-50", "0", "50", "100", "6", "8", "10", "12", "14"}) {
    EXPECT_TRUE(HasLabel(sketch, text)) << text;
  }
  const ScenePoint present = LinesDrawn(sketch)[0]->Steps[1].To;
  EXPECT_NEAR(LabelOf(sketch, "0").At.X, present.X, 1e-9);
  EXPECT_NEAR(LabelOf(sketch, "10").At.Y, present.Y, 6);
}

TEST(SpiderChart, NamesItsLinesAtTheirRightEnds) {
  const Sketch sketch = SpiderSketch(TwoLines(), SpiderSheet);

  const SceneLabel& name = LabelOf(sketch, "CMRR");
  const ScenePoint end = LinesDrawn(sketch)[0]->Steps[2].To;
  EXPECT_EQ(name.Side, Anchor::Start);
  EXPECT_GT(name.At.X, end.X);
  EXPECT_NEAR(name.At.Y, end.Y, 8);
}

TEST(SpiderChart, MovesNamesApartThatWouldTouchEachOther) {
  const Sketch sketch = SpiderSketch(ManyLines(8), SpiderSheet);

  const std::vector<double> heights = NameHeights(sketch);
  ASSERT_THAT(heights, SizeIs(8));
  for (std::size_t i = 1; i < heights.size(); ++i) EXPECT_GE(heights[i] - heights[i - 1], 14.9) << i;
  EXPECT_THAT(heights, Each(AllOf(testing::Gt(20), testing::Lt(380))));
}

TEST(SpiderChart, MovesNoNameThatHasRoom) {
  Spider spider = ManyLines(3);
  spider.Lines[0].Points.back().Y = 14;
  const Sketch sketch = SpiderSketch(spider, SpiderSheet);

  const double alone = LinesDrawn(sketch)[1]->Steps[2].To.Y;
  const double together = LinesDrawn(sketch)[0]->Steps[2].To.Y;
  const std::vector<double> heights = NameHeights(sketch);
  EXPECT_NEAR(heights[0], alone + 4.2, 0.1);
  EXPECT_GT(heights[2], heights[1] + 14.9);
  EXPECT_LT(heights[2], together + 20);
}

TEST(SpiderChart, TellsItsLinesApart) {
  const Sketch sketch = SpiderSketch(ManyLines(8), SpiderSheet);

  std::set<std::pair<Ink, bool>> looks;
  for (const SceneOutline* line : LinesDrawn(sketch)) looks.emplace(line->Line.Colour, line->Line.IsDashed);
  EXPECT_THAT(looks, SizeIs(8));
}

TEST(SpiderChart, ShowsALineBelowTheNextOneThatCoincides) {
  const Sketch sketch = SpiderSketch(ManyLines(2), SpiderSheet);

  ASSERT_THAT(LinesDrawn(sketch), SizeIs(2));
  EXPECT_FALSE(LinesDrawn(sketch)[0]->Line.IsDashed);
  EXPECT_TRUE(LinesDrawn(sketch)[1]->Line.IsDashed) << "on top";
}

TEST(SpiderChart, DrawsTheEightMostImportantLines) {
  Spider spider = ManyLines(10);
  spider.More = 3;

  const Sketch sketch = SpiderSketch(spider, SpiderSheet);

  EXPECT_THAT(LinesDrawn(sketch), SizeIs(8));
  EXPECT_TRUE(HasLabel(sketch, "Number 7"));
  EXPECT_FALSE(HasLabel(sketch, "Number 8"));
  EXPECT_EQ(sketch.Facts.back(), "5 more are not drawn");
  EXPECT_TRUE(HasLabel(sketch, "5 more are not drawn"));
}

TEST(SpiderChart, DrawsAsManyLinesAsNamesHaveRoom) {
  const Sketch sketch = SpiderSketch(ManyLines(8), {600, 160});

  EXPECT_THAT(LinesDrawn(sketch), SizeIs(testing::AllOf(testing::Ge(2), testing::Lt(8))));
  EXPECT_EQ(NameHeights(sketch).size(), LinesDrawn(sketch).size());
  EXPECT_THAT(sketch.Facts.back(), testing::EndsWith(" more are not drawn"));
}

TEST(SpiderChart, BreaksALineWhereThereIsNoFigure) {
  Spider spider = TwoLines();
  spider.Lines = {{"CMRR", {{-100, 14}, {-50, NoFigure}, {0, 10}, {100, 6}}, "14.000", "6.000"}};

  const Sketch sketch = SpiderSketch(spider, SpiderSheet);

  ASSERT_THAT(LinesDrawn(sketch), SizeIs(1));
  using enum PathStep::Kind;
  EXPECT_THAT(KindsOf(*LinesDrawn(sketch)[0]), ElementsAre(Move, Move, Line));
}

TEST(SpiderChart, TellsTheDesignAndItsLinesInWords) {
  EXPECT_THAT(SpiderSketch(TwoLines(), SpiderSheet).Facts,
              ElementsAre("this design: 10.000", "CMRR: 14.000 at the low end, 6.000 at the high end",
                          "Depth of Cover: 9.000 at the low end, 11.000 at the high end"));
}

TEST(SpiderChart, MayHaveNoLines) {
  const Sketch sketch = SpiderSketch({"Suggested PSUP", 10, "10.000", {}}, SpiderSheet);

  EXPECT_THAT(LinesDrawn(sketch), IsEmpty());
  EXPECT_THAT(sketch.Facts, ElementsAre("this design: 10.000"));
}

TEST(SpiderChart, MayHaveOneFigureOnly) {
  Spider spider = TwoLines();
  spider.Lines = {{"CMRR", {{0, 10}, {100, 10}}, "12.000", "10.000"}};

  const Sketch sketch = SpiderSketch(spider, SpiderSheet);

  ASSERT_THAT(LinesDrawn(sketch), SizeIs(1));
  EXPECT_THAT(LinesDrawn(sketch)[0]->Steps, SizeIs(2));
}

TEST(SpiderChart, StaysInsideItsSheet) {
  for (const SheetSize& sheet : {SpiderSheet, SheetSize{300, 200}, SheetSize{120, 400}, SheetSize{40, 30}}) {
    const Sketch sketch = SpiderSketch(ManyLines(8), sheet);
    for (const SceneOutline& outline : sketch.Picture.Outlines) {
      for (const PathStep& step : outline.Steps) {
        EXPECT_THAT(step.To.X, AllOf(testing::Ge(0), testing::Le(sheet.Width)));
        EXPECT_THAT(step.To.Y, AllOf(testing::Ge(0), testing::Le(sheet.Height)));
      }
    }
    for (const double height : NameHeights(sketch)) EXPECT_LT(height, sheet.Height);
  }
}

}  // namespace
}  // namespace orby::test
