#include "files/backups.h"

#include <gmock/gmock.h>

#include "base/number_text.h"
#include "core/dates.h"
#include "project_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::SizeIs;
using Step = MemoryFiles::Step;

const std::string DataFolder = "/home/user/Documents/Orby/";
const std::string Store = DataFolder + "Backups/";
const std::string OtherPath = "/designs/panel4.orb";

// Lists a folder without the files that another program has written to it.
struct StaleListing : MemoryFiles {
  std::vector<std::string> FilesIn(const std::string& folder) override {
    return isStale ? std::vector<std::string>() : MemoryFiles::FilesIn(folder);
  }

  bool isStale = false;
};

struct Backups : testing::Test {
  Backups() { program().session.folders.ProgramData = DataFolder; }

  Program& program() { return project.program; }
  MemoryFiles& files() { return project.platform.files; }

  std::optional<std::string> Keep(std::string_view bytes, const std::string& path = ProjectPath,
                                  BackupReason reason = BackupReason::Overwritten) {
    return KeepBackup(program(), path, bytes, reason);
  }

  // Returns the bytes of all entries, the newest first.
  std::vector<std::string> Kept() {
    std::vector<std::string> kept;
    for (const Backup& entry : ListBackups(program())) kept.push_back(files().files.at(entry.Path));
    return kept;
  }

  TestProject project;
};

TEST_F(Backups, AreNamedByTimeNumberAndProject) {
  const auto path = Keep("as it was");

  EXPECT_EQ(path, Store + "2031-03-09 14.05.07 00001 panel3.orb");
  EXPECT_EQ(files().files.at(*path), "as it was");
  EXPECT_TRUE(files().folders.contains(Store.substr(0, Store.size() - 1)));
}

TEST_F(Backups, AreListedWithProjectTimeReasonAndSize) {
  Keep("as it was", ProjectPath, BackupReason::ChangedOnDisk);

  const std::vector<Backup> entries = ListBackups(program());

  ASSERT_THAT(entries, SizeIs(1));
  EXPECT_EQ(entries[0].Project, ProjectPath);
  EXPECT_EQ(MomentText(entries[0].Time), "2031-03-09 14:05:07");
  EXPECT_EQ(entries[0].Reason, BackupReason::ChangedOnDisk);
  EXPECT_EQ(entries[0].Bytes, 9U);
}

TEST_F(Backups, OfTheSameSecondKeepTheirOrder) {
  Keep("first");
  Keep("second");
  Keep("third");

  EXPECT_THAT(Kept(), ElementsAre("third", "second", "first"));
}

TEST_F(Backups, KeepTheirOrderWhenTheClockIsSetBack) {
  Keep("first");
  project.platform.clock.today.year = 2029;
  Keep("second");

  EXPECT_THAT(Kept(), ElementsAre("second", "first"));
}

TEST_F(Backups, OfTwoProgramsInTheSameSecondAreBothStored) {
  RecordingPlatform platform;
  StaleListing disk;
  Program other(platform.AsPlatformWith(disk));
  other.session.folders.ProgramData = DataFolder;
  KeepBackup(other, ProjectPath, "of one program", BackupReason::Overwritten);
  disk.isStale = true;

  KeepBackup(other, ProjectPath, "of another program", BackupReason::Overwritten);
  KeepBackup(other, OtherPath, "another project", BackupReason::Overwritten);

  disk.isStale = false;
  std::vector<std::string> kept;
  for (const Backup& entry : ListBackups(other)) kept.push_back(entry.Project + ": " + disk.files.at(entry.Path));
  EXPECT_THAT(kept, ElementsAre(OtherPath + ": another project", ProjectPath + ": of another program",
                                ProjectPath + ": of one program"));
}

TEST_F(Backups, CanBeReadOnlyByTheUser) {
  Keep("as it was");

  EXPECT_THAT(files().privateFolders, ElementsAre(Store.substr(0, Store.size() - 1)));
}

TEST_F(Backups, OfUnchangedBytesAreStoredOnce) {
  const auto first = Keep("same");
  project.platform.clock.hour = 16;

  const auto second = Keep("same");

  EXPECT_EQ(second, first);
  EXPECT_THAT(Kept(), ElementsAre("same"));
}

TEST_F(Backups, OfBytesThatWereStoredBeforeOthersAreStoredAgain) {
  Keep("one");
  Keep("two");
  Keep("one");

  EXPECT_THAT(Kept(), ElementsAre("one", "two", "one"));
}

