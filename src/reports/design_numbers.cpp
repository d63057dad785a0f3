#include "reports/design_numbers.h"

#include <array>

#include "design/units.h"

namespace orby {
namespace {

using Unit = UnitSuffix;
using Support = SecondarySupport RoofSupport::*;

constexpr std::string_view InEntries = "entries";
constexpr std::string_view InIntersections = "intersections";

bool IsTable(const BoltSelection& set) { return set.Options == BoltSource::Table; }
bool HasListedDiameter(const BoltSelection& set) { return !IsTable(set) && set.DiameterMode == ValueSource::Standard; }
bool HasTypedDiameter(const BoltSelection& set) { return !IsTable(set) && set.DiameterMode == ValueSource::Typed; }
bool HasListedGrade(const BoltSelection& set) { return !IsTable(set) && set.GradeMode == ValueSource::Standard; }
bool HasTypedGrade(const BoltSelection& set) { return !IsTable(set) && set.GradeMode == ValueSource::Typed; }

using BoltTest = bool (*)(const BoltSelection& set);

bool IsPrimary(const RoofSupport& design) { return design.Primary.Analysed == 1; }
template <BoltTest Test>
bool PrimaryBolts(const RoofSupport& design) {
  return IsPrimary(design) && Test(design.Primary);
}

template <Support In>
bool IsAnalysed(const RoofSupport& design) {
  return (design.*In).Analysed == 1;
}
template <Support In, auto System>
bool Uses(const RoofSupport& design) {
  return IsAnalysed<In>(design) && (design.*In.*System).Use == 1;
}
template <Support In, BoltTest Test>
bool UsesBolts(const RoofSupport& design) {
  return Uses<In, &SecondarySupport::Bolt>(design) && Test((design.*In).Bolt);
}

bool IsByDiameter(const CableSelection& cable) { return cable.CapMode == CapacityMode::ByDiameter; }
bool HasListedCapacity(const CableSelection& cable) {
  return !IsByDiameter(cable) && cable.Capacity == ValueSource::Standard;
}
bool HasTypedCapacity(const CableSelection& cable) {
  return !IsByDiameter(cable) && cable.Capacity == ValueSource::Typed;
}
template <Support In, bool (*Test)(const CableSelection&)>
bool UsesCables(const RoofSupport& design) {
  return Uses<In, &SecondarySupport::Cable>(design) && Test((design.*In).Cable);
}

constexpr auto Entries = &RoofSupport::Entries;
constexpr auto Crossings = &RoofSupport::Intersections;
constexpr auto Cable = &SecondarySupport::Cable;
constexpr auto Truss = &SecondarySupport::Truss;
constexpr auto Bolts = &SecondarySupport::Bolt;
constexpr auto Standing = &SecondarySupport::Standing;

constexpr auto Numbers = std::to_array<DesignNumber>({
    {"CMRR", {}, [](auto& d) { return &d.Place.CMRR; }},
    {"Depth of Cover", {}, [](auto& d) { return &d.Place.DepthofCover; }, Unit::Length},
    {"Unit Weight of Rock", {}, [](auto& d) { return &d.Place.UnitWeight; }, Unit::UnitWeight},
    {"Sum of Intersection Diagonals", {}, [](auto& d) { return &d.Place.ActualSpanDiagonals; }, Unit::Length},
    {"Entry Width", {}, [](auto& d) { return &d.Place.EntryWidth; }, Unit::Length},

    {"Roof Bolt Length", {}, [](auto& d) { return &d.Primary.Length; }, Unit::Length, IsPrimary},
    {"Number of Roof Bolts per Row", {}, [](auto& d) { return &d.Primary.BoltsperRow; }, Unit::None, IsPrimary},
    {"Roof Bolt Row Spacing", {}, [](auto& d) { return &d.Primary.RowSpacing; }, Unit::Length, IsPrimary},
    {"Target Stability Factor", {}, [](auto& d) { return &d.Primary.StabilityFactor; }, Unit::None, IsPrimary},
    {"Roof Bolt Diameter", {}, [](auto& d) { return &d.Primary.TableDiameter; }, Unit::Diameter, PrimaryBolts<IsTable>},
    {"Roof Bolt Diameter",
     {},
     [](auto& d) { return &d.Primary.DiameterStd; },
     Unit::Diameter,
     PrimaryBolts<HasListedDiameter>},
    {"Roof Bolt Diameter",
     {},
     [](auto& d) { return &d.Primary.DiameterManual; },
     Unit::Diameter,
     PrimaryBolts<HasTypedDiameter>},
    {"Roof Bolt Grade", {}, [](auto& d) { return &d.Primary.TableGrade; }, Unit::Grade, PrimaryBolts<IsTable>},
    {"Roof Bolt Grade", {}, [](auto& d) { return &d.Primary.GradeStd; }, Unit::Grade, PrimaryBolts<HasListedGrade>},
    {"Roof Bolt Grade", {}, [](auto& d) { return &d.Primary.GradeManual; }, Unit::Grade, PrimaryBolts<HasTypedGrade>},

    {"Rock Load Height", InEntries, [](auto& d) { return &d.Entries.RockLoadHeight; }, Unit::Length,
     IsAnalysed<Entries>},
    {"Rock Fall Angle", InEntries, [](auto& d) { return &d.Entries.RockFallAngle; }, Unit::Degrees,
     IsAnalysed<Entries>},
    {"Cable Bolt Length", InEntries, [](auto& d) { return &d.Entries.Cable.Length; }, Unit::Length,
     Uses<Entries, Cable>},
    {"Cable Bolt Diameter", InEntries, [](auto& d) { return &d.Entries.Cable.Diam; }, Unit::Diameter,
     UsesCables<Entries, IsByDiameter>},
    {"Cable Bolt Capacity", InEntries, [](auto& d) { return &d.Entries.Cable.CapacityStd; }, Unit::Force,
     UsesCables<Entries, HasListedCapacity>},
    {"Cable Bolt Capacity", InEntries, [](auto& d) { return &d.Entries.Cable.CapacityManual; }, Unit::Force,
     UsesCables<Entries, HasTypedCapacity>},
    {"Number of Cable Bolts per Row", InEntries, [](auto& d) { return &d.Entries.Cable.BoltsPerRow; }, Unit::None,
     Uses<Entries, Cable>},
    {"Cable Bolt Row Spacing", InEntries, [](auto& d) { return &d.Entries.Cable.RowSpacing; }, Unit::Length,
     Uses<Entries, Cable>},
    {"Length of Angled Truss Member", InEntries, [](auto& d) { return &d.Entries.Truss.LengthMember; }, Unit::Length,
     Uses<Entries, Truss>},
    {"Truss Angle", InEntries, [](auto& d) { return &d.Entries.Truss.Angle; }, Unit::Degrees, Uses<Entries, Truss>},
    {"Truss Capacity", InEntries, [](auto& d) { return &d.Entries.Truss.Capacity; }, Unit::Force, Uses<Entries, Truss>},
    {"Truss Spacing", InEntries, [](auto& d) { return &d.Entries.Truss.Spacing; }, Unit::Length, Uses<Entries, Truss>},
    {"Number of Roof Bolts per Row", InEntries, [](auto& d) { return &d.Entries.Bolt.BoltsperRow; }, Unit::None,
     Uses<Entries, Bolts>},
    {"Roof Bolt Row Spacing", InEntries, [](auto& d) { return &d.Entries.Bolt.RowSpacing; }, Unit::Length,
     Uses<Entries, Bolts>},
    {"Roof Bolt Length", InEntries, [](auto& d) { return &d.Entries.Bolt.Length; }, Unit::Length, Uses<Entries, Bolts>},
    {"Roof Bolt Diameter", InEntries, [](auto& d) { return &d.Entries.Bolt.TableDiameter; }, Unit::Diameter,
     UsesBolts<Entries, IsTable>},
    {"Roof Bolt Diameter", InEntries, [](auto& d) { return &d.Entries.Bolt.DiameterStd; }, Unit::Diameter,
     UsesBolts<Entries, HasListedDiameter>},
    {"Roof Bolt Diameter", InEntries, [](auto& d) { return &d.Entries.Bolt.DiameterManual; }, Unit::Diameter,
     UsesBolts<Entries, HasTypedDiameter>},
    {"Roof Bolt Grade", InEntries, [](auto& d) { return &d.Entries.Bolt.TableGrade; }, Unit::Grade,
     UsesBolts<Entries, IsTable>},
    {"Roof Bolt Grade", InEntries, [](auto& d) { return &d.Entries.Bolt.GradeStd; }, Unit::Grade,
     UsesBolts<Entries, HasListedGrade>},
    {"Roof Bolt Grade", InEntries, [](auto& d) { return &d.Entries.Bolt.GradeManual; }, Unit::Grade,
     UsesBolts<Entries, HasTypedGrade>},
    {"Standing Support Capacity", InEntries, [](auto& d) { return &d.Entries.Standing.Capacity; }, Unit::Force,
     Uses<Entries, Standing>},
    {"Number of Standing Supports per Row", InEntries, [](auto& d) { return &d.Entries.Standing.NumberPerRow; },
     Unit::None, Uses<Entries, Standing>},
    {"Standing Support Row Spacing", InEntries, [](auto& d) { return &d.Entries.Standing.RowSpacing; }, Unit::Length,
     Uses<Entries, Standing>},

    {"Rock Load Height", InIntersections, [](auto& d) { return &d.Intersections.RockLoadHeight; }, Unit::Length,
     IsAnalysed<Crossings>},
    {"Rock Fall Angle (Entry)", InIntersections, [](auto& d) { return &d.Intersections.RockFallAngle; }, Unit::Degrees,
     IsAnalysed<Crossings>},
    {"Rock Fall Angle (Crosscut)", InIntersections, [](auto& d) { return &d.Intersections.RockFallAngleXcut; },
     Unit::Degrees, IsAnalysed<Crossings>},
    {"Cable Bolt Length", InIntersections, [](auto& d) { return &d.Intersections.Cable.Length; }, Unit::Length,
     Uses<Crossings, Cable>},
    {"Cable Bolt Diameter", InIntersections, [](auto& d) { return &d.Intersections.Cable.Diam; }, Unit::Diameter,
     UsesCables<Crossings, IsByDiameter>},
    {"Cable Bolt Capacity", InIntersections, [](auto& d) { return &d.Intersections.Cable.CapacityStd; }, Unit::Force,
     UsesCables<Crossings, HasListedCapacity>},
    {"Cable Bolt Capacity", InIntersections, [](auto& d) { return &d.Intersections.Cable.CapacityManual; }, Unit::Force,
     UsesCables<Crossings, HasTypedCapacity>},
    {"Number of Cable Bolts", InIntersections, [](auto& d) { return &d.Intersections.Cable.Number; }, Unit::None,
     Uses<Crossings, Cable>},
    {"Length of Angled Truss Member", InIntersections, [](auto& d) { return &d.Intersections.Truss.LengthMember; },
     Unit::Length, Uses<Crossings, Truss>},
    {"Truss Angle", InIntersections, [](auto& d) { return &d.Intersections.Truss.Angle; }, Unit::Degrees,
     Uses<Crossings, Truss>},
    {"Truss Capacity", InIntersections, [](auto& d) { return &d.Intersections.Truss.Capacity; }, Unit::Force,
     Uses<Crossings, Truss>},
    {"Number of Trusses", InIntersections, [](auto& d) { return &d.Intersections.Truss.Number; }, Unit::None,
     Uses<Crossings, Truss>},
    {"Roof Bolt Length", InIntersections, [](auto& d) { return &d.Intersections.Bolt.Length; }, Unit::Length,
     Uses<Crossings, Bolts>},
    {"Number of Roof Bolts", InIntersections, [](auto& d) { return &d.Intersections.Bolt.Number; }, Unit::None,
     Uses<Crossings, Bolts>},
    {"Roof Bolt Diameter", InIntersections, [](auto& d) { return &d.Intersections.Bolt.TableDiameter; }, Unit::Diameter,
     UsesBolts<Crossings, IsTable>},
    {"Roof Bolt Diameter", InIntersections, [](auto& d) { return &d.Intersections.Bolt.DiameterStd; }, Unit::Diameter,
     UsesBolts<Crossings, HasListedDiameter>},
    {"Roof Bolt Diameter", InIntersections, [](auto& d) { return &d.Intersections.Bolt.DiameterManual; },
     Unit::Diameter, UsesBolts<Crossings, HasTypedDiameter>},
    {"Roof Bolt Grade", InIntersections, [](auto& d) { return &d.Intersections.Bolt.TableGrade; }, Unit::Grade,
     UsesBolts<Crossings, IsTable>},
    {"Roof Bolt Grade", InIntersections, [](auto& d) { return &d.Intersections.Bolt.GradeStd; }, Unit::Grade,
     UsesBolts<Crossings, HasListedGrade>},
    {"Roof Bolt Grade", InIntersections, [](auto& d) { return &d.Intersections.Bolt.GradeManual; }, Unit::Grade,
     UsesBolts<Crossings, HasTypedGrade>},
    {"Standing Support Capacity", InIntersections, [](auto& d) { return &d.Intersections.Standing.Capacity; },
     Unit::Force, Uses<Crossings, Standing>},
    {"Number of Standing Supports", InIntersections, [](auto& d) { return &d.Intersections.Standing.Number; },
     Unit::None, Uses<Crossings, Standing>},
});

}  // namespace

std::span<const DesignNumber> DesignNumbers() { return Numbers; }

std::vector<const DesignNumber*> NumbersInUse(const RoofSupport& design) {
  std::vector<const DesignNumber*> used;
  for (const DesignNumber& number : Numbers) {
    if (number.IsUsed == nullptr || number.IsUsed(design)) used.push_back(&number);
  }
  return used;
}

std::string_view UnitOf(UnitSuffix quantity, UnitSystem units) {
  if (quantity == UnitSuffix::Degrees) return "°";
  return quantity == UnitSuffix::None ? std::string_view() : UnitName(quantity, units);
}

std::string WithUnitOf(std::string_view name, UnitSuffix quantity, UnitSystem units) {
  std::string text(name);
  if (quantity != UnitSuffix::None) text.append(" (").append(UnitOf(quantity, units)).append(")");
  return text;
}

std::string NameOf(const DesignNumber& number) {
  std::string name(number.Label);
  if (!number.Place.empty()) name.append(" (").append(number.Place).append(")");
  return name;
}

}  // namespace orby
