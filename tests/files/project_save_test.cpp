// A save and the old contents of its file.
#include "files/project_save.h"

#include <gmock/gmock.h>

#include "files/backups.h"
#include "files/save_command.h"
#include "project_fixture.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using Step = MemoryFiles::Step;

const std::string OldPath = "/designs/panel3.orb.old";

// An open project with an unsaved change, in a program with a data folder.
struct ResavedProject : TestProject {
  ResavedProject() {
    program.session.folders.ProgramData = "/data/";
    FileNew(program, Keeping::Name);
    Save();
    old = File();
    program.project.WorkParms.Place.DepthofCover = 810;
    typed = ProjectFileBytes(program.project);
    platform.boxes.shown.clear();
  }

  int SaveError() {
    const SaveOutcome save = TryFileSave(program);
    remarks = save.Remarks;
    return save.Failure ? save.Failure->number() : 0;
  }

  std::vector<std::string> KeptBytes() {
    std::vector<std::string> kept;
    for (const Backup& backup : ListBackups(program)) kept.push_back(platform.files.files.at(backup.Path));
    return kept;
  }
  std::optional<BackupReason> ReasonOfNewest() { return ListBackups(program).at(0).Reason; }

  // Returns the files outside the program data folder.
  std::vector<std::string> OtherFiles() {
    std::vector<std::string> others;
    for (const auto& [path, bytes] : platform.files.files) {
      if (!path.starts_with("/data/")) others.push_back(path);
    }
    return others;
  }

  std::string old;
  std::string typed;
  std::vector<std::string> remarks;
};

TEST(ProjectSave, StoresABackupOfTheOldFile) {
  ResavedProject project;

  EXPECT_TRUE(project.Save());

  EXPECT_EQ(project.File(), project.typed);
  EXPECT_THAT(project.KeptBytes(), ElementsAre(project.old));
  EXPECT_EQ(project.ReasonOfNewest(), BackupReason::Overwritten);
  EXPECT_THAT(project.platform.boxes.shown, IsEmpty());
  EXPECT_TRUE(project.program.project.FileSaved);
}

TEST(ProjectSave, StoresNoBackupOfAnUnchangedProject) {
  ResavedProject project;
  project.program.project.WorkParms.Place.DepthofCover = 400;

  EXPECT_TRUE(project.Save());

  EXPECT_EQ(project.File(), project.old);
  EXPECT_THAT(project.KeptBytes(), IsEmpty());
}

TEST(ProjectSave, StoresNoBackupForANewFile) {
  ResavedProject project;
  project.program.project.CurrentFile = "/designs/new.orb";

  EXPECT_TRUE(project.Save());

  EXPECT_THAT(project.KeptBytes(), IsEmpty());
}

TEST(ProjectSave, UnderAnotherNameStoresABackupOfTheFileWithThatName) {
  ResavedProject project;
  project.platform.files.files["/designs/other.orb"] = "another design";
  project.program.project.CurrentFile = "/designs/other.orb";

  EXPECT_TRUE(project.Save());

  EXPECT_THAT(project.KeptBytes(), ElementsAre("another design"));
  EXPECT_EQ(project.ReasonOfNewest(), BackupReason::Overwritten);
  EXPECT_THAT(project.platform.boxes.shown, IsEmpty());
}

TEST(ProjectSave, OverARefusedFileStoresABackupOfIt) {
  ResavedProject project;
  project.Open("bolts are in stock\r\n");
  project.platform.boxes.shown.clear();

  EXPECT_TRUE(project.Save());

  EXPECT_THAT(project.KeptBytes(), ElementsAre("bolts are in stock\r\n"));
  EXPECT_EQ(project.ReasonOfNewest(), BackupReason::Overwritten);
  EXPECT_THAT(project.platform.boxes.shown, IsEmpty());
}

