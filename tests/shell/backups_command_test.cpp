// The Backups command of the main window, and the way back with a project.
#include "dialogs/backups_window.h"
#include "files/backups.h"
#include "main_window_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string Store = ProgramDataPath + "Backups/";

struct TheBackupsCommand : MainWindowTest {
  TheBackupsCommand() {
    program.session.folders.ProgramData = ProgramDataPath;
    program.session.settings.DataPath = "/designs/";
  }

  // Leaves two backups: an overwritten file of panel 4 and, newer, unsaved changes of panel 3.
  void KeepTwo() {
    KeepBackup(program, Panel4, DesignAt(980), BackupReason::Overwritten);
    OpenByDialog(Panel3);
    program.project.WorkParms.Place.DepthofCover = 800;
    program.project.ProjectTitle = "Belt entry";
    program.project.WorkParms.Primary.Options = BoltSource::Manual;
    KeepDropped(program, program.project, BackupReason::Dropped);
    window.mnuFileItem.ClickItem(FileItem::New);
    platform.boxes.shown.clear();
  }

  // Opens the window from the menu and lets the user do `act` in it.
  void UseFromMenu(const std::function<void(BackupsWindow&)>& act) {
    platform.windows.onModal = [&](Form& form) {
      if (auto* shown = dynamic_cast<BackupsWindow*>(&form)) act(*shown);
    };
    window.mnuUtilItem.ClickItem(UtilityItem::Backups);
  }
};

TEST_F(TheBackupsCommand, OpensABackupAsAnUnsavedProjectUnderItsOldName) {
  KeepTwo();

  UseFromMenu([](BackupsWindow& shown) { shown.cmdOpen.Press(); });

  EXPECT_EQ(program.project.CurrentFile, Panel3);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 800);
  EXPECT_EQ(program.project.ProjectTitle, "Belt entry");
  EXPECT_FALSE(program.project.FileSaved);
  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: /designs/panel3.orb*");
  EXPECT_THAT(window.txtMain.Text(), HasSubstr("Backup opened as an unsaved project: /designs/panel3.orb\r\n"));
  EXPECT_TRUE(Exists(RecoveryPath)) << "it is unsaved work";
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(TheBackupsCommand, OpensTheBackupOfAnOverwrittenFile) {
  KeepTwo();

  UseFromMenu([](BackupsWindow& shown) {
    shown.grdBackups.SetRow(2);
    shown.cmdOpen.Press();
  });

  EXPECT_EQ(program.project.CurrentFile, Panel4);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 980);
  EXPECT_FALSE(program.project.FileSaved);
  EXPECT_FALSE(program.project.FileEmpty);
}

TEST_F(TheBackupsCommand, OpensABackupOfUnknownFolderInTheDataFolder) {
  KeepTwo();
  platform.files.files.erase(Store + "2031-03-09 14.05.07 00001.about");

  UseFromMenu([](BackupsWindow& shown) {
    shown.grdBackups.SetRow(2);
    shown.cmdOpen.Press();
  });

  EXPECT_EQ(program.project.CurrentFile, Panel4);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 980);
}

TEST_F(TheBackupsCommand, AsksAboutUnsavedChangesBeforeItOpensABackup) {
  KeepTwo();
  OpenByDialog(Panel4);
  program.project.WorkParms.Place.DepthofCover = 1010;
  program.project.FileSaved = false;
  platform.boxes.answers = {BoxResult::No};

  UseFromMenu([](BackupsWindow& shown) { shown.cmdOpen.Press(); });

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Save changes to: /designs/panel4.orb?"));
  EXPECT_EQ(program.project.CurrentFile, Panel3);
  EXPECT_EQ(ListBackups(program).front().Project, Panel4) << "what was not saved is kept in its turn";
}

TEST_F(TheBackupsCommand, StaysInTheOpenProjectIfItsChangesCannotBeSaved) {
  KeepTwo();
  program.project.FileSaved = false;
  platform.boxes.answers = {BoxResult::Yes};

  UseFromMenu([](BackupsWindow& shown) { shown.cmdOpen.Press(); });

  EXPECT_EQ(program.project.CurrentFile, "Untitled");
  EXPECT_FALSE(program.project.FileSaved);
}

TEST_F(TheBackupsCommand, ChangesNothingWhenItIsClosed) {
  KeepTwo();
  OpenByDialog(Panel4);

  UseFromMenu([](BackupsWindow& shown) { shown.Command1.Press(); });

  EXPECT_EQ(program.project.CurrentFile, Panel4);
  EXPECT_TRUE(program.project.FileSaved);
}

}  // namespace
}  // namespace orby::test
