#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "core/program_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ARangeCheck : ProgramBench {
  ARangeCheck() { SetMessageTitles(program, MessageModule::Settings); }
};

TEST_F(ARangeCheck, AcceptsBothEndsOfTheRangeWithoutAMessage) {
  EXPECT_TRUE(RangeCheck(program, "1", 1, 5, "Depth"));
  EXPECT_TRUE(RangeCheck(program, "5", 1, 5, "Depth"));
  EXPECT_TRUE(RangeCheck(program, "3.25", 1, 5, "Depth"));

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.session.history.Text, "");
}

TEST_F(ARangeCheck, ShowsTheFieldTheValueAndTheRange) {
  EXPECT_FALSE(RangeCheck(program, "0", 1, 5, "Depth"));

  EXPECT_THAT(platform.boxes.shown, ElementsAre(IsBox("Depth: Value '0' is outside input range\r\nValid range is: 1-5",
                                                      BoxIcon::Critical, "Settings: Range Error")));
}

TEST_F(ARangeCheck, RefusesAValueAboveTheRange) {
  EXPECT_FALSE(RangeCheck(program, "5.01", 1, 5, "Depth"));

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Depth: Value '5.01' is outside input range\r\nValid range is: 1-5"));
}

TEST_F(ARangeCheck, ShowsTheValueWithoutTheBlanksAroundIt) {
  EXPECT_FALSE(RangeCheck(program, " 7 ", 1, 5, "Depth"));

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Depth: Value '7' is outside input range\r\nValid range is: 1-5"));
}

TEST_F(ARangeCheck, ReportsAFieldOfBlanksAsBlank) {
  EXPECT_FALSE(RangeCheck(program, "   ", 0, 5, "Depth"));

  EXPECT_THAT(platform.boxes.shown,
              ElementsAre(IsBox("Depth: Blank field not allowed", BoxIcon::Critical, "Settings: Range Error")));
}

TEST_F(ARangeCheck, ReportsAnEmptyFieldAsBlankEvenWhen0IsInTheRange) {
  EXPECT_FALSE(RangeCheck(program, "", -1, 1, "Depth"));

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Depth: Blank field not allowed"));
}

TEST_F(ARangeCheck, WithoutAFieldNameShowsOnlyTheProblem) {
  EXPECT_FALSE(RangeCheck(program, "0", 4096, 16384, ""));
  EXPECT_FALSE(RangeCheck(program, "", 4096, 16384, ""));

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Value '0' is outside input range\r\nValid range is: 4096-16384", "Blank field not allowed"));
}

TEST_F(ARangeCheck, ReadsATextWithoutANumberAs0) {
  EXPECT_TRUE(RangeCheck(program, "abc", 0, 5, "Depth"));
  EXPECT_FALSE(RangeCheck(program, "abc", 1, 5, "Depth"));

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Depth: Value 'abc' is outside input range\r\nValid range is: 1-5"));
}

TEST_F(ARangeCheck, ReadsTheNumberAtTheStartOfATextOnly) {
  EXPECT_TRUE(RangeCheck(program, "3abc", 1, 5, "Depth"));
  EXPECT_TRUE(RangeCheck(program, "4,9", 4, 4, "Depth"));

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(ARangeCheck, ReadsATabAsATextWithoutANumber) {
  EXPECT_FALSE(RangeCheck(program, "\t", 1, 5, "Depth"));

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Depth: Value '\t' is outside input range\r\nValid range is: 1-5"));
}

TEST_F(ARangeCheck, WritesTheEndsOfTheRangeAsGeneralNumbers) {
  EXPECT_FALSE(RangeCheck(program, "2", -0.5, 1.25, "Angle"));

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Angle: Value '2' is outside input range\r\nValid range is: -0.5-1.25"));
}

TEST_F(ARangeCheck, IsAddedToTheHistoryWithItsTitle) {
  RangeCheck(program, "", 1, 5, "Depth");

  EXPECT_EQ(program.session.history.Text, "1. Settings: Range Error: Depth: Blank field not allowed\r\n");
}

}  // namespace
}  // namespace orby::test