TEST(ProjectSave, ReportsAndBacksUpAFileThatAnotherProgramHasWritten) {
  ResavedProject project;
  project.File() = "the other's design";

  EXPECT_TRUE(project.Save());

  EXPECT_EQ(project.File(), project.typed);
  EXPECT_THAT(project.KeptBytes(), ElementsAre("the other's design"));
  EXPECT_EQ(project.ReasonOfNewest(), BackupReason::ChangedOnDisk);
  ASSERT_EQ(project.platform.boxes.shown.size(), 1U);
  EXPECT_THAT(project.platform.boxes.shown[0].text,
              StartsWith("/designs/panel3.orb had been changed by another program. It now holds the project as it is "
                         "here; what the other program wrote is kept in /data/Backups/"));
  EXPECT_THAT(project.program.session.history.Text, HasSubstr("had been changed by another program"));
}

TEST(ProjectSave, ReportsNoChangeOfTheOpenedFile) {
  ResavedProject project;
  project.Open();
  project.program.project.WorkParms.Place.DepthofCover = 820;

  EXPECT_TRUE(project.Save());

  EXPECT_EQ(project.ReasonOfNewest(), BackupReason::Overwritten);
  EXPECT_THAT(project.platform.boxes.shown, IsEmpty());
}

TEST(ProjectSave, RecognisesAFileThatHasChangedSinceItWasOpened) {
  ResavedProject project;
  project.Open();
  project.File() += "more";

  EXPECT_TRUE(project.Save());

  EXPECT_EQ(project.ReasonOfNewest(), BackupReason::ChangedOnDisk);
}

TEST(ProjectSave, ReportsNothingWhenAnotherProgramHasWrittenTheSameBytes) {
  ResavedProject project;
  project.File() = project.typed;

  EXPECT_TRUE(project.Save());

  EXPECT_THAT(project.platform.boxes.shown, IsEmpty());
  EXPECT_THAT(project.KeptBytes(), IsEmpty());
}

TEST(ProjectSave, ReportsNoChangeOfTheFileOfTheLastSave) {
  ResavedProject project;
  project.Save();
  project.program.project.WorkParms.Place.DepthofCover = 820;

  EXPECT_TRUE(project.Save());

  EXPECT_EQ(project.ReasonOfNewest(), BackupReason::Overwritten);
  EXPECT_THAT(project.platform.boxes.shown, IsEmpty());
}

TEST(ProjectSave, OfANewDesignReportsNoChangeOfTheFileThatItOverwrites) {
  ResavedProject project;
  FileNew(project.program, Keeping::Nothing);
  project.File() = "the other's design";
  project.program.project.CurrentFile = ProjectPath;

  EXPECT_TRUE(project.Save());

  EXPECT_EQ(project.ReasonOfNewest(), BackupReason::Overwritten);
}

class FailedSave : public testing::TestWithParam<Step> {};

TEST_P(FailedSave, RestoresTheFileAndReportsWhereItsBackupIs) {
  ResavedProject project;
  project.program.project.ProjectDescription = "Shale\r\n\r\nWater";
  project.Save();
  project.program.project.ProjectDescription = "Shale\r\n\r\nNo water";
  const std::string before = project.File();
  project.platform.boxes.answers = {BoxResult::Cancel};
  // The backup and its ".about" file are written first.
  const bool isOfBackupToo = GetParam() == Step::Flush || GetParam() == Step::Write || GetParam() == Step::Close;
  const int ofDescription = GetParam() == Step::Write || GetParam() == Step::Close ? 1 : 0;
  project.platform.files.Fail(GetParam(), error_number::DiskFull,
                              GetParam() == Step::Create ? 3
                              : isOfBackupToo            ? 2 + ofDescription
                                                         : 0,
                              1);

  EXPECT_FALSE(FileMenuSave(project.program, SaveCommand::Save));

  EXPECT_EQ(project.File(), before);
  EXPECT_FALSE(project.program.project.FileSaved);
  EXPECT_EQ(project.program.project.ProjectDescription, "Shale\r\n\r\nNo water");
  EXPECT_THAT(
      project.platform.boxes.Texts(),
      ElementsAre("Error occurred: Disk full (61)",
                  StartsWith("/designs/panel3.orb is as it was before. A copy of it is kept in /data/Backups/")));
  EXPECT_THAT(project.OtherFiles(), ElementsAre(ProjectPath)) << "no temporary file is left";
}

