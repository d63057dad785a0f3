// Every field of a project that its file holds, by name, in the order of the record.
#pragma once

#include <array>
#include <string>

#include "base/number_text.h"
#include "files/record_field.h"

namespace orby::test {

struct SavedField {
  const char* name;
  RecordField field;
};

namespace saved_fields {
using R = ProjectRecord;
inline constexpr auto List =
    std::to_array<SavedField>({{"CMRR", &R::CMRR},
                               {"CMRRRegionIndex", &R::CMRRRegionIndex},
                               {"CMRRRockTypeIndex", &R::CMRRRockTypeIndex},
                               {"CMRRManual", &R::CMRRManual},
                               {"DepthofCover", &R::DepthofCover},
                               {"UnitWeight", &R::UnitWeight},
                               {"ActualSpanDiagonals", &R::ActualSpanDiagonals},
                               {"EntryWidth", &R::EntryWidth},
                               {"PrimSupport", &R::PrimSupport},
                               {"SecondSupEntries", &R::SecondSupEntries},
                               {"SecondSupInter", &R::SecondSupInter},
                               {"StabilityFactor", &R::StabilityFactor},
                               {"BoltLengthPrimary", &R::BoltLengthPrimary},
                               {"BoltOptionsPrimary", &R::BoltOptionsPrimary},
                               {"BoltTableRowPrimary", &R::BoltTableRowPrimary},
                               {"BoltTableDiameterPrimary", &R::BoltTableDiameterPrimary},
                               {"BoltTableGradePrimary", &R::BoltTableGradePrimary},
                               {"BoltDescPrimary", &R::BoltDescPrimary},
                               {"BoltDiameterModePrimary", &R::BoltDiameterModePrimary},
                               {"BoltDiameterStdPrimary", &R::BoltDiameterStdPrimary},
                               {"BoltDiameterManualPrimary", &R::BoltDiameterManualPrimary},
                               {"BoltGradeModePrimary", &R::BoltGradeModePrimary},
                               {"BoltGradeStdPrimary", &R::BoltGradeStdPrimary},
                               {"BoltGradeManualPrimary", &R::BoltGradeManualPrimary},
                               {"BoltsperRowPrimary", &R::BoltsperRowPrimary},
                               {"RowSpacingPrimary", &R::RowSpacingPrimary},
                               {"RockLoadHeight", &R::RockLoadHeight},
                               {"RockFallAngle", &R::RockFallAngle},
                               {"SecEntryUseCable", &R::SecEntryUseCable},
                               {"SecEntryUseTruss", &R::SecEntryUseTruss},
                               {"SecEntryUseBolt", &R::SecEntryUseBolt},
                               {"SecEntryUseStanding", &R::SecEntryUseStanding},
                               {"CableLengthSecEntry", &R::CableLengthSecEntry},
                               {"CableCapModeSecEntry", &R::CableCapModeSecEntry},
                               {"CableCapacitySecEntry", &R::CableCapacitySecEntry},
                               {"CableDiamSecEntry", &R::CableDiamSecEntry},
                               {"CableCapacityStdSecEntry", &R::CableCapacityStdSecEntry},
                               {"CableCapacityManualSecEntry", &R::CableCapacityManualSecEntry},
                               {"CableBoltsPerRowSecEntry", &R::CableBoltsPerRowSecEntry},
                               {"CableRowSpacingSecEntry", &R::CableRowSpacingSecEntry},
                               {"TrussLengthMemberSecEntry", &R::TrussLengthMemberSecEntry},
                               {"TrussAngleSecEntry", &R::TrussAngleSecEntry},
                               {"TrussCapacitySecEntry", &R::TrussCapacitySecEntry},
                               {"TrussSpacingSecEntry", &R::TrussSpacingSecEntry},
                               {"BoltLengthSecEntry", &R::BoltLengthSecEntry},
                               {"BoltOptionsSecEntry", &R::BoltOptionsSecEntry},
                               {"BoltTableRowSecEntry", &R::BoltTableRowSecEntry},
                               {"BoltTableDiameterSecEntry", &R::BoltTableDiameterSecEntry},
                               {"BoltTableGradeSecEntry", &R::BoltTableGradeSecEntry},
                               {"BoltDescSecEntry", &R::BoltDescSecEntry},
                               {"BoltDiameterModeSecEntry", &R::BoltDiameterModeSecEntry},
                               {"BoltDiameterStdSecEntry", &R::BoltDiameterStdSecEntry},
                               {"BoltDiameterManualSecEntry", &R::BoltDiameterManualSecEntry},
                               {"BoltGradeModeSecEntry", &R::BoltGradeModeSecEntry},
                               {"BoltGradeStdSecEntry", &R::BoltGradeStdSecEntry},
                               {"BoltGradeManualSecEntry", &R::BoltGradeManualSecEntry},
                               {"BoltsperRowSecEntry", &R::BoltsperRowSecEntry},
                               {"RowSpacingSecEntry", &R::RowSpacingSecEntry},
                               {"SupportTypeModeSecEntry", &R::SupportTypeModeSecEntry},
                               {"SupportTypeNameSecEntry", &R::SupportTypeNameSecEntry},
                               {"SupportCapSecEntry", &R::SupportCapSecEntry},
                               {"NumberSupPerRowSecEntry", &R::NumberSupPerRowSecEntry},
                               {"SupportRowSpacingSecEntry", &R::SupportRowSpacingSecEntry},
                               {"RockLoadHeightInter", &R::RockLoadHeightInter},
                               {"RockFallAngleEntry", &R::RockFallAngleEntry},
                               {"RockFallAngleXcut", &R::RockFallAngleXcut},
                               {"SecInterUseCable", &R::SecInterUseCable},
                               {"SecInterUseTruss", &R::SecInterUseTruss},
                               {"SecInterUseBolt", &R::SecInterUseBolt},
                               {"SecInterUseStanding", &R::SecInterUseStanding},
                               {"CableLengthSecInter", &R::CableLengthSecInter},
                               {"CableCapModeSecInter", &R::CableCapModeSecInter},
                               {"CableCapacitySecInter", &R::CableCapacitySecInter},
                               {"CableDiamSecInter", &R::CableDiamSecInter},
                               {"CableCapacityStdSecInter", &R::CableCapacityStdSecInter},
                               {"CableCapacityManualSecInter", &R::CableCapacityManualSecInter},
                               {"CableNumberSecInter", &R::CableNumberSecInter},
                               {"TrussLengthMemberSecInter", &R::TrussLengthMemberSecInter},
                               {"TrussAngleSecInter", &R::TrussAngleSecInter},
                               {"TrussCapacitySecInter", &R::TrussCapacitySecInter},
                               {"TrussNumberSecInter", &R::TrussNumberSecInter},
                               {"BoltLengthSecInter", &R::BoltLengthSecInter},
                               {"BoltOptionsSecInter", &R::BoltOptionsSecInter},
                               {"BoltTableRowSecInter", &R::BoltTableRowSecInter},
                               {"BoltTableDiameterSecInter", &R::BoltTableDiameterSecInter},
                               {"BoltTableGradeSecInter", &R::BoltTableGradeSecInter},
                               {"BoltDescSecInter", &R::BoltDescSecInter},
                               {"BoltDiameterModeSecInter", &R::BoltDiameterModeSecInter},
                               {"BoltDiameterStdSecInter", &R::BoltDiameterStdSecInter},
                               {"BoltDiameterManualSecInter", &R::BoltDiameterManualSecInter},
                               {"BoltGradeModeSecInter", &R::BoltGradeModeSecInter},
                               {"BoltGradeStdSecInter", &R::BoltGradeStdSecInter},
                               {"BoltGradeManualSecInter", &R::BoltGradeManualSecInter},
                               {"BoltNumberSecInter", &R::BoltNumberSecInter},
                               {"SupportTypeModeSecInter", &R::SupportTypeModeSecInter},
                               {"SupportTypeNameSecInter", &R::SupportTypeNameSecInter},
                               {"SupportCapSecInter", &R::SupportCapSecInter},
                               {"SupportNumberSecInter", &R::SupportNumberSecInter},
                               {"CostBoltCost", &R::CostBoltCost},
                               {"CostPlateCost", &R::CostPlateCost},
                               {"CostResinCost", &R::CostResinCost},
                               {"CostBitCost", &R::CostBitCost},
                               {"CostHeaderCost", &R::CostHeaderCost},
                               {"CostStrapCost", &R::CostStrapCost},
                               {"CostNboltsShift", &R::CostNboltsShift},
                               {"CostNBoltsRow", &R::CostNBoltsRow},
                               {"CostRowSpacing", &R::CostRowSpacing},
                               {"CostNOperShift", &R::CostNOperShift},
                               {"CostTotalLabor", &R::CostTotalLabor},
                               {"CostHoursShift", &R::CostHoursShift},
                               {"CostMaintainHrs", &R::CostMaintainHrs},
                               {"CostMaintainCost", &R::CostMaintainCost},
                               {"CostTranspCost", &R::CostTranspCost},
                               {"CostCapitalCost", &R::CostCapitalCost},
                               {"CostYearsDepr", &R::CostYearsDepr},
                               {"CostAdvanceShift", &R::CostAdvanceShift},
                               {"CostAdvance", &R::CostAdvance},
                               {"CostAdvanceRate", &R::CostAdvanceRate},
                               {"CostCleanProduction", &R::CostCleanProduction},
                               {"CostProduction", &R::CostProduction},
                               {"CostShiftsWeek", &R::CostShiftsWeek},
                               {"CostWeeksYear", &R::CostWeeksYear}});
}  // namespace saved_fields

inline constexpr const auto& SavedFields = saved_fields::List;

inline std::string ValueText(const ProjectRecord& record, const RecordField& field) {
  if (const auto* integer = std::get_if<IntegerField>(&field)) return NumberText(record.**integer);
  if (const auto* single = std::get_if<SingleField>(&field)) return NumberText(record.**single);
  return record.*std::get<TextField>(field);
}

inline std::string ValueOf(const ProjectRecord& record, const std::string& name) {
  for (const auto& saved : SavedFields) {
    if (name == saved.name) return ValueText(record, saved.field);
  }
  return "no such field: " + name;
}

}  // namespace orby::test
