#include "dialogs/results_window.h"

#include <gmock/gmock.h>

#include <vector>

#include "core/messages.h"
#include "dialogs/graph_window.h"
#include "dialogs/jammed_printer.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

// A report of two pages for the parameters dialog, and the default design for the curves.
struct AResultsWindow : testing::Test {
  AResultsWindow() {
    program.session.OutBuf = {"inputs\r\n", "calculations\r\n", "", "", ""};
    program.windows.LastPage = 1;
    program.windows.ReportCaller = InputDialog::Parameters;
    program.windows.DialogOpen = true;
    program.windows.OpenInputDialog = [this](InputDialog caller) { reopened.push_back(caller); };
    Design& design = program.windows.WorkParmsCopy;
    design.Place.CMRR = 45;
    design.Place.DepthofCover = 400;
    design.Primary.StabilityFactor = 1;
    design.Place.ActualSpanDiagonals = 60;
    design.Place.EntryWidth = 20;
    design.Entries.RockLoadHeight = 8;
    design.Entries.RockFallAngle = 30;
    design.Place.UnitWeight = 162;
  }

  std::string FirstSheet() const { return platform.printer.pages.empty() ? "" : platform.printer.pages.front(); }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  std::vector<InputDialog> reopened;
  ResultsWindow window{program};
};

TEST_F(AResultsWindow, HasItsCaptions) {
  EXPECT_EQ(window.Name(), "frmResTxtPlt");
  EXPECT_EQ(window.Caption(), "Calculation Results - Untitled");
  EXPECT_EQ(window.Command1.Caption(), "Close");
  EXPECT_EQ(window.Command2.Caption(), "&Copy Page");
  EXPECT_EQ(window.Command3.Caption(), "&Print Page");
  EXPECT_EQ(window.Command4.Caption(), "&Next Page");
  EXPECT_EQ(window.Command5.Caption(), "P&revious Page");
  EXPECT_EQ(window.Command6.Caption(), "Print &All");
  EXPECT_EQ(window.Command7.Caption(), "Cop&y All");
  EXPECT_EQ(window.Command8.Caption(), "Help");
  EXPECT_EQ(window.Command9.Caption(), "&View Plots");
  EXPECT_EQ(window.cmdGraph.Caption(), "Generate Graphs");
  EXPECT_EQ(window.cmdChangeInput.Caption(), "Change &Input");
  EXPECT_EQ(window.chkWhereLeft.Caption(), "&Open where it was left");
}

// ---- opening and closing --------------------------------------------------------------------------------------------

TEST_F(AResultsWindow, OpensOnTheFirstPageAndHidesTheMainWindow) {
  window.Open();

  EXPECT_FALSE(platform.windows.mainWindowShown);
  EXPECT_EQ(window.RichTextBox1.Text(), "inputs\r\n");
  EXPECT_EQ(window.RichTextBox1.Font(), (FontChoice{"Courier New", 10}));
  EXPECT_EQ(window.RichTextBox1.Kind(), TextKind::Output);
  EXPECT_EQ(program.session.history.Text, "1. Results displayed\r\n");
  EXPECT_EQ(platform.windows.centered, 1);
}

TEST_F(AResultsWindow, ShowsTheMainWindowAgainWhenItCloses) {
  window.Open();

  window.Command1.Press();

  EXPECT_FALSE(window.IsOpen());
  EXPECT_TRUE(platform.windows.mainWindowShown);
  EXPECT_THAT(reopened, IsEmpty());
}

TEST_F(AResultsWindow, OpensOnTheFirstPageAgain) {
  window.Open();
  window.Command4.Press();
  window.cmdGraph.Press();
  window.Close();

  window.Open();

  EXPECT_EQ(window.RichTextBox1.Text(), "inputs\r\n");
  EXPECT_TRUE(window.Command4.Enabled());
  EXPECT_FALSE(window.Command5.Enabled());
  EXPECT_FALSE(window.lstGraphs.Visible());
}

TEST_F(AResultsWindow, OpensWhereItWasLeftIfTheUserWantsThat) {
  window.Open();
  EXPECT_FALSE(window.chkWhereLeft.Checked());
  window.chkWhereLeft.SetValue(1);
  window.Command4.Press();
  window.Close();

  ResultsWindow next(program);
  next.Open();

  EXPECT_TRUE(next.chkWhereLeft.Checked());
  EXPECT_EQ(next.RichTextBox1.Text(), "calculations\r\n");
  EXPECT_FALSE(next.Command4.Enabled());
  EXPECT_TRUE(next.Command5.Enabled());

  next.chkWhereLeft.SetValue(0);
  next.Close();
  window.Open();
  EXPECT_EQ(window.RichTextBox1.Text(), "inputs\r\n");
}

