#include "core/messages.h"
#include "core/program_bench.h"

namespace orby::test {
namespace {

using HistoryPane = ProgramBench;

TEST_F(HistoryPane, NumbersItsLines) {
  AddHistoryLine(program, "Editing Project Parameters");
  AddHistoryLine(program, "Settings Modified");

  EXPECT_EQ(program.session.history.Text, "1. Editing Project Parameters\r\n2. Settings Modified\r\n");
  EXPECT_EQ(program.session.history.HistoryLineCounter, 2);
}

TEST_F(HistoryPane, GetsNoLinesWhileItIsSwitchedOff) {
  AddHistoryLine(program, "Editing Project Parameters");
  program.session.settings.DisplayHistoryWin = 0;

  AddHistoryLine(program, "Settings Modified");

  EXPECT_EQ(program.session.history.Text, "1. Editing Project Parameters\r\n");
  EXPECT_EQ(program.session.history.HistoryLineCounter, 1);
}

TEST_F(HistoryPane, IsNotReducedWhileItIsSwitchedOff) {
  program.session.history.Text = "1. a\r\n2. b\r\n3. c\r\n";
  program.session.settings.MaxDisplaySize = 4;
  program.session.settings.DisplayHistoryWin = 0;

  AddHistoryLine(program, "d");

  EXPECT_EQ(program.session.history.Text, "1. a\r\n2. b\r\n3. c\r\n");
}

TEST_F(HistoryPane, ContinuesItsNumbersWhenItIsSwitchedOnAgain) {
  AddHistoryLine(program, "a");
  program.session.settings.DisplayHistoryWin = 0;
  AddHistoryLine(program, "b");
  program.session.settings.DisplayHistoryWin = 1;

  AddHistoryLine(program, "c");

  EXPECT_EQ(program.session.history.Text, "1. a\r\n2. c\r\n");
}

TEST_F(HistoryPane, KeepsOnlyItsLastTwoLinesWhenItIsTooLong) {
  program.session.settings.MaxDisplaySize = 24;
  program.session.history.HistoryLineCounter = 4;
  program.session.history.Text = "1. a\r\n2. b\r\n3. c\r\n4. d\r\n";

  AddHistoryLine(program, "e");

  EXPECT_EQ(program.session.history.Text, "3. c\r\n4. d\r\n5. e\r\n");
}

TEST_F(HistoryPane, KeepsAllLinesUpToOneCharacterBelowItsLimit) {
  program.session.settings.MaxDisplaySize = 25;
  program.session.history.HistoryLineCounter = 4;
  program.session.history.Text = "1. a\r\n2. b\r\n3. c\r\n4. d\r\n";

  AddHistoryLine(program, "e");

  EXPECT_EQ(program.session.history.Text, "1. a\r\n2. b\r\n3. c\r\n4. d\r\n5. e\r\n");
}

TEST_F(HistoryPane, MeasuresItsLengthInCharacters) {
  program.session.settings.MaxDisplaySize = 19;
  program.session.history.HistoryLineCounter = 3;
  program.session.history.Text = "1. \xC3\xA9\r\n2. \xC3\xA9\r\n3. \xC3\xA9\r\n";

  AddHistoryLine(program, "d");

  EXPECT_EQ(program.session.history.Text, "1. \xC3\xA9\r\n2. \xC3\xA9\r\n3. \xC3\xA9\r\n4. d\r\n");
}

TEST_F(HistoryPane, KeepsTwoLinesOfAnyLength) {
  program.session.settings.MaxDisplaySize = 5;
  program.session.history.HistoryLineCounter = 2;
  program.session.history.Text = "1. a\r\n2. b\r\n";

  AddHistoryLine(program, "c");

  EXPECT_EQ(program.session.history.Text, "1. a\r\n2. b\r\n3. c\r\n");
}

TEST_F(HistoryPane, CountsEachLineOfAMessageWithSeveralLines) {
  program.session.settings.MaxDisplaySize = 10;
  program.session.history.HistoryLineCounter = 2;
  program.session.history.Text = "1. a\r\n2. Value '0' is outside\r\nValid range\r\n";

  AddHistoryLine(program, "c");

  EXPECT_EQ(program.session.history.Text, "2. Value '0' is outside\r\nValid range\r\n3. c\r\n");
}

TEST_F(HistoryPane, NumbersItsLinesUpTo16384AndThenFrom1) {
  program.session.history.HistoryLineCounter = 16383;

  AddHistoryLine(program, "last");
  AddHistoryLine(program, "first");

  EXPECT_EQ(program.session.history.Text, "16384. last\r\n1. first\r\n");
}

TEST_F(HistoryPane, HasNumber1AgainAfter16384Lines) {
  for (int line = 0; line < 16384; ++line) AddHistoryLine(program, "File saved");
  program.session.history.Text.clear();

  AddHistoryLine(program, "File saved");

  EXPECT_EQ(program.session.history.Text, "1. File saved\r\n");
}

}  // namespace
}  // namespace orby::test
