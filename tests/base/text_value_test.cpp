#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "support/recording_platform.h"

namespace orby {
namespace {

int ErrorOfReading(const std::string& text) {
  return test::ErrorNumberOf([&] { TextValue(text); });
}

TEST(TextValue, ReadingStopsAtTheFirstForeignCharacter) {
  EXPECT_EQ(TextValue("12abc"), 12);
  EXPECT_EQ(TextValue("6.5ft"), 6.5);
  EXPECT_EQ(TextValue("1.2.3"), 1.2);
  EXPECT_EQ(TextValue("5-"), 5);
}

TEST(TextValue, NoNumberReadsAsZero) {
  for (const char* text : {"", "   ", "abc", ".", "..", "-", "+", "-.", "E5", "--5", "$5", "(5)", "NaN", "inf"}) {
    EXPECT_EQ(TextValue(text), 0) << text;
  }
}

TEST(TextValue, BlanksTabsAndLineFeedsAreSkippedWhereverTheyStand) {
  EXPECT_EQ(TextValue("1 000"), 1000);
  EXPECT_EQ(TextValue(" \t- 1\n2 . 5 E 1 "), -125);
  EXPECT_EQ(TextValue("& H F F"), 255);
}

TEST(TextValue, ACarriageReturnEndsTheReading) {
  EXPECT_EQ(TextValue("12\r34"), 12);
  EXPECT_EQ(TextValue("12\r\n34"), 12);
  EXPECT_EQ(TextValue("\r12"), 0);
}

TEST(TextValue, OnlyThePointIsADecimalMark) {
  EXPECT_EQ(TextValue("1,5"), 1);
  EXPECT_EQ(TextValue("1,000"), 1);
}

TEST(TextValue, SignsAreReadAndAPointNeedsADigitOnOneSideOnly) {
  EXPECT_EQ(TextValue("+7"), 7);
  EXPECT_EQ(TextValue("-.5"), -0.5);
  EXPECT_EQ(TextValue(".5"), 0.5);
  EXPECT_EQ(TextValue("5."), 5);
  EXPECT_EQ(TextValue("5.E1"), 50);
}

TEST(TextValue, ExponentsAreWrittenWithEOrDInEitherCase) {
  EXPECT_EQ(TextValue("1E2"), 100);
  EXPECT_EQ(TextValue("1e+2"), 100);
  EXPECT_EQ(TextValue("1D2"), 100);
  EXPECT_EQ(TextValue("2.5d-1"), 0.25);
}

TEST(TextValue, AnIncompleteExponentIsIgnored) {
  EXPECT_EQ(TextValue("1E"), 1);
  EXPECT_EQ(TextValue("3D"), 3);
  EXPECT_EQ(TextValue("1E+"), 1);
  EXPECT_EQ(TextValue("1E-x"), 1);
  EXPECT_EQ(TextValue("1E2.5"), 100);
}

TEST(TextValue, HexadecimalHasNoSixteenBitWrap) {
  EXPECT_EQ(TextValue("&HFF"), 255);
  EXPECT_EQ(TextValue("&hff"), 255);
  EXPECT_EQ(TextValue("&HFFFF"), 65535);
  EXPECT_EQ(TextValue("&HFFFFFFFF"), 4294967295.0);
  EXPECT_EQ(TextValue("&H1G"), 1);
  EXPECT_EQ(TextValue("&H"), 0);
}

TEST(TextValue, OctalDigitsEndAtEight) {
  EXPECT_EQ(TextValue("&O17"), 15);
  EXPECT_EQ(TextValue("&o17"), 15);
  EXPECT_EQ(TextValue("&O178"), 15);
  EXPECT_EQ(TextValue("&O8"), 0);
}

TEST(TextValue, AnAmpersandIsAPrefixOnlyAtTheStartAndWithItsLetter) {
  EXPECT_EQ(TextValue("&17"), 0);
  EXPECT_EQ(TextValue("-&HFF"), 0);
  EXPECT_EQ(TextValue("1&HFF"), 1);
}

TEST(TextValue, ValuesAreRoundedToTheNearestDouble) {
  EXPECT_EQ(TextValue("0.1"), 0.1);
  EXPECT_EQ(TextValue("9007199254740993"), 9007199254740992.0);
  EXPECT_EQ(TextValue("1.7976931348623157E308"), std::numeric_limits<double>::max());
}

TEST(TextValue, ATableLimitTypedAsTextIsTheSameSingle) { EXPECT_EQ(ToSingle(TextValue("0.6")), 0.6F); }

TEST(TextValue, BeyondTheRangeOfADoubleIsAnOverflow) {
  EXPECT_EQ(ErrorOfReading("1E999"), error_number::Overflow);
  EXPECT_EQ(ErrorOfReading("-1E999"), error_number::Overflow);
  EXPECT_EQ(ErrorOfReading("1.7976931348623159E308"), error_number::Overflow);
  EXPECT_EQ(ErrorOfReading(std::string(400, '9')), error_number::Overflow);
  EXPECT_EQ(ErrorOfReading("0.001E99999999999999999999"), error_number::Overflow);
  EXPECT_EQ(ErrorOfReading("100E9223372036854775807"), error_number::Overflow);
  EXPECT_EQ(ErrorOfReading("&H" + std::string(300, 'F')), error_number::Overflow);
}

TEST(TextValue, TooSmallForADoubleIsZero) {
  EXPECT_EQ(TextValue("1E-999"), 0);
  EXPECT_EQ(TextValue("-1E-999"), 0);
  EXPECT_EQ(TextValue("123.5E-99999999999999999999"), 0);
  EXPECT_EQ(TextValue("0.1E-9223372036854775808"), 0);
  EXPECT_EQ(TextValue("0." + std::string(400, '0') + "1"), 0);
}

TEST(TextValue, ZeroStaysZeroUnderAnyExponent) {
  EXPECT_EQ(TextValue("0E999"), 0);
  EXPECT_EQ(TextValue("0.000E99999999999999999999"), 0);
}

TEST(TextValue, ALongMantissaIsWeighedTogetherWithItsExponent) {
  EXPECT_EQ(TextValue("1" + std::string(400, '0') + "E-400"), 1);
  EXPECT_EQ(TextValue("0." + std::string(400, '0') + "1E401"), 1);
}

}  // namespace
}  // namespace orby
