// The design of one place as a value: geology and layout, primary bolts, secondary support of entries and
// intersections, and the cost of bolting.
//
// English (Metric) units, by the unit system of the design: lengths ft (m), stresses ksi (MPa), forces tons (kN), line
// loads tons/ft (kN/m), diameters in (mm), unit weight pcf (kN/m3). Angles are degrees. Flags are 0 and 1.
// They are Integers, because another number that a file gives is kept, and written back.
#pragma once

#include <array>
#include <limits>
#include <string>

#include "base/types.h"
#include "design/units.h"

namespace orby {

// Choices, by their numbers in a project file. Another number that a file gives is kept, and written back.
enum class BoltSource : Integer { Table, Manual };
enum class ValueSource : Integer { Standard, Typed };
enum class CapacityMode : Integer { ByDiameter, Given };

// Marks a typed number that is outside the range of a Single.
inline constexpr Single Unfit = std::numeric_limits<Single>::quiet_NaN();
constexpr bool IsUnfit(Single value) { return value != value; }

// Geology and layout.
struct Site {
  Single CMRR = 0;  // Coal Mine Roof Rating, 0..100; a whole number in a committed design
  Integer CMRRRegionIndex = 0;
  Integer CMRRRockTypeIndex = 0;
  Integer CMRRManual = 0;  // 1: the rating was typed; 0: it comes from the estimator
  Single DepthofCover = 0;
  Single UnitWeight = 0;
  Single ActualSpanDiagonals = 0;  // sum of the two diagonals of the intersection
  Single EntryWidth = 0;
  bool operator==(const Site&) const = default;
};

// A set of roof bolts and their pattern.
struct BoltSelection {
  Single Length = 0;
  BoltSource Options = BoltSource::Table;
  Integer TableRow = 0;  // zero-based row of the standard table
  Single TableDiameter = 0;
  Single TableGrade = 0;
  std::string Desc;
  ValueSource DiameterMode = ValueSource::Standard;  // of a manual selection, as is the grade's
  Single DiameterStd = 0;
  Single DiameterManual = 0;
  ValueSource GradeMode = ValueSource::Standard;
  Single GradeStd = 0;
  Single GradeManual = 0;
  Single BoltsperRow = 0;  // entries
  Single RowSpacing = 0;   // entries
  Single Number = 0;       // intersections: bolts in the whole intersection
  bool operator==(const BoltSelection&) const = default;
};

struct PrimarySupport : BoltSelection {
  Integer Analysed = 0;
  Single StabilityFactor = 0;
  bool operator==(const PrimarySupport&) const = default;
};

// One kind of secondary support: whether it is used, and the results that the dialog last computed for it.
struct SupportSystem {
  Integer Use = 0;
  Single SupportCap = 0;
  Single StabFactor = 0;
  bool operator==(const SupportSystem&) const = default;
};

struct CableSelection : SupportSystem {
  Single Length = 0;
  CapacityMode CapMode = CapacityMode::ByDiameter;
  ValueSource Capacity = ValueSource::Standard;  // of a given capacity
  Single Diam = 0;
  Single CapacityStd = 0;
  Single CapacityManual = 0;
  Single BoltsPerRow = 0;  // entries
  Single RowSpacing = 0;   // entries
  Single Number = 0;       // intersections
  bool operator==(const CableSelection&) const = default;
};

struct TrussSelection : SupportSystem {
  Single LengthMember = 0;
  Single Angle = 0;
  Single Capacity = 0;
  Single Spacing = 0;  // entries
  Single Number = 0;   // intersections
  bool operator==(const TrussSelection&) const = default;
};

struct SecondaryBolts : SupportSystem, BoltSelection {
  bool operator==(const SecondaryBolts&) const = default;
};

struct StandingSelection : SupportSystem {
  ValueSource TypeMode = ValueSource::Standard;
  std::string TypeName;
  Single Capacity = 0;
  Single NumberPerRow = 0;  // entries
  Single RowSpacing = 0;    // entries
  Single Number = 0;        // intersections
  bool operator==(const StandingSelection&) const = default;
};

// Cable bolts, trusses, roof bolts, standing supports.
inline constexpr std::size_t SystemCount = 4;

// Secondary support of entries or of intersections. That of entries is placed in rows, that of intersections is a
// number of units.
struct SecondarySupport {
  Integer Analysed = 0;
  Single RockLoadHeight = 0;
  Single RockFallAngle = 0;      // along the entry
  Single RockFallAngleXcut = 0;  // intersections: along the crosscut
  Single RockLoad = 0;           // last computed by the dialog
  CableSelection Cable;
  TrussSelection Truss;
  SecondaryBolts Bolt;
  StandingSelection Standing;
  bool operator==(const SecondarySupport&) const = default;

  // The four systems, in the order of their tabs.
  std::array<SupportSystem*, SystemCount> Systems() { return {&Cable, &Truss, &Bolt, &Standing}; }
  std::array<const SupportSystem*, SystemCount> Systems() const { return {&Cable, &Truss, &Bolt, &Standing}; }
};

// Cost of one bolting operation, in dollars and in the lengths of the project.
struct CostInputs {
  Single BoltCost = 0;
  Single PlateCost = 0;
  Single ResinCost = 0;
  Single BitCost = 0;
  Single HeaderCost = 0;
  Single StrapCost = 0;
  Single NboltsShift = 0;
  Single NBoltsRow = 0;
  Single RowSpacing = 0;
  Single NOperShift = 0;
  Single TotalLabor = 0;
  Single HoursShift = 0;
  Single MaintainHrs = 0;
  Single MaintainCost = 0;
  Single TranspCost = 0;
  Single CapitalCost = 0;
  Single YearsDepr = 0;
  Single AdvanceShift = 0;
  Integer Advance = 0;
  Single AdvanceRate = 0;
  Single CleanProduction = 0;
  Integer Production = 0;
  Single ShiftsWeek = 0;
  Single WeeksYear = 0;
  bool operator==(const CostInputs&) const = default;
};

// The inputs of the calculations of the report. A preview copies these, but not the cost.
struct RoofSupport {
  UnitSystem Units = English;
  StrengthBasis Basis = StrengthBasis::Yield;
  Site Place;
  PrimarySupport Primary;
  SecondarySupport Entries;
  SecondarySupport Intersections;
  bool operator==(const RoofSupport&) const = default;

  std::array<BoltSelection*, 3> BoltSets() { return {&Primary, &Entries.Bolt, &Intersections.Bolt}; }
  std::array<const BoltSelection*, 3> BoltSets() const { return {&Primary, &Entries.Bolt, &Intersections.Bolt}; }
};

struct Design : RoofSupport {
  CostInputs Cost;
  bool operator==(const Design&) const = default;

  RoofSupport& Support() { return *this; }
  const RoofSupport& Support() const { return *this; }
};

// The diameter and grade that a bolt set selects, in the units of the project.
struct Bolt {
  Single Diameter = 0;
  Single Grade = 0;
};
Bolt SelectedBolt(const BoltSelection& set);

}  // namespace orby
