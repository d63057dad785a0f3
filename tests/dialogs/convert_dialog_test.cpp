#include "dialogs/convert_dialog.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A saved design in English units.
struct AConversion : testing::Test {
  AConversion() {
    program.project.CurrentFile = "/designs/panel3.ORB";
    program.project.FileSaved = true;
    program.project.FileEmpty = false;
    program.project.WorkParms.Place.DepthofCover = 401.25F;
    program.project.WorkParms.Place.EntryWidth = 20;
    program.project.WorkParms.Primary.GradeStd = 75;
    program.project.WorkParms.Place.CMRR = 45;
  }

  void ConvertOnce() {
    ConvertDialog other(program);
    other.Open();
    other.Command2.Press();
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  ConvertDialog dialog{program};
};

TEST_F(AConversion, OffersMetricUnitsToAnEnglishDesign) {
  dialog.Open();

  EXPECT_FALSE(dialog.Option1.MemberEnabled(0));
  EXPECT_TRUE(dialog.Option1.MemberEnabled(1));
  EXPECT_FALSE(dialog.Option1.Value(0));
  EXPECT_TRUE(dialog.Option1.Value(1));
}

TEST_F(AConversion, OffersEnglishUnitsToAMetricDesign) {
  program.project.WorkParms.Units = Metric;

  dialog.Open();

  EXPECT_TRUE(dialog.Option1.MemberEnabled(0));
  EXPECT_FALSE(dialog.Option1.MemberEnabled(1));
  EXPECT_TRUE(dialog.Option1.Value(0));
  EXPECT_FALSE(dialog.Option1.Value(1));
}

TEST_F(AConversion, IsLoggedWhenItOpens) {
  dialog.Open();

  EXPECT_EQ(program.session.history.Text, "1. Loading File Conversion Form\r\n");
  EXPECT_EQ(program.windows.titles.RangeErrorTitle, "Range Error");
}

TEST_F(AConversion, HasItsCaptions) {
  EXPECT_EQ(dialog.Name(), "frmConvert");
  EXPECT_EQ(dialog.Caption(), "File Conversion Utility");
  EXPECT_EQ(dialog.fraUnits.Caption(), "Units");
  EXPECT_EQ(dialog.Option1.Caption(0), "feet, psi, pcf");
  EXPECT_EQ(dialog.Option1.Caption(1), "meters, MPa, kN/m3");
  EXPECT_EQ(dialog.fraFileOptions.Caption(), "File options");
  EXPECT_EQ(dialog.Option2.Caption(0), "Keep original project");
  EXPECT_EQ(dialog.Option2.Caption(1), "Load converted project ");
  EXPECT_EQ(dialog.Command2.Caption(), "Convert");
  EXPECT_EQ(dialog.Command1.Caption(), "Cancel");
  EXPECT_EQ(dialog.Command3.Caption(), "Help");
}

TEST_F(AConversion, MakesTheDesignAnUnsavedMetricOneAndCloses) {
  dialog.Open();

  dialog.Command2.Press();

  EXPECT_EQ(program.project.WorkParms.Units, Metric);
  EXPECT_EQ(program.project.CurrentFile, "Metric_panel3.ORB");
  EXPECT_FALSE(program.project.FileSaved);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 122.3F);
  EXPECT_EQ(program.project.WorkParms.Place.EntryWidth, 6.1F);
  EXPECT_EQ(program.project.WorkParms.Primary.GradeStd, 517.0F);
  EXPECT_EQ(program.project.WorkParms.Place.CMRR, 45);
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_THAT(platform.files.created, IsEmpty());
}

TEST_F(AConversion, SaysThatItIsDone) {
  dialog.Open();

  dialog.Command2.Press();

  ASSERT_EQ(platform.boxes.shown.size(), 1U);
  EXPECT_EQ(platform.boxes.shown[0].text, "Conversion Completed: The conversion form will be closed");
  EXPECT_EQ(platform.boxes.shown[0].title, "Orby Roof Support Workbench");
  EXPECT_EQ(platform.boxes.shown[0].style, BoxButtons::Ok);
  EXPECT_EQ(program.session.history.Text,
            "1. Loading File Conversion Form\r\n"
            "2. Message: Conversion Completed: The conversion form will be closed\r\n");
}

