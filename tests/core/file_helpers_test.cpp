#include "core/file_helpers.h"

#include "core/messages.h"
#include "core/program_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Step = MemoryFiles::Step;

struct FileBench : ProgramBench {
  FileBench() {
    SetMessageTitles(program, MessageModule::Options);
    platform.files.files["/mine/panel.ORB"] = "ORBY_105\r\n";
  }
};

using FileSearch = FileBench;

TEST_F(FileSearch, FindsAFile) { EXPECT_TRUE(FileExists(program, "/mine/panel.ORB")); }

TEST_F(FileSearch, DoesNotFindAMissingFile) { EXPECT_FALSE(FileExists(program, "/mine/other.ORB")); }

TEST_F(FileSearch, DoesNotFindAFolder) { EXPECT_FALSE(FileExists(program, "/tmp")); }

TEST_F(FileSearch, FindsNothingForAnInvalidPathAndShowsNoMessage) {
  platform.files.Fail(Step::Find, 52);

  EXPECT_FALSE(FileExists(program, "/mine/panel.ORB"));

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.session.history.Text, "");
}

using PathSearch = FileBench;

TEST_F(PathSearch, AcceptsAFolderAndAFile) {
  EXPECT_TRUE(ValidPath(program, "/tmp", Reporting::Loud));
  EXPECT_TRUE(ValidPath(program, "/mine/panel.ORB", Reporting::Loud));

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(PathSearch, DoesNotFindAMissingPathAndShowsNoMessage) {
  EXPECT_FALSE(ValidPath(program, "/nowhere", Reporting::Loud));

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

struct FailedPathSearch : FileBench, testing::WithParamInterface<int> {};

TEST_P(FailedPathSearch, ShowsTheInvalidPath) {
  platform.files.Fail(Step::Find, GetParam());

  EXPECT_FALSE(ValidPath(program, "/mine", Reporting::Loud));

  EXPECT_THAT(platform.boxes.shown,
              ElementsAre(IsBox("Invalid path: /mine", BoxButtons::Ok, "Program Options: Error")));
  EXPECT_EQ(program.session.history.Text, "1. Program Options: Error: Invalid path: /mine\r\n");
}

TEST_P(FailedPathSearch, ShowsNoMessageWhenQuiet) {
  platform.files.Fail(Step::Find, GetParam());

  EXPECT_FALSE(ValidPath(program, "/mine", Reporting::Silent));

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.session.history.Text, "");
}

INSTANTIATE_TEST_SUITE_P(Error, FailedPathSearch, testing::Values(5, 7, 9, 52, 55, 68, 75, 76),
                         testing::PrintToStringParamName());

struct UnexpectedErrorOfAPathSearch : FileBench, testing::WithParamInterface<int> {};

TEST_P(UnexpectedErrorOfAPathSearch, IsShownAsAnInternalErrorAndThePathIsAccepted) {
  platform.files.Fail(Step::Find, GetParam());

  EXPECT_TRUE(ValidPath(program, "/mine", Reporting::Loud));

  EXPECT_THAT(platform.boxes.shown, ElementsAre(IsBox("Internal Error in ValidPath Function: Contact Developer",
                                                      BoxButtons::Ok, "Program Options: Range Error")));
}

TEST_P(UnexpectedErrorOfAPathSearch, IsShownEvenWhenQuiet) {
  platform.files.Fail(Step::Find, GetParam());

  EXPECT_TRUE(ValidPath(program, "/mine", Reporting::Silent));

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Internal Error in ValidPath Function: Contact Developer"));
}

INSTANTIATE_TEST_SUITE_P(Error, UnexpectedErrorOfAPathSearch, testing::Values(53, 61, 70, 482, 32755),
                         testing::PrintToStringParamName());

TEST_F(PathSearch, ShowsADataBaseErrorAsAnInternalError) {
  platform.files.Fail(Step::Find, -2147217900);

  EXPECT_TRUE(ValidPath(program, "/mine", Reporting::Silent));

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Internal Error in ValidPath Function: Contact Developer"));
}

using FileName = FileBench;

TEST_F(FileName, FollowsTheLastSeparatorOfEitherKind) {
  EXPECT_EQ(FileNameFromPath(program, "/mine/panel 3.ORB", FileNameForm::Whole), "panel 3.ORB");
  EXPECT_EQ(FileNameFromPath(program, "C:\\mine\\panel 3.ORB", FileNameForm::Whole), "panel 3.ORB");
  EXPECT_EQ(FileNameFromPath(program, "C:\\mine/sub\\panel.ORB", FileNameForm::Whole), "panel.ORB");
}

TEST_F(FileName, IsTheWholePathWithoutASeparator) {
  EXPECT_EQ(FileNameFromPath(program, "panel.ORB", FileNameForm::Whole), "panel.ORB");
}

TEST_F(FileName, OfAnEmptyPathIsEmpty) {
  EXPECT_EQ(FileNameFromPath(program, "", FileNameForm::Whole), "");
  EXPECT_EQ(FileNameFromPath(program, "", FileNameForm::WithoutExtension), "");
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(FileName, EndsBeforeItsFirstPointOnRequest) {
  EXPECT_EQ(FileNameFromPath(program, "/mine/panel.v2.ORB", FileNameForm::WithoutExtension), "panel");
  EXPECT_EQ(FileNameFromPath(program, "/mine.old/panel", FileNameForm::WithoutExtension), "panel");
}

TEST_F(FileName, DoesNotEndBeforeAnInitialPoint) {
  EXPECT_EQ(FileNameFromPath(program, "/mine/.hidden.ORB", FileNameForm::WithoutExtension), ".hidden.ORB");
}

TEST_F(FileName, OfAPathWithATrailingSeparatorIsAnErrorAndThePathItself) {
  EXPECT_EQ(FileNameFromPath(program, "/mine/", FileNameForm::WithoutExtension), "/mine/");
  EXPECT_EQ(FileNameFromPath(program, "C:\\mine\\", FileNameForm::Whole), "C:\\mine\\");

  EXPECT_THAT(platform.boxes.shown,
              ElementsAre(IsBox("Error in filename: /mine/", BoxButtons::Ok, "Program Options: Error"),
                          IsBox("Error in filename: C:\\mine\\", BoxButtons::Ok, "Program Options: Error")));
}

using TextFileCopy = FileBench;

TEST_F(TextFileCopy, EndsEveryLineWithCarriageReturnAndLineFeed) {
  platform.files.files["/mine/notes.txt"] = "one\ntwo\r\nthree\r\rfive";

  EXPECT_TRUE(CopyTextFile(program, "/mine/notes.txt", "/tmp/copy.txt"));

  EXPECT_EQ(platform.files.files["/tmp/copy.txt"], "one\r\ntwo\r\nthree\r\n\r\nfive\r\n");
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(TextFileCopy, OfAnEmptyFileIsEmpty) {
  platform.files.files["/mine/notes.txt"] = "";
  platform.files.files["/tmp/copy.txt"] = "stale";

  EXPECT_TRUE(CopyTextFile(program, "/mine/notes.txt", "/tmp/copy.txt"));

  EXPECT_EQ(platform.files.files["/tmp/copy.txt"], "");
}

TEST_F(TextFileCopy, KeepsALineEndTogetherWhenAReadSplitsIt) {
  const std::string piece((std::size_t{1} << 20U) - 1, 'x');
  platform.files.files["/mine/notes.txt"] = piece + "\r\nend";

  EXPECT_TRUE(CopyTextFile(program, "/mine/notes.txt", "/tmp/copy.txt"));

  EXPECT_TRUE(platform.files.files["/tmp/copy.txt"] == piece + "\r\nend\r\n");
}

TEST_F(TextFileCopy, DoesNotChangeTheSource) {
  platform.files.files["/mine/notes.txt"] = "one\ntwo";

  CopyTextFile(program, "/mine/notes.txt", "/tmp/copy.txt");

  EXPECT_EQ(platform.files.files["/mine/notes.txt"], "one\ntwo");
}

TEST_F(TextFileCopy, ShowsTheNameOfAMissingSource) {
  EXPECT_FALSE(CopyTextFile(program, "/mine/missing.txt", "/tmp/copy.txt"));

  EXPECT_THAT(platform.boxes.shown, ElementsAre(IsBox("Requested File not found: /mine/missing.txt", BoxButtons::Ok,
                                                      "Program Options: Error")));
  EXPECT_THAT(platform.files.created, IsEmpty());
}

TEST_F(TextFileCopy, ReportsAFailureOfEachStep) {
  for (const Step step : {Step::Read, Step::Create, Step::Write, Step::Close}) {
    RecordingPlatform failing;
    failing.files.files["/mine/notes.txt"] = "one\r\ntwo\r\n";
    failing.files.Fail(step, 61);
    Program copying(failing.AsPlatform());
    SetMessageTitles(copying, MessageModule::Options);

    EXPECT_FALSE(CopyTextFile(copying, "/mine/notes.txt", "/tmp/copy.txt"));

    EXPECT_THAT(failing.boxes.shown,
                ElementsAre(IsBox("File I/O problem with TMP file: ", BoxButtons::Ok, "Program Options: Error")));
  }
}

TEST_F(TextFileCopy, ReportsADiskThatBecomesFullWhileItIsWritten) {
  platform.files.files["/mine/notes.txt"] = "one\r\ntwo\r\nthree\r\n";
  platform.files.Fail(Step::Write, 61, 3);

  EXPECT_FALSE(CopyTextFile(program, "/mine/notes.txt", "/tmp/copy.txt"));

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("File I/O problem with TMP file: "));
}

TEST_F(TextFileCopy, OntoItselfIsRefusedAndDoesNotChangeTheFile) {
  platform.files.files["/mine/notes.txt"] = "one\ntwo";

  EXPECT_FALSE(CopyTextFile(program, "/mine/notes.txt", "/mine/notes.txt"));

  EXPECT_THAT(platform.boxes.shown,
              ElementsAre(IsBox("File I/O problem with TMP file: ", BoxButtons::Ok, "Program Options: Error")));
  EXPECT_EQ(platform.files.files["/mine/notes.txt"], "one\ntwo");
}

// Files with folders of the names that a test sets.
struct NamedFolders : MemoryFiles {
  std::string TemporaryFolder() override { return temporary; }
  std::string ProgramFolder() override { return program; }

  std::string temporary;
  std::string program;
};

struct Folders : FileBench {
  NamedFolders files;
  Program elsewhere{platform.AsPlatformWith(files)};
};

TEST_F(Folders, TheTemporaryFolderEndsWithOneSeparator) {
  EXPECT_EQ(GetTempDirectory(program.platform.files), "/tmp/");

  files.temporary = "/tmp/";
  EXPECT_EQ(GetTempDirectory(elsewhere.platform.files), "/tmp/");
}

TEST_F(Folders, AMissingTemporaryFolderLeavesOnlyTheSeparator) {
  files.temporary = "/nowhere";

  EXPECT_EQ(GetTempDirectory(elsewhere.platform.files), "/");
}

TEST_F(Folders, TheProgramFolderEndsWithOneSeparatorAndHasNoBlanksAround) {
  EXPECT_EQ(AppDirectory(program.platform.files), "/program/");

  files.program = " /opt/roof support/ ";
  EXPECT_EQ(AppDirectory(elsewhere.platform.files), "/opt/roof support/");

  files.program = "D:\\Roof\\";
  EXPECT_EQ(AppDirectory(elsewhere.platform.files), "D:\\Roof\\");
}

TEST_F(Folders, ALongNameHasNoTrailingSeparatorAndKeepsItsCase) {
  files.files["/mine/Panel"] = "";

  EXPECT_EQ(LongPathName(elsewhere.platform.files, "/mine/Panel/"), "/mine/Panel");
  EXPECT_EQ(LongPathName(elsewhere.platform.files, "/mine/Panel"), "/mine/Panel");
  EXPECT_EQ(LongPathName(elsewhere.platform.files, "/mine/Panel\\"), "/mine/Panel");
}

TEST_F(Folders, TheLongNameOfAMissingPathIsEmpty) {
  EXPECT_EQ(LongPathName(program.platform.files, "/nowhere"), "");
  EXPECT_EQ(LongPathName(program.platform.files, ""), "");
}

}  // namespace
}  // namespace orby::test
