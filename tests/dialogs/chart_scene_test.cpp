#include "dialogs/chart_scene.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "dialogs/graph_window.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::Not;
using testing::SizeIs;

constexpr double Tenth = 0.1;

struct AChartAsADrawing : testing::Test {
  AChartAsADrawing() {
    ChartSeries series;
    series.x = {0, 50, 100};
    series.y = {2, 4, 6};
    series.legend = "Sug.PSUP";
    series.width = 6;
    series.symbolSize = 6;
    chart.SetSeries({series});
    chart.SetAxisX({"Depth of Cover (ft)", true});
    chart.SetAxisY({"Suggested PSUP", false});
    chart.SetHeading("Panel 3");
    chart.SetLegendShown(true);
  }

  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const SceneLabel& label : ChartScene(chart).Labels) texts.push_back(label.Text);
    return texts;
  }
  // Returns the outlines with lines of this colour, or filled with it.
  std::vector<SceneOutline> OutlinesIn(Ink ink) const {
    std::vector<SceneOutline> found;
    for (const SceneOutline& outline : ChartScene(chart).Outlines) {
      if (outline.Line.Colour == ink || outline.Inside.Colour == ink) found.push_back(outline);
    }
    return found;
  }
  ChartSeries Kept(double y) const {
    ChartSeries kept = chart.Series().front();
    kept.y = {y, y, y};
    kept.isKept = true;
    kept.hasSymbols = false;
    kept.legend = "Kept";
    return kept;
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  GraphWindow window{program};
  Chart& chart = window.graph1;
};

TEST_F(AChartAsADrawing, HasTitlesTicksAndLegend) {
  const std::vector<std::string> texts = Texts();

  for (const char* text : {"Panel 3", "Depth of Cover (ft)", "Suggested PSUP", "0", "20", "40", "60", "80", "100", "2",
                           "3", "4", "5", "6", "Sug.PSUP"}) {
    EXPECT_THAT(texts, Contains(text));
  }
}

TEST_F(AChartAsADrawing, DrawsTheCurveThroughItsPoints) {
  const std::vector<SceneOutline> curve = OutlinesIn(Ink::Curve);

  ASSERT_THAT(curve, SizeIs(3)) << "line, symbols, legend";
  const std::vector<PathStep>& steps = curve[0].Steps;
  ASSERT_THAT(steps, SizeIs(3));
  // Equal steps of both values, and upwards.
  EXPECT_THAT(steps[1].To.X - steps[0].To.X, DoubleNear(steps[2].To.X - steps[1].To.X, Tenth));
  EXPECT_THAT(steps[0].To.Y - steps[1].To.Y, DoubleNear(steps[1].To.Y - steps[2].To.Y, Tenth));
  EXPECT_GT(steps[1].To.X, steps[0].To.X);
  EXPECT_GT(steps[0].To.Y, steps[1].To.Y);
  EXPECT_EQ(curve[0].Line.Width, 2);
  EXPECT_FALSE(curve[0].Line.IsDashed);
}

TEST_F(AChartAsADrawing, PutsTheTicksWhereTheirValuesAre) {
  const Scene scene = ChartScene(chart);
  const std::vector<PathStep> curve = OutlinesIn(Ink::Curve)[0].Steps;
  const auto place = [&](std::string_view text, Anchor side) {
    const auto found = std::ranges::find_if(
        scene.Labels, [&](const SceneLabel& label) { return label.Text == text && label.Side == side; });
    return found == scene.Labels.end() ? ScenePoint{} : found->At;
  };

  EXPECT_THAT(place("0", Anchor::Middle).X, DoubleNear(curve[0].To.X, Tenth));
  EXPECT_THAT(place("100", Anchor::Middle).X, DoubleNear(curve[2].To.X, Tenth));
  EXPECT_THAT(place("4", Anchor::End).Y, DoubleNear(curve[1].To.Y + 4, Tenth)) << "base line below the middle";
}

TEST_F(AChartAsADrawing, HasTheGridLinesOfEachAxis) {
  const auto gridSteps = [&] {
    std::size_t steps = 0;
    for (const SceneOutline& outline : OutlinesIn(Ink::Muted)) {
      if (!outline.Line.IsDashed && outline.Inside.Colour == Ink::None) steps += outline.Steps.size();
    }
    return steps;
  };
  EXPECT_EQ(gridSteps(), 12U) << "six lines";

  chart.SetAxisX({"x", false});
  EXPECT_EQ(gridSteps(), 0U);

  chart.SetAxisY({"y", true});
  EXPECT_EQ(gridSteps(), 10U) << "five lines";
}

