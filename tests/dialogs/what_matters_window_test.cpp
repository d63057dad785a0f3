// What a figure of the project depends on, as the user sees it.
#include "dialogs/what_matters_window.h"

#include "dialogs/parameters_fixture.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

// The design of a new project: depth 400 ft, rating 45, diagonals of 60 ft, four bolts of 6 ft every 4 ft.
struct AWhatMattersWindow : AParametersDialog {
  AWhatMattersWindow() { window.Open(); }

  int RowOf(std::string_view name) const {
    for (int row = 1; row < window.grdNumbers.Rows(); ++row) {
      if (window.grdNumbers.Cell(row, 0) == name) return row;
    }
    return 0;
  }
  std::string Cell(std::string_view name, int column) const { return window.grdNumbers.Cell(RowOf(name), column); }
  std::vector<std::string> Turns() const {
    std::vector<std::string> lines;
    for (const ComboItem& item : window.lstTurns.Items()) lines.push_back(item.text);
    return lines;
  }
  void Choose(std::string_view figure) { window.cmbFigure.SetText(std::string(figure)); }

  static constexpr int Value = 1;
  static constexpr int Low = 2;
  static constexpr int High = 3;
  static constexpr int AtLow = 4;
  static constexpr int AtHigh = 5;
  static constexpr int Swing = 6;

  WhatMattersWindow window{program};
};

TEST_F(AWhatMattersWindow, OpensOnTheActualPsup) {
  EXPECT_EQ(window.cmbFigure.Text(), "Actual PSUP");
  EXPECT_EQ(window.txtChange.Text(), "10");
  EXPECT_THAT(window.lblPresent.Caption(), StartsWith("Of this design: "));
}

TEST_F(AWhatMattersWindow, ShowsBothEndsOfEachNumber) {
  EXPECT_EQ(Cell("Roof Bolt Length (ft)", Value), "6");
  EXPECT_EQ(Cell("Roof Bolt Length (ft)", Low), "5.4");
  EXPECT_EQ(Cell("Roof Bolt Length (ft)", High), "6.6");
  EXPECT_NE(Cell("Roof Bolt Length (ft)", AtLow), Cell("Roof Bolt Length (ft)", AtHigh));
  EXPECT_EQ(Cell("Depth of Cover (ft)", Swing), "0.000") << "the actual PSUP does not depend on the depth";
}

TEST_F(AWhatMattersWindow, FollowsAnotherFigure) {
  Choose("Suggested PSUP");

  EXPECT_NE(Cell("Depth of Cover (ft)", Swing), "0.000");
  EXPECT_EQ(Cell("Roof Bolt Length (ft)", Swing), "0.000");
}

TEST_F(AWhatMattersWindow, ChangesAllNumbersByAnotherPercentage) {
  window.txtChange.SetText("50");

  EXPECT_EQ(Cell("Depth of Cover (ft)", Low), "200");
  EXPECT_EQ(Cell("Depth of Cover (ft)", High), "600");
}

TEST_F(AWhatMattersWindow, KeepsItsTableForAPercentageThatIsNone) {
  for (const char* percentage : {"", "0", "-3", "101", "ten", "1e99"}) {
    window.txtChange.SetText(percentage);

    EXPECT_EQ(Cell("Depth of Cover (ft)", Low), "360") << percentage;
  }
}

TEST_F(AWhatMattersWindow, TakesARangeForTheMarkedNumber) {
  window.grdNumbers.ClickRow(RowOf("Depth of Cover (ft)"));
  EXPECT_EQ(window.fraRange.Caption(), "Range of the marked number: Depth of Cover");
  EXPECT_EQ(window.txtLow.Text(), "360");
  EXPECT_EQ(window.txtHigh.Text(), "440");

  window.txtHigh.SetText("2000");

  EXPECT_EQ(Cell("Depth of Cover (ft)", High), "2000");
  EXPECT_EQ(Cell("CMRR", High), "49.5") << "the other numbers keep theirs";
  EXPECT_EQ(window.txtHigh.Text(), "2000") << "what was typed stays";
  EXPECT_EQ(window.grdNumbers.Row(), RowOf("Depth of Cover (ft)"));
}

TEST_F(AWhatMattersWindow, KeepsTheLastRangeWhileTheTypedOneIsNone) {
  window.grdNumbers.ClickRow(RowOf("Depth of Cover (ft)"));

  window.txtLow.SetText("900");
  window.txtHigh.SetText("x");

  EXPECT_EQ(Cell("Depth of Cover (ft)", Low), "360");
  EXPECT_EQ(Cell("Depth of Cover (ft)", High), "440");
}

TEST_F(AWhatMattersWindow, DropsTypedRangesForAnotherPercentage) {
  window.grdNumbers.ClickRow(RowOf("Depth of Cover (ft)"));
  window.txtHigh.SetText("2000");

  window.txtChange.SetText("20");

  EXPECT_EQ(Cell("Depth of Cover (ft)", High), "480");
}

// At a rating of 45 the suggested sum of the diagonals is 63.2 ft.
TEST_F(AWhatMattersWindow, TellsWhereAJudgementChanges) {
  window.grdNumbers.ClickRow(RowOf("Sum of Intersection Diagonals (ft)"));

  window.txtHigh.SetText("70");

  EXPECT_THAT(Turns(), Contains("Sum of Intersection Diagonals: Sum of diagonals: holds up to 63.2 ft, then short"));
}

