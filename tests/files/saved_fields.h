// All fields of a project that its file contains, by name, in the order of the record.
#pragma once

#include <array>
#include <string>

#include "base/number_text.h"
#include "design/field.h"

namespace orby::test {

struct SavedField {
  const char* name;
  AnyField field;
};

namespace saved_fields {
using R = Design;
inline constexpr auto List = std::to_array<SavedField>(
    {{"CMRR", [](auto& d) { return &d.Place.CMRR; }},
     {"CMRRRegionIndex", [](auto& d) { return &d.Place.CMRRRegionIndex; }},
     {"CMRRRockTypeIndex", [](auto& d) { return &d.Place.CMRRRockTypeIndex; }},
     {"CMRRManual", [](auto& d) { return &d.Place.CMRRManual; }},
     {"DepthofCover", [](auto& d) { return &d.Place.DepthofCover; }},
     {"UnitWeight", [](auto& d) { return &d.Place.UnitWeight; }},
     {"ActualSpanDiagonals", [](auto& d) { return &d.Place.ActualSpanDiagonals; }},
     {"EntryWidth", [](auto& d) { return &d.Place.EntryWidth; }},
     {"PrimSupport", [](auto& d) { return &d.Primary.Analysed; }},
     {"SecondSupEntries", [](auto& d) { return &d.Entries.Analysed; }},
     {"SecondSupInter", [](auto& d) { return &d.Intersections.Analysed; }},
     {"StabilityFactor", [](auto& d) { return &d.Primary.StabilityFactor; }},
     {"BoltLengthPrimary", [](auto& d) { return &d.Primary.Length; }},
     {"BoltOptionsPrimary", [](auto& d) { return &d.Primary.Options; }},
     {"BoltTableRowPrimary", [](auto& d) { return &d.Primary.TableRow; }},
     {"BoltTableDiameterPrimary", [](auto& d) { return &d.Primary.TableDiameter; }},
     {"BoltTableGradePrimary", [](auto& d) { return &d.Primary.TableGrade; }},
     {"BoltDescPrimary", [](auto& d) { return &d.Primary.Desc; }},
     {"BoltDiameterModePrimary", [](auto& d) { return &d.Primary.DiameterMode; }},
     {"BoltDiameterStdPrimary", [](auto& d) { return &d.Primary.DiameterStd; }},
     {"BoltDiameterManualPrimary", [](auto& d) { return &d.Primary.DiameterManual; }},
     {"BoltGradeModePrimary", [](auto& d) { return &d.Primary.GradeMode; }},
     {"BoltGradeStdPrimary", [](auto& d) { return &d.Primary.GradeStd; }},
     {"BoltGradeManualPrimary", [](auto& d) { return &d.Primary.GradeManual; }},
     {"BoltsperRowPrimary", [](auto& d) { return &d.Primary.BoltsperRow; }},
     {"RowSpacingPrimary", [](auto& d) { return &d.Primary.RowSpacing; }},
     {"RockLoadHeight", [](auto& d) { return &d.Entries.RockLoadHeight; }},
     {"RockFallAngle", [](auto& d) { return &d.Entries.RockFallAngle; }},
     {"SecEntryUseCable", [](auto& d) { return &d.Entries.Cable.Use; }},
     {"SecEntryUseTruss", [](auto& d) { return &d.Entries.Truss.Use; }},
     {"SecEntryUseBolt", [](auto& d) { return &d.Entries.Bolt.Use; }},
     {"SecEntryUseStanding", [](auto& d) { return &d.Entries.Standing.Use; }},
     {"CableLengthSecEntry", [](auto& d) { return &d.Entries.Cable.Length; }},
     {"CableCapModeSecEntry", [](auto& d) { return &d.Entries.Cable.CapMode; }},
     {"CableCapacitySecEntry", [](auto& d) { return &d.Entries.Cable.Capacity; }},
     {"CableDiamSecEntry", [](auto& d) { return &d.Entries.Cable.Diam; }},
     {"CableCapacityStdSecEntry", [](auto& d) { return &d.Entries.Cable.CapacityStd; }},
     {"CableCapacityManualSecEntry", [](auto& d) { return &d.Entries.Cable.CapacityManual; }},
     {"CableBoltsPerRowSecEntry", [](auto& d) { return &d.Entries.Cable.BoltsPerRow; }},
     {"CableRowSpacingSecEntry", [](auto& d) { return &d.Entries.Cable.RowSpacing; }},
     {"TrussLengthMemberSecEntry", [](auto& d) { return &d.Entries.Truss.LengthMember; }},
     {"TrussAngleSecEntry", [](auto& d) { return &d.Entries.Truss.Angle; }},
     {"TrussCapacitySecEntry", [](auto& d) { return &d.Entries.Truss.Capacity; }},
     {"TrussSpacingSecEntry", [](auto& d) { return &d.Entries.Truss.Spacing; }},
     {"BoltLengthSecEntry", [](auto& d) { return &d.Entries.Bolt.Length; }},
     {"BoltOptionsSecEntry", [](auto& d) { return &d.Entries.Bolt.Options; }},
     {"BoltTableRowSecEntry", [](auto& d) { return &d.Entries.Bolt.TableRow; }},
     {"BoltTableDiameterSecEntry", [](auto& d) { return &d.Entries.Bolt.TableDiameter; }},
     {"BoltTableGradeSecEntry", [](auto& d) { return &d.Entries.Bolt.TableGrade; }},
     {"BoltDescSecEntry", [](auto& d) { return &d.Entries.Bolt.Desc; }},
     {"BoltDiameterModeSecEntry", [](auto& d) { return &d.Entries.Bolt.DiameterMode; }},
     {"BoltDiameterStdSecEntry", [](auto& d) { return &d.Entries.Bolt.DiameterStd; }},
     {"BoltDiameterManualSecEntry", [](auto& d) { return &d.Entries.Bolt.DiameterManual; }},
     {"BoltGradeModeSecEntry", [](auto& d) { return &d.Entries.Bolt.GradeMode; }},
     {"BoltGradeStdSecEntry", [](auto& d) { return &d.Entries.Bolt.GradeStd; }},
     {"BoltGradeManualSecEntry", [](auto& d) { return &d.Entries.Bolt.GradeManual; }},
     {"BoltsperRowSecEntry", [](auto& d) { return &d.Entries.Bolt.BoltsperRow; }},
     {"RowSpacingSecEntry", [](auto& d) { return &d.Entries.Bolt.RowSpacing; }},
     {"SupportTypeModeSecEntry", [](auto& d) { return &d.Entries.Standing.TypeMode; }},
     {"SupportTypeNameSecEntry", [](auto& d) { return &d.Entries.Standing.TypeName; }},
     {"SupportCapSecEntry", [](auto& d) { return &d.Entries.Standing.Capacity; }},
     {"NumberSupPerRowSecEntry", [](auto& d) { return &d.Entries.Standing.NumberPerRow; }},
     {"SupportRowSpacingSecEntry", [](auto& d) { return &d.Entries.Standing.RowSpacing; }},
     {"RockLoadHeightInter", [](auto& d) { return &d.Intersections.RockLoadHeight; }},
     {"RockFallAngleEntry", [](auto& d) { return &d.Intersections.RockFallAngle; }},
     {"RockFallAngleXcut", [](auto& d) { return &d.Intersections.RockFallAngleXcut; }},
     {"SecInterUseCable", [](auto& d) { return &d.Intersections.Cable.Use; }},
     {"SecInterUseTruss", [](auto& d) { return &d.Intersections.Truss.Use; }},
     {"SecInterUseBolt", [](auto& d) { return &d.Intersections.Bolt.Use; }},
     {"SecInterUseStanding", [](auto& d) { return &d.Intersections.Standing.Use; }},
     {"CableLengthSecInter", [](auto& d) { return &d.Intersections.Cable.Length; }},
     {"CableCapModeSecInter", [](auto& d) { return &d.Intersections.Cable.CapMode; }},
     {"CableCapacitySecInter", [](auto& d) { return &d.Intersections.Cable.Capacity; }},
     {"CableDiamSecInter", [](auto& d) { return &d.Intersections.Cable.Diam; }},
     {"CableCapacityStdSecInter", [](auto& d) { return &d.Intersections.Cable.CapacityStd; }},
     {"CableCapacityManualSecInter", [](auto& d) { return &d.Intersections.Cable.CapacityManual; }},
     {"CableNumberSecInter", [](auto& d) { return &d.Intersections.Cable.Number; }},
     {"TrussLengthMemberSecInter", [](auto& d) { return &d.Intersections.Truss.LengthMember; }},
     {"TrussAngleSecInter", [](auto& d) { return &d.Intersections.Truss.Angle; }},
     {"TrussCapacitySecInter", [](auto& d) { return &d.Intersections.Truss.Capacity; }},
     {"TrussNumberSecInter", [](auto& d) { return &d.Intersections.Truss.Number; }},
     {"BoltLengthSecInter", [](auto& d) { return &d.Intersections.Bolt.Length; }},
     {"BoltOptionsSecInter", [](auto& d) { return &d.Intersections.Bolt.Options; }},
     {"BoltTableRowSecInter", [](auto& d) { return &d.Intersections.Bolt.TableRow; }},
     {"BoltTableDiameterSecInter", [](auto& d) { return &d.Intersections.Bolt.TableDiameter; }},
     {"BoltTableGradeSecInter", [](auto& d) { return &d.Intersections.Bolt.TableGrade; }},
     {"BoltDescSecInter", [](auto& d) { return &d.Intersections.Bolt.Desc; }},
     {"BoltDiameterModeSecInter", [](auto& d) { return &d.Intersections.Bolt.DiameterMode; }},
     {"BoltDiameterStdSecInter", [](auto& d) { return &d.Intersections.Bolt.DiameterStd; }},
     {"BoltDiameterManualSecInter", [](auto& d) { return &d.Intersections.Bolt.DiameterManual; }},
     {"BoltGradeModeSecInter", [](auto& d) { return &d.Intersections.Bolt.GradeMode; }},
     {"BoltGradeStdSecInter", [](auto& d) { return &d.Intersections.Bolt.GradeStd; }},
     {"BoltGradeManualSecInter", [](auto& d) { return &d.Intersections.Bolt.GradeManual; }},
     {"BoltNumberSecInter", [](auto& d) { return &d.Intersections.Bolt.Number; }},
     {"SupportTypeModeSecInter", [](auto& d) { return &d.Intersections.Standing.TypeMode; }},
     {"SupportTypeNameSecInter", [](auto& d) { return &d.Intersections.Standing.TypeName; }},
     {"SupportCapSecInter", [](auto& d) { return &d.Intersections.Standing.Capacity; }},
     {"SupportNumberSecInter", [](auto& d) { return &d.Intersections.Standing.Number; }},
     {"CostBoltCost", [](auto& d) { return &d.Cost.BoltCost; }},
     {"CostPlateCost", [](auto& d) { return &d.Cost.PlateCost; }},
     {"CostResinCost", [](auto& d) { return &d.Cost.ResinCost; }},
     {"CostBitCost", [](auto& d) { return &d.Cost.BitCost; }},
     {"CostHeaderCost", [](auto& d) { return &d.Cost.HeaderCost; }},
     {"CostStrapCost", [](auto& d) { return &d.Cost.StrapCost; }},
     {"CostNboltsShift", [](auto& d) { return &d.Cost.NboltsShift; }},
     {"CostNBoltsRow", [](auto& d) { return &d.Cost.NBoltsRow; }},
     {"CostRowSpacing", [](auto& d) { return &d.Cost.RowSpacing; }},
     {"CostNOperShift", [](auto& d) { return &d.Cost.NOperShift; }},
     {"CostTotalLabor", [](auto& d) { return &d.Cost.TotalLabor; }},
     {"CostHoursShift", [](auto& d) { return &d.Cost.HoursShift; }},
     {"CostMaintainHrs", [](auto& d) { return &d.Cost.MaintainHrs; }},
     {"CostMaintainCost", [](auto& d) { return &d.Cost.MaintainCost; }},
     {"CostTranspCost", [](auto& d) { return &d.Cost.TranspCost; }},
     {"CostCapitalCost", [](auto& d) { return &d.Cost.CapitalCost; }},
     {"CostYearsDepr", [](auto& d) { return &d.Cost.YearsDepr; }},
     {"CostAdvanceShift", [](auto& d) { return &d.Cost.AdvanceShift; }},
     {"CostAdvance", [](auto& d) { return &d.Cost.Advance; }},
     {"CostAdvanceRate", [](auto& d) { return &d.Cost.AdvanceRate; }},
     {"CostCleanProduction", [](auto& d) { return &d.Cost.CleanProduction; }},
     {"CostProduction", [](auto& d) { return &d.Cost.Production; }},
     {"CostShiftsWeek", [](auto& d) { return &d.Cost.ShiftsWeek; }},
     {"CostWeeksYear", [](auto& d) { return &d.Cost.WeeksYear; }}});
}  // namespace saved_fields

inline constexpr const auto& SavedFields = saved_fields::List;

inline std::string ValueText(const Design& record, const AnyField& field) {
  if (const auto* integer = std::get_if<IntegerField>(&field)) return NumberText(integer->Get(record));
  if (const auto* single = std::get_if<SingleField>(&field)) return NumberText(single->In(record));
  return std::get<TextField>(field).In(record);
}

inline std::string ValueOf(const Design& record, const std::string& name) {
  for (const auto& saved : SavedFields) {
    if (name == saved.name) return ValueText(record, saved.field);
  }
  return "no such field: " + name;
}

}  // namespace orby::test
