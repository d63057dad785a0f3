#include <stdexcept>

#include "core/messages.h"
#include "core/program_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A step that fails with the listed errors, one for each run, and then succeeds.
struct CommandStep : ProgramBench {
  StepOutcome Run(std::vector<int> errors) {
    return RunTrapped(program, [this, errors] {
      const auto run = static_cast<std::size_t>(runs++);
      if (run < errors.size()) throw RuntimeError(errors[run]);
    });
  }

  int runs = 0;
};

TEST_F(CommandStep, ThatSucceedsRunsOnceWithoutAMessage) {
  EXPECT_EQ(Run({}), StepOutcome::Done);

  EXPECT_EQ(runs, 1);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.session.history.Text, "");
}

TEST_F(CommandStep, RunsAgainAsLongAsTheUserRetries) {
  platform.boxes.answers = {BoxResult::Retry, BoxResult::Retry};

  EXPECT_EQ(Run({53, 482}), StepOutcome::Done);

  EXPECT_EQ(runs, 3);
  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Error occurred: File not found (53)", "Error occurred: Printer error (482)"));
}

TEST_F(CommandStep, IsSkippedWhenTheUserDoesNotRetry) {
  platform.boxes.answers = {BoxResult::Retry, BoxResult::Cancel};

  EXPECT_EQ(Run({61, 61, 61}), StepOutcome::PassedOver);

  EXPECT_EQ(runs, 2);
}

TEST_F(CommandStep, IsCancelledWithoutAMessageWhenItsDialogIsCancelled) {
  EXPECT_EQ(Run({32755}), StepOutcome::Cancelled);

  EXPECT_EQ(runs, 1);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(CommandStep, IsGivenUpWhenARetryCannotHelp) {
  EXPECT_EQ(Run({76}), StepOutcome::GivenUp);

  EXPECT_EQ(runs, 1);
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Error occurred: Path not found (76). Procedure Terminated"));
}

TEST_F(CommandStep, IsGivenUpOnAnErrorOfADataBase) { EXPECT_EQ(Run({-2147217900}), StepOutcome::GivenUp); }

TEST_F(CommandStep, RestoresTheNormalCursorBeforeTheUserIsAsked) {
  struct CursorWatchingBoxes : RecordingBoxes {
    explicit CursorWatchingBoxes(const RecordingWindows& watched) : windows(watched) {}
    BoxResult Show(const MessageBox& box) override {
      waitingWhenShown.push_back(windows.waitCursor);
      return RecordingBoxes::Show(box);
    }
    const RecordingWindows& windows;
    std::vector<bool> waitingWhenShown;
  } boxes(platform.windows);
  Program watched(platform.AsPlatformWith(boxes));

  RunTrapped(watched, [this] {
    platform.windows.SetWaitCursor(true);
    throw RuntimeError(76);
  });

  EXPECT_THAT(boxes.waitingWhenShown, ElementsAre(false));
}

TEST_F(CommandStep, DoesNotChangeTheWaitCursorWhenItSucceeds) {
  RunTrapped(program, [this] { platform.windows.SetWaitCursor(true); });

  EXPECT_TRUE(platform.windows.waitCursor);
}

TEST_F(CommandStep, DoesNotCatchOtherExceptions) {
  const auto fail = [this] { RunTrapped(program, [] { throw std::logic_error("broken"); }); };

  EXPECT_THROW(fail(), std::logic_error);

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

}  // namespace
}  // namespace orby::test