TEST_F(AResultsWindow, OpensOnTheFirstPageOfAReportWithoutThePageWhereItWasLeft) {
  window.Open();
  window.chkWhereLeft.SetValue(1);
  window.Command4.Press();
  window.Close();
  program.windows.LastPage = 0;

  window.Open();

  EXPECT_EQ(window.RichTextBox1.Text(), "inputs\r\n");
}

TEST_F(AResultsWindow, IsShownUntilItIsClosed) {
  platform.windows.onModal = [](Form& form) {
    EXPECT_TRUE(form.IsOpen());
    EXPECT_EQ(form.Name(), "frmResTxtPlt");
  };

  ShowResults(program);

  EXPECT_EQ(platform.windows.modalForms, 1);
  EXPECT_TRUE(platform.windows.mainWindowShown);
}

// ---- paging ---------------------------------------------------------------------------------------------------------

TEST_F(AResultsWindow, OffersThePagesZeroAndOneOfAReport) {
  window.Open();
  EXPECT_TRUE(window.Command4.Enabled());
  EXPECT_FALSE(window.Command5.Enabled());

  window.Command4.Press();
  EXPECT_EQ(window.RichTextBox1.Text(), "calculations\r\n");
  EXPECT_FALSE(window.Command4.Enabled());
  EXPECT_TRUE(window.Command5.Enabled());
}

TEST_F(AResultsWindow, StopsAtBothEnds) {
  window.Open();
  window.Command5.Press();
  EXPECT_EQ(window.RichTextBox1.Text(), "inputs\r\n");

  window.Command4.Press();
  window.Command4.Press();
  EXPECT_EQ(window.RichTextBox1.Text(), "calculations\r\n");

  window.Command5.Press();
  EXPECT_EQ(window.RichTextBox1.Text(), "inputs\r\n");
  EXPECT_TRUE(window.Command4.Enabled());
  EXPECT_FALSE(window.Command5.Enabled());
}

TEST_F(AResultsWindow, EnablesBothButtonsOnAPageBetween) {
  program.windows.LastPage = 4;
  window.Open();

  window.Command4.Press();

  EXPECT_TRUE(window.Command4.Enabled());
  EXPECT_TRUE(window.Command5.Enabled());
}

TEST_F(AResultsWindow, SaysWhichPageIsShownOfHowMany) {
  window.Open();
  EXPECT_EQ(window.lblPage.Caption(), "Page 1 of 2");

  window.Command4.Press();
  EXPECT_EQ(window.lblPage.Caption(), "Page 2 of 2");

  window.Command5.Press();
  EXPECT_EQ(window.lblPage.Caption(), "Page 1 of 2");
}

TEST_F(AResultsWindow, ShowsEachPageFromItsTop) {
  window.Open();
  window.RichTextBox1.Select(4, 2);

  window.Command4.Press();

  EXPECT_EQ(window.RichTextBox1.SelectionStart(), 0U);
  EXPECT_EQ(window.RichTextBox1.SelectionLength(), 0U);
}

// ---- copying --------------------------------------------------------------------------------------------------------

TEST_F(AResultsWindow, CopiesTheShownPage) {
  window.Open();

  window.Command2.Press();
  EXPECT_EQ(platform.clipboard.text, "inputs\r\n");

  window.Command4.Press();
  window.Command2.Press();
  EXPECT_EQ(platform.clipboard.text, "calculations\r\n");
  EXPECT_EQ(program.session.history.Text,
            "1. Results displayed\r\n2. Page 0 copied to clipboard\r\n3. Page 1 copied to clipboard\r\n");
}

// Records each call in turn.
struct NotingClipboard : RecordingClipboard {
  void Clear() override { acts.emplace_back("clear"); }
  void SetText(const std::string& given) override { acts.push_back(given); }

  std::vector<std::string> acts;
};

TEST_F(AResultsWindow, ClearsTheClipboardBeforeItCopiesAPage) {
  NotingClipboard clipboard;
  Program other(platform.AsPlatformWith(clipboard));
  other.session.OutBuf = program.session.OutBuf;
  ResultsWindow results(other);
  results.Open();

  results.Command2.Press();

  EXPECT_THAT(clipboard.acts, ElementsAre("clear", "inputs\r\n"));
}

TEST_F(AResultsWindow, CopiesAllPagesWithNothingBetweenThem) {
  program.session.OutBuf[2] = "left over";
  window.Open();
  window.Command4.Press();

  window.Command7.Press();

  EXPECT_EQ(platform.clipboard.text, "inputs\r\ncalculations\r\n");
  EXPECT_THAT(program.session.history.Text, EndsWith("2. Output copied to clipboard\r\n"));
}

