#include "core/messages.h"
#include "core/program_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// One error as the user sees it: the line of the history and the text of the box.
struct ErrorCase {
  int number;
  const char* log;
  const char* box;
};

std::string CaseName(const testing::TestParamInfo<ErrorCase>& info) {
  return "Number" + std::to_string(info.param.number);
}

struct ErrorBench : ProgramBench {
  ErrorBench() { SetMessageTitles(program, MessageModule::Parameters); }

  std::string FirstLogLine() const {
    return program.session.history.Text.substr(0, program.session.history.Text.find("\r\n"));
  }
};

struct ErrorOfADevice : ErrorBench, testing::WithParamInterface<ErrorCase> {};

TEST_P(ErrorOfADevice, IsRetriedWhenTheUserWishes) {
  platform.boxes.answers = {BoxResult::Retry};

  const Decision decision = ErrorDecision(program, RuntimeError(GetParam().number), Reporting::Loud);

  EXPECT_EQ(decision, Decision::Retry);
  EXPECT_EQ(FirstLogLine(), GetParam().log);
  EXPECT_THAT(platform.boxes.shown,
              ElementsAre(IsBox(GetParam().box, BoxButtons::RetryCancel, "Project Parameters: Error")));
}

TEST_P(ErrorOfADevice, IsSkippedWhenTheUserCancels) {
  platform.boxes.answers = {BoxResult::Cancel};

  const Decision decision = ErrorDecision(program, RuntimeError(GetParam().number), Reporting::Loud);

  EXPECT_EQ(decision, Decision::Continue);
  EXPECT_THAT(platform.boxes.shown,
              ElementsAre(IsBox(GetParam().box, BoxButtons::RetryCancel, "Project Parameters: Error")));
}

TEST_P(ErrorOfADevice, IsSkippedWithoutAMessageWhenSilent) {
  const Decision decision = ErrorDecision(program, RuntimeError(GetParam().number), Reporting::Silent);

  EXPECT_EQ(decision, Decision::Continue);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.session.history.Text, "");
}

