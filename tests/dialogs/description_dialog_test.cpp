#include "dialogs/description_dialog.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "design/catalogs.h"
#include "files/backups.h"
#include "files/new_project.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A saved English design whose units can still be chosen.
struct ADescriptionDialog : testing::Test {
  ADescriptionDialog() {
    SetBuiltInCatalogs(program.session.catalogs);
    FileNew(program, Keeping::Nothing);
    program.project.CurrentFile = "/designs/panel3.ORB";
    program.project.ProjectTitle = "Panel 3";
    program.project.ProjectDescription = "Headgate\r\nSecond cut";
    program.project.WorkParms.Place.CMRR = 52;
    program.project.WorkParms.Place.DepthofCover = 512.5F;
    program.project.FileEmpty = false;
    program.session.history = {};
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  DescriptionDialog dialog{program};
};

TEST_F(ADescriptionDialog, HasItsCaptions) {
  EXPECT_EQ(dialog.Name(), "frmTULKDesc");
  EXPECT_EQ(dialog.Caption(), "Project Description");
  EXPECT_EQ(dialog.fraTitle.Caption(), "Title and description");
  EXPECT_EQ(dialog.lblTitle.Caption(), "Title");
  EXPECT_EQ(dialog.fraUnits.Caption(), "Current units");
  EXPECT_EQ(dialog.Option1.Caption(0), "feet, lbs");
  EXPECT_EQ(dialog.Option1.Caption(1), "meters, kN");
  EXPECT_EQ(dialog.fraStrength.Caption(), "Roof bolt steel strength");
  EXPECT_EQ(dialog.Option2.Caption(0), "Yield Strength (US)");
  EXPECT_EQ(dialog.Option2.Caption(1), "Ultimate Strength (AUS)");
  EXPECT_EQ(dialog.Check1.Caption(), "Use AUS Standard Table");
  EXPECT_EQ(dialog.Command2.Caption(), "OK");
  EXPECT_EQ(dialog.Command1.Caption(), "Cancel");
  EXPECT_EQ(dialog.Command4.Caption(), "Next Form");
  EXPECT_EQ(dialog.Command3.Caption(), "Help");
}

// ---- opening --------------------------------------------------------------------------------------------------------

TEST_F(ADescriptionDialog, ShowsTheProject) {
  program.project.WorkParms.Units = Metric;
  program.project.WorkParms.Basis = StrengthBasis::Ultimate;
  program.project.UseAUSStandardTable = 1;

  dialog.Open();

  EXPECT_EQ(dialog.Text1.Text(), "Panel 3");
  EXPECT_EQ(dialog.Text2.Text(), "Headgate\r\nSecond cut");
  EXPECT_TRUE(dialog.Option1.Value(1));
  EXPECT_FALSE(dialog.Option1.Value(0));
  EXPECT_TRUE(dialog.Option2.Value(1));
  EXPECT_FALSE(dialog.Option2.Value(0));
  EXPECT_TRUE(dialog.Check1.Checked());
}

TEST_F(ADescriptionDialog, PreparesItsMessagesTheCursorAndItsPosition) {
  platform.windows.waitCursor = true;

  dialog.Open();

  EXPECT_EQ(program.windows.titles.RangeErrorTitle, "Project Description: Range Error");
  EXPECT_FALSE(platform.windows.waitCursor);
  EXPECT_EQ(platform.windows.centered, 1);
  EXPECT_EQ(program.session.history.Text, "1. Editing Project Description\r\n");
  EXPECT_FALSE(dialog.CommitOnClose);
}

TEST_F(ADescriptionDialog, OffersBothUnitSystemsAndBothStrengthsOfANewProject) {
  dialog.Open();

  for (const OptionArray* options : {&dialog.Option1, &dialog.Option2}) {
    EXPECT_TRUE(options->MemberEnabled(0)) << options->Name();
    EXPECT_TRUE(options->MemberEnabled(1)) << options->Name();
  }
}

TEST_F(ADescriptionDialog, KeepsTheUnitsOfAnOpenedFile) {
  program.project.UnitsLocked = true;

  dialog.Open();

  EXPECT_TRUE(dialog.Option1.MemberEnabled(0));
  EXPECT_FALSE(dialog.Option1.MemberEnabled(1));
  EXPECT_TRUE(dialog.Option2.MemberEnabled(0));
  EXPECT_FALSE(dialog.Option2.MemberEnabled(1));
}

TEST_F(ADescriptionDialog, KeepsMetricUnitsAndUltimateStrengthsOfAnOpenedFile) {
  program.project.UnitsLocked = true;
  program.project.WorkParms.Units = Metric;
  program.project.WorkParms.Basis = StrengthBasis::Ultimate;

  dialog.Open();

  EXPECT_FALSE(dialog.Option1.MemberEnabled(0));
  EXPECT_TRUE(dialog.Option1.MemberEnabled(1));
  EXPECT_FALSE(dialog.Option2.MemberEnabled(0));
  EXPECT_TRUE(dialog.Option2.MemberEnabled(1));
}

TEST_F(ADescriptionDialog, OffersBothAgainAfterANewProjectHasBegun) {
  program.project.UnitsLocked = true;
  dialog.Open();
  dialog.Close();
  FileNew(program, Keeping::Nothing);

  dialog.Open();

  EXPECT_TRUE(dialog.Option1.MemberEnabled(1));
  EXPECT_TRUE(dialog.Option2.MemberEnabled(1));
}

TEST_F(ADescriptionDialog, FailsOnUnitsThatNoProjectHas) {
  program.project.WorkParms.Units = UnitSystem{2};

  EXPECT_EQ(ErrorNumberOf([this] { dialog.Open(); }), 9);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Internal Error: SetArrayIndex. Check input/form data."));
}

// ---- the Australian table -------------------------------------------------------------------------------------------

TEST_F(ADescriptionDialog, OffersTheAustralianTableToMetricProjectsOnly) {
  dialog.Open();
  EXPECT_FALSE(dialog.Check1.Enabled());

  dialog.Option1.SetValue(NumberOf(Metric), true);
  EXPECT_TRUE(dialog.Check1.Enabled());
  dialog.Check1.SetValue(1);

  dialog.Option1.SetValue(NumberOf(English), true);
  EXPECT_FALSE(dialog.Check1.Enabled());
  EXPECT_FALSE(dialog.Check1.Checked());
}

TEST_F(ADescriptionDialog, KeepsTheBoxClearInFeetWhateverAnEarlierProjectUsed) {
  program.project.UseAUSStandardTable = 1;

  dialog.Open();

  EXPECT_FALSE(dialog.Check1.Checked());
  EXPECT_FALSE(dialog.Check1.Enabled());
}

TEST_F(ADescriptionDialog, StoresTheTableChoiceOnOk) {
  program.project.WorkParms.Units = Metric;
  dialog.Open();
  dialog.Check1.SetValue(1);

  dialog.Command2.Press();

  EXPECT_EQ(program.project.UseAUSStandardTable, 1);
}

TEST_F(ADescriptionDialog, LetsAMetricProjectChooseItsTableEvenIfItsUnitsAreLocked) {
  program.project.UnitsLocked = true;
  program.project.WorkParms.Units = Metric;
  dialog.Open();
  EXPECT_TRUE(dialog.Check1.Enabled());
  dialog.Check1.SetValue(1);

  dialog.Command2.Press();

  EXPECT_EQ(program.project.UseAUSStandardTable, 1);
}

TEST_F(ADescriptionDialog, KeepsTheTableChoiceOnCancel) {
  for (const UnitSystem units : {English, Metric}) {
    program.project.WorkParms.Units = units;
    program.project.UseAUSStandardTable = 1;
    dialog.Open();
    dialog.Check1.SetValue(0);

    dialog.Command1.Press();

    EXPECT_EQ(program.project.UseAUSStandardTable, 1) << NumberOf(units);
  }
}

TEST_F(ADescriptionDialog, ClearsTheTableChoiceOfAProjectInFeetOnOk) {
  program.project.UseAUSStandardTable = 1;
  dialog.Open();

  dialog.Command2.Press();

  EXPECT_EQ(program.project.UseAUSStandardTable, 0);
}

TEST_F(ADescriptionDialog, KeepsTheTableChoiceThatWasMadeWithNewUnits) {
  dialog.Open();
  dialog.Option1.SetValue(NumberOf(Metric), true);
  dialog.Check1.SetValue(1);

  dialog.Command2.Press();

  EXPECT_EQ(program.project.WorkParms.Units, Metric);
  EXPECT_EQ(program.project.UseAUSStandardTable, 1);
}

// ---- OK -------------------------------------------------------------------------------------------------------------

TEST_F(ADescriptionDialog, StoresTitleAndDescriptionOnOk) {
  dialog.Open();
  dialog.Text1.SetText("Panel 4");
  dialog.Text2.SetText("Tailgate");

  dialog.Command2.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.project.ProjectTitle, "Panel 4");
  EXPECT_EQ(program.project.ProjectDescription, "Tailgate");
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 512.5F);
  EXPECT_EQ(program.project.CurrentFile, "/designs/panel3.ORB");
  EXPECT_FALSE(dialog.OpensParameters);
}

