#include "engine/secondary_support.h"

#include <cmath>

#include "base/arithmetic.h"
#include "core/units.h"

namespace orby {
namespace {

double Radians(Single angle) { return angle * RadiansPerDegree; }

bool IsFallAngle(Single angle) { return Radians(angle) >= 0 && Radians(angle) < Pi / 2; }

// The weight of a rock area or volume, if it is any. Metric unit weights are kN already.
std::optional<Single> LoadOf(double amount, Single unitWeight, Integer units) {
  const double weight = amount * unitWeight;
  // Judged as rounded: a load too small for a Single would be a divisor of 0.
  const Single load = ToSingle(units == Metric ? weight : weight / PoundsPerTon);
  if (load <= 0) return std::nullopt;
  return load;
}

SupportResult Judge(double capacity, Single rockLoad) {
  const Single rounded = ToSingle(capacity);
  return {rounded, ToSingle(Divide(rounded, rockLoad))};
}

double TrussPairCapacity(const TrussSystem& truss) { return 2.0 * truss.Capacity * std::cos(Radians(truss.Angle)); }

// Yield capacity of so many bolts, tons or kN.
double BoltYieldCapacity(const BoltSystem& system, Integer units, const GradeBasis& basis) {
  Single grade = system.Bolts.Grade;
  if (basis.BoltStrengthMode == 1) {
    grade = units == Metric ? YieldFromUltimateMPa(grade, basis.catalogs) : YieldFromUltimateKsi(grade, basis.catalogs);
  }
  const double diameter = system.Bolts.Diameter;
  if (units == Metric) return system.Count * (grade * 1000.0) * Pi * Square(diameter / 1000) / 4;
  return system.Count * (grade * 1000.0 / PoundsPerTon) * Pi * Square(diameter) / 4;
}

}  // namespace

bool UnitWeightIsPlausible(Single unitWeight, Integer units) { return unitWeight >= (units == Metric ? 15 : 100); }

std::optional<Single> EntryRockLoad(const RockInputs& rock, Integer units) {
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
    area = width * MaxRockHeightEntry(rock.Width, rock.EntryAngle) / 2;
  }
  return LoadOf(area, rock.UnitWeight, units);
}

std::optional<Single> IntersectionRockLoad(const RockInputs& rock, Integer units) {
  if (!UnitWeightIsPlausible(rock.UnitWeight, units)) return std::nullopt;
  if (rock.Height <= 0) return std::nullopt;
  if (!IsFallAngle(rock.EntryAngle) || !IsFallAngle(rock.CrosscutAngle)) return std::nullopt;
  if (rock.Width <= 0) return std::nullopt;
  if (rock.Span <= rock.Width) return std::nullopt;

  const double side = SideOfSpan(rock.Span);
  double height = rock.Height;
  const auto topAt = [&](Single angle) { return side - 2 * height * std::tan(Radians(angle)); };
  if (topAt(rock.EntryAngle) < 0 || topAt(rock.CrosscutAngle) < 0) {
    height = MaxRockHeightIntersection(rock.Height, rock.Span, rock.EntryAngle, rock.CrosscutAngle);
  }
  const double entryTop = topAt(rock.EntryAngle);
  const double crosscutTop = topAt(rock.CrosscutAngle);
  const double volume =
      (Square(side) + crosscutTop * entryTop + (crosscutTop * side + side * entryTop) / 2) * height / 3;
  return LoadOf(volume, rock.UnitWeight, units);
}

SecondaryResults SupportEntry(Single rockLoad, const SupportSystems& systems, Integer units, const GradeBasis& basis) {
  SecondaryResults results{rockLoad, {}};
  if (const auto& cable = systems.Cable; cable && cable->Spacing != 0) {
    results.Systems[0] = Judge(Divide(static_cast<double>(cable->Capacity) * cable->Count, cable->Spacing), rockLoad);
  }
  // The standing supports' spacing decides on the trusses too: at 0 their last figures stay.
  if (const auto& truss = systems.Truss; truss && systems.StandingSpacing != 0) {
    results.Systems[1] = Judge(Divide(TrussPairCapacity(*truss), truss->Spacing), rockLoad);
  }
  if (const auto& bolts = systems.RoofBolt; bolts && bolts->Count != 0) {
    results.Systems[2] = Judge(Divide(BoltYieldCapacity(*bolts, units, basis), bolts->Spacing), rockLoad);
  }
  if (const auto& standing = systems.Standing; standing && standing->Spacing != 0) {
    results.Systems[3] =
        Judge(Divide(static_cast<double>(standing->Capacity) * standing->Count, standing->Spacing), rockLoad);
  }
  return results;
}

SecondaryResults SupportIntersection(Single rockLoad, const SupportSystems& systems, Integer units,
                                     const GradeBasis& basis) {
  SecondaryResults results{rockLoad, {}};
  if (const auto& cable = systems.Cable) {
    results.Systems[0] = Judge(static_cast<double>(cable->Capacity) * cable->Count, rockLoad);
  }
  if (const auto& truss = systems.Truss) {
    results.Systems[1] = Judge(TrussPairCapacity(*truss) * truss->Count, rockLoad);
  }
  if (const auto& bolts = systems.RoofBolt) {
    results.Systems[2] = Judge(BoltYieldCapacity(*bolts, units, basis), rockLoad);
  }
  if (const auto& standing = systems.Standing) {
    results.Systems[3] = Judge(static_cast<double>(standing->Capacity) * standing->Count, rockLoad);
  }
  return results;
}

}  // namespace orby
