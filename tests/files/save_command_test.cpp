#include "files/save_command.h"

#include <gmock/gmock.h>

#include "project_fixture.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Step = MemoryFiles::Step;

TEST(SaveCommand, SavesANamedProjectWithoutAQuestion) {
  TestProject project;
  FileNew(project.program, Keeping::Name);

  EXPECT_TRUE(FileMenuSave(project.program, SaveCommand::Save));

  EXPECT_THAT(project.platform.fileDialogs.asked, IsEmpty());
  EXPECT_EQ(project.File(), ReadTestData("projects/new_english.orb"));
}

class UnnamedProject : public testing::TestWithParam<const char*> {};

TEST_P(UnnamedProject, IsSavedAfterAQuestionForItsName) {
  TestProject project;
  project.program.project.CurrentFile = GetParam();
  project.platform.fileDialogs.answers = {"/designs/named.orb"};

  EXPECT_TRUE(FileMenuSave(project.program, SaveCommand::Save));

  EXPECT_EQ(project.program.project.CurrentFile, "/designs/named.orb");
  EXPECT_TRUE(project.platform.files.files.contains("/designs/named.orb"));
}

INSTANTIATE_TEST_SUITE_P(Names, UnnamedProject, testing::Values("", "Untitled", "UNTITLED", "untitled"));

TEST(SaveCommand, SaveAsOffersTheFileNameInTheDataFolder) {
  TestProject project;
  project.program.session.settings.DataPath = "/home/designs/";
  project.platform.fileDialogs.answers = {"/designs/copy.orb"};

  EXPECT_TRUE(FileMenuSave(project.program, SaveCommand::SaveAs));

  ASSERT_EQ(project.platform.fileDialogs.asked.size(), 1U);
  const FileQuestion& question = project.platform.fileDialogs.asked.front();
  EXPECT_EQ(question.fileName, "panel3.orb");
  EXPECT_EQ(question.folder, "/home/designs");
  EXPECT_EQ(question.filters.front().name, "Orby Roof Support Workbench (*.ORB)");
  EXPECT_EQ(question.defaultExtension, "ORB");
  EXPECT_EQ(project.program.project.CurrentFile, "/designs/copy.orb");
  EXPECT_THAT(project.platform.files.created, ElementsAre("/designs/copy.orb"));
}

TEST(SaveCommand, RequiresAnExistingFileOnlyForOpening) {
  TestProject project;
  project.platform.fileDialogs.answers = {ProjectPath, ProjectPath};

  AskFileName(project.program, FileDialogMode::Open);
  AskFileName(project.program, FileDialogMode::Save);

  EXPECT_EQ(project.platform.fileDialogs.kinds, (std::vector<std::string>{"open", "save"}));
}

TEST(SaveCommand, FiltersByTheExtensionInTheSettings) {
  TestProject project;
  project.program.session.settings.FileExtension = "RSW";
  project.program.session.settings.DataPath = "D:\\mine\\";
  project.platform.fileDialogs.answers = {"/designs/copy.rsw"};

  AskFileName(project.program, FileDialogMode::Open);

  const FileQuestion& question = project.platform.fileDialogs.asked.front();
  EXPECT_EQ(question.filters.front().name, "Orby Roof Support Workbench (*.RSW)");
  EXPECT_EQ(question.defaultExtension, "RSW");
  EXPECT_EQ(question.folder, "D:\\mine");
}

TEST(SaveCommand, DoesNotOfferABlankName) {
  TestProject project;
  project.program.project.CurrentFile = "  ";
  project.platform.fileDialogs.answers = {"/designs/named.orb"};

  AskFileName(project.program, FileDialogMode::Save);

  EXPECT_EQ(project.platform.fileDialogs.asked.front().fileName, "");
}