TEST_F(Backups, OfEqualBytesOfTwoProjectsAreBothStored) {
  Keep("same", ProjectPath);
  Keep("same", "/other/panel3.orb");

  EXPECT_THAT(Kept(), SizeIs(2));
}

TEST_F(Backups, AreLimitedToTheNewestTwentyOfOneProject) {
  Keep("another project", OtherPath);
  for (int number = 1; number <= 22; ++number) Keep("version " + NumberText(number));

  const auto kept = Kept();

  ASSERT_THAT(kept, SizeIs(21));
  EXPECT_EQ(kept.front(), "version 22");
  EXPECT_EQ(kept[19], "version 3");
  EXPECT_EQ(kept[20], "another project");
}

TEST_F(Backups, AreLimitedToFiveHundred) {
  for (int number = 1; number <= 503; ++number) Keep("bytes", "/designs/p" + NumberText(number) + ".orb");

  const auto entries = ListBackups(program());

  ASSERT_THAT(entries, SizeIs(500));
  EXPECT_EQ(entries.front().Project, "/designs/p503.orb");
  EXPECT_EQ(entries.back().Project, "/designs/p4.orb");
  EXPECT_EQ(files().FilesIn(Store).size(), 1000U);
}

TEST_F(Backups, AreLimitedToFiftyMegabytes) {
  const std::string tenMegabytes(LargestBackup, 'x');
  for (int number = 1; number <= 6; ++number) Keep(tenMegabytes, "/designs/p" + NumberText(number) + ".orb");

  const auto entries = ListBackups(program());

  ASSERT_THAT(entries, SizeIs(5));
  EXPECT_EQ(entries.back().Project, "/designs/p2.orb");
}

TEST_F(Backups, LoseTheOldestWhenTheyExceedFiftyMegabytesByOneByte) {
  const std::string tenMegabytes(std::size_t{10} * 1024 * 1024, 'x');
  for (int number = 1; number <= 5; ++number) Keep(tenMegabytes, "/designs/p" + NumberText(number) + ".orb");
  Keep("y", OtherPath);

  const auto entries = ListBackups(program());

  ASSERT_THAT(entries, SizeIs(5));
  EXPECT_EQ(entries.back().Project, "/designs/p2.orb");
}

TEST_F(Backups, DoNotStoreAFileOfMoreThanTenMegabytes) {
  EXPECT_EQ(Keep(std::string(LargestBackup + 1, 'x')), std::nullopt);
  EXPECT_THAT(Kept(), IsEmpty());
}

TEST_F(Backups, AreNotStoredWithoutAProgramDataFolder) {
  program().session.folders.ProgramData.clear();

  EXPECT_EQ(Keep("as it was"), std::nullopt);
  EXPECT_THAT(project.platform.files.files, IsEmpty());
  EXPECT_THAT(ListBackups(program()), IsEmpty());
}

TEST_F(Backups, ThatTheDiskRefusesLeaveNoFileAndThrowNoError) {
  for (const Step step : {Step::Create, Step::Write, Step::Close, Step::Rename}) {
    TestProject other;
    other.program.session.folders.ProgramData = DataFolder;
    other.platform.files.Fail(step, error_number::DiskFull);

    EXPECT_EQ(KeepBackup(other.program, ProjectPath, "as it was", BackupReason::Overwritten), std::nullopt);
    EXPECT_THAT(other.platform.files.files, IsEmpty());
  }
}

TEST_F(Backups, AreListedByTheirFileNameWhenTheirAboutFileIsDamaged) {
  const auto first = Keep("first");
  const auto second = Keep("second");
  files().files[Store + "2031-03-09 14.05.07 00001.about"] = "Project=/designs/elsewhere.orb\r\nReason=Overwritten\r\n";
  files().files[Store + "2031-03-09 14.05.07 00002.about"] = "Project";

  const auto entries = ListBackups(program());

  ASSERT_THAT(entries, SizeIs(2));
  for (const Backup& entry : entries) {
    EXPECT_EQ(entry.Project, "panel3.orb");
    EXPECT_EQ(entry.Reason, std::nullopt);
    EXPECT_EQ(MomentText(entry.Time), "2031-03-09 14:05:07");
  }
}

