#include "shell/recovery.h"

#include <gmock/gmock.h>

#include "files/backups.h"
#include "files/recovery_file.h"
#include "shell/main_window_fixture.h"
#include "shell/start_up.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Step = MemoryFiles::Step;

const std::string Folder = "/home/user/Documents/Orby/Temp/";
const std::string FirstFile = Folder + "~recover1.tmp";
const std::string SecondFile = Folder + "~recover2.tmp";

// Several runs share the user's folder.
struct UnsavedWork : testing::Test {
  // Returns a program with an unsaved design of this depth.
  Program Editing(Single depth, const std::string& file = "/designs/panel3.orb") {
    Program program = Started();
    program.project.CurrentFile = file;
    program.project.WorkParms.Place.DepthofCover = depth;
    program.project.FileSaved = false;
    program.project.FileEmpty = false;
    return program;
  }

  Program Started() {
    Program program(platform.AsPlatform());
    program.session.folders.ProgramTemporary = Folder;
    StartApart(program, nullptr);
    return program;
  }

  // Leaves the recovery file of a run that ended in the middle of a design.
  void Lose(Single depth) {
    Program program = Editing(depth);
    Recovery(program).Committed();
  }

  // Returns the depth of cover in the file; -1 if there is no file.
  Single DepthIn(const std::string& path) {
    const auto found = platform.files.files.find(path);
    if (found == platform.files.files.end()) return -1;
    const auto project = ReadRecovery(found->second);
    return project ? project->WorkParms.Place.DepthofCover : 0;
  }

  bool Exists(const std::string& path) const { return platform.files.files.contains(path); }

  RecordingPlatform platform;
};

TEST_F(UnsavedWork, IsWrittenAtOnceWhenItIsCommitted) {
  Program program = Editing(725);
  Recovery recovery(program);

  recovery.Committed();

  EXPECT_EQ(DepthIn(FirstFile), 725);
}

TEST_F(UnsavedWork, IsRemovedAfterTheProjectIsSaved) {
  Program program = Editing(725);
  Recovery recovery(program);
  recovery.Committed();
  program.project.FileSaved = true;

  recovery.Committed();

  EXPECT_FALSE(Exists(FirstFile));
}

TEST_F(UnsavedWork, IsWrittenOneSecondAfterTheFirstChange) {
  Program program = Started();
  Recovery recovery(program);
  Design design = program.project.WorkParms;
  recovery.DesignShown(design);
  design.Place.DepthofCover = 72;
  recovery.DesignChanged(design);
  design.Place.DepthofCover = 725;
  recovery.DesignChanged(design);

  ASSERT_EQ(platform.clock.waiting.size(), 1U);
  EXPECT_EQ(platform.clock.waiting.front().first, 1000);
  EXPECT_FALSE(Exists(FirstFile));
  platform.clock.Pass();

  EXPECT_EQ(DepthIn(FirstFile), 725);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
}

TEST_F(UnsavedWork, WaitsAnotherSecondForTheNextChange) {
  Program program = Started();
  Recovery recovery(program);
  Design design = program.project.WorkParms;
  design.Place.DepthofCover = 725;
  recovery.DesignChanged(design);
  platform.clock.Pass();
  design.Place.DepthofCover = 980;

  recovery.DesignChanged(design);

  EXPECT_EQ(platform.clock.waiting.size(), 1U);
  EXPECT_EQ(DepthIn(FirstFile), 725);
  platform.clock.Pass();
  EXPECT_EQ(DepthIn(FirstFile), 980);
}

TEST_F(UnsavedWork, IsWrittenAtOnceIfTheRunEnds) {
  Program program = Started();
  Recovery recovery(program);
  Design design = program.project.WorkParms;
  design.Place.DepthofCover = 725;
  recovery.DesignChanged(design);

  recovery.Flush();

  EXPECT_EQ(DepthIn(FirstFile), 725);
}

TEST_F(UnsavedWork, IsNotWrittenIfTheDialogShowsNoChange) {
  Program program = Started();
  Recovery recovery(program);
  recovery.DesignShown(program.project.WorkParms);

  recovery.DesignChanged(program.project.WorkParms);
  platform.clock.Pass();

  EXPECT_FALSE(Exists(FirstFile));
}

