#include "core/dates.h"

#include <gtest/gtest.h>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

TEST(WrittenDate, HasTwoDigitsOfTheDayAndTheMonthInLetters) {
  EXPECT_EQ(DayMonthYear({2023, 5, 7}), "07-May-2023");
  EXPECT_EQ(DayMonthYear({2023, 7, 5}), "05-Jul-2023");
  EXPECT_EQ(DayMonthYear({1999, 12, 31}), "31-Dec-1999");
}

TEST(WrittenDate, HasANameForEveryMonth) {
  const char* const expected[] = {"10-Jan-2024", "10-Feb-2024", "10-Mar-2024", "10-Apr-2024",
                                  "10-May-2024", "10-Jun-2024", "10-Jul-2024", "10-Aug-2024",
                                  "10-Sep-2024", "10-Oct-2024", "10-Nov-2024", "10-Dec-2024"};
  for (int month = 1; month <= 12; ++month) EXPECT_EQ(DayMonthYear({2024, month, 10}), expected[month - 1]);
}

TEST(WrittenDate, RefusesAThirteenthMonth) {
  EXPECT_EQ(ErrorNumberOf([] { DayMonthYear({2024, 13, 1}); }), 9);
  EXPECT_EQ(ErrorNumberOf([] { DayMonthYear({2024, 0, 1}); }), 9);
}

TEST(WrittenMoment, HasTheDateFirstAndTwoDigitsForEachPart) {
  EXPECT_EQ(DateText({2031, 3, 9}), "2031-03-09");
  EXPECT_EQ(MomentText({{2031, 3, 9}, 4, 5, 7}), "2031-03-09 04:05:07");
  EXPECT_EQ(MomentText({{2031, 12, 31}, 23, 59, 59}), "2031-12-31 23:59:59");
}

TEST(DaysBetweenDates, CountsAcrossMonthsAndYears) {
  EXPECT_EQ(DaysBetween({2023, 7, 5}, {2023, 7, 5}), 0);
  EXPECT_EQ(DaysBetween({2023, 7, 5}, {2023, 8, 5}), 31);
  EXPECT_EQ(DaysBetween({2023, 7, 5}, {2024, 7, 5}), 366);  // includes the 29th of February
  EXPECT_EQ(DaysBetween({2022, 7, 5}, {2023, 7, 5}), 365);
}

TEST(DaysBetweenDates, CountsNoLeapDayInMostCenturyYears) {
  EXPECT_EQ(DaysBetween({2000, 2, 28}, {2000, 3, 1}), 2);
  EXPECT_EQ(DaysBetween({2100, 2, 28}, {2100, 3, 1}), 1);
}

TEST(DaysBetweenDates, IsNegativeForAnEarlierDate) { EXPECT_EQ(DaysBetween({2023, 7, 5}, {2023, 5, 7}), -59); }

}  // namespace
}  // namespace orby::test