TEST_F(ADescriptionDialog, MakesTheProjectUnsavedAndLocksItsUnitsOnOk) {
  program.project.FileEmpty = true;
  dialog.Open();

  dialog.Command2.Press();

  EXPECT_FALSE(program.project.FileSaved);
  EXPECT_FALSE(program.project.FileEmpty);
  EXPECT_TRUE(program.project.UnitsLocked);
  EXPECT_EQ(program.session.history.Text, "1. Editing Project Description\r\n2. Project Description Modified\r\n");
}

TEST_F(ADescriptionDialog, LocksTheUnitsAfterItWasAccepted) {
  dialog.Open();
  dialog.Command2.Press();

  dialog.Open();

  EXPECT_TRUE(dialog.Option1.MemberEnabled(0));
  EXPECT_FALSE(dialog.Option1.MemberEnabled(1));
}

TEST_F(ADescriptionDialog, LosesTheTypedTitleWhenTheUnitsChange) {
  dialog.Open();
  dialog.Text1.SetText("Panel 4");
  dialog.Text2.SetText("Tailgate");
  dialog.Option1.SetValue(NumberOf(Metric), true);

  dialog.Command2.Press();

  EXPECT_EQ(program.project.ProjectTitle, "");
  EXPECT_EQ(program.project.ProjectDescription, "");
  EXPECT_EQ(program.project.WorkParms.Units, Metric);
  EXPECT_EQ(program.project.CurrentFile, "/designs/panel3.ORB");
  EXPECT_EQ(program.project.WorkParms.Place.CMRR, 45);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 150);
  EXPECT_EQ(program.project.WorkParms.Primary.DiameterStd, 20);
  EXPECT_EQ(program.project.WorkParms.Primary.GradeStd, 520);
}