TEST_F(UnsavedWork, OfADialogIsRemovedIfTheUserUndoesTheChanges) {
  Program program = Started();
  Recovery recovery(program);
  const Design opened = program.project.WorkParms;
  Design edited = opened;
  edited.Place.DepthofCover = 725;
  recovery.DesignShown(opened);
  recovery.DesignChanged(edited);
  platform.clock.Pass();
  ASSERT_TRUE(Exists(FirstFile));

  recovery.DesignChanged(opened);
  platform.clock.Pass();

  EXPECT_FALSE(Exists(FirstFile));
}

TEST_F(UnsavedWork, OfACancelledDialogIsReplacedByTheCommittedDesign) {
  Program program = Editing(725);
  Recovery recovery(program);
  Design edited = program.project.WorkParms;
  edited.Place.DepthofCover = 980;
  recovery.DesignChanged(edited);
  platform.clock.Pass();
  recovery.DesignChanged(edited);

  recovery.Committed();
  platform.clock.Pass();

  EXPECT_EQ(DepthIn(FirstFile), 725);
}

TEST_F(UnsavedWork, IsOfferedToTheNextRun) {
  Lose(725);
  Program next = Started();
  platform.boxes.answers = {BoxResult::Yes};

  EXPECT_TRUE(Recovery(next).Ask(""));

  ASSERT_EQ(platform.boxes.shown.size(), 1U);
  EXPECT_EQ(platform.boxes.shown.front().text,
            "Orby ended unexpectedly. Recover the unsaved project?\r\n\r\n/designs/panel3.orb");
  EXPECT_EQ(platform.boxes.shown.front().style, BoxStyle(BoxButtons::YesNo, BoxIcon::Question));
  EXPECT_THAT(platform.boxes.shown.front().captions, IsEmpty());
  EXPECT_EQ(next.project.WorkParms.Place.DepthofCover, 725);
  EXPECT_EQ(next.project.CurrentFile, "/designs/panel3.orb");
  EXPECT_FALSE(next.project.FileSaved);
  EXPECT_TRUE(Exists(FirstFile)) << "it is still unsaved";
}

TEST_F(UnsavedWork, IsOfferedWithTheTimeOfItsFile) {
  Lose(725);
  platform.files.times[FirstFile] = {{2031, 3, 8}, 22, 41, 5};
  Program next = Started();

  Recovery(next).Ask("");

  EXPECT_EQ(platform.boxes.shown.front().text,
            "Orby ended unexpectedly. Recover the unsaved project?\r\n\r\n"
            "/designs/panel3.orb of 2031-03-08 22:41:05");
}

TEST_F(UnsavedWork, IsOfferedAsTheAlternativeToTheFileToOpen) {
  Lose(725);
  Program next = Started();
  platform.boxes.answers = {BoxResult::No};

  EXPECT_FALSE(Recovery(next).Ask("/designs/panel4.orb"));

  EXPECT_THAT(platform.boxes.shown.front().captions, ElementsAre("Recover", "Open panel4.orb instead"));
}

TEST_F(UnsavedWork, IsOfferedWithAShortenedNameOfTheAlternativeFile) {
  Lose(725);
  Program next = Started();

  Recovery(next).Ask("/designs/north mains panel three belt entry and its crosscuts, second look.orb");

  EXPECT_THAT(platform.boxes.shown.front().captions,
              ElementsAre("Recover", "Open north main...ry and its crosscuts, second look.orb instead"));
}

TEST_F(UnsavedWork, IsRestoredWithoutAQuestionIfTheProgramIsStartedAgain) {
  Lose(725);
  Program next = Started();

  EXPECT_TRUE(Recovery(next).Recover());

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(next.project.WorkParms.Place.DepthofCover, 725);
  EXPECT_FALSE(next.project.FileSaved);
}

TEST_F(UnsavedWork, IsNotRestoredIfThereIsNone) {
  Program program = Started();

  EXPECT_FALSE(Recovery(program).Recover());

  EXPECT_TRUE(program.project.FileSaved);
}

TEST_F(UnsavedWork, IsBackedUpOnNo) {
  Lose(725);
  Program next = Started();
  next.session.folders.ProgramData = ProgramDataPath;
  platform.boxes.answers = {BoxResult::No};

  EXPECT_FALSE(Recovery(next).Ask(""));

  const auto backups = ListBackups(next);
  ASSERT_EQ(backups.size(), 1U);
  EXPECT_EQ(backups.front().Project, "/designs/panel3.orb");
  EXPECT_EQ(backups.front().Reason, BackupReason::Declined);
  EXPECT_EQ(DepthIn(backups.front().Path), 725);
  EXPECT_THAT(next.session.history.Text, HasSubstr("Unsaved changes kept in Backups: /designs/panel3.orb"));
}

