// The folders below the user's documents, and the examples that are copied there.
#include "config/user_folders.h"

#include <gmock/gmock.h>

#include "base/runtime_error.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using Step = MemoryFiles::Step;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

struct UserFolder : testing::Test {
  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  Folders& folders = program.session.folders;
  MemoryFiles& files = platform.files;

  void ExpectAllInTheProgramsFolder() const {
    EXPECT_EQ(folders.Group, "/program/");
    EXPECT_EQ(folders.GroupTemporary, "/program/");
    EXPECT_EQ(folders.ProgramData, "/program/");
    EXPECT_EQ(folders.ProgramTemporary, "/program/");
  }
};

TEST_F(UserFolder, IsBelowTheDocuments) {
  FindUserFolders(program);

  EXPECT_EQ(folders.Group, "/home/user/Documents/MyStrataDesk/");
  EXPECT_EQ(folders.GroupTemporary, "/home/user/Documents/MyStrataDesk/Temp/");
  EXPECT_EQ(folders.ProgramData, "/home/user/Documents/MyStrataDesk/ORBY/");
  EXPECT_EQ(folders.ProgramTemporary, "/home/user/Documents/MyStrataDesk/ORBY/Temp/");
}

TEST_F(UserFolder, IsMadeWhenItIsMissing) {
  files.folders.clear();

  FindUserFolders(program);

  EXPECT_THAT(files.folders,
              ElementsAre("/home/user/Documents/MyStrataDesk", "/home/user/Documents/MyStrataDesk/ORBY",
                          "/home/user/Documents/MyStrataDesk/ORBY/Temp", "/home/user/Documents/MyStrataDesk/Temp"));
}

TEST_F(UserFolder, HasNoSecondSeparatorWhenTheDocumentsHaveATrailingOne) {
  platform.userFolders.documents = "/mnt/share/";

  FindUserFolders(program);

  EXPECT_EQ(folders.ProgramData, "/mnt/share/MyStrataDesk/ORBY/");
}

TEST_F(UserFolder, IsTheProgramFolderWhenTheDocumentsAreUnknown) {
  platform.userFolders.documents.reset();

  FindUserFolders(program);

  ExpectAllInTheProgramsFolder();
}

TEST_F(UserFolder, IsTheProgramFolderWhenTheDesktopIsUnknown) {
  platform.userFolders.desktop.reset();

  FindUserFolders(program);

  ExpectAllInTheProgramsFolder();
  EXPECT_THAT(files.folders, ElementsAre("/program", "/tmp")) << "no folder is made";
}

