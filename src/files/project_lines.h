// The project file as a table: one entry for each of its data lines, walked by the reader and the writer alike.
//
// A file is its header (label, units, strength mode, table choice, title), the description between its two markers,
// and the data lines in the order below. The position of a line says which field it holds.
#pragma once

#include <array>
#include <string_view>

#include "files/record_field.h"

namespace orby {

// The labels of the first line. Files with the oldest one are refused.
inline constexpr std::array<std::string_view, 5> FileVersionNames{"ORBY_101", "ORBY_102", "ORBY_103", "ORBY_104",
                                                                  "ORBY_105"};
inline constexpr Integer CurrentFileVersion = 4;  // index of the label that is written

// Numbers of the file formats: one less than the number in the label.
inline constexpr Integer Version102 = 101;
inline constexpr Integer Version103 = 102;
inline constexpr Integer Version104 = 103;
inline constexpr Integer Version105 = 104;

enum class LineForm {
  Plain,   // a number as it is, or a text item
  Padded,  // a whole number with a place for its sign in front and a blank behind
  Whole,   // a text that takes its whole line, commas and quotes included
};

struct ProjectLine {
  RecordField Field;
  RecordField ReadInto;               // the same field but for one line
  Integer FirstVersion = Version102;  // the first format that has the line
  LineForm Form = LineForm::Plain;
};

namespace project_lines {

using R = ProjectRecord;

constexpr ProjectLine Item(RecordField field, Integer firstVersion = Version102) {
  return {field, field, firstVersion, LineForm::Plain};
}
constexpr ProjectLine Padded(IntegerField field) { return {field, field, Version102, LineForm::Padded}; }
constexpr ProjectLine WholeLine(TextField field) { return {field, field, Version102, LineForm::Whole}; }
constexpr ProjectLine ReadElsewhere(IntegerField field, IntegerField target) {
  return {field, target, Version102, LineForm::Plain};
}

// The bolt descriptions are written raw but read as items: a comma in one moves every later line by one field. The mode
// of the intersection's standing support comes back as the entry's. Files in use have both, so they stay.
inline constexpr std::array Lines{Item(&R::CMRR),
                                  Item(&R::CMRRRockTypeIndex),
                                  Item(&R::CMRRRegionIndex),
                                  Item(&R::CMRRManual),
                                  Item(&R::DepthofCover),
                                  Item(&R::UnitWeight),
                                  Item(&R::ActualSpanDiagonals),
                                  Item(&R::EntryWidth),
                                  Item(&R::PrimSupport),
                                  Item(&R::SecondSupEntries),
                                  Item(&R::SecondSupInter),
                                  Item(&R::StabilityFactor),
                                  Item(&R::BoltLengthPrimary),
                                  Item(&R::BoltOptionsPrimary, Version105),
                                  Item(&R::BoltTableRowPrimary, Version105),
                                  Item(&R::BoltTableDiameterPrimary, Version105),
                                  Item(&R::BoltTableGradePrimary, Version105),
                                  Item(&R::BoltDescPrimary, Version105),
                                  Item(&R::BoltDiameterModePrimary),
                                  Item(&R::BoltDiameterStdPrimary),
                                  Item(&R::BoltDiameterManualPrimary),
                                  Item(&R::BoltGradeModePrimary),
                                  Item(&R::BoltGradeStdPrimary),
                                  Item(&R::BoltGradeManualPrimary),
                                  Item(&R::BoltsperRowPrimary),
                                  Item(&R::RowSpacingPrimary),
                                  Item(&R::RockLoadHeight),
                                  Item(&R::RockFallAngle),
                                  Item(&R::SecEntryUseCable),
                                  Item(&R::SecEntryUseTruss),
                                  Item(&R::SecEntryUseBolt),
                                  Item(&R::SecEntryUseStanding),
                                  Item(&R::CableLengthSecEntry),
                                  Item(&R::CableCapModeSecEntry),
                                  Item(&R::CableCapacitySecEntry, Version104),
                                  Item(&R::CableDiamSecEntry),
                                  Item(&R::CableCapacityStdSecEntry),
                                  Item(&R::CableCapacityManualSecEntry, Version104),
                                  Item(&R::CableBoltsPerRowSecEntry),
                                  Item(&R::CableRowSpacingSecEntry),
                                  Item(&R::TrussLengthMemberSecEntry),
                                  Item(&R::TrussAngleSecEntry),
                                  Item(&R::TrussCapacitySecEntry),
                                  Item(&R::TrussSpacingSecEntry),
                                  Item(&R::BoltLengthSecEntry),
                                  Item(&R::BoltOptionsSecEntry, Version105),
                                  Item(&R::BoltTableRowSecEntry, Version105),
                                  Item(&R::BoltTableDiameterSecEntry, Version105),
                                  Item(&R::BoltTableGradeSecEntry, Version105),
                                  Item(&R::BoltDescSecEntry, Version105),
                                  Item(&R::BoltDiameterModeSecEntry),
                                  Item(&R::BoltDiameterStdSecEntry),
                                  Item(&R::BoltDiameterManualSecEntry),
                                  Item(&R::BoltGradeModeSecEntry),
                                  Item(&R::BoltGradeStdSecEntry),
                                  Item(&R::BoltGradeManualSecEntry),
                                  Item(&R::BoltsperRowSecEntry),
                                  Item(&R::RowSpacingSecEntry),
                                  Item(&R::SupportTypeModeSecEntry),
                                  WholeLine(&R::SupportTypeNameSecEntry),
                                  Item(&R::SupportCapSecEntry),
                                  Item(&R::NumberSupPerRowSecEntry),
                                  Item(&R::SupportRowSpacingSecEntry),
                                  Item(&R::RockLoadHeightInter),
                                  Item(&R::RockFallAngleEntry),
                                  Item(&R::RockFallAngleXcut),
                                  Item(&R::SecInterUseCable),
                                  Item(&R::SecInterUseTruss),
                                  Item(&R::SecInterUseBolt),
                                  Item(&R::SecInterUseStanding),
                                  Item(&R::CableLengthSecInter),
                                  Item(&R::CableCapModeSecInter),
                                  Item(&R::CableCapacitySecInter, Version104),
                                  Item(&R::CableDiamSecInter),
                                  Item(&R::CableCapacityStdSecInter),
                                  Item(&R::CableCapacityManualSecInter, Version104),
                                  Item(&R::CableNumberSecInter),
                                  Item(&R::TrussLengthMemberSecInter),
                                  Item(&R::TrussAngleSecInter),
                                  Item(&R::TrussCapacitySecInter),
                                  Item(&R::TrussNumberSecInter),
                                  Item(&R::BoltLengthSecInter),
                                  Item(&R::BoltOptionsSecInter, Version105),
                                  Item(&R::BoltTableRowSecInter, Version105),
                                  Item(&R::BoltTableDiameterSecInter, Version105),
                                  Item(&R::BoltTableGradeSecInter, Version105),
                                  Item(&R::BoltDescSecInter, Version105),
                                  Item(&R::BoltDiameterModeSecInter),
                                  Item(&R::BoltDiameterStdSecInter),
                                  Item(&R::BoltDiameterManualSecInter),
                                  Item(&R::BoltGradeModeSecInter),
                                  Item(&R::BoltGradeStdSecInter),
                                  Item(&R::BoltGradeManualSecInter),
                                  Item(&R::BoltNumberSecInter),
                                  ReadElsewhere(&R::SupportTypeModeSecInter, &R::SupportTypeModeSecEntry),
                                  WholeLine(&R::SupportTypeNameSecInter),
                                  Item(&R::SupportCapSecInter),
                                  Item(&R::SupportNumberSecInter),
                                  Item(&R::CostBoltCost),
                                  Item(&R::CostPlateCost),
                                  Item(&R::CostResinCost),
                                  Item(&R::CostBitCost),
                                  Item(&R::CostHeaderCost),
                                  Item(&R::CostStrapCost),
                                  Item(&R::CostNboltsShift),
                                  Item(&R::CostNBoltsRow),
                                  Item(&R::CostRowSpacing),
                                  Item(&R::CostNOperShift),
                                  Item(&R::CostTotalLabor),
                                  Item(&R::CostHoursShift),
                                  Item(&R::CostMaintainHrs),
                                  Item(&R::CostMaintainCost),
                                  Item(&R::CostTranspCost),
                                  Item(&R::CostCapitalCost),
                                  Item(&R::CostYearsDepr),
                                  Item(&R::CostAdvanceShift),
                                  Item(&R::CostAdvanceRate),
                                  Item(&R::CostCleanProduction),
                                  Item(&R::CostShiftsWeek),
                                  Item(&R::CostWeeksYear),
                                  Padded(&R::CostProduction),
                                  Padded(&R::CostAdvance)};

}  // namespace project_lines

inline constexpr const auto& ProjectLines = project_lines::Lines;

}  // namespace orby
