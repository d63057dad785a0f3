// All numbers of one roof support design.
//
// Lengths are ft (m), stresses ksi (MPa), forces tons (kN), line loads tons/ft (kN/m), diameters in (mm), unit weight
// pcf (kN/m3), angles degrees: English (Metric), as the project's unit system says. Flags are 0 and 1.
#pragma once

#include <string>

#include "base/types.h"

namespace orby {

// Geology and layout.
struct GeologyGroup {
  Integer CMRR = 0;  // Coal Mine Roof Rating, 0..100
  Integer CMRRRegionIndex = 0;
  Integer CMRRRockTypeIndex = 0;
  Integer CMRRManual = 0;  // 1: the rating is typed, 0: it comes from the estimator
  Single DepthofCover = 0;
  Single UnitWeight = 0;
  Single ActualSpanDiagonals = 0;  // sum of the two diagonals of the intersection
  Single EntryWidth = 0;
  Integer PrimSupport = 0;  // 1: primary support is analysed
  Integer SecondSupEntries = 0;
  Integer SecondSupInter = 0;
  bool operator==(const GeologyGroup&) const = default;
};

// Primary support: the roof bolt pattern.
struct PrimaryGroup {
  Single StabilityFactor = 0;
  Single BoltLengthPrimary = 0;
  Integer BoltOptionsPrimary = 0;   // 0 from the standard table, 1 manual selection
  Integer BoltTableRowPrimary = 0;  // zero-based row of the standard table
  Single BoltTableDiameterPrimary = 0;
  Single BoltTableGradePrimary = 0;
  std::string BoltDescPrimary;
  Integer BoltDiameterModePrimary = 0;  // manual selection: 0 standard list, 1 typed
  Single BoltDiameterStdPrimary = 0;
  Single BoltDiameterManualPrimary = 0;
  Integer BoltGradeModePrimary = 0;
  Single BoltGradeStdPrimary = 0;
  Single BoltGradeManualPrimary = 0;
  Single BoltsperRowPrimary = 0;
  Single RowSpacingPrimary = 0;
  bool operator==(const PrimaryGroup&) const = default;
};

// Secondary support in entries. Loads, capacities and stability factors are what the dialog last computed.
struct EntryGroup {
  Single RockLoadHeight = 0;
  Single RockFallAngle = 0;
  Single RockLoadEntry1 = 0;
  Integer SecEntryUseCable = 0;
  Integer SecEntryUseTruss = 0;
  Integer SecEntryUseBolt = 0;
  Integer SecEntryUseStanding = 0;
  Single CableLengthSecEntry = 0;
  Integer CableCapModeSecEntry = 0;   // 0 capacity by diameter, 1 given
  Integer CableCapacitySecEntry = 0;  // given: 0 the standard value, 1 the typed one
  Single CableDiamSecEntry = 0;
  Single CableCapacityStdSecEntry = 0;
  Single CableCapacityManualSecEntry = 0;
  Single CableBoltsPerRowSecEntry = 0;
  Single CableRowSpacingSecEntry = 0;
  Single SupportCapEntry1 = 0;
  Single StabFactorEntry1 = 0;
  Single TrussLengthMemberSecEntry = 0;
  Single TrussAngleSecEntry = 0;
  Single TrussCapacitySecEntry = 0;
  Single TrussSpacingSecEntry = 0;
  Single SupportCapEntry2 = 0;
  Single StabFactorEntry2 = 0;
  Single BoltLengthSecEntry = 0;
  Integer BoltOptionsSecEntry = 0;
  Integer BoltTableRowSecEntry = 0;
  Single BoltTableDiameterSecEntry = 0;
  Single BoltTableGradeSecEntry = 0;
  std::string BoltDescSecEntry;
  Integer BoltDiameterModeSecEntry = 0;
  Single BoltDiameterStdSecEntry = 0;
  Single BoltDiameterManualSecEntry = 0;
  Integer BoltGradeModeSecEntry = 0;
  Single BoltGradeStdSecEntry = 0;
  Single BoltGradeManualSecEntry = 0;
  Single BoltsperRowSecEntry = 0;
  Single RowSpacingSecEntry = 0;
  Single SupportCapEntry3 = 0;
  Single StabFactorEntry3 = 0;
  Integer SupportTypeModeSecEntry = 0;  // standing support: 0 from the catalog, 1 typed
  std::string SupportTypeNameSecEntry;
  Single SupportCapSecEntry = 0;
  Single NumberSupPerRowSecEntry = 0;
  Single SupportRowSpacingSecEntry = 0;
  Single SupportCapEntry4 = 0;
  Single StabFactorEntry4 = 0;
  bool operator==(const EntryGroup&) const = default;
};

// Secondary support in intersections, sized by the number of units in the whole intersection.
struct IntersectionGroup {
  Single RockLoadHeightInter = 0;
  Single RockFallAngleEntry = 0;
  Single RockFallAngleXcut = 0;
  Single RockLoadInter1 = 0;
  Integer SecInterUseCable = 0;
  Integer SecInterUseTruss = 0;
  Integer SecInterUseBolt = 0;
  Integer SecInterUseStanding = 0;
  Single CableLengthSecInter = 0;
  Integer CableCapModeSecInter = 0;
  Integer CableCapacitySecInter = 0;
  Single CableDiamSecInter = 0;
  Single CableCapacityStdSecInter = 0;
  Single CableCapacityManualSecInter = 0;
  Single CableNumberSecInter = 0;
  Single SupportCapInter1 = 0;
  Single StabFactorInter1 = 0;
  Single TrussLengthMemberSecInter = 0;
  Single TrussAngleSecInter = 0;
  Single TrussCapacitySecInter = 0;
  Single TrussNumberSecInter = 0;
  Single SupportCapInter2 = 0;
  Single StabFactorInter2 = 0;
  Single BoltLengthSecInter = 0;
  Integer BoltOptionsSecInter = 0;
  Integer BoltTableRowSecInter = 0;
  Single BoltTableDiameterSecInter = 0;
  Single BoltTableGradeSecInter = 0;
  std::string BoltDescSecInter;
  Integer BoltDiameterModeSecInter = 0;
  Single BoltDiameterStdSecInter = 0;
  Single BoltDiameterManualSecInter = 0;
  Integer BoltGradeModeSecInter = 0;
  Single BoltGradeStdSecInter = 0;
  Single BoltGradeManualSecInter = 0;
  Single BoltNumberSecInter = 0;
  Single SupportCapInter3 = 0;
  Single StabFactorInter3 = 0;
  Integer SupportTypeModeSecInter = 0;
  std::string SupportTypeNameSecInter;
  Single SupportCapSecInter = 0;
  Single SupportNumberSecInter = 0;
  Single SupportCapInter4 = 0;
  Single StabFactorInter4 = 0;
  bool operator==(const IntersectionGroup&) const = default;
};

// Cost of one bolting operation, in dollars and the project's lengths.
struct CostGroup {
  Single CostBoltCost = 0;
  Single CostPlateCost = 0;
  Single CostResinCost = 0;
  Single CostBitCost = 0;
  Single CostHeaderCost = 0;
  Single CostStrapCost = 0;
  Single CostNboltsShift = 0;
  Single CostNBoltsRow = 0;
  Single CostRowSpacing = 0;
  Single CostNOperShift = 0;
  Single CostTotalLabor = 0;
  Single CostHoursShift = 0;
  Single CostMaintainHrs = 0;
  Single CostMaintainCost = 0;
  Single CostTranspCost = 0;
  Single CostCapitalCost = 0;
  Single CostYearsDepr = 0;
  Single CostAdvanceShift = 0;
  Integer CostAdvance = 0;
  Single CostAdvanceRate = 0;
  Single CostCleanProduction = 0;
  Integer CostProduction = 0;
  Single CostShiftsWeek = 0;
  Single CostWeeksYear = 0;
};

// The four groups that a preview of results copies between records; the cost group takes no part in it.
struct DesignGroups : GeologyGroup, PrimaryGroup, EntryGroup, IntersectionGroup {
  bool operator==(const DesignGroups&) const = default;
};

struct ProjectRecord : DesignGroups, CostGroup {
  DesignGroups& Design() { return *this; }
  const DesignGroups& Design() const { return *this; }
  CostGroup& Cost() { return *this; }
};

// Where one bolt set lives in the record. The three sets share every rule.
struct BoltFields {
  Single ProjectRecord::*Length;
  Integer ProjectRecord::*Options;
  Integer ProjectRecord::*TableRow;
  Single ProjectRecord::*TableDiameter;
  Single ProjectRecord::*TableGrade;
  std::string ProjectRecord::*Desc;
  Integer ProjectRecord::*DiameterMode;
  Single ProjectRecord::*DiameterStd;
  Single ProjectRecord::*DiameterManual;
  Integer ProjectRecord::*GradeMode;
  Single ProjectRecord::*GradeStd;
  Single ProjectRecord::*GradeManual;
};

inline constexpr BoltFields PrimaryBolt{
    &ProjectRecord::BoltLengthPrimary,         &ProjectRecord::BoltOptionsPrimary,
    &ProjectRecord::BoltTableRowPrimary,       &ProjectRecord::BoltTableDiameterPrimary,
    &ProjectRecord::BoltTableGradePrimary,     &ProjectRecord::BoltDescPrimary,
    &ProjectRecord::BoltDiameterModePrimary,   &ProjectRecord::BoltDiameterStdPrimary,
    &ProjectRecord::BoltDiameterManualPrimary, &ProjectRecord::BoltGradeModePrimary,
    &ProjectRecord::BoltGradeStdPrimary,       &ProjectRecord::BoltGradeManualPrimary};

inline constexpr BoltFields SecEntryBolt{
    &ProjectRecord::BoltLengthSecEntry,         &ProjectRecord::BoltOptionsSecEntry,
    &ProjectRecord::BoltTableRowSecEntry,       &ProjectRecord::BoltTableDiameterSecEntry,
    &ProjectRecord::BoltTableGradeSecEntry,     &ProjectRecord::BoltDescSecEntry,
    &ProjectRecord::BoltDiameterModeSecEntry,   &ProjectRecord::BoltDiameterStdSecEntry,
    &ProjectRecord::BoltDiameterManualSecEntry, &ProjectRecord::BoltGradeModeSecEntry,
    &ProjectRecord::BoltGradeStdSecEntry,       &ProjectRecord::BoltGradeManualSecEntry};

inline constexpr BoltFields SecInterBolt{
    &ProjectRecord::BoltLengthSecInter,         &ProjectRecord::BoltOptionsSecInter,
    &ProjectRecord::BoltTableRowSecInter,       &ProjectRecord::BoltTableDiameterSecInter,
    &ProjectRecord::BoltTableGradeSecInter,     &ProjectRecord::BoltDescSecInter,
    &ProjectRecord::BoltDiameterModeSecInter,   &ProjectRecord::BoltDiameterStdSecInter,
    &ProjectRecord::BoltDiameterManualSecInter, &ProjectRecord::BoltGradeModeSecInter,
    &ProjectRecord::BoltGradeStdSecInter,       &ProjectRecord::BoltGradeManualSecInter};

// The diameter and grade that a bolt set stands for, in the project's units.
struct Bolt {
  Single Diameter = 0;
  Single Grade = 0;
};
Bolt SelectedBolt(const ProjectRecord& record, const BoltFields& set);

// Where the cable selection of entries or intersections lives in the record.
struct CableFields {
  Single ProjectRecord::*Length;
  Integer ProjectRecord::*CapMode;
  Integer ProjectRecord::*Capacity;
  Single ProjectRecord::*Diam;
  Single ProjectRecord::*CapacityStd;
  Single ProjectRecord::*CapacityManual;
};

inline constexpr CableFields SecEntryCable{
    &ProjectRecord::CableLengthSecEntry,      &ProjectRecord::CableCapModeSecEntry,
    &ProjectRecord::CableCapacitySecEntry,    &ProjectRecord::CableDiamSecEntry,
    &ProjectRecord::CableCapacityStdSecEntry, &ProjectRecord::CableCapacityManualSecEntry};

inline constexpr CableFields SecInterCable{
    &ProjectRecord::CableLengthSecInter,      &ProjectRecord::CableCapModeSecInter,
    &ProjectRecord::CableCapacitySecInter,    &ProjectRecord::CableDiamSecInter,
    &ProjectRecord::CableCapacityStdSecInter, &ProjectRecord::CableCapacityManualSecInter};

}  // namespace orby
