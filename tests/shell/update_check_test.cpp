#include "shell/update_check.h"

#include "dialogs/update_dialog.h"
#include "shell/main_window_fixture.h"
#include "support/update_fixture.h"

namespace orby::test {
namespace {

using testing::IsEmpty;

struct ACheckAtStart : UpdateTest {
  void CheckBringing(const std::string& bytes) {
    check.Start();
    Bring(bytes);
  }

  UpdateCheck check{program};
};

TEST_F(ACheckAtStart, FetchesAShortVersionFile) {
  check.Start();

  ASSERT_EQ(platform.downloads.asked.size(), 1U);
  EXPECT_EQ(LastAsked().request.address, UpdateFiles + "orby_version.txt");
  EXPECT_EQ(LastAsked().request.path, VersionFileAt);
  EXPECT_EQ(LastAsked().request.mostBytes, 65536U);
  EXPECT_FALSE(LastAsked().request.resumes);
}

TEST_F(ACheckAtStart, IsSkippedIfTheUserHasSwitchedItOff) {
  program.session.settings.RemindAnnualUpdates = 0;

  check.Start();

  EXPECT_THAT(platform.downloads.asked, IsEmpty());
}

TEST_F(ACheckAtStart, IsSkippedWithoutAServer) {
  program.session.UpdateServer.clear();

  check.Start();

  EXPECT_THAT(platform.downloads.asked, IsEmpty());
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(ACheckAtStart, AsksAboutANewerVersion) {
  platform.boxes.answers = {BoxResult::No};

  CheckBringing("1.0.01\r\n");

  ASSERT_EQ(platform.boxes.shown.size(), 1U);
  EXPECT_EQ(platform.boxes.shown[0].text,
            "A new ORBY version is available. \r\n"
            "Note that in order to download and install you may need administrator priviledges and/or Windows may ask "
            "you for permission to do so. \r\n"
            "Proceed with Download and Install?");
  EXPECT_EQ(platform.boxes.shown[0].style, BoxButtons::YesNo);
  EXPECT_EQ(platform.windows.modalForms, 0);
}

TEST_F(ACheckAtStart, RecordsBothVersionsInTheHistory) {
  CheckBringing("1.0.00\r\n");

  EXPECT_EQ(program.session.history.Text, "1. Server/Current: 1.0.00/1.0.00\r\n");
}

TEST_F(ACheckAtStart, OpensTheUpdateDialogOnYesWithoutAnotherMessage) {
  std::string opened;
  platform.windows.onModal = [&](Form& form) { opened = form.Name(); };
  platform.boxes.answers = {BoxResult::Yes};

  CheckBringing("1.0.01");

  EXPECT_EQ(opened, "frmUpdate");
  EXPECT_EQ(platform.boxes.shown.size(), 1U);
  EXPECT_EQ(platform.downloads.asked.size(), 1U);
}

TEST_F(ACheckAtStart, PassesTheFoundVersionToTheUpdateDialog) {
  platform.windows.onModal = [](Form& form) { dynamic_cast<UpdateDialog&>(form).cmdInstall.Press(); };
  platform.boxes.answers = {BoxResult::Yes};

  CheckBringing("1.0.01");

  ASSERT_EQ(platform.boxes.shown.size(), 2U);
  EXPECT_EQ(platform.boxes.shown[1].text, "Update file: /home/user/Downloads/ORBY1.0.01.exe not found");
  EXPECT_EQ(platform.downloads.asked.size(), 1U);
}

TEST_F(ACheckAtStart, IsSilentAboutTheSameOrAnOlderVersion) {
  for (const char* bytes : {"1.0.00", "1.0.00\r\n", "1.0.00\n", "0.9.00", "1.0.0"}) CheckBringing(bytes);

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(ACheckAtStart, IsSilentAboutABadVersionFile) {
  for (const char* bytes : {"", "\r\n", "../../x", "<!DOCTYPE html>"}) CheckBringing(bytes);

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.session.history.Text, "");
}

TEST_F(ACheckAtStart, IsSilentIfTheFetchFailsEvenWithAnOldVersionFile) {
  platform.files.files[VersionFileAt] = "7.0.00";

  for (const FetchEnd end : {FetchEnd::NoService, FetchEnd::NoConnection, FetchEnd::Failed}) {
    check.Start();
    Fail(end);
  }

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.session.history.Text, "");
}

TEST_F(ACheckAtStart, IsSilentIfTheVersionFileCannotBeReadOrFetched) {
  check.Start();
  LastAsked().events.Finished({FetchEnd::Done, {}});
  platform.downloads.works = false;
  check.Start();

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(ACheckAtStart, StopsWhenTheWindowIsDestroyed) {
  {
    UpdateCheck other(program);
    other.Start();
  }

  EXPECT_TRUE(LastAsked().stopped);
}

struct AWindowThatChecksForUpdates : testing::Test {
  AWindowThatChecksForUpdates() {
    program.session.UpdateServer = "https://updates.example.org";
    window.Open();
  }

  const ScriptedDownloads::Asked& CheckAtStart() const { return platform.downloads.asked.at(0); }

  RecordingPlatform platform;
  Program program = StartedProgram(platform);
  MainWindow window{program};
};

TEST_F(AWindowThatChecksForUpdates, DoesNotAskWhileTheUpdateDialogIsOpen) {
  ASSERT_FALSE(CheckAtStart().stopped);
  bool wasStopped = false;
  platform.windows.onModal = [&](Form&) { wasStopped = CheckAtStart().stopped; };

  window.mnuHelpItem.ClickItem(HelpItem::Updates);

  EXPECT_TRUE(wasStopped);
}

TEST_F(AWindowThatChecksForUpdates, StopsTheFetchIfTheRunEndsAtOnce) {
  ASSERT_FALSE(CheckAtStart().stopped);

  window.LeaveAtOnce();

  EXPECT_TRUE(CheckAtStart().stopped);
}

}  // namespace
}  // namespace orby::test
