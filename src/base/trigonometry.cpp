#include "base/trigonometry.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace orby {
namespace {

constexpr double RadiansPerTurn = 6.283185307179586;

__extension__ using Wide = unsigned __int128;
__extension__ using SignedWide = __int128;

// The first 256 binary digits of 1 / (2 pi) after the point, the last 64 of them first.
constexpr std::array<std::uint64_t, 4> TurnsPerRadian{0x7F94'58EA'F7AE'F158, 0x36D8'A566'4F10'E410,
                                                      0x7F09'D5F4'7D4D'3770, 0x28BE'60DB'9391'054A};

// Returns true if the mathematical library knows pi to as many digits as large angles need. Some libraries leave
// cosines to the processor, which knows 66 binary digits: of 10^20 degrees nothing is right, and little of 90.
bool KnowsLargeAngles() {
  const volatile double large = 1e22;
  return std::abs(std::cos(large) - 0.5232147853951389) < 1e-15;
}

// Until it is set, while the program starts, the library is not trusted.
const bool isLibraryExact = KnowsLargeAngles();

// An angle as a number of quarter turns, from 0 to 3 without whole turns, and a rest of at most an eighth of a turn.
struct TurnedAngle {
  int Quarters = 0;
  double Rest = 0;  // radians
};

// Returns the angle without its whole turns. The rest is right to a double's last digits.
TurnedAngle WithoutTurns(double angle) {
  constexpr int MantissaDigits = 53;
  int exponent = 0;
  const auto mantissa = static_cast<std::uint64_t>(std::ldexp(std::frexp(angle, &exponent), MantissaDigits));

  std::array<std::uint64_t, TurnsPerRadian.size() + 1> product{};
  Wide carry = 0;
  for (std::size_t i = 0; i < TurnsPerRadian.size(); ++i) {
    carry += Wide{mantissa} * TurnsPerRadian[i];
    product[i] = static_cast<std::uint64_t>(carry);
    carry >>= 64U;
  }
  product.back() = static_cast<std::uint64_t>(carry);

  // The first 128 digits after the point of the number of turns. Those before the point are whole turns.
  const auto first = static_cast<unsigned>(128 - (exponent - MantissaDigits));
  const unsigned word = first / 64;
  const unsigned shift = first % 64;
  Wide turns = Wide{product[word + 1]} << 64U | product[word];
  turns >>= shift;
  if (shift > 0) turns |= Wide{product[word + 2]} << (128 - shift);

  constexpr unsigned QuarterDigits = 126;
  const auto quarters = static_cast<unsigned>((turns + (Wide{1} << (QuarterDigits - 1))) >> QuarterDigits);
  const auto rest = static_cast<SignedWide>(turns - (Wide{quarters} << QuarterDigits));
  return {static_cast<int>(quarters % 4), std::ldexp(static_cast<double>(rest), -128) * RadiansPerTurn};
}

}  // namespace

double TurnedCosine(double angle) {
  const TurnedAngle turned = WithoutTurns(std::abs(angle));
  switch (turned.Quarters) {
    case 0: return std::cos(turned.Rest);
    case 1: return -std::sin(turned.Rest);
    case 2: return -std::cos(turned.Rest);
    default: return std::sin(turned.Rest);
  }
}

// Within a turn and away from its quarters the digits of every library suffice.
double Cosine(double angle) {
  constexpr double NearQuarter = 1e-3;
  const double cosine = std::cos(angle);
  const bool isWithinATurn = std::abs(angle) < RadiansPerTurn;
  const bool isNearQuarter = std::abs(cosine) <= NearQuarter;
  return isLibraryExact || (isWithinATurn && !isNearQuarter) ? cosine : TurnedCosine(angle);
}

}  // namespace orby
