// Secondary support of entries and intersections: rock load, and capacity and stability factor of each support system.
// Everything is in the project's units: ft, tons, pcf, in, ksi, or m, kN, kN/m3, mm, MPa. What cannot be
// computed throws its RuntimeError.
#pragma once

#include <optional>

#include "design/design.h"
#include "engine/formulas.h"

namespace orby {

// The rock above, as typed.
struct RockInputs {
  Single UnitWeight = 0;
  Single Height = 0;
  Single EntryAngle = 0;     // degrees
  Single CrosscutAngle = 0;  // degrees; intersections only
  Single Width = 0;          // entry width
  Single Span = 0;           // sum of the diagonals; intersections only
};

// Cable bolts or standing supports: the count is per row in an entry, the total in an intersection, where the spacing
// is not used.
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
  Single Capacity = 0;         // per length of entry, or of the whole intersection
  Single StabilityFactor = 0;  // capacity / rock load
};

// At least 100 pcf, or 15 kN/m3.
bool UnitWeightIsPlausible(Single unitWeight, UnitSystem units);

// The load of a trapezoid of rock over the entry, or of the triangle that the fall angle allows. Nothing when the unit
// weight is implausible, the height or width not above 0, the angle outside 0 to below 90, or no load results.
std::optional<Single> EntryRockLoad(const RockInputs& rock, UnitSystem units);

// The load of a frustum of rock over the square inscribed in the span, each side falling in at its own angle. Nothing
// on the same grounds, or when the span is not above the width. Throws RuntimeError 11 when the height is limited and
// the entry angle is 0.
std::optional<Single> IntersectionRockLoad(const RockInputs& rock, UnitSystem units);

// What a system gives per length of entry. Throws RuntimeError 11 at a spacing of 0, 6 beyond a Single.
SupportResult SupportEntry(Single rockLoad, const CountedSystem& system);
SupportResult SupportEntry(Single rockLoad, const TrussSystem& trusses);
SupportResult SupportEntry(Single rockLoad, const BoltSystem& bolts, UnitSystem units, const GradeBasis& basis);

// What all units of a system in an intersection give. Throws RuntimeError 6 beyond a Single.
SupportResult SupportIntersection(Single rockLoad, const CountedSystem& system);
SupportResult SupportIntersection(Single rockLoad, const TrussSystem& trusses);
SupportResult SupportIntersection(Single rockLoad, const BoltSystem& bolts, UnitSystem units, const GradeBasis& basis);

}  // namespace orby