TEST_F(UserFolder, IsTheProgramFolderWhenItCannotBeMade) {
  files.Fail(Step::MakeFolder, error_number::PermissionDenied);

  FindUserFolders(program);

  ExpectAllInTheProgramsFolder();
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(UserFolder, ThatExistsIsUsedWhenOthersCannotBeMade) {
  files.folders.insert({"/home/user/Documents/MyStrataDesk", "/home/user/Documents/MyStrataDesk/ORBY"});
  files.Fail(Step::MakeFolder, error_number::PathFileAccess);

  FindUserFolders(program);

  EXPECT_EQ(folders.Group, "/home/user/Documents/MyStrataDesk/");
  EXPECT_EQ(folders.GroupTemporary, "/program/") << "only this one is replaced";
  EXPECT_EQ(folders.ProgramData, "/home/user/Documents/MyStrataDesk/ORBY/");
  EXPECT_EQ(folders.ProgramTemporary, "/program/");
}

TEST_F(UserFolder, ForTemporaryFilesIsBelowTheDataFolderThatIsUsed) {
  files.Fail(Step::MakeFolder, error_number::PermissionDenied);
  files.folders.insert("/program/Temp");

  FindUserFolders(program);

  EXPECT_EQ(folders.ProgramData, "/program/");
  EXPECT_EQ(folders.ProgramTemporary, "/program/Temp/");
}

TEST_F(UserFolder, IsTheProgramFolderWhenTheSearchFails) {
  files.Fail(Step::Find, error_number::PermissionDenied);

  FindUserFolders(program);

  ExpectAllInTheProgramsFolder();
}

struct Examples : testing::Test {
  Examples() {
    program.session.settings.DataPath = "/data/";
    files.files["/program/examples/belt-entry.ORB"] = "ORBY_105\r\n";
    files.files["/program/examples/weak-roof.ORB"] = std::string("\x80\0\xFF\n", 4);
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  MemoryFiles& files = platform.files;
};

TEST_F(Examples, AreCopiedByteForByte) {
  CopyExamples(program);

  EXPECT_EQ(files.files["/data/belt-entry.ORB"], "ORBY_105\r\n");
  EXPECT_EQ(files.files["/data/weak-roof.ORB"], std::string("\x80\0\xFF\n", 4));
  EXPECT_EQ(files.files.size(), 4U);
}

TEST_F(Examples, ThatTheUserHasChangedAreNotReplaced) {
  files.files["/data/belt-entry.ORB"] = "mine";

  CopyExamples(program);

  EXPECT_EQ(files.files["/data/belt-entry.ORB"], "mine");
  EXPECT_TRUE(files.files.contains("/data/weak-roof.ORB"));
}

TEST_F(Examples, DoNotReplaceAFolderOfTheirName) {
  files.folders.insert("/data/belt-entry.ORB");

  CopyExamples(program);

  EXPECT_FALSE(files.files.contains("/data/belt-entry.ORB"));
  EXPECT_TRUE(files.files.contains("/data/weak-roof.ORB"));
}

TEST_F(Examples, AreNotCopiedWhenTheSettingIsOff) {
  program.session.settings.CopyExampleFiles = 0;

  CopyExamples(program);

  EXPECT_EQ(files.files.size(), 2U);
}

TEST_F(Examples, InAFolderBelowTheirOwnAreNotCopied) {
  files.files["/program/examples/old/old.ORB"] = "ORBY_104\r\n";

  CopyExamples(program);

  EXPECT_EQ(files.files.size(), 5U);
  EXPECT_FALSE(files.files.contains("/data/old.ORB"));
}

TEST_F(Examples, ThatCannotBeReadAreSkipped) {
  files.Fail(Step::Read, error_number::PermissionDenied);

  CopyExamples(program);

  EXPECT_EQ(files.files.size(), 2U);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(Examples, LeaveNoPartialFileOnAFullDisk) {
  files.Fail(Step::Write, error_number::DiskFull, 1);

  CopyExamples(program);

  EXPECT_EQ(files.files.size(), 3U);
  EXPECT_EQ(files.files["/data/belt-entry.ORB"], "ORBY_105\r\n");
}

TEST_F(Examples, ThatAreMissingAreNotAnError) {
  files.files.clear();

  CopyExamples(program);

  EXPECT_THAT(files.files, IsEmpty());
}

struct WorkingFolder : testing::Test {
  RecordingPlatform platform;
  Program program{platform.AsPlatform()};

  WorkingFolder() { program.session.folders.ProgramData = "/home/user/Documents/MyStrataDesk/ORBY/"; }
};

TEST_F(WorkingFolder, IsTheProgramFolder) {
  EnterWorkingFolder(program);

  EXPECT_EQ(platform.files.workingFolder, "/program/");
}

TEST_F(WorkingFolder, IsTheDataFolderWhenTheProgramFolderIsNotWritable) {
  platform.files.readOnly.insert("/program");

  EnterWorkingFolder(program);

  EXPECT_EQ(platform.files.workingFolder, "/home/user/Documents/MyStrataDesk/ORBY/");
}

TEST_F(WorkingFolder, StaysTheSameWhenNoneCanBeEntered) {
  platform.files.Fail(Step::EnterFolder, error_number::PathNotFound);

  EnterWorkingFolder(program);

  EXPECT_EQ(platform.files.workingFolder, "/section");
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

}  // namespace
}  // namespace orby::test