INSTANTIATE_TEST_SUITE_P(
    Printer, ErrorOfADevice,
    testing::Values(ErrorCase{482, "1. Error  482:Printer error", "Error occurred: Printer error (482)"},
                    ErrorCase{483, "1. Error  483:Application-defined or object-defined error",
                              "Error occurred: Application-defined or object-defined error (483)"},
                    ErrorCase{484, "1. Error  484:Application-defined or object-defined error",
                              "Error occurred: Application-defined or object-defined error (484)"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    FileOrDisk, ErrorOfADevice,
    testing::Values(ErrorCase{24, "1. Error  24:Application-defined or object-defined error",
                              "Error occurred: Application-defined or object-defined error (24)"},
                    ErrorCase{25, "1. Error  25:Application-defined or object-defined error",
                              "Error occurred: Application-defined or object-defined error (25)"},
                    ErrorCase{27, "1. Error  27:Application-defined or object-defined error",
                              "Error occurred: Application-defined or object-defined error (27)"},
                    ErrorCase{53, "1. Error  53:File not found", "Error occurred: File not found (53)"},
                    ErrorCase{57, "1. Error  57:Application-defined or object-defined error",
                              "Error occurred: Application-defined or object-defined error (57)"},
                    ErrorCase{61, "1. Error  61:Disk full", "Error occurred: Disk full (61)"},
                    ErrorCase{62, "1. Error  62:Input past end of file", "Error occurred: Input past end of file (62)"},
                    ErrorCase{70, "1. Error  70:Permission denied", "Error occurred: Permission denied (70)"},
                    ErrorCase{71, "1. Error  71:Application-defined or object-defined error",
                              "Error occurred: Application-defined or object-defined error (71)"},
                    ErrorCase{72, "1. Error  72:Application-defined or object-defined error",
                              "Error occurred: Application-defined or object-defined error (72)"}),
    CaseName);

struct ErrorThatEndsACommand : ErrorBench, testing::WithParamInterface<ErrorCase> {};

TEST_P(ErrorThatEndsACommand, IsShownOnceAndEndsTheCommand) {
  const Decision decision = ErrorDecision(program, RuntimeError(GetParam().number), Reporting::Loud);

  EXPECT_EQ(decision, Decision::GiveUp);
  EXPECT_EQ(FirstLogLine(), GetParam().log);
  EXPECT_THAT(platform.boxes.shown, ElementsAre(IsBox(GetParam().box, BoxButtons::Ok, "Orby Roof Support Workbench")));
}

TEST_P(ErrorThatEndsACommand, IsNeverRetried) {
  platform.boxes.answers = {BoxResult::Retry};

  EXPECT_EQ(ErrorDecision(program, RuntimeError(GetParam().number), Reporting::Loud), Decision::GiveUp);
}

TEST_P(ErrorThatEndsACommand, EndsTheCommandWithoutAMessageWhenSilent) {
  const Decision decision = ErrorDecision(program, RuntimeError(GetParam().number), Reporting::Silent);

  EXPECT_EQ(decision, Decision::GiveUp);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.session.history.Text, "");
}

INSTANTIATE_TEST_SUITE_P(
    CallOrMemory, ErrorThatEndsACommand,
    testing::Values(ErrorCase{5, "1. Error  5:Invalid procedure call or argument",
                              "Error occurred: Invalid procedure call or argument (5). Procedure Terminated"},
                    ErrorCase{6, "1. Error  6:Overflow", "Error occurred: Overflow (6). Procedure Terminated"},
                    ErrorCase{7, "1. Error  7:Out of memory",
                              "Error occurred: Out of memory (7). Procedure Terminated"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    NameOrPath, ErrorThatEndsACommand,
    testing::Values(
        ErrorCase{52, "1. Error  52:Bad file name or number",
                  "Error occurred: Bad file name or number (52). Procedure Terminated"},
        ErrorCase{55, "1. Error  55:File already open", "Error occurred: File already open (55). Procedure Terminated"},
        ErrorCase{64, "1. Error  64:Application-defined or object-defined error",
                  "Error occurred: Application-defined or object-defined error (64). Procedure Terminated"},
        ErrorCase{68, "1. Error  68:Application-defined or object-defined error",
                  "Error occurred: Application-defined or object-defined error (68). Procedure Terminated"},
        ErrorCase{75, "1. Error  75:Path/File access error",
                  "Error occurred: Path/File access error (75). Procedure Terminated"},
        ErrorCase{76, "1. Error  76:Path not found", "Error occurred: Path not found (76). Procedure Terminated"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    AnyOther, ErrorThatEndsACommand,
    testing::Values(
        ErrorCase{1, "1. Error  1:Application-defined or object-defined error",
                  "Error occurred: Application-defined or object-defined error (1). Procedure Terminated"},
        ErrorCase{9, "1. Error  9:Subscript out of range",
                  "Error occurred: Subscript out of range (9). Procedure Terminated"},
        ErrorCase{11, "1. Error  11:Division by zero", "Error occurred: Division by zero (11). Procedure Terminated"},
        ErrorCase{13, "1. Error  13:Type mismatch", "Error occurred: Type mismatch (13). Procedure Terminated"},
        ErrorCase{26, "1. Error  26:Application-defined or object-defined error",
                  "Error occurred: Application-defined or object-defined error (26). Procedure Terminated"},
        ErrorCase{54, "1. Error  54:Application-defined or object-defined error",
                  "Error occurred: Application-defined or object-defined error (54). Procedure Terminated"},
        ErrorCase{429, "1. Error  429:Automation server can't create object",
                  "Error occurred: Automation server can't create object (429). Procedure Terminated"},
        ErrorCase{481, "1. Error  481:Application-defined or object-defined error",
                  "Error occurred: Application-defined or object-defined error (481). Procedure Terminated"},
        ErrorCase{485, "1. Error  485:Application-defined or object-defined error",
                  "Error occurred: Application-defined or object-defined error (485). Procedure Terminated"},
        ErrorCase{32754, "1. Error  32754:Application-defined or object-defined error",
                  "Error occurred: Application-defined or object-defined error (32754). Procedure Terminated"}),
    CaseName);

using CancelledDialog = ErrorBench;

TEST_F(CancelledDialog, IsAddedToTheHistoryWithoutABox) {
  const Decision decision = ErrorDecision(program, RuntimeError(32755), Reporting::Loud);

  EXPECT_EQ(decision, Decision::Cancelled);
  EXPECT_EQ(program.session.history.Text, "1. Cancel was selected.\r\n");
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(CancelledDialog, IsNotAddedToTheHistoryWhenSilent) {
  const Decision decision = ErrorDecision(program, RuntimeError(32755), Reporting::Silent);

  EXPECT_EQ(decision, Decision::Cancelled);
  EXPECT_EQ(program.session.history.Text, "");
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

using DataBaseError = ErrorBench;

TEST_F(DataBaseError, IsShownWithItsSignedNumber) {
  const Decision decision = ErrorDecision(program, RuntimeError(-2147217900), Reporting::Loud);

  EXPECT_EQ(decision, Decision::DataBase);
  EXPECT_EQ(FirstLogLine(), "1. Error -2147217900:Application-defined or object-defined error");
  EXPECT_THAT(platform.boxes.shown,
              ElementsAre(IsBox("Error occurred: Application-defined or object-defined error (-2147217900). "
                                "Procedure Terminated",
                                BoxButtons::Ok, "Orby Roof Support Workbench")));
}

TEST_F(DataBaseError, HasTheSameDecisionWhenSilent) {
  const Decision decision = ErrorDecision(program, RuntimeError(-2147217900), Reporting::Silent);

  EXPECT_EQ(decision, Decision::DataBase);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.session.history.Text, "");
}

using ErrorHistory = ErrorBench;

TEST_F(ErrorHistory, HasTheErrorBeforeItsMessageBox) {
  ErrorDecision(program, RuntimeError(53), Reporting::Loud);
  ErrorDecision(program, RuntimeError(76), Reporting::Loud);

  EXPECT_EQ(program.session.history.Text,
            "1. Error  53:File not found\r\n"
            "2. Project Parameters: Error: Error occurred: File not found (53)\r\n"
            "3. Error  76:Path not found\r\n"
            "4. Message: Error occurred: Path not found (76). Procedure Terminated\r\n");
}

}  // namespace
}  // namespace orby::test
