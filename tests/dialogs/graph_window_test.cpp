#include "dialogs/graph_window.h"

#include "base/runtime_error.h"
#include "dialogs/curve_command.h"
#include "dialogs/graph_fixture.h"
#include "dialogs/jammed_printer.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr int Print = 0;
constexpr int Export = 2;
constexpr int Exit = 4;
constexpr int PointID = 0;
constexpr int BasicOptions = 1;

struct GraphOfACurve : GraphBench {
  // Moves the pointer in the plot to this distance in pixels from a point.
  void Point(int point, double distance, int series = 0) { window.graph1.MouseMove({true, series, point, distance}); }
  void LeaveThePlot() { window.graph1.MouseMove({false, -1, -1, 0}); }
  std::vector<std::string> ReadOut() const {
    return {window.lblX.Caption(), window.lblSF.Caption(), window.lblCurve.Caption()};
  }
};

TEST_F(GraphOfACurve, HasItsCaptions) {
  EXPECT_EQ(window.Name(), "frmGraph");
  EXPECT_EQ(window.Caption(), "Graph - Untitled");
  EXPECT_EQ(window.GraphFile.Caption(), "&File");
  EXPECT_EQ(window.GraphFileItem.Caption(0), "&Print");
  EXPECT_EQ(window.GraphFileItem.Caption(1), "-");
  EXPECT_EQ(window.GraphFileItem.Caption(2), "Export");
  EXPECT_EQ(window.GraphFileItem.Caption(3), "-");
  EXPECT_EQ(window.GraphFileItem.Caption(4), "E&xit");
  EXPECT_EQ(window.GraphEdit.Caption(), "&Edit");
  EXPECT_EQ(window.GraphEditItem.Caption(0), "Copy ");
  EXPECT_EQ(window.GraphOptions.Caption(), "&Options");
  EXPECT_EQ(window.GraphOptionsItem.Caption(0), "Point ID");
  EXPECT_EQ(window.GraphOptionsItem.Caption(1), "Basic &Options");
  EXPECT_EQ(window.Frame1.Caption(), "Point ID");
  EXPECT_EQ(window.lblXCaption.Caption(), "X-coord:");
  EXPECT_EQ(window.lblSFCaption.Caption(), "Y-Coord:");
  EXPECT_EQ(window.lblCurveCaption.Caption(), "Curve:");
}

TEST_F(GraphOfACurve, OpensWithoutTheReadOutAndComesToTheFront) {
  window.ShowCurve(1);

  EXPECT_TRUE(window.IsOpen());
  EXPECT_THAT(platform.windows.shown, ElementsAre(&window));
  EXPECT_FALSE(window.Frame1.Visible());
  EXPECT_FALSE(window.GraphOptionsItem.ItemChecked(PointID));
  EXPECT_EQ(program.windows.curve.CurveIndex, 1);
  EXPECT_EQ(program.windows.curve.CurveCount, 1);
  EXPECT_FALSE(program.windows.curve.GraphClosed);
}

TEST_F(GraphOfACurve, ShowsAnotherCurveWhileItIsOpen) {
  window.ShowCurve(1);
  window.GraphOptionsItem.ClickItem(PointID);
  program.windows.curve.CurvePoints[1] = {12, 14, 16, 0};

  window.ShowCurve(5);

  EXPECT_THAT(platform.windows.shown, SizeIs(2));
  EXPECT_TRUE(window.Frame1.Visible());
  EXPECT_EQ(window.graph1.AxisX().title, "Entry Width (ft)");
  EXPECT_EQ(window.graph1.AxisY().title, "Rock Load Entries (tons/ft)");
  EXPECT_THAT(Drawn().y, ElementsAre(12, 14, 16));
}