INSTANTIATE_TEST_SUITE_P(Steps, FailedSave,
                         testing::Values(Step::Create, Step::Reserve, Step::Write, Step::Cut, Step::Flush,
                                         Step::Close));

TEST(ProjectSave, ThatFailsMakesASavedProjectUnsaved) {
  ResavedProject project;
  project.program.project.FileSaved = true;
  project.platform.files.Fail(Step::Reserve, error_number::DiskFull);

  EXPECT_EQ(project.SaveError(), 61);

  EXPECT_FALSE(project.program.project.FileSaved);
}

TEST(ProjectSave, ThatCannotRestoreTheOldBytesReportsWhereTheyAre) {
  ResavedProject project;
  project.platform.files.Fail(Step::Cut, error_number::DiskFull);

  EXPECT_EQ(project.SaveError(), 61);

  EXPECT_THAT(project.remarks, ElementsAre(StartsWith("/designs/panel3.orb may be damaged. What it held before is kept "
                                                      "in /data/Backups/")));
  EXPECT_THAT(project.KeptBytes(), ElementsAre(project.old));
}

TEST(ProjectSave, AfterAFailedOneDoesNotReportAChangeByAnotherProgram) {
  ResavedProject project;
  project.platform.files.Fail(Step::Cut, error_number::DiskFull);
  ASSERT_EQ(project.SaveError(), 61);
  project.platform.files.Mend();

  EXPECT_TRUE(project.Save());

  EXPECT_EQ(project.File(), project.typed);
  EXPECT_THAT(project.KeptBytes(), ElementsAre(project.old)) << "not the damaged file";
  EXPECT_THAT(project.platform.boxes.shown, IsEmpty());
}

TEST(ProjectSave, ThatCannotBeginReportsTheFileThatAFailedOneDamaged) {
  ResavedProject project;
  project.platform.files.Fail(Step::Cut, error_number::DiskFull);
  ASSERT_EQ(project.SaveError(), 61);
  project.platform.files.Mend();
  project.platform.files.Fail(Step::Reserve, error_number::DiskFull);

  EXPECT_EQ(project.SaveError(), 61);

  EXPECT_THAT(project.remarks, ElementsAre(StartsWith("/designs/panel3.orb may be damaged. ")));
}

TEST(ProjectSave, UnderAnotherNameThatCannotBeginReportsThatThisFileIsUnchanged) {
  ResavedProject project;
  project.platform.files.Fail(Step::Cut, error_number::DiskFull);
  ASSERT_EQ(project.SaveError(), 61);
  project.platform.files.Mend();
  project.platform.files.Fail(Step::Reserve, error_number::DiskFull);
  project.platform.files.files["/designs/panel4.orb"] = "another design";
  project.program.project.CurrentFile = "/designs/panel4.orb";

  EXPECT_EQ(project.SaveError(), 61);

  EXPECT_THAT(project.remarks, ElementsAre(StartsWith("/designs/panel4.orb is as it was before. ")));
}

// A project after a save that failed and could not restore the old bytes.
struct DamagedProject : ResavedProject {
  DamagedProject() {
    platform.files.Fail(Step::Cut, error_number::DiskFull);
    EXPECT_EQ(SaveError(), 61);
    platform.files.Mend();
  }
};

TEST(ProjectSave, AfterAFailedOneStoresABackupOfTheFileThatReplacedTheDamagedOne) {
  DamagedProject project;
  project.File() = "a copy of last week, put there by hand";

  EXPECT_TRUE(project.Save());

  EXPECT_EQ(project.File(), project.typed);
  EXPECT_THAT(project.KeptBytes(), ElementsAre("a copy of last week, put there by hand", project.old));
  EXPECT_EQ(project.ReasonOfNewest(), BackupReason::ChangedOnDisk);
  ASSERT_EQ(project.platform.boxes.shown.size(), 1U);
  EXPECT_THAT(project.platform.boxes.shown[0].text,
              StartsWith("/designs/panel3.orb had been changed by another program."));
}

