#include "dialogs/backups_window.h"

#include <gmock/gmock.h>

#include "design/catalogs.h"
#include "files/backups.h"
#include "files/new_project.h"
#include "files/project_file.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Step = MemoryFiles::Step;

const std::string DataFolder = "/home/user/Documents/Orby/";
const std::string Store = DataFolder + "Backups/";
const std::string Panel3 = "/designs/panel3.orb";
const std::string Panel4 = "/designs/panel4.orb";

struct TheBackupsWindow : testing::Test {
  TheBackupsWindow() {
    Begin(program);
    program.session.folders.ProgramData = DataFolder;
    program.session.settings.DataPath = "/designs/";
    platform.files.files[Panel3] = DesignAt(725);
    platform.files.files[Panel4] = DesignAt(980);
  }

  static void Begin(Program& program) {
    SetBuiltInCatalogs(program.session.catalogs);
    FileNew(program, Keeping::Nothing);
  }

  // Returns the bytes of a project file with this depth of cover.
  std::string DesignAt(Single depth) {
    Program other(platform.AsPlatform());
    Begin(other);
    other.project.WorkParms.Place.DepthofCover = depth;
    return ProjectFileBytes(other.project);
  }

  void OpenProject(const std::string& path) {
    program.project.CurrentFile = path;
    ASSERT_TRUE(FileOpen(program));
  }

  // Leaves two backups: an overwritten file of panel 4 and, newer, unsaved changes of panel 3.
  void KeepTwo() {
    KeepBackup(program, Panel4, DesignAt(980), BackupReason::Overwritten);
    OpenProject(Panel3);
    program.project.WorkParms.Place.DepthofCover = 800;
    program.project.ProjectTitle = "Belt entry";
    program.project.WorkParms.Primary.Options = BoltSource::Manual;
    KeepDropped(program, program.project, BackupReason::Dropped);
    FileNew(program, Keeping::Nothing);
  }

  const std::string& FileAt(const std::string& path) { return platform.files.files.at(path); }

