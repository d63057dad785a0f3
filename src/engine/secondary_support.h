// Secondary support of entries and intersections: rock load, and capacity and stability factor of each support system.
// Everything is in the project's units: ft, tons, pcf, in, ksi, or m, kN, kN/m3, mm, MPa. A bolt row spacing or a truss
// spacing of 0 throws RuntimeError 11.
#pragma once

#include <array>
#include <optional>

#include "core/project_record.h"
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

// A support system: its count is per row in an entry, the total in an intersection, where the spacing is not used.
struct CableSystem {
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
struct StandingSystem {
  Single Capacity = 0;
  Single Count = 0;
  Single Spacing = 0;
};

// The systems in use; one that is absent is not computed.
struct SupportSystems {
  std::optional<CableSystem> Cable;
  std::optional<TrussSystem> Truss;
  std::optional<BoltSystem> RoofBolt;
  std::optional<StandingSystem> Standing;
  Single StandingSpacing = 0;  // the standing supports' row spacing, which decides on the trusses of an entry too
};

struct SupportResult {
  Single Capacity = 0;
  Single StabilityFactor = 0;  // capacity / rock load
};

inline constexpr std::size_t SystemCount = 4;

struct SecondaryResults {
  Single RockLoad = 0;  // tons/ft or kN/m in an entry, tons or kN in an intersection
  std::array<std::optional<SupportResult>, SystemCount> Systems;  // cable, truss, roof bolt, standing
};

// At least 100 pcf, or 15 kN/m3.
bool UnitWeightIsPlausible(Single unitWeight, Integer units);

// The load of a trapezoid of rock over the entry, or of the triangle that the fall angle allows. Nothing when the unit
// weight is implausible, the height or width not above 0, the angle outside 0 to below 90, or no load results.
std::optional<Single> EntryRockLoad(const RockInputs& rock, Integer units);

// The load of a frustum of rock over the square inscribed in the span, each side falling in at its own angle. Nothing
// on the same grounds, or when the span is not above the width. Throws RuntimeError 11 when the height is limited and
// the entry angle is 0.
std::optional<Single> IntersectionRockLoad(const RockInputs& rock, Integer units);

// Capacity per length of entry. Cables and standing supports at a spacing of 0 and no bolts per row are passed over;
// so are the trusses when the standing supports' spacing is 0.
SecondaryResults SupportEntry(Single rockLoad, const SupportSystems& systems, Integer units, const GradeBasis& basis);

// Capacity of all units in the intersection.
SecondaryResults SupportIntersection(Single rockLoad, const SupportSystems& systems, Integer units,
                                     const GradeBasis& basis);

}  // namespace orby