TEST_F(GraphOfACurve, NamesTheDesignAndWhatItIsComparedWith) {
  program.windows.curve.Own = CurvePoint{240, 4.125F};
  program.windows.curve.References = {{ReferenceKind::ActualPSUP, false, 9.940195F},
                                      {ReferenceKind::SuggestedSpan, true, 63.2F}};

  window.ShowCurve(3);

  EXPECT_EQ(window.graph1.Own(), (ChartPoint{240, 4.125, "This design"}));
  EXPECT_THAT(window.graph1.References(), ElementsAre(ChartLine{false, 9.940195F, "Actual PSUP 9.9"},
                                                      ChartLine{true, 63.2F, "Suggested sum of diagonals 63.2"}));

  program.windows.curve.Own.reset();
  program.windows.curve.References.clear();
  window.ShowCurve(1);

  EXPECT_EQ(window.graph1.Own(), std::nullopt);
  EXPECT_THAT(window.graph1.References(), IsEmpty());
}

TEST_F(GraphOfACurve, SaysThatTheCurvesOfIntersectionsUseTheInputsOfEntries) {
  program.windows.curve.Own = CurvePoint{240, 4.125F};

  window.ShowCurve(8);

  EXPECT_EQ(window.graph1.Own()->name, "This design, by the inputs of its entries");
}

TEST_F(GraphOfACurve, MarksThePointThatIsReadOut) {
  window.ShowCurve(1);
  window.GraphOptionsItem.ClickItem(PointID);

  Point(1, 3);
  EXPECT_EQ(window.graph1.ReadPoint(), (ChartPlace{0, 1}));

  Point(2, 5);
  EXPECT_EQ(window.graph1.ReadPoint(), (ChartPlace{0, 1}));

  LeaveThePlot();
  EXPECT_EQ(window.graph1.ReadPoint(), std::nullopt);

  Point(2, 0);
  window.GraphOptionsItem.ClickItem(PointID);
  EXPECT_EQ(window.graph1.ReadPoint(), std::nullopt);
}

TEST_F(GraphOfACurve, MarksNoPointOfAnEarlierCurve) {
  window.ShowCurve(1);
  window.GraphOptionsItem.ClickItem(PointID);
  Point(1, 0);

  window.ShowCurve(2);

  EXPECT_EQ(window.graph1.ReadPoint(), std::nullopt);
}

TEST_F(GraphOfACurve, FailsForACurveThatDoesNotExistAndKeepsTheOldOne) {
  window.ShowCurve(3);

  EXPECT_EQ(ErrorNumberOf([&] { window.ShowCurve(10); }), 9);
  EXPECT_EQ(ErrorNumberOf([&] { window.ShowCurve(-1); }), 9);

  EXPECT_EQ(program.windows.curve.CurveIndex, 3);
  EXPECT_EQ(window.graph1.AxisX().title, "Sum of Diagonals (ft)");
}

TEST_F(GraphOfACurve, IsHeadedByTheTitleOfTheGraph) {
  program.session.graph.GraphTitle = "Panel 3, tailgate";

  window.ShowCurve(1);

  EXPECT_EQ(window.graph1.Heading(), "Panel 3, tailgate");
}

TEST_F(GraphOfACurve, KeepsUserDefinedTitlesIfTheUnitsAreTheSame) {
  program.session.graph.XAxisTitle[1] = "Cover above the seam";
  program.session.graph.YAxisTitle[0] = "PSUP, suggested";

  window.ShowCurve(1);

  EXPECT_EQ(window.graph1.AxisX().title, "Cover above the seam");
  EXPECT_EQ(window.graph1.AxisY().title, "PSUP, suggested");
}

TEST_F(GraphOfACurve, RenamesAllAxesInMetricAfterEnglish) {
  window.ShowCurve(4);
  program.project.WorkParms.Units = Metric;

  window.ShowCurve(7);

  EXPECT_EQ(window.graph1.AxisX().title, "Rock Load Height (m)");
  EXPECT_EQ(window.graph1.AxisY().title, "Rock Load Intersections (kN)");
  EXPECT_EQ(program.session.graph.XAxisTitle[1], "Depth of Cover (m)");
  EXPECT_EQ(program.session.graph.YAxisTitle[1], "Rock Load Entries (kN/m)");
  EXPECT_EQ(program.session.graph.GraphUnits, Metric);
}

