#include "dialogs/kept_curves.h"

#include "dialogs/graph_fixture.h"
#include "dialogs/graph_options_dialog.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr int PointIdItem = 0;
constexpr int ExportItem = 2;

struct KeepingCurves : GraphBench {
  KeepingCurves() {
    program.windows.curve.Own = CurvePoint{240, 4.125F};
    window.ShowCurve(1);
  }

  // Shows the curve of a changed design.
  void Change(Single y, Integer index = 1) {
    program.windows.curve.CurvePoints[1] = {y, y + 1, y + 2, 0};
    program.windows.curve.Own = CurvePoint{240, y + 1};
    window.ShowCurve(index);
  }
  std::vector<std::string> Legends() const {
    std::vector<std::string> legends;
    for (const ChartSeries& series : window.graph1.Series()) legends.push_back(series.legend);
    return legends;
  }
};

TEST_F(KeepingCurves, DrawsAnEarlierCurveDashedBesideThePresentOne) {
  window.cmdKeep.Press();
  Change(6);

  ASSERT_THAT(window.graph1.Series(), SizeIs(2));
  const ChartSeries& kept = window.graph1.Series()[1];
  EXPECT_THAT(Drawn().y, ElementsAre(6, 7, 8));
  EXPECT_FALSE(Drawn().isKept);
  EXPECT_TRUE(kept.isKept);
  EXPECT_THAT(kept.y, ElementsAre(3.25, 4.125, static_cast<double>(5.005F)));
  EXPECT_FALSE(kept.hasSymbols);
  EXPECT_TRUE(kept.hasLine);
}

TEST_F(KeepingCurves, NamesThemByTheDesignTheyBelongTo) {
  window.cmdKeep.Press();
  Change(6);
  window.cmdKeep.Press();

  EXPECT_THAT(Legends(), ElementsAre("Sug.PSUP", "Kept 1: Suggested PSUP 4.1 at Depth of Cover 240.0",
                                     "Kept 2: Suggested PSUP 7.0 at Depth of Cover 240.0"));
  EXPECT_EQ(window.lblKept.Caption(), "2 kept curves drawn");
}

TEST_F(KeepingCurves, NamesACurveWithoutAPointOfTheDesignByItsTitle) {
  program.windows.curve.Own.reset();
  window.cmdKeep.Press();

  EXPECT_THAT(Legends(), ElementsAre("Sug.PSUP", "Kept 1: Suggested PSUP vs Depth of Cover"));
}

TEST_F(KeepingCurves, DrawsOnlyThoseWithTheSameAxes) {
  window.cmdKeep.Press();

  Change(6, 3);
  EXPECT_THAT(window.graph1.Series(), SizeIs(1));
  EXPECT_EQ(window.lblKept.Caption(), "0 kept curves drawn; 1 with other axes not drawn");

  Change(6, 1);
  EXPECT_THAT(window.graph1.Series(), SizeIs(2));
  EXPECT_EQ(window.lblKept.Caption(), "1 kept curve drawn");

  program.project.WorkParms.Units = Metric;
  Change(6, 1);
  EXPECT_THAT(window.graph1.Series(), SizeIs(1));
}

TEST_F(KeepingCurves, HasRoomForThreeOfTheSameAxes) {
  for (int i = 0; i < 3; ++i) window.cmdKeep.Press();

  EXPECT_FALSE(window.cmdKeep.Enabled());
  EXPECT_EQ(window.lblKept.Caption(), "3 kept curves drawn, no room for more");
  EXPECT_NE(window.graph1.Series()[1].colour, window.graph1.Series()[2].colour);
  EXPECT_NE(window.graph1.Series()[2].colour, window.graph1.Series()[3].colour);

  Change(6, 3);
  EXPECT_TRUE(window.cmdKeep.Enabled());
}

TEST_F(KeepingCurves, KeepsNoCurveWithoutPoints) {
  program.windows.curve.CurvePointCount = 0;
  window.ShowCurve(1);

  EXPECT_FALSE(window.cmdKeep.Enabled());
}

