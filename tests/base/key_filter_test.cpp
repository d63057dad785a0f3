#include <gtest/gtest.h>

#include "base/number_text.h"

namespace orby {
namespace {

constexpr int Swallowed = 0;

TEST(NumericKeyFilter, DigitsPass) {
  EXPECT_EQ(NumericKeyFilter('4', ""), '4');
  EXPECT_EQ(NumericKeyFilter('5', "4"), '5');
  EXPECT_EQ(NumericKeyFilter('5', "0.7"), '5');
}

TEST(NumericKeyFilter, ASecondPointPasses) {
  EXPECT_EQ(NumericKeyFilter('.', "."), '.');
  EXPECT_EQ(NumericKeyFilter('.', "1.5"), '.');
}

TEST(NumericKeyFilter, MinusInAnEmptyFieldIsRefused) { EXPECT_EQ(NumericKeyFilter('-', ""), Swallowed); }

TEST(NumericKeyFilter, MinusAfterADigitPasses) { EXPECT_EQ(NumericKeyFilter('-', "5"), '-'); }

TEST(NumericKeyFilter, ADigitAfterATrailingMinusIsRefused) { EXPECT_EQ(NumericKeyFilter('5', "5-"), Swallowed); }

TEST(NumericKeyFilter, CommaPassesAfterADigitOnly) {
  EXPECT_EQ(NumericKeyFilter(',', "1"), ',');
  EXPECT_EQ(NumericKeyFilter(',', "1,"), ',');
  EXPECT_EQ(NumericKeyFilter(',', ""), Swallowed);
}

TEST(NumericKeyFilter, LettersAreRefused) {
  for (int letter = 'A'; letter <= 'Z'; ++letter) {
    EXPECT_EQ(NumericKeyFilter(letter, "1"), Swallowed) << letter;
    EXPECT_EQ(NumericKeyFilter(letter - 'A' + 'a', "1"), Swallowed) << letter;
    EXPECT_EQ(NumericKeyFilter(letter, ""), Swallowed) << letter;
  }
}

TEST(NumericKeyFilter, AnExponentLetterIsRefusedButTheDigitsAfterItPass) {
  EXPECT_EQ(NumericKeyFilter('E', "1"), Swallowed);
  EXPECT_EQ(NumericKeyFilter('5', "1E"), '5');
}

TEST(NumericKeyFilter, AHexadecimalDigitPassesAfterItsPrefix) {
  EXPECT_EQ(NumericKeyFilter('H', "&"), Swallowed);
  EXPECT_EQ(NumericKeyFilter('F', "&H"), 'F');
  EXPECT_EQ(NumericKeyFilter('G', "&H"), Swallowed);
}

TEST(NumericKeyFilter, EditingCodesAndTheCharactersThatShareThemAlwaysPass) {
  for (const int code : {8, 9, 12, 37, 38, 39, 40, 46}) {
    EXPECT_EQ(NumericKeyFilter(code, ""), code);
    EXPECT_EQ(NumericKeyFilter(code, "no number"), code);
  }
  for (const char character : {'%', '&', '\'', '(', '.'}) {
    EXPECT_EQ(NumericKeyFilter(character, "roof"), character);
  }
}

TEST(NumericKeyFilter, TheNeighboursOfTheEditingCodesAreRefused) {
  for (const int code : {0, 1, 7, 10, 11, 13, 27, 36, 41, 45, 47, 127, 228, 8364, -1}) {
    EXPECT_EQ(NumericKeyFilter(code, "roof"), Swallowed) << code;
  }
}

TEST(NumericKeyFilter, BlankPassesAfterADigitOnly) {
  EXPECT_EQ(NumericKeyFilter(' ', "7"), ' ');
  EXPECT_EQ(NumericKeyFilter(' ', ""), Swallowed);
}

TEST(NumericKeyFilter, ClosingBracketPassesWhenItClosesANumber) {
  EXPECT_EQ(NumericKeyFilter(')', "(5"), ')');
  EXPECT_EQ(NumericKeyFilter(')', "5"), Swallowed);
}

TEST(NumericKeyFilter, ADigitThatMakesTheNumberTooLargeIsRefused) {
  EXPECT_EQ(NumericKeyFilter('8', "1E30"), '8');
  EXPECT_EQ(NumericKeyFilter('9', "1E30"), Swallowed);
}

}  // namespace
}  // namespace orby
