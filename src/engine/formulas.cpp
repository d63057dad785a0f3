#include "engine/formulas.h"

#include <cmath>

#include "base/arithmetic.h"
#include "base/runtime_error.h"
#include "design/units.h"

namespace orby {
namespace {

constexpr Single PsupFloor = 3;
constexpr Single LengthFloor = 4;
constexpr double IndexPerDensity = 14.5;  // reinforcement density index per support density
constexpr Single UnlimitedHeight = 100;

double AreaTimesGrade(Ksi grade, Inches diameter) { return grade.Value * Pi / 4 * Square(diameter.Value); }

double Ultimate(double yield) { return 0.9 * yield + 35; }
double Yield(double ultimate) { return (ultimate - 35) / 0.9; }

// Returns the entry at the index, or 0 beyond the end of the list.
Single Paired(const CatalogList& list, std::size_t index) { return index < list.Count() ? list[index] : 0; }

double Density(double length, double count, double capacity, double spacing, double width) {
  return Divide(length * count * capacity, spacing * width);
}

// `capacity` is that of one bolt.
double Density(const BoltPattern& pattern, Single capacity) {
  return Density(pattern.Length.Value, pattern.BoltsPerRow, capacity, pattern.RowSpacing.Value,
                 pattern.EntryWidth.Value);
}

// `length` replaces that of the pattern.
double Density(const SupportPattern& pattern, double length) {
  return Density(length, pattern.UnitsPerRow, pattern.Capacity, pattern.RowSpacing.Value, pattern.EntryWidth.Value);
}

double UltimateDensity(const BoltPattern& pattern, const GradeBasis& basis) {
  const Single capacity = basis.Strength == StrengthBasis::Yield
                              ? UltimateCapacity(pattern.Grade, pattern.Diameter, basis.catalogs)
                              : CapacityFromGrade(pattern.Grade, pattern.Diameter);
  return Density(pattern, capacity);
}

}  // namespace

Feet SuggestedSumDiagonals(Single cmrr) { return Feet(ToSingle(0.38 * cmrr + 46.1)); }

Feet MinimumSumDiagonals(Feet width, UnitSystem units) {
  const double margin = units == Metric ? 13.123359580052492 : 4;
  return Feet(ToSingle(SquareRoot(2 * Square(width.Value)) + margin));
}

Single SuggestedPSUP(const WorkingSite& site, Feet suggestedSpan) {
  if (site.CMRR <= 20) return PsupFloor;
  if (site.Depth.Value <= 0) return 0;
  const double suggestedSquare = Square(suggestedSpan.Value);
  const double spanRatio = Divide(Square(site.Span.Value) - suggestedSquare, suggestedSquare) + 1;
  const double demand = 4.95 * Logarithm(site.Depth.Value) - 17.9 * Logarithm(site.CMRR - 20.0) + 36.4;
  const Single psup = ToSingle(spanRatio * site.StabilityFactor * demand);
  return psup < PsupFloor ? PsupFloor : psup;
}

Feet SuggestedBoltLength(const WorkingSite& site) {
  const double weakness = (100.0 - site.CMRR) / 100;
  const Single logDepth = Log10(site.Depth.Value);
  if (weakness < 0) throw RuntimeError(error_number::BadCall);
  const Single length = ToSingle(site.Span.Value / 13.0 * logDepth * std::pow(weakness, 1.5));
  return Feet(length < LengthFloor ? LengthFloor : length);
}

Ksi UltimateFromYieldKsi(Ksi grade, const Catalogs& catalogs) {
  const auto index = catalogs.DefaultBoltGradeArrayENG.FirstPlaceOf(grade.Value);
  return Ksi(index ? Paired(catalogs.DefaultBoltUTSArrayENG, *index) : ToSingle(Ultimate(grade.Value)));
}

Ksi YieldFromUltimateKsi(Ksi grade, const Catalogs& catalogs) {
  const auto index = catalogs.DefaultBoltUTSArrayENG.FirstPlaceOf(grade.Value);
  return Ksi(index ? Paired(catalogs.DefaultBoltGradeArrayENG, *index) : ToSingle(Yield(grade.Value)));
}

MPa YieldFromUltimateMPa(MPa grade, const Catalogs& catalogs) {
  const auto index = catalogs.DefaultBoltUTSArrayMET.FirstPlaceOf(grade.Value);
  return MPa(index ? Paired(catalogs.DefaultBoltGradeArrayMET, *index)
                   : ToSingle(Yield(grade.Value / MPaPerKsi) * MPaPerKsi));
}

Single CapacityFromGrade(Ksi grade, Inches diameter) { return ToSingle(AreaTimesGrade(grade, diameter)); }

Single UltimateCapacity(Ksi grade, Inches diameter, const Catalogs& catalogs) {
  return CapacityFromGrade(UltimateFromYieldKsi(grade, catalogs), diameter);
}

Single YieldCapacity(Ksi grade, Inches diameter, const Catalogs& catalogs) {
  return CapacityFromGrade(YieldFromUltimateKsi(grade, catalogs), diameter);
}

Single CapacityKN(Ksi grade, Inches diameter) {
  return ToSingle(AreaTimesGrade(grade, diameter) * KilonewtonsPerPound * 1000);
}

Single UltimateCapacityKN(Ksi grade, Inches diameter, const Catalogs& catalogs) {
  return CapacityKN(UltimateFromYieldKsi(grade, catalogs), diameter);
}

Single BoltCapacityCheck(Ksi grade, Inches diameter, UnitSystem units) {
  const double square = Square(diameter.Value);
  if (units == Metric) return ToSingle(square * (grade.Value * 1000.0) * Pi / 4 * KilonewtonsPerPound);
  return ToSingle(square * (grade.Value * 1000.0 / PoundsPerTon) * Pi / 4);
}

Single ActualPSUP(const BoltPattern& pattern, const GradeBasis& basis) {
  const Single capacity = basis.Strength == StrengthBasis::Yield
                              ? CapacityFromGrade(pattern.Grade, pattern.Diameter)
                              : YieldCapacity(pattern.Grade, pattern.Diameter, basis.catalogs);
  return ToSingle(Density(pattern, capacity));
}

Single BoltPRSUP(const BoltPattern& pattern, const GradeBasis& basis) {
  return ToSingle(UltimateDensity(pattern, basis));
}

Single BoltRDI(const BoltPattern& pattern, const GradeBasis& basis) {
  return ToSingle(UltimateDensity(pattern, basis) * IndexPerDensity);
}

Single CablePRSUP(const SupportPattern& pattern) { return ToSingle(Density(pattern, pattern.Length.Value)); }

Single CableSRDI(const SupportPattern& pattern) {
  constexpr double AnchorLoss = 0.33;  // ft
  return ToSingle(Density(pattern, pattern.Length.Value - AnchorLoss) * IndexPerDensity);
}

Single BoltSRDI(const SupportPattern& pattern) {
  return ToSingle(Density(pattern, pattern.Length.Value) * IndexPerDensity);
}

LimitedLoad RockLoadEntry(const WorkingRock& rock) {
  const Single width = rock.Width.Value;
  Single height = rock.Height.Value;
  const double tangent = std::tan(rock.Angle.Value * RadiansPerDegree);
  const double top = width - 2.0 * height * tangent;
  double area = 0;
  if (top >= 0) {
    area = (top + width) / 2 * height;
  } else if (rock.Angle.Value != 0) {
    height = ToSingle(Divide(width, 2 * tangent));
    area = static_cast<double>(height) * width / 2;
  }
  const double load = area * rock.UnitWeight.Value / PoundsPerTon;
  return {load <= 0 ? 0 : ToSingle(load), Feet(height)};
}

double SideOfSpan(Single span) { return SquareRoot(Square(span / 2.0) / 2); }

Single RockLoadIntersection(const WorkingRock& rock) {
  const Single height = rock.Height.Value;
  const double side = SideOfSpan(rock.Span.Value);
  const double top = side - 2.0 * height * std::tan(rock.Angle.Value * RadiansPerDegree);
  if (top < 0) return 0;
  const double volume = (Square(side) + top * top + (side * top + side * top) / 2) * height / 3;
  const double load = volume * rock.UnitWeight.Value / PoundsPerTon;
  return load < 0 ? 0 : ToSingle(load);
}

Single MaxRockHeightEntry(Single width, FallAngle angle) {
  return ToSingle(Divide(width / 2.0, std::tan(angle.Value * RadiansPerDegree)));
}

Single MaxRockHeightIntersection(const RockAtCrossing& rock) {
  const double side = SideOfSpan(rock.Span);
  const auto limit = [&](FallAngle angle) {
    if (angle.Value == 0) return UnlimitedHeight;
    return ToSingle(Divide(side, 2 * std::tan(rock.EntryAngle.Value * RadiansPerDegree)));
  };
  const Single entryLimit = limit(rock.EntryAngle);
  const Single crosscutLimit = limit(rock.CrosscutAngle);
  return MinOf(MinOf(rock.Height, entryLimit), crosscutLimit);
}

Single CableCapacityFromDiameter(Single diameter, UnitSystem units, const Catalogs& catalogs) {
  const bool metric = units == Metric;
  const CatalogList& diameters = metric ? catalogs.DefaultCableDiamArrayMET : catalogs.DefaultCableDiamArrayENG;
  const CatalogList& capacities = metric ? catalogs.DefaultCableCapArrayMET : catalogs.DefaultCableCapArrayENG;
  Single capacity = 0;
  for (std::size_t i = 0; i < diameters.Count(); ++i) {
    if (diameters[i] == diameter) capacity = Paired(capacities, i);
  }
  return capacity;
}

Single Log10(Single x) { return ToSingle(Logarithm(x) / std::log(10.0)); }

Single MinOf(Single x, Single y) { return x < y ? x : y; }

}  // namespace orby