// ---- printing -------------------------------------------------------------------------------------------------------

TEST_F(AResultsWindow, PrintsTheShownPage) {
  window.Open();
  window.Command4.Press();
  window.RichTextBox1.Select(4, 2);

  window.Command3.Press();

  EXPECT_EQ(platform.printer.chosen, 1);
  EXPECT_THAT(platform.printer.pages, SizeIs(1));
  EXPECT_THAT(FirstSheet(), HasSubstr("Page: 1\r\n"));
  EXPECT_THAT(FirstSheet(), EndsWith("\r\ncalculations\r\n"));
  EXPECT_THAT(FirstSheet(), Not(HasSubstr("inputs")));
  EXPECT_THAT(program.session.history.Text, EndsWith("2. Current page printed\r\n"));
  EXPECT_EQ(window.RichTextBox1.Text(), "calculations\r\n");
  EXPECT_EQ(window.RichTextBox1.SelectionStart(), 0U);
}

TEST_F(AResultsWindow, PrintsAllPagesAsOneText) {
  window.Open();

  window.Command6.Press();

  EXPECT_EQ(platform.printer.chosen, 1);
  EXPECT_THAT(platform.printer.pages, SizeIs(1));
  EXPECT_THAT(FirstSheet(), EndsWith("\r\ninputs\r\ncalculations\r\n"));
  EXPECT_THAT(program.session.history.Text, EndsWith("2. All pages printed\r\n"));
}

TEST_F(AResultsWindow, PrintsNothingIfThePrinterDialogIsCancelled) {
  platform.printer.error = error_number::Cancelled;
  window.Open();

  window.Command6.Press();

  EXPECT_THAT(platform.printer.pages, IsEmpty());
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.session.history.Text, "1. Results displayed\r\n2. All pages printed\r\n3. Printing aborted\r\n");
  EXPECT_TRUE(window.IsOpen());
}

TEST_F(AResultsWindow, OffersARetryWithoutAPrinterAndStaysOpen) {
  platform.printer.error = error_number::Printer;
  platform.boxes.answers = {BoxResult::Retry, BoxResult::Cancel};
  window.Open();

  window.Command3.Press();

  EXPECT_EQ(platform.printer.chosen, 2);
  ASSERT_THAT(platform.boxes.shown, SizeIs(2));
  EXPECT_EQ(platform.boxes.shown[0].text, "Error occurred: Printer error (482)");
  EXPECT_EQ(platform.boxes.shown[0].style, BoxButtons::RetryCancel);
  EXPECT_THAT(platform.printer.pages, IsEmpty());
  EXPECT_THAT(program.session.history.Text, Not(HasSubstr("Printing aborted")));
  EXPECT_TRUE(window.IsOpen());
}

TEST_F(AResultsWindow, PrintsOnTheChosenPrinterAfterARetry) {
  JammedPrinter jammed;
  Program other(platform.AsPlatformWith(jammed));
  other.session.OutBuf = program.session.OutBuf;
  other.windows.LastPage = 1;
  platform.boxes.answers = {BoxResult::Retry};
  ResultsWindow results(other);
  results.Open();

  results.Command6.Press();

  EXPECT_EQ(jammed.chosen, 1);
  EXPECT_THAT(jammed.pages, SizeIs(1));
  EXPECT_THAT(platform.boxes.shown, SizeIs(1));
}

// ---- curves ---------------------------------------------------------------------------------------------------------

TEST_F(AResultsWindow, ListsTheCurvesUnderTheirNumbers) {
  window.Open();

  std::vector<std::string> names;
  std::vector<double> numbers;
  for (const ComboItem& item : window.lstGraphs.Items()) {
    names.push_back(item.text);
    numbers.push_back(item.data);
  }
  EXPECT_THAT(
      names,
      ElementsAre("Suggested PSUP vs CMRR", "Suggested PSUP vs Depth of Cover", "Suggested PSUP vs Stability Factor",
                  "Suggested PSUP vs Sum of Diagonals", "Rock Load vs Rock Load Height (Entries)",
                  "Rock Load vs Entry Width (Entries)", "Rock Load vs Roof Fall Angle (Entries)",
                  "Rock Load vs Rock Load Height (Intersections)", "Rock Load vs Sum of Diagonals (Intersections)",
                  "Rock Load vs Roof Fall Angle (Intersections)"));
  EXPECT_THAT(numbers, ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9));
}

