// Closing the main window, with each answer of the user.

#include "main_window_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct Closing : MainWindowTest {
  void Exit() { window.mnuFileItem.ClickItem(FileItem::Exit); }
};

TEST_F(Closing, ASavedProjectNeedsNoQuestion) {
  OpenByDialog(Panel3);
  platform.boxes.shown.clear();

  Exit();

  EXPECT_FALSE(window.IsOpen());
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(Closing, AnUnsavedProjectAsksWhetherToSave) {
  EditPanel3();
  platform.boxes.answers = {BoxResult::Cancel};

  Exit();

  ASSERT_EQ(platform.boxes.shown.size(), 1U);
  EXPECT_EQ(platform.boxes.shown.front().text, "Save changes to: /designs/panel3.orb?");
  EXPECT_EQ(platform.boxes.shown.front().style, BoxStyle(BoxButtons::YesNoCancel, BoxIcon::Question));
}

TEST_F(Closing, IsStoppedByCancel) {
  EditPanel3();
  platform.boxes.answers = {BoxResult::Cancel};

  Exit();

  EXPECT_TRUE(window.IsOpen());
  EXPECT_FALSE(program.project.FileSaved);
}

TEST_F(Closing, LeavesTheFileUnchangedOnNo) {
  EditPanel3();
  platform.boxes.answers = {BoxResult::No};

  Exit();

  EXPECT_FALSE(window.IsOpen());
  EXPECT_EQ(FileAt(Panel3), DesignAt(725));
}

TEST_F(Closing, SavesOnYes) {
  EditPanel3();
  platform.boxes.answers = {BoxResult::Yes};

  Exit();

  EXPECT_FALSE(window.IsOpen());
  EXPECT_NE(FileAt(Panel3), DesignAt(725));
  EXPECT_THAT(FileAt(Panel3), HasSubstr("\r\n800\r\n"));
}

TEST_F(Closing, ShowsTheNewNameOfAProjectThatCouldNotBeSavedUnderIt) {
  program.project.FileSaved = false;
  platform.boxes.answers = {BoxResult::Yes};
  platform.fileDialogs.answers = {"/designs/new.orb"};
  platform.files.Fail(MemoryFiles::Step::Flush, error_number::DiskFull, 0, 1);

  Exit();

  EXPECT_TRUE(window.IsOpen());
  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: /designs/new.orb*");
  ASSERT_TRUE(Exists(RecoveryPath));
  EXPECT_EQ(ReadRecovery(FileAt(RecoveryPath))->CurrentFile, "/designs/new.orb");
}

TEST_F(Closing, AsksForTheNameOfAnUntitledProject) {
  program.project.FileSaved = false;
  platform.boxes.answers = {BoxResult::Yes};
  platform.fileDialogs.answers = {"/designs/new.orb"};

  Exit();

  EXPECT_FALSE(window.IsOpen());
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Save changes to: Untitled?"));
  EXPECT_EQ(FileAt("/designs/new.orb"), DesignAt(400));
  EXPECT_EQ(program.session.recentFiles.Entries[0].LastFileLong, "/designs/new.orb");
  EXPECT_THAT(FileAt(IniPath), HasSubstr("LastFileLong1=/designs/new.orb\r\n"));
}

TEST_F(Closing, IsStoppedIfTheUserGivesNoName) {
  program.project.FileSaved = false;
  platform.boxes.answers = {BoxResult::Yes};

  Exit();

  EXPECT_TRUE(window.IsOpen());
}

TEST_F(Closing, IsStoppedByASaveThatFails) {
  EditPanel3();
  platform.boxes.answers = {BoxResult::Yes, BoxResult::Cancel};
  platform.files.Fail(MemoryFiles::Step::Create, error_number::DiskFull);

  Exit();

  EXPECT_TRUE(window.IsOpen());
  EXPECT_FALSE(program.project.FileSaved);
}

TEST_F(Closing, AsksAboutAnUnsavedProjectEvenIfItIsEmpty) {
  program.project.FileSaved = false;
  program.project.FileEmpty = true;
  platform.boxes.answers = {BoxResult::Cancel};

  EXPECT_FALSE(window.MayClose());
}

TEST_F(Closing, WritesTheRecentFilesAndNothingElse) {
  OpenByDialog(Panel3);
  platform.files.files.erase(IniPath);

  Exit();

  EXPECT_EQ(FileAt(IniPath),
            "[FileMenu]\r\nMaxLastFiles=1\r\nLastFile1=/designs/panel3.orb\r\nLastFileMode1=1\r\n"
            "LastFileLong1=/designs/panel3.orb\r\n");
}

TEST_F(Closing, ClosesTheHelp) {
  EditPanel3();
  platform.boxes.answers = {BoxResult::Cancel, BoxResult::No};

  Exit();
  EXPECT_THAT(platform.help.shown, IsEmpty()) << "the window stays";
  Exit();

  EXPECT_THAT(platform.help.shown, ElementsAre("close"));
}

TEST_F(Closing, LeavesNothingToRecover) {
  EditPanel3();
  window.mnuEditItem.ClickItem(EditItem::Parameters);
  ASSERT_TRUE(Exists(RecoveryPath));
  platform.boxes.answers = {BoxResult::No};

  Exit();

  EXPECT_FALSE(Exists(RecoveryPath));
}

}  // namespace
}  // namespace orby::test
