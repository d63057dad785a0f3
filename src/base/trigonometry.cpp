#include "base/trigonometry.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace orby {
namespace {

constexpr double RadiansPerTurn = 6.283185307179586;

__extension__ using Wide = unsigned __int128;

// The first 256 binary digits of 1 / (2 pi) after the point, the last 64 of them first.
constexpr std::array<std::uint64_t, 4> TurnsPerRadian{0x7F94'58EA'F7AE'F158, 0x36D8'A566'4F10'E410,
                                                      0x7F09'D5F4'7D4D'3770, 0x28BE'60DB'9391'054A};

// Returns the same angle between minus and plus half a turn. An angle of less than a turn stays as it is.
//
// Some machines leave this to the processor, which knows pi to 66 binary digits only: of 10^20 degrees nothing is
// right.
double WithinATurn(double angle) {
  constexpr int MantissaDigits = 53;
  if (std::abs(angle) < RadiansPerTurn) return angle;
  int exponent = 0;
  const auto mantissa = static_cast<std::uint64_t>(std::ldexp(std::frexp(std::abs(angle), &exponent), MantissaDigits));

  std::array<std::uint64_t, TurnsPerRadian.size() + 1> product{};
  Wide carry = 0;
  for (std::size_t i = 0; i < TurnsPerRadian.size(); ++i) {
    carry += Wide{mantissa} * TurnsPerRadian[i];
    product[i] = static_cast<std::uint64_t>(carry);
    carry >>= 64U;
  }
  product.back() = static_cast<std::uint64_t>(carry);

  // The first 64 digits after the point of the number of turns. Those before the point are whole turns.
  const auto first = static_cast<unsigned>(192 - (exponent - MantissaDigits));
  const Wide digits = Wide{product[first / 64 + 1]} << 64U | product[first / 64];
  const auto turns = static_cast<std::int64_t>(static_cast<std::uint64_t>(digits >> first % 64));
  return std::copysign(1.0, angle) * std::ldexp(static_cast<double>(turns), -64) * RadiansPerTurn;
}

}  // namespace

double Cosine(double angle) { return std::cos(WithinATurn(angle)); }

double Tangent(double angle) { return std::tan(WithinATurn(angle)); }

}  // namespace orby