TEST(SaveCommand, SavesNothingAfterACancelledDialog) {
  TestProject project;

  EXPECT_FALSE(FileMenuSave(project.program, SaveCommand::SaveAs));

  EXPECT_EQ(project.program.project.CurrentFile, ProjectPath);
  EXPECT_THAT(project.platform.files.created, IsEmpty());
  EXPECT_THAT(project.platform.boxes.shown, IsEmpty());
  EXPECT_EQ(project.program.session.history.Text, "1. Cancel was selected.\r\n");
}

TEST(SaveCommand, ThrowsTheCancelErrorWhenTheDialogIsCancelled) {
  TestProject project;

  EXPECT_EQ(ErrorNumberOf([&] { AskFileName(project.program, FileDialogMode::Open); }), 32755);
}

struct FailedStep {
  Step step;
  int after;
};

class SaveWithAFailedStep : public testing::TestWithParam<FailedStep> {};

TEST_P(SaveWithAFailedStep, ShowsTheErrorAndEndsOnCancel) {
  TestProject project;
  FileNew(project.program, Keeping::Name);
  project.program.project.FileSaved = false;
  project.platform.files.Fail(GetParam().step, error_number::DiskFull, GetParam().after);
  project.platform.boxes.answers = {BoxResult::Cancel};

  EXPECT_FALSE(FileMenuSave(project.program, SaveCommand::Save));

  EXPECT_THAT(project.platform.boxes.Texts(), ElementsAre("Error occurred: Disk full (61)"));
  EXPECT_EQ(project.platform.boxes.shown.front().style, BoxButtons::RetryCancel);
  EXPECT_FALSE(project.program.project.FileSaved);
  EXPECT_FALSE(project.platform.windows.waitCursor);
  EXPECT_FALSE(project.platform.files.files.contains(ProjectPath)) << "there was no file before";
}

// Message boxes whose user makes room on the disk before the answer.
class MendingBoxes : public MessageBoxes {
 public:
  MendingBoxes(MemoryFiles& filesGiven, Step stepGiven) : files(filesGiven), step(stepGiven) {}

  BoxResult Show(const MessageBox&) override {
    constexpr int Never = 1'000'000;
    ++shown;
    files.Fail(step, error_number::DiskFull, Never);
    return BoxResult::Retry;
  }

  MemoryFiles& files;
  Step step;
  int shown = 0;
};

TEST_P(SaveWithAFailedStep, StartsAgainOnRetry) {
  RecordingPlatform platform;
  MendingBoxes boxes(platform.files, GetParam().step);
  Program program(platform.AsPlatformWith(boxes));
  program.session.catalogs.StandSupports = {0, {"Four-point timber crib"}, {}};
  program.project.CurrentFile = ProjectPath;
  FileNew(program, Keeping::Name);
  program.project.FileSaved = false;
  platform.files.Fail(GetParam().step, error_number::DiskFull, GetParam().after);

  EXPECT_TRUE(FileMenuSave(program, SaveCommand::Save));

  EXPECT_EQ(boxes.shown, 1);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_FALSE(platform.windows.waitCursor);
  EXPECT_EQ(platform.files.files[ProjectPath], ReadTestData("projects/new_english.orb"));
}

INSTANTIATE_TEST_SUITE_P(EachStep, SaveWithAFailedStep,
                         testing::Values(FailedStep{Step::Create, 0}, FailedStep{Step::Reserve, 0},
                                         FailedStep{Step::Write, 0}, FailedStep{Step::Cut, 0},
                                         FailedStep{Step::Flush, 0}, FailedStep{Step::Close, 0}));

TEST(SaveCommand, OffersNoRetryForAPathThatCannotBeWritten) {
  TestProject project;
  project.platform.files.Fail(Step::Create, error_number::PathNotFound);

  EXPECT_FALSE(FileMenuSave(project.program, SaveCommand::Save));

  EXPECT_THAT(project.platform.boxes.Texts(), ElementsAre("Error occurred: Path not found (76). Procedure Terminated"));
}

}  // namespace
}  // namespace orby::test