TEST_F(AResultsWindow, ShowsAndHidesTheListOfCurves) {
  window.Open();
  EXPECT_FALSE(window.lstGraphs.Visible());

  window.cmdGraph.Press();
  EXPECT_TRUE(window.lstGraphs.Visible());

  window.cmdGraph.Press();
  EXPECT_FALSE(window.lstGraphs.Visible());
}

TEST_F(AResultsWindow, DrawsTheChosenCurveAndHidesTheList) {
  window.Open();
  window.cmdGraph.Press();

  window.lstGraphs.ClickItem(5);

  EXPECT_FALSE(window.lstGraphs.Visible());
  EXPECT_EQ(program.windows.curve.CurveIndex, 5);
  EXPECT_EQ(program.windows.curve.CurvePointCount, 25);
  ASSERT_THAT(platform.windows.shown, SizeIs(1));
  const auto& graph = dynamic_cast<const GraphWindow&>(*platform.windows.shown[0]);
  EXPECT_TRUE(graph.IsOpen());
  ASSERT_THAT(graph.graph1.Series(), SizeIs(1));
  EXPECT_THAT(graph.graph1.Series()[0].x, SizeIs(25));
}

TEST_F(AResultsWindow, SaysThatTheRatingWasTrimmedBeforeItDraws) {
  window.Open();
  window.cmdGraph.Press();

  window.lstGraphs.ClickItem(0);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Upper limit for CMRR trimmed to 51"));
  EXPECT_THAT(platform.windows.shown, SizeIs(1));
}

TEST_F(AResultsWindow, DrawsEveryCurveInTheSameWindow) {
  window.Open();
  window.lstGraphs.ClickItem(5);
  Form* const graph = platform.windows.shown.at(0);
  graph->Close();

  window.lstGraphs.ClickItem(8);
  window.lstGraphs.ClickItem(8);

  EXPECT_THAT(platform.windows.shown, ElementsAre(graph, graph, graph));
  EXPECT_TRUE(graph->IsOpen());
  EXPECT_EQ(program.windows.curve.CurveIndex, 8);
}

TEST_F(AResultsWindow, ReportsACurveThatCannotBeComputedAndStaysOpen) {
  program.windows.WorkParmsCopy.Place.CMRR = 95;
  window.Open();
  window.cmdGraph.Press();

  window.lstGraphs.ClickItem(0);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Upper limit for CMRR trimmed to 51",
                                                  "Error occurred: Subscript out of range (9). Procedure Terminated"));
  EXPECT_THAT(platform.windows.shown, IsEmpty());
  EXPECT_TRUE(window.IsOpen());
  EXPECT_TRUE(window.lstGraphs.Visible());
}

TEST_F(AResultsWindow, ClosesTheGraphWhenItCloses) {
  window.Open();
  window.lstGraphs.ClickItem(5);
  Form* const graph = platform.windows.shown.at(0);

  window.Close();

  EXPECT_FALSE(graph->IsOpen());
  EXPECT_TRUE(platform.windows.mainWindowShown);
}

// ---- the other commands ---------------------------------------------------------------------------------------------

TEST_F(AResultsWindow, HasNoPlotsYet) {
  window.Open();

  window.Command9.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Option not active yet"));
}

TEST_F(AResultsWindow, OpensTheHelp) {
  window.Open();

  window.Command8.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Help file (/program/ORBY.CHM) not available"));
}

TEST_F(AResultsWindow, ReturnsToTheDialogThatIsStillOpen) {
  window.Open();

  window.cmdChangeInput.Press();

  EXPECT_FALSE(window.IsOpen());
  EXPECT_THAT(reopened, IsEmpty());
}

TEST_F(AResultsWindow, OpensTheDialogThatRequestedTheReport) {
  program.windows.DialogOpen = false;
  program.windows.ReportCaller = InputDialog::Cost;
  program.windows.OpenInputDialog = [this](InputDialog caller) {
    EXPECT_FALSE(window.IsOpen());
    reopened.push_back(caller);
  };
  window.Open();

  window.cmdChangeInput.Press();

  EXPECT_THAT(reopened, ElementsAre(InputDialog::Cost));
  EXPECT_TRUE(platform.windows.mainWindowShown);
}

TEST_F(AResultsWindow, OnlyClosesIfNoDialogRequestedTheReport) {
  program.windows.DialogOpen = false;
  program.windows.ReportCaller = InputDialog::None;
  window.Open();

  window.cmdChangeInput.Press();

  EXPECT_FALSE(window.IsOpen());
  EXPECT_THAT(reopened, IsEmpty());
}

}  // namespace
}  // namespace orby::test
