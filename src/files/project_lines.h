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
  std::string_view Name;  // as a message lists it
  RecordField Field;
  RecordField ReadInto;               // the same field but for one line
  Integer FirstVersion = Version102;  // the first format that has the line
  LineForm Form = LineForm::Plain;
};

namespace project_lines {

using R = ProjectRecord;

constexpr ProjectLine Item(std::string_view name, RecordField field, Integer firstVersion = Version102) {
  return {name, field, field, firstVersion, LineForm::Plain};
}
constexpr ProjectLine Padded(std::string_view name, IntegerField field) {
  return {name, field, field, Version102, LineForm::Padded};
}
constexpr ProjectLine WholeLine(std::string_view name, TextField field) {
  return {name, field, field, Version102, LineForm::Whole};
}
constexpr ProjectLine ReadElsewhere(std::string_view name, IntegerField field, IntegerField target) {
  return {name, field, target, Version102, LineForm::Plain};
}

// The bolt descriptions are written raw but read as items: a comma in one moves every later line by one field. The mode
// of the intersection's standing support comes back as the entry's. Files in use have both, so they stay.
inline constexpr std::array Lines{
    Item("roof rating", &R::CMRR),
    Item("rock type", &R::CMRRRockTypeIndex),
    Item("coal region", &R::CMRRRegionIndex),
    Item("source of the roof rating", &R::CMRRManual),
    Item("depth of cover", &R::DepthofCover),
    Item("unit weight", &R::UnitWeight),
    Item("sum of the diagonals", &R::ActualSpanDiagonals),
    Item("entry width", &R::EntryWidth),
    Item("primary support", &R::PrimSupport),
    Item("secondary support in entries", &R::SecondSupEntries),
    Item("secondary support in intersections", &R::SecondSupInter),
    Item("stability factor", &R::StabilityFactor),
    Item("primary bolt length", &R::BoltLengthPrimary),
    Item("primary bolt source", &R::BoltOptionsPrimary, Version105),
    Item("primary row of the bolt table", &R::BoltTableRowPrimary, Version105),
    Item("primary table diameter", &R::BoltTableDiameterPrimary, Version105),
    Item("primary table grade", &R::BoltTableGradePrimary, Version105),
    Item("primary bolt description", &R::BoltDescPrimary, Version105),
    Item("primary source of the bolt diameter", &R::BoltDiameterModePrimary),
    Item("primary standard bolt diameter", &R::BoltDiameterStdPrimary),
    Item("primary typed bolt diameter", &R::BoltDiameterManualPrimary),
    Item("primary source of the bolt grade", &R::BoltGradeModePrimary),
    Item("primary standard bolt grade", &R::BoltGradeStdPrimary),
    Item("primary typed bolt grade", &R::BoltGradeManualPrimary),
    Item("primary bolts per row", &R::BoltsperRowPrimary),
    Item("primary row spacing", &R::RowSpacingPrimary),
    Item("rock load height in entries", &R::RockLoadHeight),
    Item("rock fall angle in entries", &R::RockFallAngle),
    Item("use of cables in entries", &R::SecEntryUseCable),
    Item("use of trusses in entries", &R::SecEntryUseTruss),
    Item("use of bolts in entries", &R::SecEntryUseBolt),
    Item("use of standing supports in entries", &R::SecEntryUseStanding),
    Item("entry cable length", &R::CableLengthSecEntry),
    Item("entry source of the cable capacity", &R::CableCapModeSecEntry),
    Item("entry kind of the cable capacity", &R::CableCapacitySecEntry, Version104),
    Item("entry cable diameter", &R::CableDiamSecEntry),
    Item("entry standard cable capacity", &R::CableCapacityStdSecEntry),
    Item("entry typed cable capacity", &R::CableCapacityManualSecEntry, Version104),
    Item("entry cables per row", &R::CableBoltsPerRowSecEntry),
    Item("entry cable row spacing", &R::CableRowSpacingSecEntry),
    Item("entry truss length", &R::TrussLengthMemberSecEntry),
    Item("entry truss angle", &R::TrussAngleSecEntry),
    Item("entry truss capacity", &R::TrussCapacitySecEntry),
    Item("entry truss spacing", &R::TrussSpacingSecEntry),
    Item("entry bolt length", &R::BoltLengthSecEntry),
    Item("entry bolt source", &R::BoltOptionsSecEntry, Version105),
    Item("entry row of the bolt table", &R::BoltTableRowSecEntry, Version105),
    Item("entry table diameter", &R::BoltTableDiameterSecEntry, Version105),
    Item("entry table grade", &R::BoltTableGradeSecEntry, Version105),
    Item("entry bolt description", &R::BoltDescSecEntry, Version105),
    Item("entry source of the bolt diameter", &R::BoltDiameterModeSecEntry),
    Item("entry standard bolt diameter", &R::BoltDiameterStdSecEntry),
    Item("entry typed bolt diameter", &R::BoltDiameterManualSecEntry),
    Item("entry source of the bolt grade", &R::BoltGradeModeSecEntry),
    Item("entry standard bolt grade", &R::BoltGradeStdSecEntry),
    Item("entry typed bolt grade", &R::BoltGradeManualSecEntry),
    Item("entry bolts per row", &R::BoltsperRowSecEntry),
    Item("entry bolt row spacing", &R::RowSpacingSecEntry),
    Item("entry source of the standing support", &R::SupportTypeModeSecEntry),
    WholeLine("entry standing support", &R::SupportTypeNameSecEntry),
    Item("entry standing support capacity", &R::SupportCapSecEntry),
    Item("entry standing supports per row", &R::NumberSupPerRowSecEntry),
    Item("entry standing support spacing", &R::SupportRowSpacingSecEntry),
    Item("rock load height in intersections", &R::RockLoadHeightInter),
    Item("rock fall angle along the entry", &R::RockFallAngleEntry),
    Item("rock fall angle along the crosscut", &R::RockFallAngleXcut),
    Item("use of cables in intersections", &R::SecInterUseCable),
    Item("use of trusses in intersections", &R::SecInterUseTruss),
    Item("use of bolts in intersections", &R::SecInterUseBolt),
    Item("use of standing supports in intersections", &R::SecInterUseStanding),
    Item("intersection cable length", &R::CableLengthSecInter),
    Item("intersection source of the cable capacity", &R::CableCapModeSecInter),
    Item("intersection kind of the cable capacity", &R::CableCapacitySecInter, Version104),
    Item("intersection cable diameter", &R::CableDiamSecInter),
    Item("intersection standard cable capacity", &R::CableCapacityStdSecInter),
    Item("intersection typed cable capacity", &R::CableCapacityManualSecInter, Version104),
    Item("intersection number of cables", &R::CableNumberSecInter),
    Item("intersection truss length", &R::TrussLengthMemberSecInter),
    Item("intersection truss angle", &R::TrussAngleSecInter),
    Item("intersection truss capacity", &R::TrussCapacitySecInter),
    Item("intersection number of trusses", &R::TrussNumberSecInter),
    Item("intersection bolt length", &R::BoltLengthSecInter),
    Item("intersection bolt source", &R::BoltOptionsSecInter, Version105),
    Item("intersection row of the bolt table", &R::BoltTableRowSecInter, Version105),
    Item("intersection table diameter", &R::BoltTableDiameterSecInter, Version105),
    Item("intersection table grade", &R::BoltTableGradeSecInter, Version105),
    Item("intersection bolt description", &R::BoltDescSecInter, Version105),
    Item("intersection source of the bolt diameter", &R::BoltDiameterModeSecInter),
    Item("intersection standard bolt diameter", &R::BoltDiameterStdSecInter),
    Item("intersection typed bolt diameter", &R::BoltDiameterManualSecInter),
    Item("intersection source of the bolt grade", &R::BoltGradeModeSecInter),
    Item("intersection standard bolt grade", &R::BoltGradeStdSecInter),
    Item("intersection typed bolt grade", &R::BoltGradeManualSecInter),
    Item("intersection number of bolts", &R::BoltNumberSecInter),
    ReadElsewhere("intersection source of the standing support", &R::SupportTypeModeSecInter,
                  &R::SupportTypeModeSecEntry),
    WholeLine("intersection standing support", &R::SupportTypeNameSecInter),
    Item("intersection standing support capacity", &R::SupportCapSecInter),
    Item("intersection number of standing supports", &R::SupportNumberSecInter),
    Item("cost of a bolt", &R::CostBoltCost),
    Item("cost of a plate", &R::CostPlateCost),
    Item("cost of resin", &R::CostResinCost),
    Item("cost of a bit", &R::CostBitCost),
    Item("cost of a header", &R::CostHeaderCost),
    Item("cost of a strap", &R::CostStrapCost),
    Item("bolts per shift", &R::CostNboltsShift),
    Item("bolts per row of the cost", &R::CostNBoltsRow),
    Item("row spacing of the cost", &R::CostRowSpacing),
    Item("operators per shift", &R::CostNOperShift),
    Item("labor cost", &R::CostTotalLabor),
    Item("hours per shift", &R::CostHoursShift),
    Item("maintenance hours", &R::CostMaintainHrs),
    Item("maintenance cost", &R::CostMaintainCost),
    Item("transport cost", &R::CostTranspCost),
    Item("capital cost", &R::CostCapitalCost),
    Item("years of depreciation", &R::CostYearsDepr),
    Item("advance per shift", &R::CostAdvanceShift),
    Item("advance rate", &R::CostAdvanceRate),
    Item("clean production", &R::CostCleanProduction),
    Item("shifts per week", &R::CostShiftsWeek),
    Item("weeks per year", &R::CostWeeksYear),
    Padded("use of production", &R::CostProduction),
    Padded("use of the advance", &R::CostAdvance)};

}  // namespace project_lines

inline constexpr const auto& ProjectLines = project_lines::Lines;

}  // namespace orby
