#include "design/field.h"
#include "parameters_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using OpeningParameters = AParametersDialog;
using ClosingParameters = AParametersDialog;

// ---- opening --------------------------------------------------------------------------------------------------------

TEST_F(OpeningParameters, IsRecordedCentredAndClearsTheWaitCursor) {
  program.platform.windows.SetWaitCursor(true);

  dialog.Open();

  EXPECT_EQ(program.session.history.Text, "1. Editing Project Parameters\r\n");
  EXPECT_EQ(platform.windows.centered, 1);
  EXPECT_FALSE(platform.windows.waitCursor);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(OpeningParameters, SetsTheDialogsFlagsTitlesAndReport) {
  dialog.HoldEvents = dialog.CommitOnClose = dialog.WasCommitted = true;
  program.windows.ReportCaller = InputDialog::Cost;

  dialog.Open();

  EXPECT_TRUE(program.windows.DialogOpen);
  EXPECT_FALSE(dialog.HoldEvents);
  EXPECT_FALSE(dialog.CommitOnClose);
  EXPECT_FALSE(dialog.WasCommitted);
  EXPECT_EQ(program.windows.ReportCaller, InputDialog::Parameters);
  EXPECT_EQ(program.windows.titles.RangeErrorTitle, "Project Parameters: Range Error");
}

TEST_F(OpeningParameters, LeavesTheDesignAndItsFlagsUnchanged) {
  dialog.Open();

  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_TRUE(program.project.FileEmpty);
  EXPECT_FALSE(program.project.UnitsLocked);
  EXPECT_EQ(program.project.WorkParms.Place.CMRR, 45);
  EXPECT_EQ(program.project.WorkParms.Entries.RockLoad, 0);
}

TEST_F(OpeningParameters, ShowsTheGeneralTabAndTheCableTabs) {
  dialog.SSTab1.SetTab(3);
  dialog.SSTab2.SetTab(2);
  dialog.SSTab3.SetTab(1);

  dialog.Open();

  EXPECT_EQ(dialog.SSTab1.Tab(), 0);
  EXPECT_EQ(dialog.SSTab2.Tab(), 0);
  EXPECT_EQ(dialog.SSTab3.Tab(), 0);
}

std::vector<bool> EnabledTabs(const TabSet& tabs) {
  std::vector<bool> enabled;
  for (int tab = 0; tab < tabs.Count(); ++tab) enabled.push_back(tabs.TabEnabled(tab));
  return enabled;
}

TEST_F(OpeningParameters, EnablesTheTabsOfWhatIsAnalysed) {
  program.project.WorkParms.Entries.Analysed = 0;
  program.project.WorkParms.Entries.Truss.Use = 1;
  program.project.WorkParms.Intersections.Standing.Use = 1;

  dialog.Open();

  EXPECT_THAT(EnabledTabs(dialog.SSTab1), ElementsAre(true, true, false, true));
  EXPECT_THAT(EnabledTabs(dialog.SSTab2), ElementsAre(true, true, false, false));
  EXPECT_THAT(EnabledTabs(dialog.SSTab3), ElementsAre(true, false, false, true));
}

TEST_F(OpeningParameters, LeavesTheCableTabOpenIfNoSystemIsChosen) {
  program.project.WorkParms.Primary.Analysed = program.project.WorkParms.Intersections.Analysed = 0;
  program.project.WorkParms.Entries.Cable.Use = program.project.WorkParms.Intersections.Cable.Use = 0;

  dialog.Open();

  EXPECT_THAT(EnabledTabs(dialog.SSTab1), ElementsAre(true, false, true, false));
  EXPECT_THAT(EnabledTabs(dialog.SSTab2), ElementsAre(true, false, false, false));
  EXPECT_THAT(EnabledTabs(dialog.SSTab3), ElementsAre(true, false, false, false));
}

TEST_F(OpeningParameters, ForcesAMetricDesignToSpecifyCablesByCapacity) {
  StartDesign(Metric);
  ASSERT_EQ(program.project.WorkParms.Entries.Cable.CapMode, CapacityMode::ByDiameter);
  ASSERT_EQ(program.project.WorkParms.Intersections.Cable.CapMode, CapacityMode::ByDiameter);

  dialog.Open();

  EXPECT_EQ(program.project.WorkParms.Entries.Cable.CapMode, CapacityMode::Given);
  EXPECT_EQ(program.project.WorkParms.Intersections.Cable.CapMode, CapacityMode::Given);
  for (const OptionArray* options : {&dialog.EntryCableControls.CapMode, &dialog.InterCableControls.CapMode}) {
    EXPECT_FALSE(options->MemberEnabled(0)) << options->Name();
    EXPECT_TRUE(options->MemberEnabled(1)) << options->Name();
    EXPECT_TRUE(options->Value(1)) << options->Name();
  }
}

TEST_F(OpeningParameters, LeavesAnEnglishDesignTheChoiceOfCableDiameters) {
  dialog.Open();

  for (const OptionArray* options : {&dialog.EntryCableControls.CapMode, &dialog.InterCableControls.CapMode}) {
    EXPECT_TRUE(options->MemberEnabled(0)) << options->Name();
    EXPECT_TRUE(options->Value(0)) << options->Name();
  }
}

TEST_F(OpeningParameters, PassesTheRatingsSourceToTheEstimator) {
  program.project.WorkParms.Place.CMRRRegionIndex = 4;
  program.project.WorkParms.Place.CMRRRockTypeIndex = 3;

  dialog.Open();

  EXPECT_EQ(program.windows.estimator.EstimatorRegion, 4);
  EXPECT_EQ(program.windows.estimator.EstimatorRockType, 3);
  EXPECT_EQ(dialog.txtRegion.Text(), "");
  EXPECT_EQ(dialog.txtOption.Text(), "");
}

TEST_F(OpeningParameters, ShowsTheFourLiveResultsOnce) {
  dialog.Open();

  EXPECT_EQ(dialog.txtSugPSUP.Text(), "7.6");
  EXPECT_EQ(dialog.txtActualPSUP.Text(), "5.1");
  EXPECT_EQ(dialog.EntryOutputs.RockLoad[0].Text(), "10.0");
  EXPECT_EQ(dialog.InterOutputs.RockLoad[0].Text(), "183");
}

TEST_F(OpeningParameters, RunsNoRefreshWhileTheFieldsAreFilled) {
  // Zero depth cannot be computed with. A refresh while the fields are filled would leave its results there.
  program.project.WorkParms.Place.DepthofCover = 0;

  dialog.Open();

  EXPECT_EQ(dialog.txtSugPSUP.Text(), "--");
  EXPECT_EQ(dialog.txtSugSumDiagonals.Text(), "");
  EXPECT_EQ(dialog.txtSuggestBoltLength.Text(), "");
}

TEST_F(OpeningParameters, WithADepthOfZeroLetsTheUserCorrectIt) {
  program.project.WorkParms.Place.DepthofCover = 0;
  dialog.Open();
  dialog.Command2.Press();
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid depth of cover"));
  EXPECT_TRUE(dialog.IsOpen());

  Do("txtDepthofCover=400");
  EXPECT_EQ(dialog.txtSugPSUP.Text(), "7.6");
  dialog.Command2.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
}

TEST_F(OpeningParameters, ReportsAnOptionThatDoesNotExistAndFails) {
  const std::vector<IntegerField> fields{[](auto& d) { return &d.Primary.Options; },
                                         [](auto& d) { return &d.Primary.DiameterMode; },
                                         [](auto& d) { return &d.Primary.GradeMode; },
                                         [](auto& d) { return &d.Entries.Bolt.Options; },
                                         [](auto& d) { return &d.Entries.Bolt.DiameterMode; },
                                         [](auto& d) { return &d.Entries.Bolt.GradeMode; },
                                         [](auto& d) { return &d.Intersections.Bolt.Options; },
                                         [](auto& d) { return &d.Intersections.Bolt.DiameterMode; },
                                         [](auto& d) { return &d.Intersections.Bolt.GradeMode; },
                                         [](auto& d) { return &d.Entries.Cable.CapMode; },
                                         [](auto& d) { return &d.Entries.Cable.Capacity; },
                                         [](auto& d) { return &d.Intersections.Cable.CapMode; },
                                         [](auto& d) { return &d.Intersections.Cable.Capacity; },
                                         [](auto& d) { return &d.Entries.Standing.TypeMode; },
                                         [](auto& d) { return &d.Intersections.Standing.TypeMode; }};
  for (const auto field : fields) {
    for (const Integer index : {Integer{2}, Integer{-1}}) {
      StartDesign(English);
      field.Set(program.project.WorkParms, index);
      platform.boxes.shown.clear();
      ParametersDialog other(program);

      EXPECT_EQ(ErrorNumberOf([&other] { other.Open(); }), 9) << index;

      ASSERT_EQ(platform.boxes.shown.size(), 1U) << index;
      EXPECT_EQ(platform.boxes.shown[0].text, "Internal Error: SetArrayIndex. Check input/form data.");
      EXPECT_EQ(platform.boxes.shown[0].title, "Project Parameters: Range Error");
    }
  }
}

TEST_F(OpeningParameters, FiltersTheKeysOfSixFieldsOnly) {
  dialog.Open();

  std::vector<std::string> filtered;
  for (Control* control : dialog.Controls()) {
    const auto* box = dynamic_cast<TextBox*>(control);
    if (box == nullptr || box->Kind() == TextKind::Output) continue;
    if (box->KeyPress('x') == 0) filtered.emplace_back(box->Name());
  }

  EXPECT_THAT(filtered, ElementsAre("txtCMRR", "txtDepthofCover", "txtUnitWeight", "txtActualSpanDiagonals",
                                    "txtEntryWidth", "txtStabilityFactor"));
}

TEST_F(OpeningParameters, SelectsTheWholeTextOfTheFieldThatGetsTheFocus) {
  dialog.Open();
  dialog.RequestFocus(dialog.txtDepthofCover);

  SelectAllText(dialog);

  EXPECT_EQ(dialog.txtDepthofCover.SelectionStart(), 0U);
  EXPECT_EQ(dialog.txtDepthofCover.SelectionLength(), 3U);
}

// ---- closing --------------------------------------------------------------------------------------------------------

TEST_F(ClosingParameters, WithOkCommitsAndLocksTheUnits) {
  dialog.Open();
  Do("txtEntryWidth=19");

  dialog.Command2.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_TRUE(dialog.WasCommitted);
  EXPECT_EQ(program.project.WorkParms.Place.EntryWidth, 19);
  EXPECT_TRUE(program.project.UnitsLocked);
  EXPECT_FALSE(program.project.FileSaved);
  EXPECT_FALSE(program.project.FileEmpty);
  EXPECT_FALSE(program.windows.DialogOpen);
  EXPECT_EQ(program.session.history.Text, "1. Editing Project Parameters\r\n2. Project Parameters Modified\r\n");
}

TEST_F(ClosingParameters, WithOkIsRecordedAsAModificationEvenWithoutAChange) {
  dialog.Open();

  dialog.Command2.Press();

  EXPECT_FALSE(program.project.FileSaved);
  EXPECT_EQ(program.session.history.Text, "1. Editing Project Parameters\r\n2. Project Parameters Modified\r\n");
}

TEST_F(ClosingParameters, WithCancelOrTheWindowsCloseSavesNothing) {
  for (const bool cancelled : {true, false}) {
    StartDesign(English);
    ParametersDialog other(program);
    other.Open();
    Edit(other, "txtEntryWidth=19");

    if (cancelled) {
      other.Command1.Press();
    } else {
      other.Close();
    }

    EXPECT_FALSE(other.IsOpen());
    EXPECT_FALSE(other.WasCommitted);
    EXPECT_EQ(program.project.WorkParms.Place.EntryWidth, 20);
    EXPECT_FALSE(program.project.UnitsLocked);
    EXPECT_TRUE(program.project.FileSaved);
    EXPECT_TRUE(program.project.FileEmpty);
    EXPECT_FALSE(program.windows.DialogOpen);
    EXPECT_EQ(program.session.history.Text, "1. Editing Project Parameters\r\n2. Project Parameters Not Modified\r\n");
  }
}

TEST_F(ClosingParameters, WithCancelKeepsTheForcedCableModeOfAMetricDesign) {
  StartDesign(Metric);
  ASSERT_EQ(program.project.WorkParms.Entries.Cable.CapMode, CapacityMode::ByDiameter);
  ASSERT_EQ(program.project.WorkParms.Intersections.Cable.CapMode, CapacityMode::ByDiameter);
  dialog.Open();

  dialog.Command1.Press();

  EXPECT_EQ(program.project.WorkParms.Entries.Cable.CapMode, CapacityMode::Given);
  EXPECT_EQ(program.project.WorkParms.Intersections.Cable.CapMode, CapacityMode::Given);
  EXPECT_TRUE(program.project.FileSaved);
}

TEST_F(ClosingParameters, IsRefusedByOkWhileAFieldIsWrong) {
  dialog.Open();
  Do("txtCMRR=100");

  dialog.Command2.Press();

  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_FALSE(dialog.CommitOnClose);
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid CMRR"));
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_EQ(dialog.txtCMRR.Text(), "100");
}

TEST_F(ClosingParameters, IsNotCausedByViewCopyClipOrHelp) {
  dialog.Open();

  dialog.cmdView.Press();
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  dialog.Command5.Press();
  dialog.Command3.Press();

  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Screenshot of dialog copied to clipboard",
                          "Position the cursor on any item on the form and press F1 for context-sensitive Help"));
  EXPECT_EQ(platform.boxes.shown[1].title, "Help");
}

TEST_F(OpeningParameters, CopiesItsPictureToTheClipboard) {
  dialog.Open();

  dialog.Command5.Press();

  EXPECT_EQ(platform.clipboard.pictured, "frmPENVParm");
  ASSERT_EQ(platform.boxes.shown.size(), 1U);
  EXPECT_EQ(platform.boxes.shown[0].text, "Screenshot of dialog copied to clipboard");
  EXPECT_EQ(platform.boxes.shown[0].title, "Message");
  EXPECT_EQ(platform.boxes.shown[0].style, BoxButtons::Ok);
}

}  // namespace
}  // namespace orby::test