TEST_F(GraphOfACurve, HasTheGridLinesOfItsStyle) {
  struct Row {
    GridLines style;
    bool x;
    bool y;
  };
  for (const Row& row : {Row{GridLines::None, false, false}, Row{GridLines::Horizontal, false, true},
                         Row{GridLines::Vertical, true, false}, Row{GridLines::Both, true, true}}) {
    program.session.graph.GridStyle = row.style;

    window.GraphInit(1);

    EXPECT_EQ(window.graph1.AxisX().grid, row.x) << NumberOf(row.style);
    EXPECT_EQ(window.graph1.AxisY().grid, row.y) << NumberOf(row.style);
  }
}

TEST_F(GraphOfACurve, DrawsOnlyTheFilledColumns) {
  window.ShowCurve(1);

  ASSERT_THAT(window.graph1.Series(), SizeIs(1));
  EXPECT_THAT(Drawn().x, ElementsAre(200, 240, 280.5));
  EXPECT_THAT(Drawn().y, ElementsAre(3.25, 4.125, static_cast<double>(5.005F)));
}

TEST_F(GraphOfACurve, DrawsAnEmptyColumnThatCountsAsZero) {
  program.windows.curve.CurvePointCount = 4;

  window.ShowCurve(1);

  EXPECT_THAT(Drawn().x, ElementsAre(200, 240, 280.5, 0));
  EXPECT_EQ(Drawn().y.back(), 0);
}

TEST_F(GraphOfACurve, WithoutAPointIsEmpty) {
  program.windows.curve.CurvePointCount = 0;

  window.ShowCurve(1);

  ASSERT_THAT(window.graph1.Series(), SizeIs(1));
  EXPECT_THAT(Drawn().x, IsEmpty());
  EXPECT_THAT(Drawn().y, IsEmpty());
}

TEST_F(GraphOfACurve, FailsForMorePointsThanThereAreColumns) {
  program.windows.curve.CurvePointCount = 5;

  EXPECT_EQ(ErrorNumberOf([&] { window.ShowCurve(1); }), 9);
}

TEST_F(GraphOfACurve, IsABlueLineOfTheStoredWidth) {
  program.session.graph.SymbolSize = 9;

  window.ShowCurve(1);

  EXPECT_EQ(Drawn().colour, 16711680);
  EXPECT_EQ(Drawn().width, 9);
  EXPECT_EQ(Drawn().symbolSize, 9);
}

TEST_F(GraphOfACurve, ShowsLinesAndSymbolsByItsStyle) {
  struct Row {
    CurveStyle style;
    bool line;
    bool symbols;
  };
  for (const Row& row : {Row{CurveStyle::LinesOnly, true, false}, Row{CurveStyle::SymbolsOnly, false, true},
                         Row{CurveStyle::LinesAndSymbols, true, true}}) {
    program.session.graph.GraphStyle = row.style;

    window.ShowCurve(1);

    EXPECT_EQ(Drawn().hasLine, row.line) << NumberOf(row.style);
    EXPECT_EQ(Drawn().hasSymbols, row.symbols) << NumberOf(row.style);
  }
}

TEST_F(GraphOfACurve, DistinguishesEntriesFromIntersectionsInTheLegend) {
  window.ShowCurve(3);
  EXPECT_EQ(Drawn().legend, "Sug.PSUP");

  window.ShowCurve(4);
  EXPECT_EQ(Drawn().legend, "Rock Load Straights");

  window.ShowCurve(9);
  EXPECT_EQ(Drawn().legend, "Rock Load Intersections");
}

TEST_F(GraphOfACurve, ShowsItsLegendIfThatIsOn) {
  window.ShowCurve(1);
  EXPECT_TRUE(window.graph1.LegendShown());

  for (const Integer off : {Integer{0}, Integer{2}}) {
    program.session.graph.CurveLegend = off;
    window.ShowCurve(1);
    EXPECT_FALSE(window.graph1.LegendShown()) << off;
  }
}

