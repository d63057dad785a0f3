// A save fails at each of its steps: the program continues, reports the error, and saves when asked again.

#include "main_window_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Step = MemoryFiles::Step;

struct FailingStep {
  const char* name;
  Step step;
  int after;  // the number of successful steps of this kind before the failure
};

// While a box is open, the user makes room on the disk and then answers it.
class MendingBoxes : public MessageBoxes {
 public:
  explicit MendingBoxes(MemoryFiles& files) : files_(files) {}

  BoxResult Show(const MessageBox& box) override {
    constexpr int Never = 1'000'000;
    texts.push_back(box.text);
    for (const Step step : {Step::Create, Step::Reserve, Step::Write, Step::Cut, Step::Flush, Step::Close}) {
      files_.Fail(step, error_number::DiskFull, Never);
    }
    return answer;
  }

  std::vector<std::string> texts;
  BoxResult answer = BoxResult::Retry;

 private:
  MemoryFiles& files_;
};

class SaveThatFails : public testing::TestWithParam<FailingStep> {
 protected:
  static Program Started(RecordingPlatform& platform, MessageBoxes& boxes) {
    Program program(platform.AsPlatformWith(boxes));
    program.session.folders.ProgramTemporary = TemporaryPath;
    program.session.IniFilePath = IniPath;
    program.session.options.ShowInputScreenOnLoad = 0;
    StartApart(program, nullptr);
    return program;
  }

  SaveThatFails() {
    window.Open();
    program.project.CurrentFile = Panel3;
    program.project.ProjectTitle = "Panel 3";
    platform.windows.onModal = [](Form& form) {
      dynamic_cast<TextBox&>(*form.Find("txtDepthofCover")).SetText("810");
      dynamic_cast<Button&>(*form.Find("Command2")).Press();
    };
    window.mnuEditItem.ClickItem(EditItem::Parameters);
    platform.files.Fail(GetParam().step, error_number::DiskFull, GetParam().after);
  }

  RecordingPlatform platform;
  MendingBoxes boxes{platform.files};
  Program program = Started(platform, boxes);
  MainWindow window{program};
};

TEST_P(SaveThatFails, CompletesOnRetry) {
  window.mnuFileItem.ClickItem(FileItem::Save);

  EXPECT_THAT(boxes.texts, ElementsAre("Error occurred: Disk full (61)"));
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_EQ(platform.files.files[Panel3], ProjectFileBytes(program.project));
  EXPECT_THAT(platform.files.files[Panel3], HasSubstr("\r\n810\r\n"));
  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: /designs/panel3.orb");
  EXPECT_FALSE(platform.windows.waitCursor);
  EXPECT_FALSE(platform.files.files.contains(RecoveryPath));
}

TEST_P(SaveThatFails, LeavesAnUnsavedProjectThatIsSavedLater) {
  boxes.answer = BoxResult::Cancel;
  window.mnuFileItem.ClickItem(FileItem::Save);

  EXPECT_FALSE(program.project.FileSaved);
  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: /designs/panel3.orb*");
  EXPECT_FALSE(platform.windows.waitCursor);
  EXPECT_TRUE(platform.files.files.contains(RecoveryPath)) << "killed now, nothing would be lost";

  window.mnuFileItem.ClickItem(FileItem::Save);

  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_EQ(platform.files.files[Panel3], ProjectFileBytes(program.project));
}

INSTANTIATE_TEST_SUITE_P(Steps, SaveThatFails,
                         testing::Values(FailingStep{"Create", Step::Create, 0},
                                         FailingStep{"Reserve", Step::Reserve, 0}, FailingStep{"Write", Step::Write, 0},
                                         FailingStep{"Cut", Step::Cut, 0}, FailingStep{"Flush", Step::Flush, 0},
                                         FailingStep{"Close", Step::Close, 0}),
                         [](const testing::TestParamInfo<FailingStep>& step) { return step.param.name; });

}  // namespace
}  // namespace orby::test
