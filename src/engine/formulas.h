// The empirical relations of roof support design, as pure functions.
//
// All working units are English: ft, in, ksi, tons, kips, pcf. Callers convert Metric input first. Each function takes
// single-precision numbers, computes in double precision and rounds once when it returns. Throws RuntimeError 11 for a
// division by zero, 5 for a logarithm of 0 or less, and 6 for a result outside the range of a Single.
#pragma once

#include "base/types.h"
#include "design/catalog_lists.h"
#include "design/units.h"
#include "engine/quantities.h"

namespace orby {

// The meaning of bolt grades, and the catalogs that pair yield with ultimate strengths.
struct GradeBasis {
  StrengthBasis Strength;
  const Catalogs& catalogs;
};

// The inputs of the suggestions.
struct WorkingSite {
  Single StabilityFactor = 0;  // SF
  Single CMRR = 0;
  Feet Depth{};  // H
  Feet Span{};   // a, actual sum of the intersection diagonals
  Feet Width{};  // W, of the entry
};

// A pattern of roof bolts over an entry.
struct BoltPattern {
  Feet Length{};           // L
  Single BoltsPerRow = 0;  // N
  Inches Diameter{};       // d
  Ksi Grade{};             // G
  Feet RowSpacing{};       // S
  Feet EntryWidth{};       // W
};

// A pattern of secondary support with a given capacity of one unit.
struct SupportPattern {
  Feet Length{};           // L
  Single UnitsPerRow = 0;  // N
  Single Capacity = 0;     // C, kips; for BoltSRDI: tons
  Feet RowSpacing{};       // S
  Feet EntryWidth{};       // W
};

// The rock that may fall.
struct WorkingRock {
  Pcf UnitWeight{};
  Feet Height{};
  FallAngle Angle{};  // of its sides
  Feet Width{};       // of the entry
  Feet Span{};        // sum of the diagonals; intersections only
};

// ---- span and suggested support ------------------------------------------------------------------------------------

// Suggested sum of the intersection diagonals:  0.38 CMRR + 46.1.
Feet SuggestedSumDiagonals(Single cmrr);

// Smallest plausible sum of the diagonals for an entry width:  sqrt(2 W^2) + 4.
// In Metric designs the margin is 4 m (13.12 ft) instead of 4 ft. Existing Metric designs were judged by this margin.
Feet MinimumSumDiagonals(Feet width, UnitSystem units);

// Suggested PSUP of a roof bolt pattern, dimensionless.
//
//   PSUP = (a^2 / s^2) SF (4.95 ln H - 17.9 ln(CMRR - 20) + 36.4),   not below 3
//
// s is the suggested span. A depth of 0 or less gives 0. A CMRR of 20 or less gives 3 at any depth.
Single SuggestedPSUP(const WorkingSite& site, Feet suggestedSpan);

// Suggested minimum bolt length:  (a / 13) log10(H) ((100 - CMRR) / 100)^1.5,   not below 4.
// Throws RuntimeError 5 when the CMRR is above 100.
Feet SuggestedBoltLength(const WorkingSite& site);

// ---- bolt grades and capacities ------------------------------------------------------------------------------------

// Ultimate strength of a yield grade: the paired entry of the first exactly equal grade in the catalog, or 0 when that
// pair is missing. For a grade that is not in the catalog: 0.9 G + 35.
Ksi UltimateFromYieldKsi(Ksi grade, const Catalogs& catalogs);

// Yield strength of an ultimate grade by the same rule. For a grade that is not in the catalog: (G - 35) / 0.9.
Ksi YieldFromUltimateKsi(Ksi grade, const Catalogs& catalogs);

// The same in MPa, by the Metric lists of the catalog.
MPa YieldFromUltimateMPa(MPa grade, const Catalogs& catalogs);

// Area times grade, kips:  G pi/4 d^2.
Single CapacityFromGrade(Ksi grade, Inches diameter);

// Ultimate capacity of a yield grade, kips.
Single UltimateCapacity(Ksi grade, Inches diameter, const Catalogs& catalogs);

// Yield capacity of an ultimate grade, kips.
Single YieldCapacity(Ksi grade, Inches diameter, const Catalogs& catalogs);

// Area times grade, kN.
Single CapacityKN(Ksi grade, Inches diameter);
Single UltimateCapacityKN(Ksi grade, Inches diameter, const Catalogs& catalogs);

// Capacity in the unit of the ASTM minimum: tons (kN).
Single BoltCapacityCheck(Ksi grade, Inches diameter, UnitSystem units);

// ---- support densities ---------------------------------------------------------------------------------------------

// L N C / (S W) with C the yield capacity of the bolts, kips.
Single ActualPSUP(const BoltPattern& pattern, const GradeBasis& basis);

// L N C / (S W) with C the ultimate capacity of the bolts, kips.
Single BoltPRSUP(const BoltPattern& pattern, const GradeBasis& basis);

// Reinforcement Density Index: 14.5 times the PRSUP.
Single BoltRDI(const BoltPattern& pattern, const GradeBasis& basis);

// L N C / (S W).
Single CablePRSUP(const SupportPattern& pattern);

// 14.5 (L - 0.33) N C / (S W).
Single CableSRDI(const SupportPattern& pattern);

// 14.5 L N C / (S W).
Single BoltSRDI(const SupportPattern& pattern);

// ---- rock loads ----------------------------------------------------------------------------------------------------

struct LimitedLoad {
  Single Load = 0;  // tons/ft
  Feet Height{};    // of the rock, limited to the triangle that the angle allows
};

// Rock load per foot of entry: a trapezoid of rock of this height, or the triangle that the angle allows. Not below 0.
LimitedLoad RockLoadEntry(const WorkingRock& rock);

// Side of the square whose two diagonals add up to the span, in the unit of the span. Not rounded.
double SideOfSpan(Single span);

// Rock load of an intersection, tons: a frustum over the square whose diagonals add up to the span. Not below 0.
Single RockLoadIntersection(const WorkingRock& rock);

// Greatest height over an entry that the fall angle allows, in the unit of the width:  (W / 2) / tan(angle).
Single MaxRockHeightEntry(Single width, FallAngle angle);

// Rock over an intersection. All lengths are in the same unit, which may be any.
struct RockAtCrossing {
  Single Height = 0;
  Single Span = 0;
  FallAngle EntryAngle{};
  FallAngle CrosscutAngle{};
};

// The height of the rock, limited by the fall angles over an intersection. An angle of 0 has a limit of 100. Both
// limits use the entry angle. The crosscut angle only decides whether its own limit is 100.
Single MaxRockHeightIntersection(const RockAtCrossing& rock);

// ---- cables and helpers --------------------------------------------------------------------------------------------

// Capacity of the last cable in the catalog with exactly this diameter, or 0 when there is none. English in and tons,
// Metric mm and kN.
Single CableCapacityFromDiameter(Single diameter, UnitSystem units, const Catalogs& catalogs);

// ln x / ln 10.
Single Log10(Single x);

// The smaller number.
Single MinOf(Single x, Single y);

}  // namespace orby
