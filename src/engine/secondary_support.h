// Secondary support of entries and intersections: rock load, and capacity and stability factor of each support system.
// All numbers are in the units of the project: ft, tons, pcf, in, ksi, or m, kN, kN/m3, mm, MPa. A result that cannot
// be computed throws its RuntimeError.
#pragma once

#include <optional>

#include "design/design.h"
#include "engine/formulas.h"

namespace orby {

// The rock above the opening, as typed.
struct RockInputs {
  Single UnitWeight = 0;
  Single Height = 0;
  Single EntryAngle = 0;     // degrees
  Single CrosscutAngle = 0;  // degrees; intersections only
  Single Width = 0;          // entry width
  Single Span = 0;           // sum of the diagonals; intersections only
};

// Cable bolts or standing supports. The count is per row in an entry, and the total in an intersection, which has no
// spacing.
struct CountedSystem {
  Single Capacity = 0;
  Single Count = 0;
  Single Spacing = 0;
};
struct TrussSystem {
  Single Capacity = 0;
  Single Angle = 0;  // degrees
  Single Count = 0;  // intersections only
  Single Spacing = 0;
};
struct BoltSystem {
  Bolt Bolts;
  Single Count = 0;
  Single Spacing = 0;
};

struct SupportResult {
  Single Capacity = 0;         // per unit length of an entry, or of the whole intersection
  Single StabilityFactor = 0;  // capacity / rock load
};

// The lengths of cable bolts and of roof bolts that must reach beyond the rock load height, in the units of the design.
struct Anchorage {
  double Cables;
  double Bolts;
};
constexpr Anchorage AnchorageIn(UnitSystem units) { return units == Metric ? Anchorage{1.3, 0.305} : Anchorage{4, 1}; }

// Returns true if a bolt reaches less than its anchorage beyond the rock load height.
constexpr bool IsTooShort(Single length, double anchorage, Single rockLoadHeight) {
  return length - anchorage < rockLoadHeight;
}

// Returns true for at least 100 pcf (15 kN/m3).
bool UnitWeightIsPlausible(Single unitWeight, UnitSystem units);

// Returns the load of a trapezoid of rock over the entry, or of the triangle that the fall angle allows. Returns
// nothing when the unit weight is implausible, the height or width is 0 or less, the angle is not in [0, 90), or the
// load is 0 or less.
std::optional<Single> EntryRockLoad(const RockInputs& rock, UnitSystem units);

// Returns the load of a frustum of rock over the square whose diagonals add up to the span, with an angle for each pair
// of sides. Returns nothing for the same reasons, and when the span is not above the width. Throws RuntimeError 11 when
// the height is limited and the entry angle is 0.
std::optional<Single> IntersectionRockLoad(const RockInputs& rock, UnitSystem units);

// Each returns the support of a system per unit length of an entry. Throws RuntimeError 11 when the spacing is 0, and 6
// when a result is outside the range of a Single.
SupportResult SupportEntry(Single rockLoad, const CountedSystem& system);
SupportResult SupportEntry(Single rockLoad, const TrussSystem& trusses);
SupportResult SupportEntry(Single rockLoad, const BoltSystem& bolts, UnitSystem units, const GradeBasis& basis);

// Each returns the support of all units of a system in an intersection. Throws RuntimeError 6 when a result is outside
// the range of a Single.
SupportResult SupportIntersection(Single rockLoad, const CountedSystem& system);
SupportResult SupportIntersection(Single rockLoad, const TrussSystem& trusses);
SupportResult SupportIntersection(Single rockLoad, const BoltSystem& bolts, UnitSystem units, const GradeBasis& basis);

}  // namespace orby
