#include "dialogs/save_in_format.h"

#include <gmock/gmock.h>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct SavingInAFormat : testing::Test {
  SavingInAFormat() { program.session.settings.DataPath = "/home/user/Orby/"; }

  std::string Save() {
    return SaveInFormat(
        program, "Save Curve", "belt Suggested PSUP",
        {{"Drawing", "svg", [] { return "<svg/>"; }}, {"Table of Values", "csv", [] { return "1,2"; }}});
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
};

TEST_F(SavingInAFormat, OffersTheFormatsInTheFolderOfProjects) {
  Save();

  ASSERT_THAT(platform.fileDialogs.asked, SizeIs(1));
  const FileQuestion& question = platform.fileDialogs.asked[0];
  EXPECT_EQ(question.title, "Save Curve");
  EXPECT_EQ(question.fileName, "belt Suggested PSUP.svg");
  EXPECT_EQ(question.folder, "/home/user/Orby");
  EXPECT_EQ(question.defaultExtension, "svg");
  ASSERT_THAT(question.filters, SizeIs(2));
  EXPECT_EQ(question.filters[0].name, "Drawing (*.svg)");
  EXPECT_EQ(question.filters[1].pattern, "*.csv");
}

TEST_F(SavingInAFormat, WritesTheFormatThatTheNameSays) {
  platform.fileDialogs.answers = {"/home/user/a.svg", "/home/user/b.1.CSV"};

  EXPECT_EQ(Save(), "/home/user/a.svg");
  EXPECT_EQ(Save(), "/home/user/b.1.CSV");

  EXPECT_EQ(platform.files.ReadFile("/home/user/a.svg"), "<svg/>");
  EXPECT_EQ(platform.files.ReadFile("/home/user/b.1.CSV"), "1,2");
}

TEST_F(SavingInAFormat, AsksAgainForANameOfNoFormat) {
  platform.fileDialogs.answers = {"/home/user/a.bmp", "/home/user/a", "/home/user/a.csv"};

  EXPECT_EQ(Save(), "/home/user/a.csv");

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("The name of the file must end in .svg or .csv.",
                                                  "The name of the file must end in .svg or .csv."));
  EXPECT_FALSE(platform.files.Finds("/home/user/a.bmp"));
}

TEST_F(SavingInAFormat, WritesNothingWhenTheDialogIsCancelled) {
  EXPECT_EQ(Save(), "");

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(SavingInAFormat, ShowsTheErrorOfAFileThatCannotBeWrittenAndKeepsTheOldOne) {
  platform.files.ReplaceFile("/home/user/a.svg", "old");
  platform.files.Fail(MemoryFiles::Step::Write, error_number::DiskFull);
  platform.fileDialogs.answers = {"/home/user/a.svg"};
  platform.boxes.answers = {BoxResult::Cancel};

  EXPECT_EQ(Save(), "");

  ASSERT_THAT(platform.boxes.shown, SizeIs(1));
  EXPECT_THAT(platform.boxes.shown[0].text, testing::HasSubstr("(61)"));
  platform.files.Mend();
  EXPECT_EQ(platform.files.ReadFile("/home/user/a.svg"), "old");
}

}  // namespace
}  // namespace orby::test