TEST_F(GraphOfACurve, HasColoursForSixSeries) {
  window.GraphInit(1);
  program.windows.curve.CurveCount = 6;

  window.DrawCurve();

  ASSERT_THAT(window.graph1.Series(), SizeIs(6));
  EXPECT_EQ(window.graph1.Series()[5].colour, 5);
}

TEST_F(GraphOfACurve, FailsAtTheSeventhSeries) {
  window.GraphInit(1);
  program.windows.curve.CurveCount = 7;

  EXPECT_EQ(ErrorNumberOf([&] { window.DrawCurve(); }), 9);
}

TEST_F(GraphOfACurve, ClearedHasNoSeries) {
  window.ShowCurve(1);

  window.ClearGraph();

  EXPECT_THAT(window.graph1.Series(), IsEmpty());
  EXPECT_EQ(program.windows.curve.CurveCount, 0);
}

TEST_F(GraphOfACurve, ReadsOffThePointUnderThePointer) {
  window.ShowCurve(1);
  window.GraphOptionsItem.ClickItem(PointID);

  Point(1, 3.9);

  EXPECT_THAT(ReadOut(), ElementsAre("240.00", "4.13", "Sug.PSUP"));
}

TEST_F(GraphOfACurve, RoundsTheReadOutToTwoDecimals) {
  window.ShowCurve(1);
  window.GraphOptionsItem.ClickItem(PointID);

  Point(2, 0);

  EXPECT_THAT(ReadOut(), ElementsAre("280.50", "5.01", "Sug.PSUP"));
}

TEST_F(GraphOfACurve, CallsBothRockLoadsTheSameInTheReadOut) {
  for (const Integer index : {Integer{4}, Integer{9}}) {
    window.ShowCurve(index);
    if (!window.Frame1.Visible()) window.GraphOptionsItem.ClickItem(PointID);

    Point(0, 0);

    EXPECT_EQ(window.lblCurve.Caption(), "RockLoad") << index;
  }
}

TEST_F(GraphOfACurve, ReadsNothingOffUntilTheReadOutIsOn) {
  window.ShowCurve(1);

  Point(1, 0);

  EXPECT_THAT(ReadOut(), ElementsAre("", "", ""));
}

TEST_F(GraphOfACurve, KeepsTheReadOutFarFromAPointInsideThePlot) {
  window.ShowCurve(1);
  window.GraphOptionsItem.ClickItem(PointID);
  Point(1, 0);

  Point(2, 4);
  EXPECT_THAT(ReadOut(), ElementsAre("240.00", "4.13", "Sug.PSUP"));

  Point(-1, 0);
  Point(3, 0);
  Point(2, 0, -1);
  Point(2, 0, 1);
  EXPECT_THAT(ReadOut(), ElementsAre("240.00", "4.13", "Sug.PSUP"));
}

TEST_F(GraphOfACurve, KeepsTheReadOutOverAMissingPoint) {
  window.ShowCurve(1);
  window.GraphOptionsItem.ClickItem(PointID);
  Point(1, 0);
  ChartSeries holed = Drawn();
  holed.y[2] = 1e308;
  window.graph1.SetSeries({holed});

  Point(2, 0);

  EXPECT_THAT(ReadOut(), ElementsAre("240.00", "4.13", "Sug.PSUP"));
}

TEST_F(GraphOfACurve, ClearsTheReadOutOutsideThePlot) {
  window.ShowCurve(1);
  window.GraphOptionsItem.ClickItem(PointID);
  Point(1, 0);

  LeaveThePlot();

  EXPECT_THAT(ReadOut(), ElementsAre("", "", ""));
}

TEST_F(GraphOfACurve, ShowsAndHidesTheReadOut) {
  window.ShowCurve(1);

  window.GraphOptionsItem.ClickItem(PointID);
  EXPECT_TRUE(window.GraphOptionsItem.ItemChecked(PointID));
  EXPECT_TRUE(window.Frame1.Visible());

  window.GraphOptionsItem.ClickItem(PointID);
  EXPECT_FALSE(window.GraphOptionsItem.ItemChecked(PointID));
  EXPECT_FALSE(window.Frame1.Visible());
}

