// The empirical relations of roof support design, as pure functions.
//
// Working units are English throughout: ft, in, ksi, tons, kips, pcf; callers convert Metric input first. Every
// function takes Singles, computes in double precision and rounds once at its return. Nothing is caught: a division by
// zero throws RuntimeError 11, a logarithm of a value not above zero RuntimeError 5, a result beyond a Single
// RuntimeError 6.
#pragma once

#include "base/types.h"
#include "design/catalog_lists.h"
#include "design/units.h"

namespace orby {

// How bolt grades are meant, and the lists that pair yield with ultimate strengths.
struct GradeBasis {
  StrengthBasis Strength;
  const Catalogs& catalogs;
};

// A pattern of roof bolts over an entry.
struct BoltPattern {
  Single Length;       // L, ft
  Single BoltsPerRow;  // N
  Single Diameter;     // d, in
  Single Grade;        // G, ksi
  Single RowSpacing;   // S, ft
  Single EntryWidth;   // W, ft
};

// A pattern of secondary support given by the capacity of one unit.
struct SupportPattern {
  Single Length;       // L, ft
  Single UnitsPerRow;  // N
  Single Capacity;     // C, kips
  Single RowSpacing;   // S, ft
  Single EntryWidth;   // W, ft
};

// ---- span and suggested support ------------------------------------------------------------------------------------

// Suggested sum of the intersection diagonals, ft:  0.38 CMRR + 46.1.
Single SuggestedSumDiagonals(Single cmrr);

// Smallest plausible sum of the diagonals for an entry width in ft:  sqrt(2 W^2) + 4.
// Under Metric the margin is 4 m written in feet, 13.12, not 4 ft: Metric designs have always been judged so.
Single MinimumSumDiagonals(Single width, UnitSystem units);

// Suggested PSUP of a roof bolt pattern, dimensionless.
//
//   PSUP = (a^2 / s^2) SF (4.95 ln H - 17.9 ln(CMRR - 20) + 36.4),   not below 3
//
// stabilityFactor SF;  suggestedSpan s and actualSpan a, ft;  depth H, ft, 0 or less gives 0;
// cmrr 20 or less gives 3 whatever the depth.
Single SuggestedPSUP(Single stabilityFactor, Single suggestedSpan, Single actualSpan, Single depth, Single cmrr);

// Suggested minimum bolt length, ft:  (a / 13) log10(H) ((100 - CMRR) / 100)^1.5,   not below 4.
// Throws RuntimeError 5 when cmrr is above 100.
Single SuggestedBoltLength(Single actualSpan, Single depth, Single cmrr);

// ---- bolt grades and capacities ------------------------------------------------------------------------------------

// Ultimate strength of a yield grade, ksi: the paired entry of the catalog, 0 when the pair is missing; a grade that is
// not in the catalog gives 0.9 G + 35. The first entry that is exactly equal counts.
Single UltimateFromYieldKsi(Single grade, const Catalogs& catalogs);

// Yield strength of an ultimate grade, ksi, likewise; otherwise (G - 35) / 0.9.
Single YieldFromUltimateKsi(Single grade, const Catalogs& catalogs);

// The same in MPa, by the Metric lists.
Single YieldFromUltimateMPa(Single grade, const Catalogs& catalogs);

// Area times grade, kips:  G pi/4 d^2.
Single CapacityFromGrade(Single grade, Single diameter);

// Ultimate capacity of a yield grade, kips.
Single UltimateCapacity(Single grade, Single diameter, const Catalogs& catalogs);

// Yield capacity of an ultimate grade, kips.
Single YieldCapacity(Single grade, Single diameter, const Catalogs& catalogs);

// Area times grade, kN, of a grade in ksi and a diameter in inches.
Single CapacityKN(Single grade, Single diameter);
Single UltimateCapacityKN(Single grade, Single diameter, const Catalogs& catalogs);

// Capacity as the ASTM minimum is stated, of a grade in ksi and a diameter in inches: tons, under Metric kN.
Single BoltCapacityCheck(Single grade, Single diameter, UnitSystem units);

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

// Rock load per foot of entry, tons/ft: the trapezoid of rock of this height, its sides falling in at the angle.
// angle in degrees; width, height in ft; unitWeight in pcf. A height that the angle does not allow is reduced to that
// of the triangle, in the caller's variable too. Not below 0.
Single RockLoadEntry(Single angle, Single width, Single unitWeight, Single& height);

// Side of the square whose two diagonals sum up to the span, in the unit of the span; not rounded.
double SideOfSpan(Single span);

// Rock load of an intersection, tons: a frustum over the square whose diagonals sum up to the span, ft. Not below 0.
Single RockLoadIntersection(Single angle, Single span, Single unitWeight, Single height);

// Greatest height over an entry that the fall angle allows, in the unit of the width:  (W / 2) / tan(angle).
Single MaxRockHeightEntry(Single width, Single angle);

// The height, limited by what the fall angles allow over an intersection, in the unit of the span. An angle of 0 sets
// its limit to 100. Both limits take the entry's angle: the crosscut's decides only whether its limit of 100 applies.
Single MaxRockHeightIntersection(Single height, Single span, Single entryAngle, Single crosscutAngle);

// ---- cables and helpers --------------------------------------------------------------------------------------------

// Capacity of the last cable of the catalog with exactly this diameter: in to tons, under Metric mm to kN; 0 without
// one.
Single CableCapacityFromDiameter(Single diameter, UnitSystem units, const Catalogs& catalogs);

// ln x / ln 10.
Single Log10(Single x);

// The smaller one.
Single MinOf(Single x, Single y);

}  // namespace orby
