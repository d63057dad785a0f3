#include "base/arithmetic.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/runtime_error.h"
#include "support/recording_platform.h"

namespace orby {
namespace {

using test::ErrorNumberOf;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

TEST(Divide, ReturnsTheQuotient) {
  EXPECT_EQ(Divide(7, 2), 3.5);
  EXPECT_EQ(Divide(0, -4), 0);
}

TEST(Divide, ByZeroIsAnErrorForEveryDividend) {
  EXPECT_EQ(ErrorNumberOf([] { Divide(1, 0); }), error_number::DivisionByZero);
  EXPECT_EQ(ErrorNumberOf([] { Divide(0, 0); }), error_number::DivisionByZero);
  EXPECT_EQ(ErrorNumberOf([] { Divide(1, -0.0); }), error_number::DivisionByZero);
}

TEST(Divide, AQuotientBeyondADoubleIsAnOverflow) {
  EXPECT_EQ(ErrorNumberOf([] { Divide(1E308, 1E-10); }), error_number::Overflow);
}

TEST(Multiply, ReturnsTheProduct) { EXPECT_EQ(Multiply(300, 4), 1200); }

TEST(Multiply, BeyondADoubleIsAnOverflow) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(Multiply(1E200, 1E200)); }), 6);
}

TEST(Square, ReturnsTheProductWithItself) { EXPECT_EQ(Square(-6), 36); }

TEST(Square, BeyondADoubleIsAnOverflow) {
  EXPECT_EQ(ErrorNumberOf([] { Square(1E200); }), error_number::Overflow);
}

TEST(Logarithm, IsNatural) { EXPECT_DOUBLE_EQ(Logarithm(400), 5.991464547107982); }

TEST(Logarithm, OfZeroOrLessIsABadCall) {
  for (const double x : {0.0, -0.0, -1.0, NoNumber}) {
    EXPECT_EQ(ErrorNumberOf([x] { Logarithm(x); }), error_number::BadCall) << x;
  }
}

TEST(SquareRoot, ReturnsTheRoot) {
  EXPECT_EQ(SquareRoot(800), 28.284271247461902);
  EXPECT_EQ(SquareRoot(0), 0);
}

TEST(SquareRoot, OfANegativeIsABadCall) {
  for (const double x : {-1E-300, -4.0, NoNumber}) {
    EXPECT_EQ(ErrorNumberOf([x] { SquareRoot(x); }), error_number::BadCall) << x;
  }
}

TEST(ToSingle, RoundsToTheNearest) {
  EXPECT_EQ(ToSingle(0.6), 0.6F);
  EXPECT_EQ(ToSingle(16777217), 16777216.0F);
  EXPECT_EQ(ToSingle(1E-60), 0.0F);
}

TEST(ToSingle, TheRangeEndsWhereTheNearestSingleWouldBeInfinite) {
  const Single largest = std::numeric_limits<Single>::max();

  EXPECT_EQ(ToSingle(3.4028235677973362e38), largest);
  EXPECT_EQ(ToSingle(-3.4028235677973362e38), -largest);
  for (const double value : {3.4028235677973366e38, -3.4028235677973366e38, 1E300, Infinity, -Infinity, NoNumber}) {
    EXPECT_EQ(ErrorNumberOf([value] { ToSingle(value); }), error_number::Overflow) << value;
  }
}

TEST(ToInteger, TiesGoToTheEvenNeighbour) {
  EXPECT_EQ(ToInteger(0.5), 0);
  EXPECT_EQ(ToInteger(1.5), 2);
  EXPECT_EQ(ToInteger(2.5), 2);
  EXPECT_EQ(ToInteger(-0.5), 0);
  EXPECT_EQ(ToInteger(-1.5), -2);
  EXPECT_EQ(ToInteger(-2.5), -2);
  EXPECT_EQ(ToInteger(2.5000000000000004), 3);
}

TEST(ToInteger, TheRangeIsSixteenBitsAfterRounding) {
  EXPECT_EQ(ToInteger(32767.499), 32767);
  EXPECT_EQ(ToInteger(-32768.5), -32768);
  for (const double value : {32767.5, -32768.501, 1E300, Infinity, -Infinity, NoNumber}) {
    EXPECT_EQ(ErrorNumberOf([value] { ToInteger(value); }), error_number::Overflow) << value;
  }
}

TEST(RoundHalfEven, HasNoLimit) {
  EXPECT_EQ(RoundHalfEven(100000.5), 100000);
  EXPECT_EQ(RoundHalfEven(100001.5), 100002);
  EXPECT_EQ(RoundHalfEven(-2.5), -2);
  EXPECT_EQ(RoundHalfEven(-3.5), -4);
  EXPECT_EQ(RoundHalfEven(0.49999999999999994), 0);
  EXPECT_EQ(RoundHalfEven(4503599627370495.5), 4503599627370496.0);
  EXPECT_EQ(RoundHalfEven(1E300), 1E300);
}

TEST(Log10Of, ReturnsOneForZero) {
  EXPECT_EQ(Log10Of(0), 1);
  EXPECT_EQ(Log10Of(-0.0), 1);
}

TEST(Log10Of, ReturnsTheDecimalLogarithm) {
  EXPECT_EQ(Log10Of(1), 0);
  EXPECT_DOUBLE_EQ(Log10Of(1000), 3);
  EXPECT_DOUBLE_EQ(Log10Of(0.01), -2);
}

TEST(Log10Of, OfANegativeIsABadCall) {
  EXPECT_EQ(ErrorNumberOf([] { Log10Of(-1); }), error_number::BadCall);
}

TEST(ClampRange, KeepsBothEndsOfTheRange) {
  EXPECT_EQ(ClampRange(0, 0, 4), 0);
  EXPECT_EQ(ClampRange(3, 0, 4), 3);
  EXPECT_EQ(ClampRange(4, 0, 4), 4);
}

TEST(ClampRange, ReturnsTheMinimumAlsoForATooLargeValue) {
  EXPECT_EQ(ClampRange(5, 0, 4), 0);
  EXPECT_EQ(ClampRange(-1, 0, 4), 0);
  EXPECT_EQ(ClampRange(100, 8, 72), 8);
}

TEST(ClampRange, RoundsHalfToEven) {
  EXPECT_EQ(ClampRange(2.5, 0, 4), 2);
  EXPECT_EQ(ClampRange(3.5, 0, 4), 4);
}

TEST(Extremes, AreTheLargerOrSmallerNumber) {
  EXPECT_EQ(MaxSingle(28.5F, 19.26336F), 28.5F);
  EXPECT_EQ(MaxSingle(-1.0F, -2.0F), -1.0F);
  EXPECT_EQ(MinInteger(3, -4), -4);
  EXPECT_EQ(MaxInteger(3, -4), 3);
}

TEST(SwapValues, ExchangesTheTwo) {
  Single lower = 12.5F;
  Single upper = 4;

  SwapValues(lower, upper);

  EXPECT_EQ(lower, 4);
  EXPECT_EQ(upper, 12.5F);
}

TEST(Pi, HasAHalfThatIsNotAboveARightAngle) {
  EXPECT_EQ(Pi, 3.14159265358979);
  EXPECT_FALSE(90 * RadiansPerDegree < Pi / 2);
}

}  // namespace
}  // namespace orby