TEST_F(AConversion, ReportsANumberThatNoLongerFitsAndThenCloses) {
  program.project.WorkParms.Primary.GradeStd = 3e38F;
  dialog.Open();

  dialog.Command2.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Error in the Conversion Procedure. Call technical support"));
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.project.WorkParms.Units, English);
  EXPECT_EQ(program.project.CurrentFile, "/designs/panel3.ORB");
  EXPECT_FALSE(program.project.FileSaved) << "some fields are converted";
}

// Records at each call of its callback the file at that time and the number of boxes that the user has seen.
struct ANotifyingConversion : AConversion {
  ConvertDialog told{program, [this] {
                       files.push_back(program.project.CurrentFile);
                       boxesBefore = platform.boxes.shown.size();
                     }};
  std::vector<std::string> files;
  std::size_t boxesBefore = 99;
};

TEST_F(ANotifyingConversion, NotifiesItsCallerOfTheNewProjectBeforeItsMessage) {
  told.Open();

  told.Command2.Press();

  EXPECT_THAT(files, ElementsAre("Metric_panel3.ORB"));
  EXPECT_EQ(boxesBefore, 0U);
  EXPECT_EQ(platform.boxes.shown.size(), 1U);
}

TEST_F(ANotifyingConversion, DoesNotNotifyItsCallerIfItIsCancelled) {
  told.Open();

  told.Command1.Press();

  EXPECT_THAT(files, IsEmpty());
}

TEST_F(ANotifyingConversion, NotifiesItsCallerOfAProjectThatWasConvertedInPart) {
  program.project.WorkParms.Primary.GradeStd = 3e38F;
  told.Open();

  told.Command2.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Error in the Conversion Procedure. Call technical support"));
  EXPECT_THAT(files, ElementsAre("/designs/panel3.ORB"));
}

TEST_F(AConversion, DoesNotDependOnTheFileOption) {
  for (const int choice : {0, 1}) {
    program.project.WorkParms.Units = English;
    program.project.CurrentFile = "/designs/panel3.ORB";
    program.project.WorkParms.Place.EntryWidth = 20;
    ConvertDialog other(program);
    other.Open();
    other.Option2.SetValue(choice, true);

    other.Command2.Press();

    EXPECT_EQ(program.project.WorkParms.Units, Metric) << choice;
    EXPECT_EQ(program.project.CurrentFile, "Metric_panel3.ORB") << choice;
    EXPECT_EQ(program.project.WorkParms.Place.EntryWidth, 6.1F) << choice;
  }
}

TEST_F(AConversion, ThereAndBackLeavesOneDecimalOfTheDepth) {
  ConvertOnce();
  ConvertOnce();

  EXPECT_EQ(program.project.WorkParms.Units, English);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 401.2F);
}

TEST_F(AConversion, RepeatedAddsAPrefixEachTime) {
  ConvertOnce();
  ConvertOnce();
  ConvertOnce();

  EXPECT_EQ(program.project.CurrentFile, "Metric_English_Metric_panel3.ORB");
}

TEST_F(AConversion, CancelledChangesNothing) {
  dialog.Open();

  dialog.Command1.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.project.WorkParms.Units, English);
  EXPECT_EQ(program.project.CurrentFile, "/designs/panel3.ORB");
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 401.25F);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(AConversion, OpensTheHelp) {
  platform.files.files["/program/ORBY.CHM"] = "help";
  dialog.Open();

  dialog.Command3.Press();

  EXPECT_THAT(platform.help.shown, ElementsAre("topic /program/ORBY.CHM frmConvert"));
}

}  // namespace
}  // namespace orby::test