TEST(ProjectSave, ThatFailsAgainRestoresTheFileThatReplacedTheDamagedOne) {
  DamagedProject project;
  project.File() = "a copy of last week, put there by hand";
  project.platform.files.Fail(Step::Cut, error_number::DiskFull, 0, 1);

  EXPECT_EQ(project.SaveError(), 61);

  EXPECT_EQ(project.File(), "a copy of last week, put there by hand");
}

TEST(ProjectSave, ReportsNothingWhenTheUserHasRestoredTheDamagedFile) {
  DamagedProject project;
  project.File() = project.old;

  EXPECT_TRUE(project.Save());

  EXPECT_THAT(project.KeptBytes(), ElementsAre(project.old));
  EXPECT_THAT(project.platform.boxes.shown, IsEmpty());
}

TEST(ProjectSave, ThatFailsDoesNotRemoveAFileThatCannotBeRead) {
  ResavedProject project;
  project.platform.files.Fail(Step::Read, error_number::PathFileAccess);
  project.platform.files.Fail(Step::Write, error_number::DiskFull);

  EXPECT_EQ(project.SaveError(), 61);

  EXPECT_TRUE(project.platform.files.files.contains(ProjectPath));
  EXPECT_THAT(project.remarks, ElementsAre("/designs/panel3.orb may be damaged."));
}

TEST(ProjectSave, OfAScriptReportsADamagedLongFile) {
  ResavedProject project;
  project.program.session.folders.ProgramData.clear();
  project.File() = std::string(11 * 1024 * 1024, 'x');
  project.platform.files.Fail(Step::Write, error_number::DiskFull);

  EXPECT_EQ(project.SaveError(), 61);

  EXPECT_THAT(project.remarks, ElementsAre("/designs/panel3.orb may be damaged."));
}

TEST(ProjectSave, ThatCannotRemoveAPartialNewFileReportsIt) {
  ResavedProject project;
  project.program.project.CurrentFile = "/designs/new.orb";
  project.platform.files.Fail(Step::Write, error_number::DiskFull);
  project.platform.files.Fail(Step::Remove, error_number::PermissionDenied);

  EXPECT_EQ(project.SaveError(), 61);

  EXPECT_THAT(project.remarks, ElementsAre("/designs/new.orb may be damaged."));
}

TEST(ProjectSave, WithoutRoomForABackupSucceedsAndReportsItOnce) {
  ResavedProject project;
  project.platform.files.Fail(Step::Rename, error_number::DiskFull);

  EXPECT_TRUE(project.Save());
  project.program.project.WorkParms.Place.DepthofCover = 820;
  EXPECT_TRUE(project.Save());

  EXPECT_THAT(project.platform.boxes.Texts(),
              ElementsAre("The old contents of /designs/panel3.orb could not be kept in /data/Backups/."));
  EXPECT_THAT(project.program.session.history.Text, EndsWith(" could not be kept in /data/Backups/.\r\n"))
      << "the history has it again";
  EXPECT_THAT(project.KeptBytes(), IsEmpty());
  EXPECT_THAT(project.File(), HasSubstr("\r\n820\r\n"));
}

TEST(ProjectSave, WithoutABackupKeepsTheOldBytesInMemoryUntilTheyAreOnTheDisk) {
  ResavedProject project;
  project.platform.files.Fail(Step::Rename, error_number::DiskFull);
  project.platform.files.Fail(Step::Cut, error_number::DiskFull);
  ASSERT_EQ(project.SaveError(), 61);
  EXPECT_THAT(project.remarks,
              ElementsAre("/designs/panel3.orb may be damaged, and no backup of it could be kept. Save the project "
                          "before you leave the program."));
  project.platform.files.Mend();

  EXPECT_TRUE(project.Save());

  EXPECT_THAT(project.KeptBytes(), ElementsAre(project.old));
}

TEST(ProjectSave, RenamesAnOldFileThatIsTooLongForABackup) {
  ResavedProject project;
  const std::string notes(11 * 1024 * 1024, 'x');
  project.File() = notes;
  project.platform.files.files[OldPath] = "an earlier one";

  EXPECT_TRUE(project.Save());

  EXPECT_EQ(project.File(), project.typed);
  EXPECT_EQ(project.platform.files.files[OldPath + "2"], notes);
  EXPECT_EQ(project.platform.files.files[OldPath], "an earlier one");
  EXPECT_THAT(project.platform.boxes.Texts(),
              ElementsAre("The old contents of /designs/panel3.orb are too long for Backups. The old file is kept as "
                          "/designs/panel3.orb.old2."));
}