TEST_F(KeepingCurves, ForgetsAllOfThemAndNumbersTheNextOneOn) {
  EXPECT_FALSE(window.cmdForget.Enabled());
  window.cmdKeep.Press();
  EXPECT_TRUE(window.cmdForget.Enabled());

  window.cmdForget.Press();

  EXPECT_THAT(window.graph1.Series(), SizeIs(1));
  EXPECT_EQ(window.lblKept.Caption(), "");
  EXPECT_FALSE(window.cmdForget.Enabled());
  window.cmdKeep.Press();
  EXPECT_EQ(window.graph1.Series()[1].shortName, "Kept 2");
}

TEST_F(KeepingCurves, ShowsThemInTheNextGraphWindowOfTheRun) {
  window.cmdKeep.Press();
  window.Close();

  GraphWindow next(program);
  next.ShowCurve(1);

  EXPECT_THAT(next.graph1.Series(), SizeIs(2));
  next.Close();
}

TEST_F(KeepingCurves, ReadsThemOutByTheirNames) {
  window.cmdKeep.Press();
  window.GraphOptionsItem.ClickItem(PointIdItem);

  window.graph1.MouseMove({true, 1, 0, 2});
  EXPECT_EQ(window.lblCurve.Caption(), "Kept 1");

  window.cmdForget.Press();
  EXPECT_EQ(window.graph1.ReadPoint(), std::nullopt);
}

TEST_F(KeepingCurves, ExportsThemUnderTheirNames) {
  window.cmdKeep.Press();

  window.GraphFileItem.ClickItem(ExportItem);

  ASSERT_THAT(platform.documents.sheet.series, SizeIs(2));
  EXPECT_EQ(platform.documents.sheet.series[0].yHeader, "Sug.PSUP");
  EXPECT_EQ(platform.documents.sheet.series[1].yHeader, "Kept 1");
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Exported 2 Curves"));
}

TEST_F(KeepingCurves, KeepTheirNamesAndDashesWhenTheFormatChanges) {
  window.cmdKeep.Press();
  platform.windows.onModal = [](Form& form) {
    auto& options = dynamic_cast<GraphOptionsDialog&>(form);
    options.Combo2.SetListIndex(1);
    options.Command2.Press();
  };

  window.GraphOptionsItem.ClickItem(1);

  EXPECT_FALSE(Drawn().hasLine);
  EXPECT_TRUE(window.graph1.Series()[1].hasLine);
  EXPECT_FALSE(window.graph1.Series()[1].hasSymbols);
  EXPECT_EQ(window.graph1.Series()[1].legend, "Kept 1: Suggested PSUP 4.1 at Depth of Cover 240.0");
}

// ---- saving ---------------------------------------------------------------------------------------------------------

TEST_F(KeepingCurves, SavesThePresentCurveAndTheKeptOnesAsATable) {
  program.project.CurrentFile = "/home/user/belt.orb";
  window.cmdKeep.Press();
  Change(6);
  program.session.graph.XAxisTitle[1] = "Cover";
  platform.fileDialogs.answers = {"/home/user/psup.csv"};

  window.cmdSaveAs.Press();

  EXPECT_EQ(platform.fileDialogs.asked.at(0).fileName, "belt Suggested PSUP vs Depth of Cover.png");
  EXPECT_EQ(platform.files.ReadFile("/home/user/psup.csv"),
            "Depth of Cover (ft),Suggested PSUP,Depth of Cover (ft),"
            "\"Suggested PSUP, Kept 1: Suggested PSUP 4.1 at Depth of Cover 240.0\"\r\n"
            "200,6,200,3.25\r\n"
            "240,7,240,4.125\r\n"
            "280.5,8,280.5,5.005\r\n");
  EXPECT_THAT(program.session.history.Text, testing::HasSubstr("Curve saved as: /home/user/psup.csv"));
}

TEST_F(KeepingCurves, SavesTheChartAsAPictureADrawingAndAPage) {
  platform.fileDialogs.answers = {"/home/user/psup.png", "/home/user/psup.svg", "/home/user/psup.pdf"};

  for (int i = 0; i < 3; ++i) window.cmdSaveAs.Press();

  EXPECT_EQ(platform.files.ReadFile("/home/user/psup.png"), "PNG");
  EXPECT_EQ(platform.files.ReadFile("/home/user/psup.pdf"), "PDF of Suggested PSUP vs Depth of Cover");
  EXPECT_THAT(platform.files.ReadFile("/home/user/psup.svg"), testing::HasSubstr(">Depth of Cover (ft)</text>"));
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

}  // namespace
}  // namespace orby::test
