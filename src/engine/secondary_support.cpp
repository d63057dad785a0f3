#include "engine/secondary_support.h"

#include <cmath>

#include "base/arithmetic.h"
#include "base/trigonometry.h"
#include "design/units.h"

namespace orby {
namespace {

double Radians(Single angle) { return angle * RadiansPerDegree; }

bool IsFallAngle(Single angle) { return Radians(angle) >= 0 && Radians(angle) < Pi / 2; }

// Returns the weight of an area or volume of rock, or nothing when it is 0 or less. Metric unit weights are in kN
// already.
std::optional<Single> LoadOf(double amount, Single unitWeight, UnitSystem units) {
  const double weight = amount * unitWeight;
  // Rounded before the check, because a load too small for a Single would become a divisor of 0.
  const Single load = ToSingle(units == Metric ? weight : weight / PoundsPerTon);
  if (load <= 0) return std::nullopt;
  return load;
}

SupportResult Judge(double capacity, Single rockLoad) {
  const Single rounded = ToSingle(capacity);
  return {rounded, ToSingle(Divide(rounded, rockLoad))};
}

double TrussPairCapacity(const TrussSystem& truss) { return 2.0 * truss.Capacity * Cosine(Radians(truss.Angle)); }

// Returns the yield capacity of all bolts of the system, tons (kN).
double BoltYieldCapacity(const BoltSystem& system, UnitSystem units, const GradeBasis& basis) {
  Single grade = system.Bolts.Grade;
  if (basis.Strength == StrengthBasis::Ultimate) {
    grade = units == Metric ? YieldFromUltimateMPa(MPa(grade), basis.catalogs).Value
                            : YieldFromUltimateKsi(Ksi(grade), basis.catalogs).Value;
  }
  const double diameter = system.Bolts.Diameter;
  if (units == Metric) return system.Count * (grade * 1000.0) * Pi * Square(diameter / 1000) / 4;
  return system.Count * (grade * 1000.0 / PoundsPerTon) * Pi * Square(diameter) / 4;
}

}  // namespace

bool UnitWeightIsPlausible(Single unitWeight, UnitSystem units) { return unitWeight >= (units == Metric ? 15 : 100); }

std::optional<Single> EntryRockLoad(const RockInputs& rock, UnitSystem units) {
  if (!UnitWeightIsPlausible(rock.UnitWeight, units)) return std::nullopt;
  if (rock.Height <= 0) return std::nullopt;
  if (!IsFallAngle(rock.EntryAngle)) return std::nullopt;
  if (rock.Width <= 0) return std::nullopt;

  const double width = rock.Width;
  const double top = width - 2.0 * rock.Height * std::tan(Radians(rock.EntryAngle));
  double area = 0;
  if (top >= 0) {
    area = (width + top) / 2 * rock.Height;
  } else if (rock.EntryAngle != 0) {
    area = width * MaxRockHeightEntry(rock.Width, FallAngle(rock.EntryAngle)) / 2;
  }
  return LoadOf(area, rock.UnitWeight, units);
}

std::optional<Single> IntersectionRockLoad(const RockInputs& rock, UnitSystem units) {
  if (!UnitWeightIsPlausible(rock.UnitWeight, units)) return std::nullopt;
  if (rock.Height <= 0) return std::nullopt;
  if (!IsFallAngle(rock.EntryAngle) || !IsFallAngle(rock.CrosscutAngle)) return std::nullopt;
  if (rock.Width <= 0) return std::nullopt;
  if (rock.Span <= rock.Width) return std::nullopt;

  const double side = SideOfSpan(rock.Span);
  double height = rock.Height;
  const auto topAt = [&](Single angle) { return side - 2 * height * std::tan(Radians(angle)); };
  if (topAt(rock.EntryAngle) < 0 || topAt(rock.CrosscutAngle) < 0) {
    height = MaxRockHeightIntersection({.Height = rock.Height,
                                        .Span = rock.Span,
                                        .EntryAngle = FallAngle(rock.EntryAngle),
                                        .CrosscutAngle = FallAngle(rock.CrosscutAngle)});
  }
  const double entryTop = topAt(rock.EntryAngle);
  const double crosscutTop = topAt(rock.CrosscutAngle);
  const double volume =
      (Square(side) + crosscutTop * entryTop + (crosscutTop * side + side * entryTop) / 2) * height / 3;
  return LoadOf(volume, rock.UnitWeight, units);
}

SupportResult SupportEntry(Single rockLoad, const CountedSystem& system) {
  return Judge(Divide(static_cast<double>(system.Capacity) * system.Count, system.Spacing), rockLoad);
}

SupportResult SupportEntry(Single rockLoad, const TrussSystem& trusses) {
  return Judge(Divide(TrussPairCapacity(trusses), trusses.Spacing), rockLoad);
}

SupportResult SupportEntry(Single rockLoad, const BoltSystem& bolts, UnitSystem units, const GradeBasis& basis) {
  return Judge(Divide(BoltYieldCapacity(bolts, units, basis), bolts.Spacing), rockLoad);
}

SupportResult SupportIntersection(Single rockLoad, const CountedSystem& system) {
  return Judge(static_cast<double>(system.Capacity) * system.Count, rockLoad);
}

SupportResult SupportIntersection(Single rockLoad, const TrussSystem& trusses) {
  return Judge(TrussPairCapacity(trusses) * trusses.Count, rockLoad);
}

SupportResult SupportIntersection(Single rockLoad, const BoltSystem& bolts, UnitSystem units, const GradeBasis& basis) {
  return Judge(BoltYieldCapacity(bolts, units, basis), rockLoad);
}

}  // namespace orby