TEST_F(ADescriptionDialog, LosesTheTypedTitleWhenTheStrengthModeChanges) {
  dialog.Open();
  dialog.Text1.SetText("Panel 4");
  dialog.Option2.SetValue(1, true);

  dialog.Command2.Press();

  EXPECT_EQ(program.project.ProjectTitle, "");
  EXPECT_EQ(program.project.WorkParms.Basis, StrengthBasis::Ultimate);
  EXPECT_EQ(program.project.WorkParms.Units, English);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
  EXPECT_EQ(program.project.WorkParms.Primary.GradeStd, 100);
}

TEST_F(ADescriptionDialog, StartsANewUnsavedDesignForOtherUnitsOrStrengths) {
  dialog.Open();
  dialog.Option1.SetValue(NumberOf(Metric), true);
  dialog.Option2.SetValue(1, true);

  dialog.Command2.Press();

  EXPECT_EQ(program.session.history.Text,
            "1. Editing Project Description\r\n"
            "2. File initialized. Use Edit-Project Parameters to enter data\r\n"
            "3. File initialized. Use Edit-Project Parameters to enter data\r\n"
            "4. Project Description Modified\r\n");
  EXPECT_EQ(program.project.WorkParms.Primary.GradeStd, 690);
  EXPECT_FALSE(program.project.FileSaved);
  EXPECT_FALSE(program.project.FileEmpty);
  EXPECT_TRUE(program.project.UnitsLocked);
}

