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

TEST_F(FileSearch, DoesNotFindWhatIsNotThere) { EXPECT_FALSE(FileExists(program, "/mine/other.ORB")); }

TEST_F(FileSearch, DoesNotTakeAFolderForAFile) { EXPECT_FALSE(FileExists(program, "/tmp")); }

TEST_F(FileSearch, FindsNothingUnderABadPathAndSaysNothing) {
  platform.files.Fail(Step::Find, 52);

  EXPECT_FALSE(FileExists(program, "/mine/panel.ORB"));

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.session.history.Text, "");
}

using PathSearch = FileBench;

TEST_F(PathSearch, AcceptsAFolderAndAFile) {
  EXPECT_TRUE(ValidPath(program, "/tmp", false));
  EXPECT_TRUE(ValidPath(program, "/mine/panel.ORB", false));

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(PathSearch, RefusesWhatIsNotThereInSilence) {
  EXPECT_FALSE(ValidPath(program, "/nowhere", false));

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

struct HopelessPathSearch : FileBench, testing::WithParamInterface<int> {};

TEST_P(HopelessPathSearch, NamesTheInvalidPath) {
  platform.files.Fail(Step::Find, GetParam());

  EXPECT_FALSE(ValidPath(program, "/mine", false));

  EXPECT_THAT(platform.boxes.shown,
              ElementsAre(IsBox("Invalid path: /mine", BoxButtons::Ok, "Program Options: Error")));
  EXPECT_EQ(program.session.history.Text, "1. Program Options: Error: Invalid path: /mine\r\n");
}

TEST_P(HopelessPathSearch, IsQuietOnRequest) {
  platform.files.Fail(Step::Find, GetParam());

  EXPECT_FALSE(ValidPath(program, "/mine", true));

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.session.history.Text, "");
}

INSTANTIATE_TEST_SUITE_P(Error, HopelessPathSearch, testing::Values(5, 7, 9, 52, 55, 68, 75, 76),
                         testing::PrintToStringParamName());

struct UnexpectedPathTrouble : FileBench, testing::WithParamInterface<int> {};

TEST_P(UnexpectedPathTrouble, IsAnInternalErrorAndThePathCounts) {
  platform.files.Fail(Step::Find, GetParam());

  EXPECT_TRUE(ValidPath(program, "/mine", false));

  EXPECT_THAT(platform.boxes.shown, ElementsAre(IsBox("Internal Error in ValidPath Function: Contact Developer",
                                                      BoxButtons::Ok, "Program Options: Range Error")));
}

TEST_P(UnexpectedPathTrouble, IsToldAlsoWhenQuiet) {
  platform.files.Fail(Step::Find, GetParam());

  EXPECT_TRUE(ValidPath(program, "/mine", true));

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Internal Error in ValidPath Function: Contact Developer"));
}

INSTANTIATE_TEST_SUITE_P(Error, UnexpectedPathTrouble, testing::Values(53, 61, 70, 482, 32755),
                         testing::PrintToStringParamName());

TEST_F(PathSearch, TakesAnErrorOfADataBaseForAnInternalOne) {
  platform.files.Fail(Step::Find, -2147217900);

  EXPECT_TRUE(ValidPath(program, "/mine", true));

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Internal Error in ValidPath Function: Contact Developer"));
}

using FileName = FileBench;

TEST_F(FileName, StandsBehindTheLastSeparatorOfEitherKind) {
  EXPECT_EQ(FileNameFromPath(program, "/mine/panel 3.ORB", false), "panel 3.ORB");
  EXPECT_EQ(FileNameFromPath(program, "C:\\mine\\panel 3.ORB", false), "panel 3.ORB");
  EXPECT_EQ(FileNameFromPath(program, "C:\\mine/sub\\panel.ORB", false), "panel.ORB");
}

TEST_F(FileName, IsTheWholePathWithoutASeparator) {
  EXPECT_EQ(FileNameFromPath(program, "panel.ORB", false), "panel.ORB");
}

TEST_F(FileName, OfAnEmptyPathIsEmpty) {
  EXPECT_EQ(FileNameFromPath(program, "", false), "");
  EXPECT_EQ(FileNameFromPath(program, "", true), "");
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(FileName, IsCutBeforeItsFirstPointOnRequest) {
  EXPECT_EQ(FileNameFromPath(program, "/mine/panel.v2.ORB", true), "panel");
  EXPECT_EQ(FileNameFromPath(program, "/mine.old/panel", true), "panel");
}

TEST_F(FileName, IsNotCutBeforeAPointAtItsBeginning) {
  EXPECT_EQ(FileNameFromPath(program, "/mine/.hidden.ORB", true), ".hidden.ORB");
}

TEST_F(FileName, OfAPathEndingInASeparatorIsToldOnceAndThePathItself) {
  EXPECT_EQ(FileNameFromPath(program, "/mine/", true), "/mine/");
  EXPECT_EQ(FileNameFromPath(program, "C:\\mine\\", false), "C:\\mine\\");

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

TEST_F(TextFileCopy, KeepsALineEndTogetherWhereverTheFileIsCutWhileItIsRead) {
  const std::string piece((std::size_t{1} << 20U) - 1, 'x');
  platform.files.files["/mine/notes.txt"] = piece + "\r\nend";

  EXPECT_TRUE(CopyTextFile(program, "/mine/notes.txt", "/tmp/copy.txt"));

  EXPECT_TRUE(platform.files.files["/tmp/copy.txt"] == piece + "\r\nend\r\n");
}

TEST_F(TextFileCopy, LeavesTheSourceAsItIs) {
  platform.files.files["/mine/notes.txt"] = "one\ntwo";

  CopyTextFile(program, "/mine/notes.txt", "/tmp/copy.txt");

  EXPECT_EQ(platform.files.files["/mine/notes.txt"], "one\ntwo");
}

TEST_F(TextFileCopy, NamesASourceThatIsNotThere) {
  EXPECT_FALSE(CopyTextFile(program, "/mine/missing.txt", "/tmp/copy.txt"));

  EXPECT_THAT(platform.boxes.shown, ElementsAre(IsBox("Requested File not found: /mine/missing.txt", BoxButtons::Ok,
                                                      "Program Options: Error")));
  EXPECT_THAT(platform.files.created, IsEmpty());
}

TEST_F(TextFileCopy, TellsOfAFailureAtAnyStep) {
  for (const Step step : {Step::Read, Step::Create, Step::Write, Step::Close}) {
    RecordingPlatform failing;
    failing.files.files["/mine/notes.txt"] = "one\r\ntwo\r\n";
    failing.files.Fail(step, 61);
    Program copying(failing.Doors());
    SetMessageTitles(copying, MessageModule::Options);

    EXPECT_FALSE(CopyTextFile(copying, "/mine/notes.txt", "/tmp/copy.txt"));

    EXPECT_THAT(failing.boxes.shown,
                ElementsAre(IsBox("File I/O problem with TMP file: ", BoxButtons::Ok, "Program Options: Error")));
  }
}

TEST_F(TextFileCopy, TellsOfADiskThatFillsUpOnTheWay) {
  platform.files.files["/mine/notes.txt"] = "one\r\ntwo\r\nthree\r\n";
  platform.files.Fail(Step::Write, 61, 3);

  EXPECT_FALSE(CopyTextFile(program, "/mine/notes.txt", "/tmp/copy.txt"));

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("File I/O problem with TMP file: "));
}

TEST_F(TextFileCopy, OntoItselfIsRefusedAndLeavesTheFileAsItIs) {
  platform.files.files["/mine/notes.txt"] = "one\ntwo";

  EXPECT_FALSE(CopyTextFile(program, "/mine/notes.txt", "/mine/notes.txt"));

  EXPECT_THAT(platform.boxes.shown,
              ElementsAre(IsBox("File I/O problem with TMP file: ", BoxButtons::Ok, "Program Options: Error")));
  EXPECT_EQ(platform.files.files["/mine/notes.txt"], "one\ntwo");
}

// Files whose folders are named otherwise.
struct NamedFolders : MemoryFiles {
  std::string TemporaryFolder() override { return temporary; }
  std::string ProgramFolder() override { return program; }

  std::string temporary;
  std::string program;
};

struct Folders : FileBench {
  NamedFolders files;
  Program elsewhere{platform.DoorsWith(files)};
};

TEST_F(Folders, TheTemporaryOneEndsInOneSeparator) {
  EXPECT_EQ(GetTempDirectory(program.platform.files), "/tmp/");

  files.temporary = "/tmp/";
  EXPECT_EQ(GetTempDirectory(elsewhere.platform.files), "/tmp/");
}

TEST_F(Folders, ATemporaryOneThatIsNotThereLeavesTheSeparatorAlone) {
  files.temporary = "/nowhere";

  EXPECT_EQ(GetTempDirectory(elsewhere.platform.files), "/");
}

TEST_F(Folders, TheProgramsOwnEndsInOneSeparatorAndHasNoBlanksAround) {
  EXPECT_EQ(AppDirectory(program.platform.files), "/program/");

  files.program = " /opt/roof support/ ";
  EXPECT_EQ(AppDirectory(elsewhere.platform.files), "/opt/roof support/");

  files.program = "D:\\Roof\\";
  EXPECT_EQ(AppDirectory(elsewhere.platform.files), "D:\\Roof\\");
}

TEST_F(Folders, TheLongNameLosesItsSeparatorAndKeepsItsCase) {
  files.files["/mine/Panel"] = "";

  EXPECT_EQ(LongPathName(elsewhere.platform.files, "/mine/Panel/"), "/mine/Panel");
  EXPECT_EQ(LongPathName(elsewhere.platform.files, "/mine/Panel"), "/mine/Panel");
  EXPECT_EQ(LongPathName(elsewhere.platform.files, "/mine/Panel\\"), "/mine/Panel");
}

TEST_F(Folders, TheLongNameOfWhatIsNotThereIsEmpty) {
  EXPECT_EQ(LongPathName(program.platform.files, "/nowhere"), "");
  EXPECT_EQ(LongPathName(program.platform.files, ""), "");
}

}  // namespace
}  // namespace orby::test