TEST_F(UnsavedWork, IsBackedUpIfItIsDamaged) {
  platform.files.files[FirstFile] = "ORBY_RECOVERY_1\r\nCurrentFile=/designs/pan";
  Program program = Started();
  program.session.folders.ProgramData = ProgramDataPath;

  EXPECT_FALSE(Recovery(program).Ask(""));

  const auto backups = ListBackups(program);
  ASSERT_EQ(backups.size(), 1U);
  EXPECT_EQ(backups.front().Reason, BackupReason::Damaged);
  EXPECT_EQ(platform.files.files.at(backups.front().Path), "ORBY_RECOVERY_1\r\nCurrentFile=/designs/pan");
  EXPECT_FALSE(Exists(FirstFile));
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(UnsavedWork, IsKeptIfItIsDamagedAndCannotBeBackedUp) {
  platform.files.files[FirstFile] = "damaged";
  Program program = Started();
  program.session.folders.ProgramData = ProgramDataPath;
  platform.files.Fail(Step::Create, error_number::DiskFull);
  Recovery recovery(program);

  EXPECT_FALSE(recovery.Ask(""));

  EXPECT_EQ(recovery.KeptSlot(), 0);
  EXPECT_EQ(recovery.Kept(), KeptWork::NoneNeeded);
  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("A damaged recovery file could not be kept in Backups: " + FirstFile + ".kept"));
  recovery.Committed();
  recovery.Discard();
  EXPECT_EQ(platform.files.files.at(FirstFile + ".kept"), "damaged");
}

TEST_F(UnsavedWork, IsNotOverwrittenIfItsFileCannotBeRead) {
  Lose(725);
  Program program = Started();
  program.session.folders.ProgramData = ProgramDataPath;
  platform.files.Fail(Step::Read, error_number::PermissionDenied, 0, 1);
  Recovery recovery(program);

  EXPECT_FALSE(recovery.Ask(""));
  program.project.WorkParms.Place.DepthofCover = 980;
  program.project.FileSaved = false;
  recovery.Committed();

  EXPECT_THAT(
      platform.boxes.Texts(),
      ElementsAre("The unsaved work of an earlier run could not be read. It is kept in " + FirstFile + ".kept."));
  EXPECT_EQ(DepthIn(FirstFile + ".kept"), 725);
  EXPECT_EQ(DepthIn(FirstFile), 980);
}

TEST_F(UnsavedWork, IsLeftToTheNextStartIfItsFileCannotBeReadOrRenamed) {
  Lose(725);
  Program program = Started();
  platform.files.Fail(Step::Read, error_number::PermissionDenied, 0, 1);
  platform.files.Fail(Step::Rename, error_number::PermissionDenied, 0, 1);
  Recovery recovery(program);

  EXPECT_FALSE(recovery.Ask(""));
  program.project.WorkParms.Place.DepthofCover = 980;
  program.project.FileSaved = false;
  recovery.Committed();

  EXPECT_EQ(DepthIn(FirstFile), 725);
  EXPECT_EQ(DepthIn(SecondFile), 980);
  EXPECT_FALSE(platform.files.marked.contains(Folder + "~recover1.lck"));
}

TEST_F(UnsavedWork, IsKeptIfItIsDeclinedAndCannotBeBackedUp) {
  Lose(725);
  Program program = Started();
  program.session.folders.ProgramData = ProgramDataPath;
  platform.boxes.answers = {BoxResult::No};
  platform.files.Fail(Step::Create, error_number::DiskFull);
  Recovery recovery(program);

  EXPECT_FALSE(recovery.Ask(""));
  recovery.Discard();

  EXPECT_EQ(DepthIn(FirstFile + ".kept"), 725);
  EXPECT_EQ(platform.boxes.Texts().back(),
            "The unsaved changes could not be kept in Backups: /designs/panel3.orb\r\n\r\n"
            "What could be kept of them is in " +
                FirstFile + ".kept.");
}

TEST_F(UnsavedWork, IsSetAsideWithoutReplacingAnEarlierFile) {
  platform.files.files[FirstFile + ".kept"] = "of an earlier run";
  platform.files.files[FirstFile] = "damaged";
  Program program = Started();
  program.session.folders.ProgramData = ProgramDataPath;
  platform.files.Fail(Step::Create, error_number::DiskFull);

  Recovery(program).Ask("");

  EXPECT_EQ(platform.files.files.at(FirstFile + ".kept"), "of an earlier run");
  EXPECT_EQ(platform.files.files.at(FirstFile + ".kept2"), "damaged");
}