TEST_F(GraphOfACurve, OpensAgainWithoutTheReadOut) {
  window.ShowCurve(1);
  window.GraphOptionsItem.ClickItem(PointID);
  Point(1, 0);
  window.Close();

  window.ShowCurve(1);

  EXPECT_FALSE(window.GraphOptionsItem.ItemChecked(PointID));
  EXPECT_FALSE(window.Frame1.Visible());
  EXPECT_THAT(ReadOut(), ElementsAre("", "", ""));
  EXPECT_FALSE(program.windows.curve.GraphClosed);
}

TEST_F(GraphOfACurve, IsPrintedOnTheChosenPrinter) {
  window.ShowCurve(1);

  window.GraphFileItem.ClickItem(Print);

  EXPECT_EQ(platform.printer.chosen, 1);
  EXPECT_EQ(platform.printer.printedChart, "graph1");
  EXPECT_EQ(program.session.history.Text, "1. Printing Graph\r\n");
}

TEST_F(GraphOfACurve, IsPrintedBelowItsTitleTheProjectAndTheDate) {
  program.project.CurrentFile = "/home/user/belt.orb";
  program.project.ProjectTitle = " Belt entry ";
  window.ShowCurve(1);

  window.GraphFileItem.ClickItem(Print);

  EXPECT_THAT(platform.printer.chartHeading, ElementsAre("Suggested PSUP vs Depth of Cover",
                                                         "File Name: belt.orb - Belt entry", "Date/Time: 3/9/2031"));
}

TEST_F(GraphOfACurve, IsNotPrintedWhenThePrinterDialogIsCancelled) {
  window.ShowCurve(1);
  platform.printer.error = error_number::Cancelled;

  window.GraphFileItem.ClickItem(Print);

  EXPECT_EQ(platform.printer.printedChart, "");
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.session.history.Text, "1. Cancel was selected.\r\n");
}

TEST_F(GraphOfACurve, OffersARetryIfThePrinterFails) {
  window.ShowCurve(1);
  platform.printer.error = error_number::Printer;
  platform.boxes.answers = {BoxResult::Retry, BoxResult::Cancel};

  window.GraphFileItem.ClickItem(Print);

  EXPECT_EQ(platform.printer.chosen, 2);
  EXPECT_EQ(platform.printer.printedChart, "");
  ASSERT_THAT(platform.boxes.shown, SizeIs(2));
  EXPECT_EQ(platform.boxes.shown[0].text, "Error occurred: Printer error (482)");
  EXPECT_EQ(platform.boxes.shown[0].style, BoxButtons::RetryCancel);
  EXPECT_TRUE(window.IsOpen());
}

TEST_F(GraphOfACurve, IsPrintedOnTheChosenPrinterAfterARetry) {
  JammedPrinter jammed;
  Program other(platform.AsPlatformWith(jammed));
  other.windows.curve = program.windows.curve;
  GraphWindow graph(other);
  graph.ShowCurve(1);
  platform.boxes.answers = {BoxResult::Retry};

  graph.GraphFileItem.ClickItem(Print);

  EXPECT_EQ(jammed.chosen, 1);
  EXPECT_EQ(jammed.printedChart, "graph1");
  ASSERT_THAT(platform.boxes.shown, SizeIs(1));
  EXPECT_EQ(platform.boxes.shown[0].text, "Error occurred: Printer error (482)");
  EXPECT_EQ(platform.boxes.shown[0].style, BoxButtons::RetryCancel);
}

TEST_F(GraphOfACurve, IsCopiedAsAPicture) {
  window.ShowCurve(1);

  window.GraphEditItem.ClickItem(0);

  EXPECT_EQ(platform.clipboard.pictured, "graph1");
}