TEST_F(ADescriptionDialog, KeepsTheDesignIfTheUnitsAreChangedAndChangedBack) {
  dialog.Open();
  dialog.Option1.SetValue(NumberOf(Metric), true);
  dialog.Option1.SetValue(NumberOf(English), true);

  dialog.Command2.Press();

  EXPECT_EQ(program.project.ProjectTitle, "Panel 3");
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 512.5F);
}

// ---- the other commands ---------------------------------------------------------------------------------------------

TEST_F(ADescriptionDialog, DiscardsEverythingOnCancel) {
  dialog.Open();
  dialog.Text1.SetText("Panel 4");
  dialog.Option1.SetValue(NumberOf(Metric), true);
  dialog.Check1.SetValue(1);

  dialog.Command1.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.project.ProjectTitle, "Panel 3");
  EXPECT_EQ(program.project.WorkParms.Units, English);
  EXPECT_EQ(program.project.UseAUSStandardTable, 0);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_FALSE(program.project.UnitsLocked);
  EXPECT_EQ(program.session.history.Text, "1. Editing Project Description\r\n2. Project Description Not Modified\r\n");
}

TEST_F(ADescriptionDialog, TreatsTheWindowsCloseAsCancel) {
  dialog.Open();
  dialog.Text1.SetText("Panel 4");

  dialog.Close();

  EXPECT_EQ(program.project.ProjectTitle, "Panel 3");
  EXPECT_TRUE(program.project.FileSaved);
}

TEST_F(ADescriptionDialog, CommitsAndOpensTheParametersOnNextForm) {
  dialog.Open();
  dialog.Text1.SetText("Panel 4");

  dialog.Command4.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.project.ProjectTitle, "Panel 4");
  EXPECT_FALSE(program.project.FileSaved);
  EXPECT_TRUE(dialog.OpensParameters);
}

TEST_F(ADescriptionDialog, OpensTheParametersOnlyOnce) {
  dialog.Open();
  dialog.Command4.Press();
  dialog.Open();

  dialog.Command1.Press();

  EXPECT_FALSE(dialog.OpensParameters);
  EXPECT_FALSE(dialog.CommitOnClose);
}

TEST_F(ADescriptionDialog, OpensTheHelp) {
  platform.files.files["/program/ORBY.CHM"] = "help";
  dialog.Open();

  dialog.Command3.Press();

  EXPECT_THAT(platform.help.shown, ElementsAre("topic /program/ORBY.CHM frmTULKDesc"));
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_TRUE(dialog.IsOpen());
}

// ---- work that a new design discards --------------------------------------------------------------------------------

TEST_F(ADescriptionDialog, BacksUpTheTextsThatWereTypedWithOtherUnits) {
  program.session.folders.ProgramData = "/home/user/Documents/Orby/";
  dialog.Open();
  dialog.Text1.SetText("Panel 4");
  dialog.Option1.SetValue(NumberOf(Metric), true);

  dialog.Command2.Press();

  const auto backups = ListBackups(program);
  ASSERT_EQ(backups.size(), 1U);
  const auto kept = ReadRecovery(platform.files.files.at(backups.front().Path));
  ASSERT_TRUE(kept);
  EXPECT_EQ(kept->ProjectTitle, "Panel 4");
  EXPECT_EQ(kept->ProjectDescription, "Headgate\r\nSecond cut");
  EXPECT_EQ(kept->WorkParms.Place.DepthofCover, 512.5F);
  EXPECT_EQ(kept->WorkParms.Units, English);
}