TEST_F(UnsavedWork, OfACancelledDialogIsBackedUp) {
  Program program = Editing(725);
  program.session.folders.ProgramData = ProgramDataPath;
  Recovery recovery(program);
  recovery.DesignShown(program.project.WorkParms);
  Design edited = program.project.WorkParms;
  edited.Place.DepthofCover = 980;
  recovery.DesignChanged(edited);
  recovery.Flush();

  recovery.DialogClosed();

  const auto backups = ListBackups(program);
  ASSERT_EQ(backups.size(), 1U);
  EXPECT_EQ(backups.front().Reason, BackupReason::Dropped);
  EXPECT_EQ(DepthIn(backups.front().Path), 980);
  EXPECT_EQ(DepthIn(FirstFile), 725);
}

TEST_F(UnsavedWork, IsNotBackedUpIfADialogCommittedOrDidNotChangeIt) {
  Program program = Editing(725);
  program.session.folders.ProgramData = ProgramDataPath;
  Recovery recovery(program);
  recovery.DesignShown(program.project.WorkParms);
  recovery.DesignChanged(program.project.WorkParms);
  recovery.DialogClosed();
  EXPECT_THAT(ListBackups(program), IsEmpty());

  recovery.DesignShown(program.project.WorkParms);
  program.project.WorkParms.Place.DepthofCover = 980;
  recovery.DesignChanged(program.project.WorkParms);
  recovery.DialogClosed();
  EXPECT_THAT(ListBackups(program), IsEmpty());
}

TEST_F(UnsavedWork, IsDeletedOnNoIfThereIsNoBackupFolder) {
  Lose(725);
  Program next = Started();
  platform.boxes.answers = {BoxResult::No};

  EXPECT_FALSE(Recovery(next).Ask(""));

  EXPECT_FALSE(Exists(FirstFile));
  EXPECT_EQ(next.project.WorkParms.Place.DepthofCover, 400);
  EXPECT_TRUE(next.project.FileSaved);
}

