#include "dialogs/graph.h"

#include <gmock/gmock.h>

#include <string>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::Each;
using testing::ElementsAre;

struct AGraph : testing::Test {
  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
};

TEST_F(AGraph, NamesItsAxesInEnglishUnits) {
  ComposeAxisTitles(program);

  EXPECT_THAT(program.session.graph.XAxisTitle,
              ElementsAre("CMRR", "Depth of Cover (ft)", "Stability Factor", "Sum of Diagonals (ft)",
                          "Rock Load Height (ft)", "Entry Width (ft)", "Roof Fall Angle (deg)", "Rock Load Height (ft)",
                          "Sum of Diagonals (ft)", "Roof Fall Angle (deg)"));
  EXPECT_THAT(program.session.graph.YAxisTitle,
              ElementsAre("Suggested PSUP", "Rock Load Entries (tons/ft)", "Rock Load Intersections (tons)"));
  EXPECT_EQ(program.session.graph.GraphUnits, English);
}

TEST_F(AGraph, NamesItsAxesInMetricUnits) {
  program.project.WorkParms.Units = Metric;

  ComposeAxisTitles(program);

  EXPECT_THAT(program.session.graph.XAxisTitle,
              ElementsAre("CMRR", "Depth of Cover (m)", "Stability Factor", "Sum of Diagonals (m)",
                          "Rock Load Height (m)", "Entry Width (m)", "Roof Fall Angle (deg)", "Rock Load Height (m)",
                          "Sum of Diagonals (m)", "Roof Fall Angle (deg)"));
  EXPECT_THAT(program.session.graph.YAxisTitle,
              ElementsAre("Suggested PSUP", "Rock Load Entries (kN/m)", "Rock Load Intersections (kN)"));
  EXPECT_EQ(program.session.graph.GraphUnits, Metric);
}

TEST_F(AGraph, KeepsTheTitlesOfItsOwnUnits) {
  program.session.graph.XAxisTitle.fill("Cover above the seam");
  program.session.graph.YAxisTitle.fill("Load");

  PrepareAxisTitles(program, 1);

  EXPECT_THAT(program.session.graph.XAxisTitle, Each("Cover above the seam"));
  EXPECT_THAT(program.session.graph.YAxisTitle, Each("Load"));
}

TEST_F(AGraph, NamesAllAxesIfTheCurveHasNoTitle) {
  program.session.graph.XAxisTitle.fill("Cover above the seam");
  program.session.graph.XAxisTitle[4].clear();

  PrepareAxisTitles(program, 4);

  EXPECT_EQ(program.session.graph.XAxisTitle[4], "Rock Load Height (ft)");
  EXPECT_EQ(program.session.graph.XAxisTitle[1], "Depth of Cover (ft)");
}

TEST_F(AGraph, RenamesAllAxesInTheOtherUnits) {
  program.session.graph.XAxisTitle.fill("Cover above the seam");
  program.session.graph.GraphUnits = English;
  program.project.WorkParms.Units = Metric;

  PrepareAxisTitles(program, 1);

  EXPECT_EQ(program.session.graph.XAxisTitle[1], "Depth of Cover (m)");
  EXPECT_EQ(program.session.graph.XAxisTitle[5], "Entry Width (m)");
  EXPECT_EQ(program.session.graph.YAxisTitle[2], "Rock Load Intersections (kN)");
  EXPECT_EQ(program.session.graph.GraphUnits, Metric);
}

TEST_F(AGraph, HasNoTitleForACurveThatDoesNotExist) {
  EXPECT_EQ(ErrorNumberOf([&] { PrepareAxisTitles(program, -1); }), 9);
  EXPECT_EQ(ErrorNumberOf([&] { PrepareAxisTitles(program, 10); }), 9);
}

struct CurveNames {
  Integer index;
  Integer dependent;
  std::string legend;
  std::string shortName;
  std::string reformatted;  // the second series
  std::string title;
};

class TheNames : public testing::TestWithParam<CurveNames> {};

TEST_P(TheNames, OfACurveFollowItsDependentVariable) {
  const CurveNames& names = GetParam();

  EXPECT_EQ(DependentVariable(names.index), names.dependent);
  EXPECT_EQ(LegendText(names.index), names.legend);
  EXPECT_EQ(ShortCurveName(names.index), names.shortName);
  EXPECT_EQ(ReformattedLegendText(names.index, 2), names.reformatted);
  EXPECT_EQ(CurveTitle(names.index), names.title);
}

INSTANTIATE_TEST_SUITE_P(
    Curves, TheNames,
    testing::Values(
        CurveNames{0, 0, "Sug.PSUP", "Sug.PSUP", "Sug.PSUP", "Suggested PSUP vs CMRR"},
        CurveNames{1, 0, "Sug.PSUP", "Sug.PSUP", "Sug.PSUP", "Suggested PSUP vs Depth of Cover"},
        CurveNames{2, 0, "Sug.PSUP", "Sug.PSUP", "Sug.PSUP", "Suggested PSUP vs Stability Factor"},
        CurveNames{3, 0, "Sug.PSUP", "Sug.PSUP", "Sug.PSUP", "Suggested PSUP vs Sum of Diagonals"},
        CurveNames{4, 1, "Rock Load Straights", "RockLoad", "RockLoad2", "Rock Load Entries vs Rock Load Height"},
        CurveNames{5, 1, "Rock Load Straights", "RockLoad", "RockLoad2", "Rock Load Entries vs Entry Width"},
        CurveNames{6, 1, "Rock Load Straights", "RockLoad", "RockLoad2", "Rock Load Entries vs Roof Fall Angle"},
        CurveNames{7, 2, "Rock Load Intersections", "RockLoad", "RockLoad2",
                   "Rock Load Intersections vs Rock Load Height"},
        CurveNames{8, 2, "Rock Load Intersections", "RockLoad", "RockLoad2",
                   "Rock Load Intersections vs Sum of Diagonals"},
        CurveNames{9, 2, "Rock Load Intersections", "RockLoad", "RockLoad2",
                   "Rock Load Intersections vs Roof Fall Angle"}),
    [](const auto& curve) { return "curve" + std::to_string(curve.param.index); });

TEST(DependentVariables, AreThoseOfTenCurves) {
  EXPECT_EQ(ErrorNumberOf([] { DependentVariable(-1); }), 9);
  EXPECT_EQ(ErrorNumberOf([] { DependentVariable(10); }), 9);
}

TEST(CurveColours, AreSix) {
  EXPECT_EQ(CurveColors(1), 16711680);
  EXPECT_EQ(CurveColors(2), 6053069);
  EXPECT_EQ(CurveColors(3), 0);
  EXPECT_EQ(CurveColors(4), 25600);
  EXPECT_EQ(CurveColors(5), 4);
  EXPECT_EQ(CurveColors(6), 5);
  EXPECT_EQ(ErrorNumberOf([] { CurveColors(0); }), 9);
  EXPECT_EQ(ErrorNumberOf([] { CurveColors(7); }), 9);
}

}  // namespace
}  // namespace orby::test