TEST_F(ADescriptionDialog, BacksUpTheUnsavedDesignThatAnotherStrengthDiscards) {
  program.session.folders.ProgramData = "/home/user/Documents/Orby/";
  program.project.FileSaved = false;
  dialog.Open();
  dialog.Option2.SetValue(1, true);

  dialog.Command2.Press();

  EXPECT_EQ(ListBackups(program).size(), 1U);
}

TEST_F(ADescriptionDialog, BacksUpNeitherASavedDesignNorOneWithoutAnotherChoice) {
  program.session.folders.ProgramData = "/home/user/Documents/Orby/";
  dialog.Open();
  dialog.Option1.SetValue(NumberOf(Metric), true);
  dialog.Command2.Press();
  EXPECT_THAT(ListBackups(program), IsEmpty());

  dialog.Open();
  dialog.Text1.SetText("Panel 4");
  dialog.Command2.Press();
  EXPECT_THAT(ListBackups(program), IsEmpty());
}

// ---- lines that the file loses or shifts ----------------------------------------------------------------------------

TEST_F(ADescriptionDialog, WarnsOnceOfALineThatTheFileWillLose) {
  dialog.Open();
  dialog.Text2.SetText("Headgate\r\n\"weak roof");

  dialog.Command2.Press();

  ASSERT_EQ(platform.boxes.shown.size(), 1U);
  EXPECT_EQ(
      platform.boxes.shown.front().text,
      "This line will not come back as it is typed when the project is opened again:\r\n\r\n\"weak roof\r\n\r\n"
      "A quotation mark at the start of a line joins everything up to the next quotation mark, and is lost itself.");
  EXPECT_EQ(platform.boxes.shown.front().title, "Message");
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.project.ProjectDescription, "Headgate\r\n\"weak roof");

  dialog.Open();
  dialog.Command2.Press();
  EXPECT_EQ(platform.boxes.shown.size(), 1U) << "the text is the one that was warned of";
}

TEST_F(ADescriptionDialog, WarnsBeforeTheNextForm) {
  dialog.Open();
  dialog.Text1.SetText("##EndDesc##");

  dialog.Command4.Press();

  EXPECT_EQ(platform.boxes.shown.size(), 1U);
  EXPECT_TRUE(dialog.OpensParameters);
}

TEST_F(ADescriptionDialog, DoesNotWarnOfTextsThatAreNotAccepted) {
  dialog.Open();
  dialog.Text1.SetText("\"Panel");
  dialog.Command1.Press();

  dialog.Open();
  dialog.Text1.SetText("Panel 4");
  dialog.Command2.Press();

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(ADescriptionDialog, OffersToPutBackTextsThatTheFileHasShifted) {
  program.project.ProjectTitle = " 0 ";
  program.project.ProjectDescription = "Panel 3\r\n##StartDesc##\r\nHeadgate\r\n";
  dialog.Open();
  ASSERT_TRUE(dialog.cmdPutBack.Visible());

  dialog.cmdPutBack.Press();

  EXPECT_EQ(dialog.Text1.Text(), "Panel 3");
  EXPECT_EQ(dialog.Text2.Text(), "Headgate\r\n");
  EXPECT_FALSE(dialog.cmdPutBack.Visible());
  EXPECT_EQ(dialog.FocusRequest(), &dialog.Text1) << "the button that had the keyboard is hidden";
  EXPECT_EQ(program.project.ProjectTitle, " 0 ") << "until OK";
  dialog.Command2.Press();
  EXPECT_EQ(program.project.ProjectTitle, "Panel 3");
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(ADescriptionDialog, DoesNotOfferToPutBackUnshiftedTexts) {
  dialog.Open();

  EXPECT_FALSE(dialog.cmdPutBack.Visible());
}

}  // namespace
}  // namespace orby::test
