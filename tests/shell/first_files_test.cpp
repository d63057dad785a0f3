// The files that a run opens by itself when its window is on the screen.

#include "main_window_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct FirstFiles : MainWindowTest {
  void RememberPanel4() {
    program.session.settings.LoadLastInputFile = 1;
    program.session.recentFiles.MaxLastFiles = 1;
    program.session.recentFiles.Entries[0] = {Panel4, 1, Panel4};
  }

  // Leaves the recovery file of a run that was killed.
  void Lose() {
    program.project.CurrentFile = "/designs/lost.orb";
    program.project.WorkParms.Place.DepthofCover = 1234;
    program.project.FileSaved = false;
    window.mnuEditItem.ClickItem(EditItem::Parameters);
    lost = FileAt(RecoveryPath);
  }

  std::string lost;
};

TEST_F(FirstFiles, AreNoneByDefault) {
  RememberPanel4();
  program.session.settings.LoadLastInputFile = 0;

  window.OpenFirstFiles("");

  EXPECT_EQ(program.project.CurrentFile, "Untitled");
}

TEST_F(FirstFiles, IncludeTheLastFileIfTheSettingsSaySo) {
  RememberPanel4();

  window.OpenFirstFiles("");

  EXPECT_EQ(program.project.CurrentFile, Panel4);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 980);
}

TEST_F(FirstFiles, AreNoneWithoutARecentFile) {
  program.session.settings.LoadLastInputFile = 1;

  window.OpenFirstFiles("");

  EXPECT_EQ(program.project.CurrentFile, "Untitled");
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(FirstFiles, AreNoneIfTheLastFileHasNoPath) {
  RememberPanel4();
  program.session.recentFiles.Entries[0].LastFileLong.clear();

  window.OpenFirstFiles("");

  EXPECT_EQ(program.project.CurrentFile, "Untitled");
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(FirstFiles, EndWithTheFileOfTheCommandLine) {
  RememberPanel4();

  window.OpenFirstFiles("/designs/panel3.orb");

  EXPECT_EQ(program.project.CurrentFile, Panel3);
  EXPECT_EQ(program.project.PreviousFile, Panel4);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 725);
  EXPECT_EQ(program.session.recentFiles.Entries[0].LastFile, Panel3);
  EXPECT_EQ(program.session.recentFiles.Entries[1].LastFile, Panel4);
}

TEST_F(FirstFiles, ReportAMissingLastFile) {
  RememberPanel4();
  platform.files.files.erase(Panel4);
  platform.boxes.answers = {BoxResult::Cancel};

  window.OpenFirstFiles("");

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Error occurred: File not found (53)"));
}

TEST_F(FirstFiles, EndTheRunIfTheFileOfTheCommandLineIsMissing) {
  EXPECT_EQ(ErrorNumberOf([&] { window.OpenFirstFiles("/designs/missing.orb"); }), 53);

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

// The next run after one that was killed in the middle of a design.
struct NextRun : FirstFiles {
  NextRun() {
    Lose();
    restarted.files.files = platform.files.files;
    restarted.files.files[RecoveryPath] = lost;
    next.session.settings.LoadLastInputFile = 1;
    next.session.recentFiles.MaxLastFiles = 1;
    next.session.recentFiles.Entries[0] = {Panel4, 1, Panel4};
    nextWindow.Open();
  }

  RecordingPlatform restarted;
  Program next = StartedProgram(restarted);
  MainWindow nextWindow{next};
};

TEST_F(NextRun, RestoresLostWorkAsUnsaved) {
  restarted.boxes.answers = {BoxResult::Yes};

  nextWindow.OpenFirstFiles("");

  EXPECT_EQ(nextWindow.Caption(), "Orby Roof Support Workbench: /designs/lost.orb*");
  EXPECT_EQ(next.project.WorkParms.Place.DepthofCover, 1234);
}

TEST_F(NextRun, OpensNothingElseAfterItRestoresLostWork) {
  restarted.boxes.answers = {BoxResult::Yes};

  nextWindow.OpenFirstFiles(Panel3);

  EXPECT_EQ(restarted.boxes.shown.size(), 1U);
  EXPECT_EQ(next.project.CurrentFile, "/designs/lost.orb");
}

TEST_F(NextRun, OpensTheFileOfTheCommandLineIfLostWorkIsDeclined) {
  restarted.boxes.answers = {BoxResult::No};

  nextWindow.OpenFirstFiles(Panel3);

  ASSERT_EQ(restarted.boxes.shown.size(), 1U);
  EXPECT_THAT(restarted.boxes.shown.front().captions, ElementsAre("Recover", "Open panel3.orb instead"));
  EXPECT_EQ(next.project.CurrentFile, Panel3);
}

TEST_F(NextRun, OpensTheLastFileIfLostWorkIsDeclined) {
  restarted.boxes.answers = {BoxResult::No};

  nextWindow.OpenFirstFiles("");

  EXPECT_EQ(next.project.CurrentFile, Panel4);
}

}  // namespace
}  // namespace orby::test