TEST_F(UnsavedWork, IsNotOfferedIfThereIsNone) {
  Program program = Started();

  EXPECT_FALSE(Recovery(program).Ask(""));

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(UnsavedWork, IsDeletedIfItIsDamagedAndThereIsNoBackupFolder) {
  platform.files.files[FirstFile] = "ORBY_RECOVERY_1\r\nCurrentFile=/designs/pan";
  Program program = Started();

  EXPECT_FALSE(Recovery(program).Ask(""));

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_FALSE(Exists(FirstFile));
}

TEST_F(UnsavedWork, OfTwoProgramsGoesToTwoFiles) {
  Program first = Editing(725);
  Program second = Editing(980);
  Recovery ofFirst(first);
  Recovery ofSecond(second);

  ofFirst.Committed();
  ofSecond.Committed();

  EXPECT_EQ(DepthIn(FirstFile), 725);
  EXPECT_EQ(DepthIn(SecondFile), 980);
}

TEST_F(UnsavedWork, OfARunningProgramIsNotOfferedToAnother) {
  Program first = Editing(725);
  Recovery ofFirst(first);
  ofFirst.Committed();
  Program second = Started();

  EXPECT_FALSE(Recovery(second).Ask(""));

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(DepthIn(FirstFile), 725);
}

TEST_F(UnsavedWork, OfALostRunIsTakenBeforeAFreeSlot) {
  platform.files.files[SecondFile] = RecoveryBytes(Editing(980).project);
  Program next = Started();
  platform.boxes.answers = {BoxResult::Yes};

  EXPECT_TRUE(Recovery(next).Ask(""));

  EXPECT_EQ(next.project.WorkParms.Place.DepthofCover, 980);
}

TEST_F(UnsavedWork, OfANinthProgramIsKept) {
  for (const char digit : std::string("12345678")) platform.files.marked.insert(Folder + "~recover" + digit + ".lck");
  Program program = Editing(725);
  Recovery recovery(program);

  recovery.Committed();

  EXPECT_EQ(DepthIn(Folder + "~recover9.tmp"), 725);
}

TEST_F(UnsavedWork, IsOfferedFromTheNinthFile) {
  platform.files.files[Folder + "~recover9.tmp"] = RecoveryBytes(Editing(980).project);
  Program next = Started();
  platform.boxes.answers = {BoxResult::Yes};

  EXPECT_TRUE(Recovery(next).Ask(""));

  EXPECT_EQ(next.project.WorkParms.Place.DepthofCover, 980);
}

TEST_F(UnsavedWork, OfATenthProgramIsNotKept) {
  for (const char digit : std::string("123456789")) platform.files.marked.insert(Folder + "~recover" + digit + ".lck");
  Program program = Editing(725);
  Recovery recovery(program);

  recovery.Committed();
  recovery.DesignChanged(program.project.WorkParms);

  EXPECT_THAT(platform.files.created, IsEmpty());
  EXPECT_THAT(platform.clock.waiting, IsEmpty());
}

TEST_F(UnsavedWork, IsNotKeptWithoutAFolder) {
  Program program = Editing(725);
  program.session.folders.ProgramTemporary.clear();
  Recovery recovery(program);

  recovery.Committed();

  EXPECT_FALSE(recovery.Ask(""));
  EXPECT_THAT(platform.files.created, IsEmpty());
}

class UnsavedWorkOnAFailingDisk : public UnsavedWork, public testing::WithParamInterface<Step> {};

TEST_P(UnsavedWorkOnAFailingDisk, StaysAsLastWrittenWithoutAMessage) {
  Program program = Editing(725);
  Recovery recovery(program);
  recovery.Committed();
  program.project.WorkParms.Place.DepthofCover = 980;
  platform.files.Fail(GetParam(), error_number::DiskFull);

  recovery.Committed();

  EXPECT_EQ(DepthIn(FirstFile), 725);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Steps, UnsavedWorkOnAFailingDisk,
                         testing::Values(Step::Create, Step::Write, Step::Close, Step::Rename));

TEST_F(UnsavedWork, IsWrittenOneSecondAfterTheDiskRefusedIt) {
  Program program = Started();
  Recovery recovery(program);
  recovery.DesignShown(program.project.WorkParms);
  Design design = program.project.WorkParms;
  design.Place.DepthofCover = 980;
  recovery.DesignChanged(design);
  platform.files.Fail(Step::Write, error_number::DiskFull);
  platform.clock.Pass();
  ASSERT_FALSE(Exists(FirstFile));
  platform.files.Mend();

  platform.clock.Pass();

  EXPECT_EQ(DepthIn(FirstFile), 980);
  EXPECT_THAT(platform.clock.waiting, IsEmpty());
}

TEST_F(UnsavedWork, IsWrittenAtTheEndOfTheRunIfTheDiskRefusedItBefore) {
  Program program = Editing(725);
  Recovery recovery(program);
  recovery.Committed();
  recovery.DesignShown(program.project.WorkParms);
  Design design = program.project.WorkParms;
  design.Place.DepthofCover = 980;
  recovery.DesignChanged(design);
  platform.files.Fail(Step::Write, error_number::DiskFull);
  recovery.Flush();
  platform.files.Mend();

  recovery.Flush();

  EXPECT_EQ(DepthIn(FirstFile), 980);
  EXPECT_EQ(recovery.Kept(), KeptWork::All);
}

TEST_F(UnsavedWork, IsWrittenAtTheEndOfTheRunIfTheDiskWasFullAtTheCommit) {
  Program program = Editing(725);
  Recovery recovery(program);
  recovery.Committed();
  program.project.WorkParms.Place.DepthofCover = 980;
  platform.files.Fail(Step::Write, error_number::DiskFull);
  recovery.Committed();
  platform.files.Mend();

  recovery.Flush();

  EXPECT_EQ(DepthIn(FirstFile), 980);
}

TEST_F(UnsavedWork, CausesNoErrorIfItCannotBeRemoved) {
  Program program = Editing(725);
  Recovery recovery(program);
  recovery.Committed();
  platform.files.Fail(Step::Remove, error_number::PermissionDenied);

  EXPECT_NO_THROW(recovery.Discard());

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(UnsavedWork, IsNotWrittenAfterTheWindowIsDestroyed) {
  Program program = Editing(725);
  {
    Recovery recovery(program);
    recovery.DesignChanged(program.project.WorkParms);
  }

  platform.clock.Pass();

  EXPECT_FALSE(Exists(FirstFile));
}

}  // namespace
}  // namespace orby::test
