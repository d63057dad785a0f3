// Numbers whose type is their unit. A length cannot be passed as a diameter, and a grade in MPa cannot be passed as one
// in ksi.
//
//   CapacityFromGrade(Ksi(75), Inches(0.75F))
#pragma once

#include "base/types.h"

namespace orby {

// A number with a unit. Conversions from and to a plain number are explicit.
template <class Unit>
struct Quantity {
  Single Value = 0;

  constexpr Quantity() = default;
  constexpr explicit Quantity(Single value) : Value(value) {}
  bool operator==(const Quantity&) const = default;
};

using Feet = Quantity<struct FeetUnit>;
using Inches = Quantity<struct InchesUnit>;
using Ksi = Quantity<struct KsiUnit>;
using MPa = Quantity<struct MPaUnit>;
using Pcf = Quantity<struct PcfUnit>;
using FallAngle = Quantity<struct DegreesUnit>;

}  // namespace orby
