#include "base/number_text.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/runtime_error.h"

namespace orby {
namespace {

TEST(NumberText, BothZerosAreAPlainZero) {
  EXPECT_EQ(NumberText(0.0F), "0");
  EXPECT_EQ(NumberText(-0.0F), "0");
  EXPECT_EQ(NumberText(-0.0), "0");
}

TEST(NumberText, ASingleShowsSevenDigits) {
  EXPECT_EQ(NumberText(63.2F), "63.2");
  EXPECT_EQ(NumberText(0.7F), "0.7");
  EXPECT_EQ(NumberText(32.28427F), "32.28427");
  EXPECT_EQ(NumberText(-192.1771F), "-192.1771");
}

TEST(NumberText, ADoubleShowsFifteenDigits) {
  EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
  EXPECT_EQ(NumberText(2.0 / 3), "0.666666666666667");
  EXPECT_EQ(NumberText(static_cast<double>(0.7F)), "0.699999988079071");
}

TEST(NumberText, NotationOfASingleChangesAtSevenPlaces) {
  EXPECT_EQ(NumberText(0.00001F), "0.00001");
  EXPECT_EQ(NumberText(0.0000001F), "0.0000001");
  EXPECT_EQ(NumberText(0.00000001F), "1E-08");
  EXPECT_EQ(NumberText(1.0F / 30), "3.333334E-02");
  EXPECT_EQ(NumberText(9999999.0F), "9999999");
  EXPECT_EQ(NumberText(1E7F), "1E+07");
  EXPECT_EQ(NumberText(-3.4028235E38F), "-3.402823E+38");
}

TEST(NumberText, NotationOfADoubleChangesAtFifteenPlaces) {
  EXPECT_EQ(NumberText(1.0 / 30), "3.33333333333333E-02");
  EXPECT_EQ(NumberText(0.000000000000005), "0.000000000000005");
  EXPECT_EQ(NumberText(5E-16), "5E-16");
  EXPECT_EQ(NumberText(999999999999999.0), "999999999999999");
  EXPECT_EQ(NumberText(1E15), "1E+15");
  EXPECT_EQ(NumberText(1E100), "1E+100");
}

TEST(NumberText, ANumberThatRoundsUpToOneMoreDigitKeepsItsPlaces) {
  EXPECT_EQ(NumberText(9999999.6), "9999999.6");
  EXPECT_EQ(NumberText(999999999999999.75), "1E+15");
  EXPECT_EQ(NumberText(0.99999999999999989), "1");
}

TEST(NumberText, ExactTiesOfASingleGoAwayFromZero) {
  EXPECT_EQ(NumberText(123456.25F), "123456.3");
  EXPECT_EQ(NumberText(-123456.25F), "-123456.3");
  EXPECT_EQ(NumberText(1048576.5F), "1048577");
  EXPECT_EQ(NumberText(12345665.0F), "1.234567E+07");
}

TEST(NumberText, ExactTiesOfADoubleGoAwayFromZeroAtEverySize) {
  EXPECT_EQ(NumberText(2.384185791015625E-07), "2.38418579101563E-07");
  EXPECT_EQ(NumberText(7.152557373046875E-07), "7.15255737304688E-07");
  EXPECT_EQ(NumberText(1234567890123.125), "1234567890123.13");
  EXPECT_EQ(NumberText(600000000000000.5), "600000000000001");
  EXPECT_EQ(NumberText(-600000000000000.5), "-600000000000001");
  EXPECT_EQ(NumberText(1000000000000125.0), "1.00000000000013E+15");
  EXPECT_EQ(NumberText(2000000000000045.0), "2.00000000000005E+15");
  EXPECT_EQ(NumberText(12345678901234450.0), "1.23456789012345E+16");
}

TEST(NumberText, WholeNumbersOfBothWidthsShowAllDigits) {
  EXPECT_EQ(NumberText(Integer{-32768}), "-32768");
  EXPECT_EQ(NumberText(16384), "16384");
}

TEST(FormatNumber, APatternOfTwoDecimalsShowsAtLeastOneAndAtMostTwo) {
  EXPECT_EQ(FormatNumber(1.0F, "0.#0"), "1.0");
  EXPECT_EQ(FormatNumber(1.5F, "0.#0"), "1.5");
  EXPECT_EQ(FormatNumber(1.25F, "0.#0"), "1.25");
  EXPECT_EQ(FormatNumber(10.0F, "0.#0"), "10.0");
  EXPECT_EQ(FormatNumber(2E10F, "0.#0"), "20000000000.0");
}

TEST(FormatNumber, PatternsWithoutAWholeDigitDropTheLeadingZero) {
  EXPECT_EQ(FormatNumber(0.0F, "#.0"), ".0");
  EXPECT_EQ(FormatNumber(0.5F, "#.0"), ".5");
  EXPECT_EQ(FormatNumber(12.0F, "#.0"), "12.0");
  EXPECT_EQ(FormatNumber(0.0F, "##.#"), ".");
  EXPECT_EQ(FormatNumber(1.0F, "##.#"), "1.");
}

TEST(FormatNumber, RoundsTheDecimalsThatGeneralTextShows) {
  EXPECT_EQ(FormatNumber(0.35F, "0.0"), "0.4");
  EXPECT_EQ(FormatNumber(1.005, "0.00"), "1.01");
  EXPECT_EQ(FormatNumber(99.949997F, "0.0"), "100.0");
  EXPECT_EQ(FormatNumber(99.949997, "0.0"), "99.9");
}

TEST(FormatNumber, ANegativeNumberThatRoundsToZeroKeepsItsSign) {
  EXPECT_EQ(FormatNumber(-0.04F, "0.0"), "-0.0");
  EXPECT_EQ(FormatNumber(-0.04F, "#.0"), "-.0");
  EXPECT_EQ(FormatNumber(-1E-30, "0.00"), "-0.00");
}

TEST(FormatNumber, NeverShowsAnExponent) {
  EXPECT_EQ(FormatNumber(12345678.9F, "0.0"), "12345680.0");
  EXPECT_EQ(FormatNumber(1E20, "0"), "100000000000000000000");
}

TEST(NormalizeDecimalText, NumbersGoThroughTheirGeneralText) {
  EXPECT_EQ(NormalizeDecimalText(0.7F), "0.7");
  EXPECT_EQ(NormalizeDecimalText(0.7), "0.7");
  EXPECT_EQ(NormalizeDecimalText(Integer{-1}), "-1");
}

TEST(NormalizeDecimalText, ATextThatIsANumberIsRewritten) {
  EXPECT_EQ(NormalizeDecimalText(" 007.50 "), "7.5");
  EXPECT_EQ(NormalizeDecimalText("5-"), "-5");
  EXPECT_EQ(NormalizeDecimalText("1,000"), "1000");
}

TEST(NormalizeDecimalText, OnlyTheFirstCommaOfAnyOtherTextBecomesAPoint) {
  EXPECT_EQ(NormalizeDecimalText("bolt, resin, 6 ft"), "bolt. resin, 6 ft");
  EXPECT_EQ(NormalizeDecimalText(",5"), ".5");
  EXPECT_EQ(NormalizeDecimalText("Unit 7"), "Unit 7");
  EXPECT_EQ(NormalizeDecimalText(""), "");
}

TEST(NormalizeDecimalText, ANumberBeyondTheRangeStaysAsItIsWritten) {
  EXPECT_EQ(NormalizeDecimalText("1E999"), "1E999");
}

TEST(NumberText, OfANumberThatIsNoneIsAnOverflow) {
  for (const double none : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    EXPECT_THROW(static_cast<void>(NumberText(none)), RuntimeError);
    EXPECT_THROW(static_cast<void>(FormatNumber(none, OneDecimal)), RuntimeError);
  }
}

// ---- texts that are numbers as a whole
// --------------------------------------------------------------------------------

TEST(WholeTextNumber, IsTheNumberOfTheWholeText) {
  EXPECT_EQ(WholeTextNumber(" 1.5E2 "), 150);
  EXPECT_EQ(WholeTextNumber("-0.25"), -0.25);
  for (const char* text : {"", " ", "1,5", "12 ft", "ten", "1E999"})
    EXPECT_EQ(WholeTextNumber(text), std::nullopt) << text;
}

TEST(WholeTextNumber, FitsASingle) {
  EXPECT_EQ(WholeTextSingle("0.1"), 0.1F);
  EXPECT_EQ(WholeTextSingle("1E39"), std::nullopt);
  EXPECT_EQ(WholeTextSingle("1,5"), std::nullopt);
}

TEST(WholeTextCount, HasDigitsAlone) {
  EXPECT_EQ(WholeTextCount("18446744073709551615"), 18446744073709551615U);
  for (const char* text : {"", "-1", "+1", " 1", "1.5", "1e3", "18446744073709551616"}) {
    EXPECT_EQ(WholeTextCount(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace orby