TEST_F(GraphOfACurve, IsExportedWithHeadersAndTitles) {
  program.session.graph.GraphTitle = "Panel 3";
  window.ShowCurve(1);

  window.GraphFileItem.ClickItem(Export);

  EXPECT_THAT(platform.documents.opened, ElementsAre("/tmp/orby/ORBY Suggested PSUP vs Depth of Cover.xlsx"));
  const Sheet& sheet = platform.documents.sheet;
  EXPECT_EQ(sheet.title, "Panel 3");
  EXPECT_EQ(sheet.xTitle, "Depth of Cover (ft)");
  EXPECT_EQ(sheet.yTitle, "Suggested PSUP");
  ASSERT_THAT(sheet.series, SizeIs(1));
  EXPECT_EQ(sheet.series[0].xHeader, "X-coord");
  EXPECT_EQ(sheet.series[0].yHeader, "Sug.PSUP");
  EXPECT_THAT(sheet.series[0].x, ElementsAre(200, 240, 280.5));
  EXPECT_THAT(sheet.series[0].y, ElementsAre(3.25, 4.125, static_cast<double>(5.005F)));
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Exported 1 Curve"));
}

TEST_F(GraphOfACurve, OfTwentyTwoPointsExportsAllOfThem) {
  program.windows.curve.CurvePoints[0].assign(24, 30);
  program.windows.curve.CurvePoints[1].assign(24, 8.5F);
  program.windows.curve.CurvePointCount = 22;
  window.ShowCurve(6);

  window.GraphFileItem.ClickItem(Export);

  ASSERT_THAT(platform.documents.sheet.series, SizeIs(1));
  EXPECT_THAT(platform.documents.sheet.series[0].x, SizeIs(22));
  EXPECT_THAT(platform.documents.sheet.series[0].y, SizeIs(22));
  EXPECT_EQ(platform.documents.sheet.series[0].yHeader, "RockLoad");
}

TEST_F(GraphOfACurve, ExportsEverySeries) {
  window.GraphInit(8);
  program.windows.curve.CurveCount = 2;
  window.DrawCurve();

  window.GraphFileItem.ClickItem(Export);

  ASSERT_THAT(platform.documents.sheet.series, SizeIs(2));
  EXPECT_EQ(platform.documents.sheet.series[1].xHeader, "X-coord");
  EXPECT_EQ(platform.documents.sheet.series[1].yHeader, "RockLoad");
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Exported 2 Curves"));
}

TEST_F(GraphOfACurve, AsksBeforeTheExportIfTheSettingSaysSo) {
  program.session.options.AskOfficeInstall = 0;
  platform.boxes.answers = {BoxResult::Yes};
  window.ShowCurve(1);

  window.GraphFileItem.ClickItem(Export);

  ASSERT_THAT(platform.boxes.shown, SizeIs(2));
  EXPECT_EQ(platform.boxes.shown[0].text,
            "This option will only work if Microsoft Excel is installed on this computer. Proceed?");
  EXPECT_EQ(platform.boxes.shown[0].style, BoxButtons::YesNo);
  EXPECT_THAT(platform.documents.opened, SizeIs(1));
}

TEST_F(GraphOfACurve, IsExportedWithoutAQuestionByAnyOtherSetting) {
  program.session.options.AskOfficeInstall = 2;
  window.ShowCurve(1);

  window.GraphFileItem.ClickItem(Export);

  EXPECT_THAT(platform.documents.opened, SizeIs(1));
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Exported 1 Curve"));
}

TEST_F(GraphOfACurve, IsNotExportedAfterANo) {
  program.session.options.AskOfficeInstall = 0;
  platform.boxes.answers = {BoxResult::No};
  window.ShowCurve(1);

  window.GraphFileItem.ClickItem(Export);

  EXPECT_THAT(platform.documents.opened, IsEmpty());
  EXPECT_THAT(platform.boxes.shown, SizeIs(1));
}

TEST_F(GraphOfACurve, ReportsASpreadsheetThatCannotBeOpened) {
  platform.documents.opens = false;
  window.ShowCurve(0);

  window.GraphFileItem.ClickItem(Export);

  ASSERT_THAT(platform.boxes.shown, SizeIs(1));
  EXPECT_THAT(platform.boxes.shown[0].text, testing::HasSubstr("/tmp/orby/ORBY Suggested PSUP vs CMRR.xlsx (429)"));
  EXPECT_THAT(platform.boxes.shown[0].text, testing::EndsWith(". Procedure Terminated"));
  EXPECT_TRUE(window.IsOpen());
}