TEST_F(AChartAsADrawing, HasTheStyleOfTheSeries) {
  ChartSeries series = chart.Series().front();
  series.hasLine = false;
  chart.SetSeries({series});
  EXPECT_THAT(OutlinesIn(Ink::Curve), SizeIs(2)) << "symbols and legend";

  series.hasLine = true;
  series.hasSymbols = false;
  chart.SetSeries({series});
  EXPECT_THAT(OutlinesIn(Ink::Curve), SizeIs(2)) << "line and legend";
}

TEST_F(AChartAsADrawing, DrawsTheDesignAndItsLines) {
  chart.SetOwn(ChartPoint{50, 4, "This design"});
  chart.SetReferences({{false, 7, "Actual PSUP 7.0"}, {true, 80, "Suggested sum"}, {false, 900, "Capacity"}});

  const std::vector<std::string> texts = Texts();
  EXPECT_THAT(texts, Contains("This design"));
  EXPECT_THAT(texts, Contains("Actual PSUP 7.0"));
  EXPECT_THAT(texts, Contains("Suggested sum"));
  EXPECT_THAT(texts, Contains("Capacity (above)"));
  EXPECT_THAT(OutlinesIn(Ink::OwnPoint), SizeIs(1));
  ASSERT_THAT(OutlinesIn(Ink::Limit), SizeIs(2));
  EXPECT_TRUE(OutlinesIn(Ink::Limit)[0].Line.IsDashed);
}

TEST_F(AChartAsADrawing, DrawsKeptCurvesDashedEachInItsColour) {
  chart.SetSeries({chart.Series().front(), Kept(3), Kept(5)});
  chart.SetLegendShown(false);

  for (const Ink ink : {Ink::FirstKept, Ink::SecondKept}) {
    ASSERT_THAT(OutlinesIn(ink), SizeIs(2)) << "line and legend";
    EXPECT_TRUE(OutlinesIn(ink)[0].Line.IsDashed);
    EXPECT_TRUE(OutlinesIn(ink)[1].Line.IsDashed);
  }
  EXPECT_THAT(Texts(), Contains("Kept").Times(2));
}

TEST_F(AChartAsADrawing, HasTheNamesOfKeptCurvesBelowThePlot) {
  chart.SetSeries({chart.Series().front(), Kept(3)});

  double lowestPoint = 0;
  const std::vector<SceneOutline> kept = OutlinesIn(Ink::FirstKept);
  for (const PathStep& step : kept.at(0).Steps) lowestPoint = std::max(lowestPoint, step.To.Y);
  for (const SceneLabel& label : ChartScene(chart).Labels) {
    if (label.Text != "Kept" && label.Text != "Sug.PSUP") continue;
    EXPECT_GT(label.At.Y, lowestPoint + 50) << label.Text;
    EXPECT_LT(label.At.Y, 560) << label.Text;
  }
}

TEST_F(AChartAsADrawing, KeepsEverythingOnItsSheet) {
  chart.SetSeries({chart.Series().front(), Kept(900000)});
  chart.SetOwn(ChartPoint{1e9, -1e6, "This design, by the inputs of its entries"});

  const Scene scene = ChartScene(chart);

  EXPECT_EQ(scene.Width, 800);
  EXPECT_EQ(scene.Height, 560);
  for (const SceneOutline& outline : scene.Outlines) {
    for (const PathStep& step : outline.Steps) {
      if (step.What == PathStep::Kind::Close) continue;
      EXPECT_GE(step.To.X, 10);
      EXPECT_LE(step.To.X, 790);
      EXPECT_GE(step.To.Y, 10);
      EXPECT_LE(step.To.Y, 550);
    }
  }
}

TEST_F(AChartAsADrawing, SaysThatThereAreNoPoints) {
  chart.SetSeries({});

  EXPECT_THAT(Texts(), Contains("There are no points in the range of this curve"));
}

TEST_F(AChartAsADrawing, DrawsASinglePointAsADot) {
  ChartSeries series = chart.Series().front();
  series.x = {50};
  series.y = {4};
  series.hasSymbols = false;
  chart.SetSeries({series});

  EXPECT_EQ(OutlinesIn(Ink::Curve)[0].Inside.Colour, Ink::Curve);
  EXPECT_THAT(Texts(), Not(Contains("There are no points in the range of this curve")));
}

TEST_F(AChartAsADrawing, WritesTicksWithoutTheDigitsOfTheirComputation) {
  ChartSeries series = chart.Series().front();
  series.x = {-0.1, 0.7};
  series.y = {1e6, 3e6};
  chart.SetSeries({series});

  const std::vector<std::string> texts = Texts();

  EXPECT_THAT(texts, Contains("0"));
  EXPECT_THAT(texts, Contains("0.4"));
  EXPECT_THAT(texts, Contains("0.6"));
  EXPECT_THAT(texts, Contains("1500000"));
}

}  // namespace
}  // namespace orby::test
