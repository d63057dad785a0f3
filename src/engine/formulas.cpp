#include "engine/formulas.h"

#include <cmath>

#include "base/arithmetic.h"
#include "base/runtime_error.h"
#include "design/units.h"

namespace orby {
namespace {

constexpr Single PsupFloor = 3;
constexpr Single LengthFloor = 4;
constexpr double IndexPerDensity = 14.5;  // support density to reinforcement density index
constexpr Single UnlimitedHeight = 100;

double AreaTimesGrade(Single grade, Single diameter) { return grade * Pi / 4 * Square(diameter); }

double Ultimate(double yield) { return 0.9 * yield + 35; }
double Yield(double ultimate) { return (ultimate - 35) / 0.9; }

constexpr int NotFound = -1;

int FirstMatch(const CatalogList& list, Single value) {
  for (std::size_t i = 0; i < list.Count(); ++i) {
    if (list[i] == value) return static_cast<int>(i);
  }
  return NotFound;
}

// The entry paired with the index; 0 beyond the list's end.
Single Paired(const CatalogList& list, int index) {
  return index > list.HighestIndex ? 0 : list[static_cast<std::size_t>(index)];
}

double Density(double length, double count, double capacity, double spacing, double width) {
  return Divide(length * count * capacity, spacing * width);
}

double UltimateDensity(const BoltPattern& pattern, const GradeBasis& basis) {
  const Single capacity = basis.Strength == StrengthBasis::Yield
                              ? UltimateCapacity(pattern.Grade, pattern.Diameter, basis.catalogs)
                              : CapacityFromGrade(pattern.Grade, pattern.Diameter);
  return Density(pattern.Length, pattern.BoltsPerRow, capacity, pattern.RowSpacing, pattern.EntryWidth);
}

}  // namespace

Single SuggestedSumDiagonals(Single cmrr) { return ToSingle(0.38 * cmrr + 46.1); }

Single MinimumSumDiagonals(Single width, UnitSystem units) {
  const double margin = units == Metric ? 13.123359580052492 : 4;
  return ToSingle(SquareRoot(2 * Square(width)) + margin);
}

Single SuggestedPSUP(Single stabilityFactor, Single suggestedSpan, Single actualSpan, Single depth, Single cmrr) {
  if (cmrr <= 20) return PsupFloor;
  if (depth <= 0) return 0;
  const double suggestedSquare = Square(suggestedSpan);
  const double spanRatio = Divide(Square(actualSpan) - suggestedSquare, suggestedSquare) + 1;
  const double demand = 4.95 * Logarithm(depth) - 17.9 * Logarithm(cmrr - 20.0) + 36.4;
  const Single psup = ToSingle(spanRatio * stabilityFactor * demand);
  return psup < PsupFloor ? PsupFloor : psup;
}

Single SuggestedBoltLength(Single actualSpan, Single depth, Single cmrr) {
  const double weakness = (100.0 - cmrr) / 100;
  const Single logDepth = Log10(depth);
  if (weakness < 0) throw RuntimeError(error_number::BadCall);
  const Single length = ToSingle(actualSpan / 13.0 * logDepth * std::pow(weakness, 1.5));
  return length < LengthFloor ? LengthFloor : length;
}

Single UltimateFromYieldKsi(Single grade, const Catalogs& catalogs) {
  const int index = FirstMatch(catalogs.DefaultBoltGradeArrayENG, grade);
  return index == NotFound ? ToSingle(Ultimate(grade)) : Paired(catalogs.DefaultBoltUTSArrayENG, index);
}

Single YieldFromUltimateKsi(Single grade, const Catalogs& catalogs) {
  const int index = FirstMatch(catalogs.DefaultBoltUTSArrayENG, grade);
  return index == NotFound ? ToSingle(Yield(grade)) : Paired(catalogs.DefaultBoltGradeArrayENG, index);
}

Single YieldFromUltimateMPa(Single grade, const Catalogs& catalogs) {
  const int index = FirstMatch(catalogs.DefaultBoltUTSArrayMET, grade);
  return index == NotFound ? ToSingle(Yield(grade / MPaPerKsi) * MPaPerKsi)
                           : Paired(catalogs.DefaultBoltGradeArrayMET, index);
}

Single CapacityFromGrade(Single grade, Single diameter) { return ToSingle(AreaTimesGrade(grade, diameter)); }

Single UltimateCapacity(Single grade, Single diameter, const Catalogs& catalogs) {
  return CapacityFromGrade(UltimateFromYieldKsi(grade, catalogs), diameter);
}

Single YieldCapacity(Single grade, Single diameter, const Catalogs& catalogs) {
  return CapacityFromGrade(YieldFromUltimateKsi(grade, catalogs), diameter);
}

Single CapacityKN(Single grade, Single diameter) {
  return ToSingle(AreaTimesGrade(grade, diameter) * KilonewtonsPerPound * 1000);
}

Single UltimateCapacityKN(Single grade, Single diameter, const Catalogs& catalogs) {
  return CapacityKN(UltimateFromYieldKsi(grade, catalogs), diameter);
}

Single BoltCapacityCheck(Single grade, Single diameter, UnitSystem units) {
  const double square = Square(diameter);
  if (units == Metric) return ToSingle(square * (grade * 1000.0) * Pi / 4 * KilonewtonsPerPound);
  return ToSingle(square * (grade * 1000.0 / PoundsPerTon) * Pi / 4);
}

Single ActualPSUP(const BoltPattern& pattern, const GradeBasis& basis) {
  const Single capacity = basis.Strength == StrengthBasis::Yield
                              ? CapacityFromGrade(pattern.Grade, pattern.Diameter)
                              : YieldCapacity(pattern.Grade, pattern.Diameter, basis.catalogs);
  return ToSingle(Density(pattern.Length, pattern.BoltsPerRow, capacity, pattern.RowSpacing, pattern.EntryWidth));
}

Single BoltPRSUP(const BoltPattern& pattern, const GradeBasis& basis) {
  return ToSingle(UltimateDensity(pattern, basis));
}

Single BoltRDI(const BoltPattern& pattern, const GradeBasis& basis) {
  return ToSingle(UltimateDensity(pattern, basis) * IndexPerDensity);
}

Single CablePRSUP(const SupportPattern& pattern) {
  return ToSingle(
      Density(pattern.Length, pattern.UnitsPerRow, pattern.Capacity, pattern.RowSpacing, pattern.EntryWidth));
}

Single CableSRDI(const SupportPattern& pattern) {
  constexpr double AnchorLoss = 0.33;  // ft
  return ToSingle(Density(pattern.Length - AnchorLoss, pattern.UnitsPerRow, pattern.Capacity, pattern.RowSpacing,
                          pattern.EntryWidth) *
                  IndexPerDensity);
}

Single BoltSRDI(const SupportPattern& pattern) {
  return ToSingle(
      Density(pattern.Length, pattern.UnitsPerRow, pattern.Capacity, pattern.RowSpacing, pattern.EntryWidth) *
      IndexPerDensity);
}

Single RockLoadEntry(Single angle, Single width, Single unitWeight, Single& height) {
  const double tangent = std::tan(angle * RadiansPerDegree);
  const double top = width - 2.0 * height * tangent;
  double area = 0;
  if (top >= 0) {
    area = (top + width) / 2 * height;
  } else if (angle != 0) {
    height = ToSingle(Divide(width, 2 * tangent));
    area = static_cast<double>(height) * width / 2;
  }
  const double load = area * unitWeight / PoundsPerTon;
  return load <= 0 ? 0 : ToSingle(load);
}

double SideOfSpan(Single span) { return SquareRoot(Square(span / 2.0) / 2); }

Single RockLoadIntersection(Single angle, Single span, Single unitWeight, Single height) {
  const double side = SideOfSpan(span);
  const double top = side - 2.0 * height * std::tan(angle * RadiansPerDegree);
  if (top < 0) return 0;
  const double volume = (Square(side) + top * top + (side * top + side * top) / 2) * height / 3;
  const double load = volume * unitWeight / PoundsPerTon;
  return load < 0 ? 0 : ToSingle(load);
}

Single MaxRockHeightEntry(Single width, Single angle) {
  return ToSingle(Divide(width / 2.0, std::tan(angle * RadiansPerDegree)));
}

Single MaxRockHeightIntersection(Single height, Single span, Single entryAngle, Single crosscutAngle) {
  const double side = SideOfSpan(span);
  const auto limit = [&](Single angle) {
    if (angle == 0) return UnlimitedHeight;
    return ToSingle(Divide(side, 2 * std::tan(entryAngle * RadiansPerDegree)));
  };
  const Single entryLimit = limit(entryAngle);
  const Single crosscutLimit = limit(crosscutAngle);
  return MinOf(MinOf(height, entryLimit), crosscutLimit);
}

Single CableCapacityFromDiameter(Single diameter, UnitSystem units, const Catalogs& catalogs) {
  const bool metric = units == Metric;
  const CatalogList& diameters = metric ? catalogs.DefaultCableDiamArrayMET : catalogs.DefaultCableDiamArrayENG;
  const CatalogList& capacities = metric ? catalogs.DefaultCableCapArrayMET : catalogs.DefaultCableCapArrayENG;
  Single capacity = 0;
  for (std::size_t i = 0; i < diameters.Count(); ++i) {
    if (diameters[i] == diameter) capacity = Paired(capacities, static_cast<int>(i));
  }
  return capacity;
}

Single Log10(Single x) { return ToSingle(Logarithm(x) / std::log(10.0)); }

Single MinOf(Single x, Single y) { return x < y ? x : y; }

}  // namespace orby