  std::vector<std::string> Row(int row) {
    std::vector<std::string> texts;
    for (int column = 0; column < 4; ++column) texts.push_back(backups.grdBackups.Cell(row, column));
    return texts;
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  BackupsWindow backups{program};
};

TEST_F(TheBackupsWindow, ListsTheNewestBackupFirst) {
  KeepTwo();

  backups.Open();

  EXPECT_THAT(Row(0), ElementsAre("Project", "Time", "Why it was kept", "Size"));
  EXPECT_THAT(Row(1), ElementsAre("panel3.orb", "2031-03-09 14:05:07", "Not saved", "739 bytes"));
  EXPECT_THAT(Row(2), ElementsAre("panel4.orb", "2031-03-09 14:05:07", "Overwritten by a save", "603 bytes"));
  EXPECT_EQ(backups.grdBackups.Rows(), 3);
  EXPECT_EQ(backups.grdBackups.Row(), 1);
}

TEST_F(TheBackupsWindow, ShowsTheFiguresOfTheSelectedBackup) {
  KeepTwo();
  backups.Open();

  EXPECT_EQ(backups.txtProject.Text(), Panel3);
  EXPECT_EQ(backups.txtTitle.Text(), "Belt entry");
  EXPECT_EQ(backups.txtUnits.Text(), "ft, in, lbs, psi, pcf");
  EXPECT_EQ(backups.txtCMRR.Text(), "45");
  EXPECT_EQ(backups.txtDepthofCover.Text(), "800 (ft)");
  EXPECT_EQ(backups.txtEntryWidth.Text(), "20 (ft)");
  EXPECT_EQ(backups.txtActualPSUP.Text(), "9.9");
  EXPECT_FALSE(backups.lblState.Visible());

  backups.grdBackups.SetRow(2);

  EXPECT_EQ(backups.txtProject.Text(), Panel4);
  EXPECT_EQ(backups.txtDepthofCover.Text(), "980 (ft)");
}

TEST_F(TheBackupsWindow, ShowsTheSuggestedSupportOfTheDefaultDesign) {
  KeepBackup(program, Panel3, DesignAt(400), BackupReason::Overwritten);

  backups.Open();

  EXPECT_EQ(backups.txtSugPSUP.Text(), "7.6");
}

TEST_F(TheBackupsWindow, ShowsTheTitleOfASavedFileAsItWasTyped) {
  program.project.ProjectTitle = "Belt entry";
  KeepBackup(program, Panel3, ProjectFileBytes(program.project), BackupReason::Overwritten);

  backups.Open();

  EXPECT_EQ(backups.txtTitle.Text(), "Belt entry");
}

TEST_F(TheBackupsWindow, ShowsADashForAFigureThatCannotBeComputed) {
  program.project.WorkParms.Place.EntryWidth = 0;
  KeepDropped(program, program.project, BackupReason::Dropped);

  backups.Open();

  EXPECT_EQ(backups.txtSugPSUP.Text(), "--");
  EXPECT_EQ(backups.txtActualPSUP.Text(), "--");
  EXPECT_TRUE(backups.cmdOpen.Enabled());
}

TEST_F(TheBackupsWindow, SaysThatThereAreNoBackups) {
  backups.Open();

  EXPECT_EQ(backups.lblState.Caption(), "There are no backups.");
  EXPECT_TRUE(backups.lblState.Visible());
  EXPECT_EQ(backups.txtTitle.Text(), "");
  EXPECT_FALSE(backups.cmdOpen.Enabled());
  EXPECT_FALSE(backups.cmdSaveAs.Enabled());
  EXPECT_FALSE(backups.cmdDelete.Enabled());
  EXPECT_TRUE(backups.cmdFolder.Enabled());
}

TEST_F(TheBackupsWindow, SaysThatABackupIsDamaged) {
  KeepTwo();
  KeepDamaged(program, "ORBY_RECOVERY_1\r\nCurrentFile=/designs/pan");

  backups.Open();

  EXPECT_EQ(backups.lblState.Caption(), "This backup is damaged. Its file is still in the folder.");
  EXPECT_EQ(backups.txtProject.Text(), "/designs/pan");
  EXPECT_EQ(backups.txtTitle.Text(), "");
  EXPECT_FALSE(backups.cmdOpen.Enabled());
  EXPECT_FALSE(backups.cmdSaveAs.Enabled());
  EXPECT_TRUE(backups.cmdDelete.Enabled());
}

TEST_F(TheBackupsWindow, SaysThatTheReasonIsUnknownIfTheNoteIsMissing) {
  KeepTwo();
  platform.files.files.erase(Store + "2031-03-09 14.05.07 00002.about");

  backups.Open();

  EXPECT_THAT(Row(1), ElementsAre("panel3.orb", "2031-03-09 14:05:07", "Not known", "739 bytes"));
  EXPECT_EQ(backups.txtTitle.Text(), "Belt entry");
}

// ---- restoring ------------------------------------------------------------------------------------------------------

TEST_F(TheBackupsWindow, SavesABackupUnderTheNameThatTheUserGives) {
  KeepTwo();
  backups.Open();
  backups.grdBackups.SetRow(2);
  platform.fileDialogs.answers = {"/designs/old panel.orb"};

  backups.cmdSaveAs.Press();

  EXPECT_EQ(platform.fileDialogs.asked.back().fileName, "panel4.orb");
  EXPECT_EQ(platform.fileDialogs.asked.back().folder, "/designs");
  EXPECT_EQ(FileAt("/designs/old panel.orb"), DesignAt(980));
  EXPECT_TRUE(backups.IsOpen());
}

TEST_F(TheBackupsWindow, BacksUpTheFileThatItOverwrites) {
  KeepTwo();
  backups.Open();
  backups.grdBackups.SetRow(2);
  platform.fileDialogs.answers = {Panel3};

  backups.cmdSaveAs.Press();

  EXPECT_EQ(FileAt(Panel3), DesignAt(980));
  EXPECT_EQ(FileAt(ListBackups(program).front().Path), DesignAt(725));
  EXPECT_EQ(backups.grdBackups.Rows(), 4);
}

TEST_F(TheBackupsWindow, KeepsTheSavedBackupSelected) {
  KeepTwo();
  backups.Open();
  backups.grdBackups.SetRow(2);
  platform.fileDialogs.answers = {Panel3};

  backups.cmdSaveAs.Press();

  EXPECT_EQ(backups.grdBackups.Row(), 3) << "the file that was saved over is the first now";
  EXPECT_EQ(backups.txtProject.Text(), Panel4);
}

TEST_F(TheBackupsWindow, RestoresTheFileThatItCannotOverwrite) {
  KeepTwo();
  backups.Open();
  backups.grdBackups.SetRow(2);
  platform.fileDialogs.answers = {Panel3};
  platform.boxes.answers = {BoxResult::Cancel};
  platform.files.Fail(Step::Close, error_number::DiskFull);

  backups.cmdSaveAs.Press();

  EXPECT_EQ(FileAt(Panel3), DesignAt(725));
  ASSERT_FALSE(platform.boxes.shown.empty());
  EXPECT_EQ(platform.boxes.Texts().front(), "Error occurred: Disk full (61)");
}

TEST_F(TheBackupsWindow, DoesNotConfuseTheFileThatItSavesWithTheOpenProjectsFile) {
  KeepTwo();
  OpenProject(Panel3);
  backups.Open();
  platform.fileDialogs.answers = {"/designs/old panel.orb"};

  backups.cmdSaveAs.Press();

  EXPECT_EQ(program.project.LastFile.Path, Panel3);
  EXPECT_EQ(program.project.CurrentFile, Panel3);
}

// Saves the backup of panel 4 over a file while the disk fails halfway and stays broken.
struct SpoilingBackupsWindow : TheBackupsWindow {
  void SaveOverAndFail(const std::string& path, int failures) {
    backups.Open();
    backups.grdBackups.SetRow(backups.grdBackups.Rows() - 1);
    platform.fileDialogs.answers = {path};
    platform.boxes.answers = {BoxResult::Cancel};
    platform.files.Fail(Step::Cut, error_number::DiskFull, 0, failures);
    backups.cmdSaveAs.Press();
    platform.files.Mend();
  }
};

TEST_F(SpoilingBackupsWindow, KeepsTheOldBytesOfAFileThatItCouldNotRestore) {
  KeepTwo();
  OpenProject(Panel4);

  SaveOverAndFail(Panel3, 2);

  EXPECT_EQ(program.project.LastFile.Path, Panel3);
  EXPECT_EQ(program.project.LastFile.Bytes, DesignAt(725));
  EXPECT_TRUE(program.project.LastFile.IsSpoilt);
}

TEST_F(SpoilingBackupsWindow, RepairsTheOpenProjectsFileAfterAFailedSave) {
  KeepTwo();
  OpenProject(Panel3);
  program.project.LastFile.IsSpoilt = true;
  backups.Open();
  backups.grdBackups.SetRow(backups.grdBackups.Rows() - 1);
  platform.fileDialogs.answers = {Panel3};

  backups.cmdSaveAs.Press();

  EXPECT_EQ(FileAt(Panel3), DesignAt(980));
  EXPECT_EQ(program.project.LastFile.Path, Panel3);
  EXPECT_FALSE(program.project.LastFile.IsSpoilt);
}

TEST_F(SpoilingBackupsWindow, ReportsOnlyTheLastAttempt) {
  KeepTwo();
  backups.Open();
  backups.grdBackups.SetRow(2);
  platform.fileDialogs.answers = {Panel3, Panel3};
  platform.boxes.answers = {BoxResult::Retry};
  platform.files.Fail(Step::Cut, error_number::DiskFull, 0, 1);

  backups.cmdSaveAs.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Error occurred: Disk full (61)"));
}

TEST_F(TheBackupsWindow, SavesNothingIfTheUserGivesNoName) {
  KeepTwo();
  backups.Open();
  const auto before = platform.files.files;

  backups.cmdSaveAs.Press();

  EXPECT_EQ(platform.files.files, before);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(TheBackupsWindow, DeletesABackupAfterAQuestion) {
  KeepTwo();
  backups.Open();
  platform.boxes.answers = {BoxResult::Yes};

  backups.cmdDelete.Press();

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Delete this backup for good?\r\n\r\npanel3.orb of 2031-03-09 14:05:07"));
  EXPECT_EQ(platform.boxes.shown.front().style,
            BoxStyle(BoxButtons::YesNo, BoxIcon::Question, BoxDefault::SecondButton));
  EXPECT_EQ(backups.grdBackups.Rows(), 2);
  EXPECT_EQ(backups.txtProject.Text(), Panel4);
  EXPECT_THAT(ListBackups(program), SizeIs(1));
}

TEST_F(TheBackupsWindow, DeletesAllBackupsOneByOne) {
  KeepTwo();
  backups.Open();
  platform.boxes.answers = {BoxResult::Yes, BoxResult::Yes};

  backups.grdBackups.SetRow(2);
  backups.cmdDelete.Press();
  EXPECT_EQ(backups.txtProject.Text(), Panel3);
  backups.cmdDelete.Press();

  EXPECT_EQ(backups.lblState.Caption(), "There are no backups.");
  EXPECT_FALSE(backups.cmdDelete.Enabled());
}

TEST_F(TheBackupsWindow, DeletesNothingOnNo) {
  KeepTwo();
  backups.Open();
  platform.boxes.answers = {BoxResult::No};

  backups.cmdDelete.Press();

  EXPECT_THAT(ListBackups(program), SizeIs(2));
}

TEST_F(TheBackupsWindow, ReportsABackupThatCannotBeDeleted) {
  KeepTwo();
  backups.Open();
  platform.boxes.answers = {BoxResult::Yes};
  platform.files.Fail(Step::Remove, error_number::PermissionDenied);

  backups.cmdDelete.Press();

  EXPECT_EQ(platform.boxes.Texts().back(),
            "The backup could not be deleted: " + Store + "2031-03-09 14.05.07 00002 panel3.orb.recovery");
  EXPECT_EQ(backups.grdBackups.Rows(), 3);
}

TEST_F(TheBackupsWindow, OpensTheFolder) {
  backups.Open();

  backups.cmdFolder.Press();

  EXPECT_THAT(platform.documents.opened, ElementsAre(DataFolder + "Backups"));
  EXPECT_TRUE(platform.files.folders.contains(DataFolder + "Backups"));
}

TEST_F(TheBackupsWindow, ReportsAFolderThatDoesNotOpen) {
  platform.documents.opens = false;
  backups.Open();

  backups.cmdFolder.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("The folder could not be opened: " + Store));
}

}  // namespace
}  // namespace orby::test
