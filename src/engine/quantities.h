// Numbers with their unit as their type: a length cannot be passed for a diameter, nor a grade in MPa for one in ksi.
//
//   CapacityFromGrade(Ksi(75), Inches(0.75F))
#pragma once

#include "base/types.h"

namespace orby {

// Made from a number, and turned into one, only where that is written out.
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
