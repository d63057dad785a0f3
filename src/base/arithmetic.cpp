#include "base/arithmetic.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/runtime_error.h"

namespace orby {

double Logarithm(double x) {
  if (!(x > 0)) throw RuntimeError(error_number::BadCall);
  return std::log(x);
}

double SquareRoot(double x) {
  if (!(x >= 0)) throw RuntimeError(error_number::BadCall);
  return std::sqrt(x);
}

double Multiply(double a, double b) { return WithinDouble(a * b); }

double Square(double x) { return WithinDouble(std::pow(x, 2)); }

void ThrowOverflow() { throw RuntimeError(error_number::Overflow); }
void ThrowDivisionByZero() { throw RuntimeError(error_number::DivisionByZero); }

double RoundHalfEven(double value) {
  const double whole = std::floor(value);
  const double fraction = value - whole;
  if (fraction < 0.5) return whole;
  if (fraction > 0.5) return whole + 1;
  return std::fmod(whole, 2) == 0 ? whole : whole + 1;
}

Integer ToInteger(double value) {
  const double whole = RoundHalfEven(value);
  if (!(whole >= std::numeric_limits<Integer>::min() && whole <= std::numeric_limits<Integer>::max())) {
    throw RuntimeError(error_number::Overflow);
  }
  return static_cast<Integer>(whole);
}

double Log10Of(double x) {
  if (x == 0) return 1;
  return Logarithm(x) / std::log(10.0);
}

Integer ClampRange(double value, double minimum, double maximum) {
  return ToInteger(value < minimum || value > maximum ? minimum : value);
}

Single MaxSingle(Single a, Single b) { return std::max(a, b); }
Integer MinInteger(Integer a, Integer b) { return std::min(a, b); }
Integer MaxInteger(Integer a, Integer b) { return std::max(a, b); }

}  // namespace orby
