#include <utility>

#include "dialogs/cost_dialog_fixture.h"
#include "dialogs/results_window.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

// ---- checks ---------------------------------------------------------------------------------------------------------

struct Fault {
  std::string_view name;
  std::string_view message;
};

// In the order of the checks.
constexpr std::array<Fault, 22> Faults{{
    {"txtBoltCost", "Invalid cost per bolt"},
    {"txtPlateCost", "Invalid cost per plate"},
    {"txtResinCost", "Invalid cost per resin"},
    {"txtBitCost", "Invalid cost per bit"},
    {"txtHeaderCost", "Invalid header cost"},
    {"txtStrapCost", "Invalid strap/mesh cost"},
    {"txtnboltsShift", "Invalid number of bolts per shift"},
    {"txtnBoltsRow", "Invalid number of bolts per row"},
    {"txtRowSpacing", "Invalid roof bolt row spacing"},
    {"txtnOperShift", "Invalid number of operators per shift"},
    {"txtTotalLabor", "Invalid total labor cost per shift"},
    {"txtHoursShift", "Invalid hours per shift"},
    {"txtMaintainHrs", "Invalid maintenance hours"},
    {"txtMaintainCost", "Invalid maintenance cost"},
    {"txtTranspCost", "Invalid transportation cost"},
    {"txtCapitalCost", "Invalid machine capital cost"},
    {"txtYearsDepr", "Invalid number of depreciation years"},
    {"txtAdvanceShift", "Invalid advance per shift"},
    {"txtAdvanceRate", "Invalid advance rate"},
    {"txtCleanProduction", "Invalid clean production"},
    {"txtShiftsWeek", "Invalid number of shifts per week"},
    {"txtWeeksYear", "Invalid number of weeks per year"},
}};

