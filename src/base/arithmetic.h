// Checked arithmetic. A result that cannot be computed is a RuntimeError, so that no infinity and no NaN is ever
// stored.
#pragma once

#include <cmath>
#include <utility>

#include "base/types.h"

namespace orby {

inline constexpr double Pi = 3.14159265358979;
inline constexpr double RadiansPerDegree = 0.017453292519943278;

// Throw RuntimeError 6 and 11.
[[noreturn]] void ThrowOverflow();
[[noreturn]] void ThrowDivisionByZero();

// Returns `result`. Throws RuntimeError 6 when it is outside the range of a Double.
inline double WithinDouble(double result) {
  if (!std::isfinite(result)) ThrowOverflow();
  return result;
}

// Returns dividend / divisor. Throws RuntimeError 11 when the divisor is 0, and 6 when the quotient is outside the
// range of a Double.
inline double Divide(double dividend, double divisor) {
  if (divisor == 0) ThrowDivisionByZero();
  return WithinDouble(dividend / divisor);
}

// Returns ln x. Throws RuntimeError 5 when x is 0 or less.
double Logarithm(double x);

// Returns the square root of x. Throws RuntimeError 5 when x is negative.
double SquareRoot(double x);

// Returns a * b. Throws RuntimeError 6 when the product is outside the range of a Double.
double Multiply(double a, double b);

// Returns x * x. Throws RuntimeError 6 when the product is outside the range of a Double.
double Square(double x);

// Returns the nearest Single. Throws RuntimeError 6 when the value is outside the range of a Single or is a NaN.
inline Single ToSingle(double value) {
  // The largest Single plus half a unit in its last place. The nearest Single of this and of anything larger is
  // infinity.
  constexpr double FirstBeyond = 3.4028235677973366e38;
  if (!(std::abs(value) < FirstBeyond)) ThrowOverflow();
  return static_cast<Single>(value);
}

// Returns the nearest whole number as a 16-bit integer, ties to even. Throws RuntimeError 6 outside -32768..32767.
Integer ToInteger(double value);

// Returns the nearest whole number, ties to even. There is no limit on its size.
double RoundHalfEven(double value);

// Returns the base-10 logarithm of x, or 1 when x is 0. Throws RuntimeError 5 when x is negative.
double Log10Of(double x);  // a helper that nothing calls today

// Returns the value, or `minimum` when the value is outside minimum..maximum, also when it is above the maximum;
// rounded to the nearest whole number, ties to even. Throws RuntimeError 6 when that does not fit 16 bits.
Integer ClampRange(double value, double minimum, double maximum);

Single MaxSingle(Single a, Single b);      // a helper that nothing calls today
Integer MinInteger(Integer a, Integer b);  // a helper that nothing calls today
Integer MaxInteger(Integer a, Integer b);  // a helper that nothing calls today

template <class T>
void SwapValues(T& a, T& b) {  // a helper that nothing calls today
  std::swap(a, b);
}

}  // namespace orby