TEST_F(Backups, DoNotRemoveOtherFilesInTheirFolder) {
  files().files[Store + "notes.txt"] = "mine";
  files().files[Store + "2031-03-09 panel3.orb"] = "mine";
  files().files[Store + "2031-03-09 14.05.07 panel3.orb"] = "mine";

  for (int number = 1; number <= 25; ++number) Keep(NumberText(number));

  EXPECT_THAT(Kept(), SizeIs(20));
  EXPECT_TRUE(files().files.contains(Store + "notes.txt"));
  EXPECT_TRUE(files().files.contains(Store + "2031-03-09 panel3.orb"));
  EXPECT_TRUE(files().files.contains(Store + "2031-03-09 14.05.07 panel3.orb"));
}

TEST_F(Backups, HaveNamesThatEveryDiskAllows) {
  EXPECT_THAT(*Keep("a", "/designs/what?\n*.orb"), EndsWith(" 00001 what___.orb"));
  const auto longest = Keep("b", "/designs/" + std::string(90, 'x') + "\xC3\xA9" + std::string(95, 'y') + ".orb");
  EXPECT_THAT(*longest, EndsWith(" 00002 " + std::string(95, 'y') + ".orb"));
  EXPECT_THAT(*Keep("c", "/designs/"), EndsWith(" 00003 Untitled"));
  EXPECT_EQ(ListBackups(program())[2].Project, "/designs/what?\n*.orb");
}

TEST_F(Backups, OfADroppedDesignAreRecoveryFiles) {
  FileNew(program(), Keeping::Name);
  program().project.WorkParms.Place.DepthofCover = 725;

  const auto path = KeepDropped(program(), program().project, BackupReason::Dropped);

  ASSERT_TRUE(path);
  EXPECT_THAT(*path, EndsWith(" panel3.orb.recovery"));
  const auto read = ReadRecovery(files().files.at(*path));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->WorkParms.Place.DepthofCover, 725);
  EXPECT_EQ(ListBackups(program()).front().Project, ProjectPath);
}

TEST_F(Backups, OfADroppedDesignHaveTheFullPathOfItsProject) {
  FileNew(program(), Keeping::Name);
  program().project.CurrentFile = "panel3.orb";

  KeepDropped(program(), program().project, BackupReason::Dropped);

  EXPECT_EQ(ListBackups(program()).front().Project, "/section/panel3.orb");
}

TEST_F(Backups, OfADroppedDesignWithoutANameAreUntitled) {
  FileNew(program(), Keeping::Name);
  program().project.CurrentFile = UntitledName;

  KeepDropped(program(), program().project, BackupReason::Dropped);

  EXPECT_EQ(ListBackups(program()).front().Project, "Untitled");
}

TEST_F(Backups, OfADamagedRecoveryFileAreNamedAfterItsProjectIfThatIsReadable) {
  FileNew(program(), Keeping::Name);
  const std::string whole = RecoveryBytes(program().project);

  EXPECT_THAT(*KeepDamaged(program(), whole.substr(0, 60)), EndsWith(" 00001 panel3.orb.recovery"));
  EXPECT_THAT(*KeepDamaged(program(), "nothing"), EndsWith(" 00002 Untitled.recovery"));
  EXPECT_EQ(ListBackups(program())[1].Reason, BackupReason::Damaged);
}

TEST_F(Backups, AreRemovedTogetherWithTheirAboutFile) {
  Keep("as it was");

  EXPECT_TRUE(RemoveBackup(program(), ListBackups(program()).front()));

  EXPECT_THAT(files().files, IsEmpty());
}

TEST_F(Backups, ThatCannotBeRemovedStay) {
  Keep("as it was");
  files().Fail(Step::Remove, error_number::PermissionDenied);

  EXPECT_FALSE(RemoveBackup(program(), ListBackups(program()).front()));

  EXPECT_THAT(Kept(), ElementsAre("as it was"));
}

TEST_F(Backups, HaveATextForEachReason) {
  EXPECT_EQ(ReasonText(BackupReason::Overwritten), "Overwritten by a save");
  EXPECT_EQ(ReasonText(BackupReason::ChangedOnDisk), "Changed by another program");
  EXPECT_EQ(ReasonText(BackupReason::Dropped), "Not saved");
  EXPECT_EQ(ReasonText(BackupReason::Declined), "Recovery declined");
  EXPECT_EQ(ReasonText(BackupReason::Damaged), "Damaged recovery file");
}

}  // namespace
}  // namespace orby::test
