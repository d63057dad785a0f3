#include "dialogs/disclaimer.h"

#include <gmock/gmock.h>

#include "core/dialog_helpers.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

const std::string IniPath = "/home/user/Documents/Orby/ORBY.INI";

struct ADisclaimer : testing::Test {
  ADisclaimer() { program.session.IniFilePath = IniPath; }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  Disclaimer dialog{program};
};

TEST_F(ADisclaimer, SaysThatThereIsNoWarrantyAndWhoDecides) {
  dialog.Open();

  EXPECT_EQ(dialog.Name(), "frmDisclaimer");
  EXPECT_EQ(dialog.Caption(), "Disclaimer");
  EXPECT_EQ(dialog.lblHeading.Caption(), "Disclaimer of Liability Clause");
  EXPECT_EQ(dialog.chkShow.Caption(), "Show disclaimer at start-up");
  EXPECT_THAT(dialog.txtDisclaimer.Text(), HasSubstr("There is no warranty of any kind"));
  EXPECT_THAT(dialog.txtDisclaimer.Text(), HasSubstr("version 3 or later"));
  EXPECT_THAT(dialog.txtDisclaimer.Text(), HasSubstr("competent person"));
  EXPECT_THAT(dialog.txtDisclaimer.Text(), HasSubstr("the people who gave you this program"));
}

TEST_F(ADisclaimer, ShowsWhetherItAppearsAtTheStart) {
  program.session.settings.ShowDisclaim = 0;
  dialog.Open();
  EXPECT_FALSE(dialog.chkShow.Checked());

  program.session.settings.ShowDisclaim = 1;
  Disclaimer other(program);
  other.Open();
  EXPECT_TRUE(other.chkShow.Checked());
}

TEST_F(ADisclaimer, StoresAfterAcceptanceWhetherItAppearsAgain) {
  dialog.Open();
  dialog.chkShow.SetValue(0);

  dialog.Command1.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.session.settings.ShowDisclaim, 0);
  EXPECT_THAT(platform.files.files[IniPath], HasSubstr("[Settings]\r\n"));
  EXPECT_THAT(platform.files.files[IniPath], HasSubstr("ShowDisclaim=0\r\n"));
}

TEST_F(ADisclaimer, WritesTheSettingsEvenIfNothingHasChanged) {
  dialog.Open();

  dialog.Command1.Press();

  EXPECT_THAT(platform.files.files[IniPath], HasSubstr("ShowDisclaim=1\r\n"));
}

TEST_F(ADisclaimer, EndsTheProgramAtOnceWhenItIsRefused) {
  int ended = 0;
  program.EndAtOnce = [&] {
    ++ended;
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_THAT(platform.files.created, IsEmpty());
  };
  dialog.Open();
  dialog.chkShow.SetValue(0);

  dialog.cmdNoAccept.Press();

  EXPECT_EQ(ended, 1);
  EXPECT_THAT(platform.files.created, IsEmpty());
}

TEST_F(ADisclaimer, StoresNothingIfItIsRefusedInAProgramThatContinues) {
  dialog.Open();
  dialog.chkShow.SetValue(0);

  dialog.cmdNoAccept.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.session.settings.ShowDisclaim, 1);
  EXPECT_THAT(platform.files.created, IsEmpty());
}

TEST_F(ADisclaimer, CannotBeSkippedByClosingItsWindow) {
  dialog.Open();

  EXPECT_FALSE(dialog.MayClose());
}

TEST_F(ADisclaimer, StoresNothingWhenItEndsUnanswered) {
  ShowForm(program, dialog);

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_THAT(platform.files.created, IsEmpty());
}

}  // namespace
}  // namespace orby::test
