#include "core/messages.h"

#include "core/program_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

using ShowMessageBox = ProgramBench;

TEST_F(ShowMessageBox, WithATitleIsAddedToTheHistoryWithThatTitle) {
  ShowMessage(program, "Depth must be above 0", BoxIcon::Critical, "Project Parameters: Range Error");

  EXPECT_EQ(program.session.history.Text, "1. Project Parameters: Range Error: Depth must be above 0\r\n");
  EXPECT_THAT(platform.boxes.shown,
              ElementsAre(IsBox("Depth must be above 0", BoxIcon::Critical, "Project Parameters: Range Error")));
}

TEST_F(ShowMessageBox, WithoutATitleHasTheTitleOfTheProgram) {
  ShowMessage(program, "Current file is empty");

  EXPECT_EQ(program.session.history.Text, "1. Message: Current file is empty\r\n");
  EXPECT_THAT(platform.boxes.shown,
              ElementsAre(IsBox("Current file is empty", BoxButtons::Ok, "Orby Roof Support Workbench")));
}

TEST_F(ShowMessageBox, IsAddedToTheHistoryBeforeItIsShown) {
  struct LogReadingBoxes : RecordingBoxes {
    BoxResult Show(const MessageBox& box) override {
      logWhenShown = program->session.history.Text;
      return RecordingBoxes::Show(box);
    }
    Program* program = nullptr;
    std::string logWhenShown;
  } boxes;
  Program asking(platform.AsPlatformWith(boxes));
  boxes.program = &asking;

  ShowMessage(asking, "Save changes?", BoxButtons::YesNoCancel, "Save");

  EXPECT_EQ(boxes.logWhenShown, "1. Save: Save changes?\r\n");
}

TEST_F(ShowMessageBox, ReturnsTheButtonThatWasPressed) {
  platform.boxes.answers = {BoxResult::Cancel, BoxResult::Yes, BoxResult::No, BoxResult::Retry};

  EXPECT_EQ(ShowMessage(program, "Save changes?", BoxButtons::YesNoCancel), BoxResult::Cancel);
  EXPECT_EQ(ShowMessage(program, "Save changes?", BoxButtons::YesNo), BoxResult::Yes);
  EXPECT_EQ(ShowMessage(program, "Save changes?", BoxButtons::YesNo), BoxResult::No);
  EXPECT_EQ(ShowMessage(program, "Printer is off", BoxButtons::RetryCancel), BoxResult::Retry);
  EXPECT_EQ(ShowMessage(program, "Done"), BoxResult::Ok);
}

TEST_F(ShowMessageBox, HasTheStyleAndTheHelpOfItsCaller) {
  ShowMessage(program, "Download now?", {BoxButtons::YesNoCancel, BoxIcon::Question, BoxDefault::SecondButton},
              "Update", "ORBY.CHM", 1200);

  ASSERT_EQ(platform.boxes.shown.size(), 1U);
  EXPECT_EQ(platform.boxes.shown[0].style,
            BoxStyle(BoxButtons::YesNoCancel, BoxIcon::Question, BoxDefault::SecondButton));
  EXPECT_EQ(platform.boxes.shown[0].helpFile, "ORBY.CHM");
  EXPECT_EQ(platform.boxes.shown[0].helpContext, 1200);
}

TEST_F(ShowMessageBox, IsShownEvenWhenTheHistoryIsOff) {
  program.session.settings.DisplayHistoryWin = 0;

  ShowMessage(program, "Current file is empty");

  EXPECT_EQ(program.session.history.Text, "");
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Current file is empty"));
}

struct ModuleTitles {
  MessageModule module;
  const char* rangeError;
  const char* rangeWarning;
  const char* invalidCharacter;
  const char* error;
  const char* logicError;
};

struct MessageTitlesOfModule : ProgramBench, testing::WithParamInterface<ModuleTitles> {};