TEST_F(ACostDialog, ReportsOnlyTheFirstNegativeNumber) {
  dialog.Open();
  for (const Fault& fault : Faults) Box(fault.name).SetText("-0.01");

  for (const Fault& fault : Faults) {
    platform.boxes.shown.clear();
    EXPECT_FALSE(dialog.ValidateCost()) << fault.name;
    ASSERT_EQ(platform.boxes.shown.size(), 1U) << fault.name;
    EXPECT_EQ(platform.boxes.shown[0].text, fault.message);
    EXPECT_EQ(platform.boxes.shown[0].title, "Project Parameters: Range Error");
    EXPECT_EQ(platform.boxes.shown[0].style, BoxIcon::Critical);
    EXPECT_EQ(dialog.FocusRequest(), &Box(fault.name));
    Box(fault.name).SetText("0");
  }
  platform.boxes.shown.clear();

  EXPECT_TRUE(dialog.ValidateCost());
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(ACostDialog, AcceptsZeroInEveryField) {
  dialog.Open();
  for (const FieldCase& field : CostFieldCases) Box(field.name).SetText("0");

  EXPECT_TRUE(dialog.ValidateCost());
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(ACostDialog, TreatsATextThatIsNoNumberAsZero) {
  dialog.Open();
  for (const FieldCase& field : CostFieldCases) Box(field.name).SetText("none");
  Box("txtBitCost").SetText("");

  dialog.Command2.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  for (const FieldCase& field : CostFieldCases)
    EXPECT_EQ(field.field.In(program.project.WorkParms), 0.0F) << field.name;
}

// ---- OK and Cancel --------------------------------------------------------------------------------------------------

TEST_F(ACostDialog, WritesEveryFieldOnOk) {
  dialog.Open();
  for (const FieldCase& field : CostFieldCases) Box(field.name).SetText(std::string(field.text));
  dialog.chkAdvance.SetValue(0);
  dialog.chkProduction.SetValue(0);

  dialog.Command2.Press();

  for (const FieldCase& field : CostFieldCases)
    EXPECT_EQ(field.field.In(program.project.WorkParms), field.value) << field.name;
  EXPECT_EQ(program.project.WorkParms.Cost.Advance, 0);
  EXPECT_EQ(program.project.WorkParms.Cost.Production, 0);
}

TEST_F(ACostDialog, StoresEachOfItsTwoBoxesByItself) {
  program.project.WorkParms.Cost.Advance = 0;
  program.project.WorkParms.Cost.Production = 0;
  dialog.Open();
  dialog.chkProduction.SetValue(1);

  dialog.Command2.Press();

  EXPECT_EQ(program.project.WorkParms.Cost.Advance, 0);
  EXPECT_EQ(program.project.WorkParms.Cost.Production, 1);
}

TEST_F(ACostDialog, ChangesNothingElseOfTheDesignOnOk) {
  program.project.WorkParms.Primary.RowSpacing = 4.5F;
  program.project.WorkParms.Primary.BoltsperRow = 6;
  dialog.Open();
  dialog.txtRowSpacing.SetText("3.5");

  dialog.Command2.Press();

  EXPECT_EQ(program.project.WorkParms.Primary.RowSpacing, 4.5F);
  EXPECT_EQ(program.project.WorkParms.Primary.BoltsperRow, 6.0F);
}

TEST_F(ACostDialog, MakesTheProjectUnsavedAndLocksItsUnitsOnOk) {
  program.project.FileEmpty = true;
  dialog.Open();

  dialog.Command2.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_FALSE(program.project.FileSaved);
  EXPECT_FALSE(program.project.FileEmpty);
  EXPECT_TRUE(program.project.UnitsLocked);
  EXPECT_FALSE(program.windows.DialogOpen);
  EXPECT_EQ(program.session.history.Text, "1. Editing Project Parameters\r\n2. Project Parameters Modified\r\n");
}

TEST_F(ACostDialog, StaysOpenIfOkFindsANegativeNumber) {
  dialog.Open();
  dialog.txtHoursShift.SetText("-8");
  dialog.txtTotalLabor.SetText("40");

  dialog.Command2.Press();

  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_FALSE(dialog.CommitOnClose);
  EXPECT_EQ(program.project.WorkParms.Cost.TotalLabor, 35.0F);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid hours per shift"));
}

TEST_F(ACostDialog, DiscardsEverythingOnCancel) {
  program.project.FileEmpty = true;
  dialog.Open();
  for (const FieldCase& field : CostFieldCases) Box(field.name).SetText("77");
  dialog.chkAdvance.SetValue(0);

  dialog.Command1.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.project.WorkParms.Cost.BoltCost, 3.0F);
  EXPECT_EQ(program.project.WorkParms.Cost.WeeksYear, 50.0F);
  EXPECT_EQ(program.project.WorkParms.Cost.Advance, 1);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_TRUE(program.project.FileEmpty);
  EXPECT_FALSE(program.project.UnitsLocked);
  EXPECT_FALSE(program.windows.DialogOpen);
  EXPECT_EQ(program.session.history.Text, "1. Editing Project Parameters\r\n2. Project Parameters Not Modified\r\n");
}

TEST_F(ACostDialog, TreatsTheWindowsCloseAsCancel) {
  dialog.Open();
  dialog.txtBoltCost.SetText("9");

  dialog.Close();

  EXPECT_EQ(program.project.WorkParms.Cost.BoltCost, 3.0F);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_THAT(program.session.history.Text, EndsWith("2. Project Parameters Not Modified\r\n"));
}

TEST_F(ACostDialog, RefusesANumberThatNoDesignCanHold) {
  dialog.Open();
  dialog.txtBoltCost.SetText("9");
  for (const char* number : {"1E39", "-1E39", "1E400"}) {
    dialog.txtWeeksYear.SetText(number);

    dialog.Command2.Press();
    dialog.cmdresults.Press();

    EXPECT_THAT(platform.boxes.Texts(),
                ElementsAre("Invalid number of weeks per year", "Invalid number of weeks per year"))
        << number;
    EXPECT_EQ(dialog.FocusRequest(), &dialog.txtWeeksYear) << number;
    EXPECT_TRUE(dialog.IsOpen()) << number;
    platform.boxes.shown.clear();
  }

  EXPECT_EQ(program.project.WorkParms.Cost.BoltCost, 3.0F);
  EXPECT_TRUE(program.project.FileSaved);
}

TEST_F(ACostDialog, SaysHowToGetHelp) {
  dialog.Open();

  dialog.Command3.Press();

  ASSERT_EQ(platform.boxes.shown.size(), 1U);
  EXPECT_EQ(platform.boxes.shown[0].title, "Help");
  EXPECT_THAT(platform.boxes.shown[0].text, EndsWith("press F1 for context-sensitive Help"));
  EXPECT_TRUE(dialog.IsOpen());
}

// ---- results --------------------------------------------------------------------------------------------------------

TEST_F(ACostDialog, ShowsTheCostTableOfTheTypedNumbers) {
  program.project.WorkParms.Cost = CostInputs{};
  dialog.Open();
  for (const auto& [name, text] : {std::pair{"txtBoltCost", "3"},
                                   {"txtPlateCost", "1"},
                                   {"txtResinCost", "1.5"},
                                   {"txtBitCost", "67"},
                                   {"txtnboltsShift", "300"},
                                   {"txtnBoltsRow", "4"},
                                   {"txtRowSpacing", "4"},
                                   {"txtTranspCost", "100"},
                                   {"txtCleanProduction", "1200"}}) {
    Box(name).SetText(text);
  }
  std::string shown;
  platform.windows.onModal = [&](Form&) { shown = program.session.OutBuf[1]; };

  dialog.cmdresults.Press();

  EXPECT_EQ(platform.windows.modalForms, 1);
  EXPECT_THAT(shown, StartsWith("[TULK COST CALCULATIONS]\r\n"));
  EXPECT_THAT(shown, HasSubstr("Consumables Cost:            5.72      5.72   1717.00      1.43\r\n"));
  EXPECT_THAT(shown, HasSubstr("Transportation Cost:         0.33      0.33    100.00      0.08\r\n"));
  EXPECT_THAT(shown, HasSubstr("TOTAL COST:                  6.06      6.06   1817.00      1.51\r\n"));
}

TEST_F(ACostDialog, ShowsTheInputsBesideTheCostTable) {
  program.project.ProjectTitle = "Panel 3 belt entry";
  dialog.Open();
  program.session.OutBuf[0] = "an older report";

  dialog.cmdresults.Press();

  EXPECT_THAT(program.session.OutBuf[0], StartsWith("ORBY module build: "));
  EXPECT_THAT(program.session.OutBuf[0], HasSubstr("Panel 3 belt entry"));
  EXPECT_EQ(program.windows.LastPage, 1);
}

TEST_F(ACostDialog, CommitsNothingByShowingResults) {
  program.project.WorkParms.Place.CMRR = 45;
  dialog.Open();
  for (const FieldCase& field : CostFieldCases) Box(field.name).SetText(std::string(field.text));
  dialog.chkAdvance.SetValue(0);
  dialog.chkProduction.SetValue(0);
  program.windows.ReportCaller = InputDialog::None;

  dialog.cmdresults.Press();

  for (const FieldCase& field : CostFieldCases)
    EXPECT_EQ(field.field.In(program.windows.WorkParmsCopy), field.value) << field.name;
  EXPECT_EQ(program.windows.WorkParmsCopy.Cost.Advance, 0);
  EXPECT_EQ(program.windows.WorkParmsCopy.Cost.Production, 0);
  EXPECT_EQ(program.project.WorkParms.Cost.BoltCost, 3.0F);
  EXPECT_EQ(program.project.WorkParms.Cost.WeeksYear, 50.0F);
  EXPECT_EQ(program.project.WorkParms.Cost.Advance, 1);
  EXPECT_EQ(program.project.WorkParms.Cost.Production, 1);
  EXPECT_EQ(program.project.WorkParms.Place.CMRR, 45);
  EXPECT_EQ(program.windows.ReportCaller, InputDialog::Cost);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_FALSE(program.project.UnitsLocked);
  EXPECT_TRUE(dialog.IsOpen());
}

TEST_F(ACostDialog, ShowsItsResultsWithTheCurvesOfTheProject) {
  program.project.WorkParms.Primary.StabilityFactor = 1.2F;
  program.project.WorkParms.Place.DepthofCover = 400;
  program.windows.WorkParmsCopy.Primary.StabilityFactor = 2;  // of a design that was previewed before and not accepted
  dialog.Open();
  platform.windows.onModal = [](Form& form) {
    if (auto* results = dynamic_cast<ResultsWindow*>(&form)) results->lstGraphs.ClickItem(2);
  };

  dialog.cmdresults.Press();

  EXPECT_EQ(program.windows.curve.CurvePoints[0].front(), 0.6F);
}

TEST_F(ACostDialog, RestoresTheCostsBeforeTheResultsAreShown) {
  dialog.Open();
  for (const FieldCase& field : CostFieldCases) Box(field.name).SetText(std::string(field.text));
  dialog.chkProduction.SetValue(0);
  CostInputs behind;
  platform.windows.onModal = [&](Form&) { behind = program.project.WorkParms.Cost; };

  dialog.cmdresults.Press();

  EXPECT_EQ(platform.windows.modalForms, 1);
  EXPECT_EQ(behind.BoltCost, 3.0F);
  EXPECT_EQ(behind.TotalLabor, 35.0F);
  EXPECT_EQ(behind.WeeksYear, 50.0F);
  EXPECT_EQ(behind.Production, 1);
}

// The cost report also contains the inputs of the design.
TEST_F(ACostDialog, LeavesTheCostsUnchangedIfTheReportFails) {
  program.project.WorkParms.Primary.Analysed = 1;
  program.project.WorkParms.Primary.Options = BoltSource::Manual;
  program.project.WorkParms.Primary.DiameterMode = ValueSource::Typed;
  program.project.WorkParms.Primary.DiameterManual = 1E30F;
  program.project.WorkParms.Primary.GradeMode = ValueSource::Typed;
  program.project.WorkParms.Primary.GradeManual = 75;
  dialog.Open();
  dialog.txtBoltCost.SetText("9");

  EXPECT_EQ(ErrorNumberOf([this] { dialog.cmdresults.Press(); }), 6);

  EXPECT_EQ(program.project.WorkParms.Cost.BoltCost, 3.0F);
  EXPECT_EQ(program.windows.WorkParmsCopy.Cost.BoltCost, 9.0F);
  EXPECT_EQ(platform.windows.modalForms, 0);
}

TEST_F(ACostDialog, KeepsThePreviousPageIfTheTableCannotBeComputed) {
  program.session.OutBuf[1] = "as it was";
  dialog.Open();
  dialog.txtTotalLabor.SetText("3E38");

  EXPECT_EQ(ErrorNumberOf([this] { dialog.cmdresults.Press(); }), 6);

  EXPECT_EQ(program.session.OutBuf[1], "as it was");
}

TEST_F(ACostDialog, LeavesTheDesignUnchangedByCancelAfterResults) {
  dialog.Open();
  dialog.txtBoltCost.SetText("4.2");
  dialog.chkProduction.SetValue(0);
  dialog.cmdresults.Press();

  dialog.Command1.Press();

  EXPECT_EQ(program.project.WorkParms.Cost.BoltCost, 3.0F);
  EXPECT_EQ(program.project.WorkParms.Cost.Production, 1);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_THAT(program.session.history.Text, EndsWith("Project Parameters Not Modified\r\n"));
}

TEST_F(ACostDialog, ShowsNoResultsOfANegativeNumber) {
  dialog.Open();
  program.session.OutBuf[1] = "an older report";
  dialog.txtYearsDepr.SetText("-5");

  dialog.cmdresults.Press();

  EXPECT_EQ(platform.windows.modalForms, 0);
  EXPECT_EQ(program.session.OutBuf[1], "an older report");
  EXPECT_EQ(program.windows.WorkParmsCopy.Cost.BoltCost, 0.0F);
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid number of depreciation years"));
}

// ---- the picture, and the edited design -----------------------------------------------------------------------------

TEST_F(ACostDialog, CopiesItsPictureToTheClipboard) {
  dialog.Open();

  dialog.Command5.Press();

  EXPECT_EQ(platform.clipboard.pictured, "frmTULKCost");
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Screenshot of dialog copied to clipboard"));
  EXPECT_EQ(platform.boxes.shown[0].title, "Message");
}

TEST_F(ACostDialog, ReadsTheDesignThatOkWouldStoreWithoutCommittingIt) {
  program.project.FileEmpty = true;
  program.project.WorkParms.Place.DepthofCover = 512.5F;
  dialog.Open();
  dialog.txtBoltCost.SetText("3.25");
  dialog.chkAdvance.SetValue(0);

  Design edited = program.project.WorkParms;
  dialog.ReadEdits(edited);

  EXPECT_EQ(edited.Cost.BoltCost, 3.25F);
  EXPECT_EQ(edited.Cost.Advance, 0);
  EXPECT_EQ(edited.Cost.PlateCost, 1.0F);
  EXPECT_EQ(edited.Place.DepthofCover, 512.5F);
  EXPECT_EQ(program.project.WorkParms.Cost.BoltCost, 3.0F);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_TRUE(program.project.FileEmpty);
  EXPECT_FALSE(dialog.WasCommitted);
}

TEST_F(ACostDialog, ReadsOnlyTheNumbersThatADesignCanHold) {
  dialog.Open();
  dialog.txtBoltCost.SetText("3.25");
  dialog.txtWeeksYear.SetText("1E39");
  Design design;
  design.Cost.WeeksYear = 48;

  dialog.ReadEdits(design);

  EXPECT_EQ(design.Cost.BoltCost, 3.25F);
  EXPECT_EQ(design.Cost.WeeksYear, 48);
}

}  // namespace
}  // namespace orby::test