TEST(ProjectSave, KeepsALongFileThatCannotBeRenamedInMemoryUntilTheNewOneIsSafe) {
  ResavedProject project;
  const std::string notes(11 * 1024 * 1024, 'x');
  project.File() = notes;
  project.platform.files.Fail(Step::Rename, error_number::PermissionDenied);
  project.platform.files.Fail(Step::Flush, error_number::DiskFull, 0, 1);
  ASSERT_EQ(project.SaveError(), 61);
  EXPECT_EQ(project.File(), notes);

  EXPECT_TRUE(project.Save());

  EXPECT_EQ(project.File(), project.typed);
  EXPECT_THAT(project.platform.boxes.Texts(),
              ElementsAre("The old contents of /designs/panel3.orb could not be kept in /data/Backups/."));
}

TEST(ProjectSave, ThatFailsGivesARenamedFileItsNameBack) {
  ResavedProject project;
  const std::string notes(11 * 1024 * 1024, 'x');
  project.File() = notes;
  project.platform.files.Fail(Step::Flush, error_number::DiskFull);

  EXPECT_EQ(project.SaveError(), 61);

  EXPECT_EQ(project.File(), notes);
  EXPECT_FALSE(project.platform.files.files.contains(OldPath));
}

TEST(ProjectSave, OfAScriptStoresNoBackupsButRestoresTheOldBytes) {
  ResavedProject project;
  project.program.session.folders.ProgramData.clear();
  project.platform.files.Fail(Step::Flush, error_number::DiskFull, 0, 1);

  EXPECT_EQ(project.SaveError(), 61);

  EXPECT_EQ(project.File(), project.old);
  EXPECT_THAT(project.OtherFiles(), ElementsAre(ProjectPath));
  EXPECT_THAT(project.remarks, IsEmpty());
}

TEST(ProjectSave, EncodesTheProjectBeforeItOpensTheFile) {
  TestProject project;
  project.program.project.ProjectDescription = "Shale";

  EXPECT_TRUE(project.Save());

  EXPECT_THAT(project.platform.files.created, ElementsAre(TemporaryDescription, ProjectPath));
  EXPECT_FALSE(project.platform.files.files.contains(TemporaryDescription));
}

TEST(ProjectSave, SucceedsWhenTheTemporaryFileFailsAndLeavesNone) {
  TestProject project;
  project.program.project.ProjectDescription = "Shale\r\n\r\nWater";
  project.platform.files.Fail(Step::Read, error_number::PermissionDenied);

  EXPECT_TRUE(project.Save());

  EXPECT_THAT(project.File(), HasSubstr("##StartDesc##\r\nShale\r\n\r\nWater\r\n##EndDesc##\r\n"));
  EXPECT_FALSE(project.platform.files.files.contains(TemporaryDescription));
}

TEST(ProjectSave, ReportsTheFieldsThatWouldNotReadBack) {
  ResavedProject project;
  project.program.project.WorkParms.Intersections.Bolt.Desc = "#6 rebar, grade 60";

  EXPECT_TRUE(project.Save());

  EXPECT_TRUE(project.program.project.FileSaved);
  ASSERT_EQ(project.platform.boxes.shown.size(), 1U);
  EXPECT_THAT(
      project.platform.boxes.shown[0].text,
      StartsWith("/designs/panel3.orb is saved, but when it is opened these fields will not be what they are "
                 "now: intersection bolt description, intersection standard bolt diameter, intersection typed bolt "
                 "diameter and 31 more. Look for commas "));
  EXPECT_THAT(project.platform.boxes.shown[0].text,
              EndsWith(" What the file held before is kept in /data/Backups/2031-03-09 14.05.07 00001 panel3.orb."));
  EXPECT_THAT(project.KeptBytes(), ElementsAre(project.old));
}

}  // namespace
}  // namespace orby::test