TEST_P(MessageTitlesOfModule, BeginWithTheNameOfTheModule) {
  program.windows.titles.MessageTitle = "Stale";

  SetMessageTitles(program, GetParam().module);

  EXPECT_EQ(program.windows.titles.MessageTitle, "Message");
  EXPECT_EQ(program.windows.titles.RangeErrorTitle, GetParam().rangeError);
  EXPECT_EQ(program.windows.titles.RangeWarningTitle, GetParam().rangeWarning);
  EXPECT_EQ(program.windows.titles.InvalidCharacterTitle, GetParam().invalidCharacter);
  EXPECT_EQ(program.windows.titles.ErrorTitle, GetParam().error);
  EXPECT_EQ(program.windows.titles.LogicErrorTitle, GetParam().logicError);
}

constexpr const char* BareRangeError = "Range Error";
constexpr const char* BareRangeWarning = "Range Warning";
constexpr const char* BareInvalidCharacter = "Invalid Character";
constexpr const char* BareError = "Error";
constexpr const char* BareLogicError = "Logic Error";

constexpr ModuleTitles BareTitles(MessageModule module) {
  return {module, BareRangeError, BareRangeWarning, BareInvalidCharacter, BareError, BareLogicError};
}

INSTANTIATE_TEST_SUITE_P(
    Module, MessageTitlesOfModule,
    testing::Values(ModuleTitles{MessageModule::Description, "Project Description: Range Error",
                                 "Project Description: Range Warning", "Project Description: Invalid Character",
                                 "Project Description: Error", "Project Description: Logic Error"},
                    ModuleTitles{MessageModule::Parameters, "Project Parameters: Range Error",
                                 "Project Parameters: Range Warning", "Project Parameters: Invalid Character",
                                 "Project Parameters: Error", "Project Parameters: Logic Error"},
                    BareTitles(MessageModule{3}), BareTitles(MessageModule{4}), BareTitles(MessageModule{5}),
                    BareTitles(MessageModule{6}),
                    ModuleTitles{MessageModule::Options, "Program Options: Range Error",
                                 "Program Options: Range Warning", "Program Options: Invalid Character",
                                 "Program Options: Error", "Program Options: Logic Error"},
                    BareTitles(MessageModule{8}), BareTitles(MessageModule{9}),
                    ModuleTitles{MessageModule::Settings, "Settings: Range Error", "Settings: Range Warning",
                                 "Settings: Invalid Character", "Settings: Error", "Settings: Logic Error"},
                    BareTitles(MessageModule{11}), BareTitles(MessageModule{12}), BareTitles(MessageModule{13})),
    [](const auto& module) { return "Number" + std::to_string(NumberOf(module.param.module)); });

using MessageTitlesTest = ProgramBench;

TEST_F(MessageTitlesTest, ModulesHaveTheirFixedNumbers) {
  EXPECT_EQ(NumberOf(MessageModule::Description), 1);
  EXPECT_EQ(NumberOf(MessageModule::Parameters), 2);
  EXPECT_EQ(NumberOf(MessageModule::Options), 7);
  EXPECT_EQ(NumberOf(MessageModule::Settings), 10);
  EXPECT_EQ(NumberOf(MessageModule::Calculator), 12);
  EXPECT_EQ(NumberOf(MessageModule::Conversion), 13);
}

TEST_F(MessageTitlesTest, DoNotChangeForAnUnknownModule) {
  SetMessageTitles(program, MessageModule::Settings);

  EXPECT_EQ(ErrorNumberOf([this] { SetMessageTitles(program, MessageModule{0}); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { SetMessageTitles(program, MessageModule{14}); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { SetMessageTitles(program, MessageModule{-1}); }), 9);

  EXPECT_EQ(program.windows.titles.ErrorTitle, "Settings: Error");
}

TEST_F(MessageTitlesTest, AreEmptyBeforeTheFirstDialog) {
  EXPECT_EQ(program.windows.titles.RangeErrorTitle, "");
  EXPECT_EQ(program.windows.titles.MessageTitle, "");
}

using HelpHint = ProgramBench;

TEST_F(HelpHint, SaysHowToGetHelpOnAField) {
  ContextHelpHint(program);

  EXPECT_THAT(platform.boxes.shown,
              ElementsAre(IsBox("Position the cursor on any item on the form and press F1 for context-sensitive Help",
                                BoxIcon::Exclamation, "Help")));
  EXPECT_EQ(program.session.history.Text,
            "1. Help: Position the cursor on any item on the form and press F1 for context-sensitive Help\r\n");
}

}  // namespace
}  // namespace orby::test