TEST_F(GraphOfACurve, ClosesByItsMenu) {
  window.ShowCurve(1);

  window.GraphFileItem.ClickItem(Exit);

  EXPECT_FALSE(window.IsOpen());
  EXPECT_TRUE(program.windows.curve.GraphClosed);
}

TEST_F(GraphOfACurve, StoresTheFormatOfTheChartWhenItCloses) {
  window.ShowCurve(5);
  window.graph1.SetHeading("Tailgate");
  window.graph1.SetAxisX({"Width of the entry", true});
  window.graph1.SetAxisY({"Load", false});
  window.graph1.SetLegendShown(false);
  ChartSeries series = Drawn();
  series.symbolSize = 12;
  window.graph1.SetSeries({series});

  window.Close();

  EXPECT_EQ(program.session.graph.GraphTitle, "Tailgate");
  EXPECT_EQ(program.session.graph.XAxisTitle[5], "Width of the entry");
  EXPECT_EQ(program.session.graph.XAxisTitle[4], "Rock Load Height (ft)");
  EXPECT_EQ(program.session.graph.YAxisTitle[1], "Load");
  EXPECT_EQ(program.session.graph.YAxisTitle[2], "Rock Load Intersections (tons)");
  EXPECT_EQ(program.session.graph.GridStyle, GridLines::Vertical);
  EXPECT_EQ(program.session.graph.CurveLegend, 0);
  EXPECT_EQ(program.session.graph.SymbolSize, 12);
}

TEST_F(GraphOfACurve, StoresEachGridStyleAsItIsDrawn) {
  for (const GridLines style : {GridLines::None, GridLines::Horizontal, GridLines::Vertical, GridLines::Both}) {
    program.session.graph.GridStyle = style;
    window.ShowCurve(1);
    program.session.graph.GridStyle = style == GridLines::None ? GridLines::Both : GridLines::None;

    window.Close();

    EXPECT_EQ(program.session.graph.GridStyle, style);
  }
}

TEST_F(GraphOfACurve, ClearedKeepsTheSymbolSizeWhenItCloses) {
  program.session.graph.SymbolSize = 8;
  window.ShowCurve(1);
  window.ClearGraph();

  window.Close();

  EXPECT_EQ(program.session.graph.SymbolSize, 8);
}

TEST_F(GraphOfACurve, KeepsTheTitleOfTheShownCurveIfAnotherOneFails) {
  window.ShowCurve(1);
  window.graph1.SetAxisX({"Cover above the seam", true});
  program.windows.WorkParmsCopy.Place.CMRR = 45;
  program.windows.WorkParmsCopy.Place.DepthofCover = 400;
  program.windows.WorkParmsCopy.Place.ActualSpanDiagonals = 60;
  program.windows.WorkParmsCopy.Primary.StabilityFactor = 2e38F;
  ASSERT_EQ(ErrorNumberOf([&] { TakeCurve(program, program.windows.WorkParmsCopy, 2); }), 6);

  window.Close();

  EXPECT_EQ(program.session.graph.XAxisTitle[1], "Cover above the seam");
  EXPECT_EQ(program.session.graph.XAxisTitle[2], "Stability Factor");
}

TEST_F(GraphOfACurve, OpensItsOptionsOnTheShownChart) {
  window.ShowCurve(1);
  window.graph1.SetHeading("Tailgate");
  std::string asked;
  platform.windows.onModal = [&](Form& form) {
    asked = form.Name();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_EQ(program.session.graph.GraphTitle, "Tailgate");
  };

  window.GraphOptionsItem.ClickItem(BasicOptions);

  EXPECT_EQ(asked, "frmGraphOpt");
  EXPECT_EQ(platform.windows.modalForms, 1);
}

}  // namespace
}  // namespace orby::test