TEST_F(AWhatMattersWindow, SaysSoIfNoJudgementChanges) {
  window.txtChange.SetText("0.01");

  EXPECT_THAT(Turns(), ElementsAre("No judgement changes within these ranges."));
}

TEST_F(AWhatMattersWindow, DrawsTheNumbersWithTheGreatestEffectOnTop) {
  Choose("Suggested PSUP");
  window.picTornado.SetSheet({500, 400});

  const std::string words = window.picTornado.Words();

  EXPECT_LT(words.find("CMRR"), words.find("Depth of Cover"));
  EXPECT_THAT(words, Not(HasSubstr("Roof Bolt Length"))) << "it has no effect";
}

TEST_F(AWhatMattersWindow, DrawsTheSpiderOnlyWhenItIsChosen) {
  EXPECT_EQ(ItemTexts(window.cmbChart), (std::vector<std::string>{"Tornado", "Spider"}));
  EXPECT_EQ(window.cmbChart.Text(), "Tornado");
  EXPECT_EQ(window.picTornado.Title(), "Tornado chart");
  const Scene tornado = window.picTornado.Picture();

  window.cmbChart.SetText("Spider");

  EXPECT_EQ(window.picTornado.Title(), "Spider chart");
  EXPECT_NE(window.picTornado.Picture(), tornado);
  window.cmbChart.SetText("Tornado");
  EXPECT_EQ(window.picTornado.Picture(), tornado);
}

TEST_F(AWhatMattersWindow, TellsTheSpiderInTheFiguresOfTheTable) {
  Choose("Suggested PSUP");
  window.cmbChart.SetText("Spider");
  window.picTornado.SetSheet({500, 400});

  const std::string words = window.picTornado.Words();

  EXPECT_THAT(words, StartsWith("this design: "));
  EXPECT_THAT(words, HasSubstr("Depth of Cover: " + Cell("Depth of Cover (ft)", AtLow) + " at the low end, " +
                               Cell("Depth of Cover (ft)", AtHigh) + " at the high end"));
  EXPECT_LT(words.find("CMRR"), words.find("Depth of Cover")) << "the greatest effect first";
  EXPECT_THAT(words, Not(HasSubstr("Roof Bolt Length"))) << "it has no effect";
}

TEST_F(AWhatMattersWindow, FollowsARangeWithItsSpider) {
  window.cmbChart.SetText("Spider");
  Choose("Suggested PSUP");
  window.grdNumbers.ClickRow(RowOf("Depth of Cover (ft)"));
  const Scene before = window.picTornado.Picture();

  window.txtHigh.SetText("2000");

  EXPECT_NE(window.picTornado.Picture(), before);
  EXPECT_THAT(window.picTornado.Words(), HasSubstr(Cell("Depth of Cover (ft)", AtHigh) + " at the high end"));
}

TEST_F(AWhatMattersWindow, CopiesTheSpiderAndSavesItUnderItsName) {
  program.project.CurrentFile = "/home/user/north mains.ORB";
  window.cmbChart.SetText("Spider");
  platform.fileDialogs.answers.push_back("/home/user/spider.svg");

  window.picTornado.Command(DrawingCommand::Copy);
  window.picTornado.Command(DrawingCommand::SaveSvg);

  EXPECT_EQ(platform.clipboard.scene, window.picTornado.Picture());
  ASSERT_THAT(platform.fileDialogs.asked, testing::SizeIs(1));
  EXPECT_EQ(platform.fileDialogs.asked[0].fileName, "north mains Spider chart.svg");
  EXPECT_THAT(platform.files.files["/home/user/spider.svg"], StartsWith("<"));
}

TEST_F(AWhatMattersWindow, CopiesItsTableForASpreadsheet) {
  window.cmdCopy.Press();

  EXPECT_THAT(platform.clipboard.text,
              StartsWith("Number\tValue\tLow\tHigh\tAt low\tAt high\tSwing\r\nCMRR\t45\t40.5\t"));
}

TEST_F(AWhatMattersWindow, SaysThatNothingIsAnalysed) {
  window.Close();
  Design& design = program.project.WorkParms;
  design.Primary.Analysed = design.Entries.Analysed = design.Intersections.Analysed = 0;
  WhatMattersWindow next(program);
  next.Open();

  next.txtChange.SetText("20");
  next.cmbChart.SetText("Spider");

  EXPECT_FALSE(next.cmbFigure.Enabled());
  EXPECT_EQ(next.lblPresent.Caption(), "The project analyses no support.");
  EXPECT_EQ(next.grdNumbers.Rows(), 1) << "only the heads";
  EXPECT_FALSE(next.txtLow.Enabled());
  EXPECT_EQ(next.picTornado.Words(), "");
}

TEST_F(AWhatMattersWindow, ChangesNothingOfTheProject) {
  const Design before = program.project.WorkParms;

  window.txtChange.SetText("50");
  window.grdNumbers.ClickRow(2);
  window.txtHigh.SetText("2000");
  window.Close();

  EXPECT_EQ(program.project.WorkParms, before);
}

}  // namespace
}  // namespace orby::test
