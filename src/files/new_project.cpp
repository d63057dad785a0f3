#include "files/new_project.h"

#include <algorithm>
#include <array>

#include "base/arithmetic.h"
#include "core/messages.h"
#include "files/record_field.h"

namespace orby {
namespace {

using R = ProjectRecord;
using D = DesignDefaults;

struct StartValue {
  NumberField Field;
  Single ENG;
  Single MET;
};

constexpr auto StartValues = std::to_array<StartValue>({
    {&R::PrimSupport, 1, 1},
    {&R::SecondSupEntries, 1, 1},
    {&R::SecondSupInter, 1, 1},
    {&R::RockLoadHeight, 8, 3},
    {&R::RockFallAngle, 30, 30},
    {&R::SecEntryUseCable, 1, 1},
    {&R::SecEntryUseTruss, 0, 0},
    {&R::SecEntryUseBolt, 0, 0},
    {&R::SecEntryUseStanding, 0, 0},
    {&R::CableLengthSecEntry, 10, 3},
    {&R::CableCapModeSecEntry, 0, 0},
    {&R::CableCapacitySecEntry, 0, 0},
    {&R::CableDiamSecEntry, 0.6F, 21.8F},
    {&R::CableCapacityStdSecEntry, 27, 590},
    {&R::CableCapacityManualSecEntry, 27, 590},
    {&R::CableBoltsPerRowSecEntry, 2, 4},
    {&R::CableRowSpacingSecEntry, 5, 5},
    {&R::TrussLengthMemberSecEntry, 8, 2.7F},
    {&R::TrussAngleSecEntry, 45, 45},
    {&R::TrussCapacitySecEntry, 30, 300},
    {&R::TrussSpacingSecEntry, 4, 4},
    {&R::BoltsperRowSecEntry, 4, 4},
    {&R::SupportTypeModeSecEntry, 0, 0},
    {&R::SupportCapSecEntry, 50, 500},
    {&R::NumberSupPerRowSecEntry, 2, 2},
    {&R::SupportRowSpacingSecEntry, 8, 3},
    {&R::RockLoadHeightInter, 8, 3},
    {&R::RockFallAngleEntry, 30, 30},
    {&R::RockFallAngleXcut, 30, 30},
    {&R::SecInterUseCable, 1, 1},
    {&R::SecInterUseTruss, 0, 0},
    {&R::SecInterUseBolt, 0, 0},
    {&R::SecInterUseStanding, 0, 0},
    {&R::CableLengthSecInter, 10, 3},
    {&R::CableCapModeSecInter, 0, 0},
    {&R::CableCapacitySecInter, 0, 0},
    {&R::CableDiamSecInter, 0.6F, 21.8F},
    {&R::CableCapacityStdSecInter, 27, 590},
    {&R::CableCapacityManualSecInter, 27, 590},
    {&R::CableNumberSecInter, 10, 4},
    {&R::TrussLengthMemberSecInter, 8, 2.7F},
    {&R::TrussAngleSecInter, 45, 45},
    {&R::TrussCapacitySecInter, 30, 300},
    {&R::TrussNumberSecInter, 4, 4},
    {&R::BoltNumberSecInter, 10, 10},
    {&R::SupportTypeModeSecInter, 0, 0},
    {&R::SupportCapSecInter, 50, 500},
    {&R::SupportNumberSecInter, 4, 4},
    {&R::CostBoltCost, 3, 3},
    {&R::CostPlateCost, 1, 1},
    {&R::CostResinCost, 1.5F, 1.5F},
    {&R::CostBitCost, 67, 67},
    {&R::CostHeaderCost, 0, 0},
    {&R::CostStrapCost, 0, 0},
    {&R::CostNboltsShift, 300, 300},
    {&R::CostNBoltsRow, 4, 4},
    {&R::CostRowSpacing, 4, 1.2F},
    {&R::CostNOperShift, 2, 2},
    {&R::CostTotalLabor, 35, 35},
    {&R::CostHoursShift, 8, 8},
    {&R::CostMaintainHrs, 2, 2},
    {&R::CostMaintainCost, 30000, 30000},
    {&R::CostTranspCost, 100, 100},
    {&R::CostCapitalCost, 1000000, 1000000},
    {&R::CostYearsDepr, 5, 5},
    {&R::CostAdvanceShift, 300, 100},
    {&R::CostAdvance, 1, 1},
    {&R::CostAdvanceRate, 4, 12},
    {&R::CostCleanProduction, 1200, 1200},
    {&R::CostProduction, 1, 1},
    {&R::CostShiftsWeek, 12, 12},
    {&R::CostWeeksYear, 50, 50},
});

using Default = Single DesignDefaults::*;

// A default that the user sets, for each unit system.
struct DefaultPair {
  Default ENG;
  Default MET;
  Default In(Integer units) const { return units == Metric ? MET : ENG; }
};

struct ConfiguredValue {
  SingleField Field;
  DefaultPair Value;
};

constexpr auto ConfiguredValues = std::to_array<ConfiguredValue>({
    {&R::DepthofCover, {&D::DefaultENGDepthofCover, &D::DefaultMETDepthofCover}},
    {&R::UnitWeight, {&D::DefaultENGUnitWeight, &D::DefaultMETUnitWeight}},
    {&R::ActualSpanDiagonals, {&D::DefaultENGActualInterSpan, &D::DefaultMETActualInterSpan}},
    {&R::EntryWidth, {&D::DefaultENGEntryWidth, &D::DefaultMETEntryWidth}},
    {&R::StabilityFactor, {&D::DefaultStabilityFactor, &D::DefaultStabilityFactor}},
    {&R::RowSpacingPrimary, {&D::DefaultENGrowSpacing, &D::DefaultMETrowSpacing}},
    {&R::RowSpacingSecEntry, {&D::DefaultENGrowSpacing, &D::DefaultMETrowSpacing}},
});

constexpr DefaultPair BoltLength{&D::DefaultENGActualBoltLength, &D::DefaultMETActualBoltLength};
constexpr DefaultPair BoltDiameter{&D::DefaultENGboltDiameter, &D::DefaultMETboltDiameter};
constexpr DefaultPair YieldGrade{&D::DefaultENGBoltGrade, &D::DefaultMETBoltGrade};
constexpr DefaultPair UltimateGrade{&D::DefaultENGBoltUTS, &D::DefaultMETBoltUTS};

void FillStartValues(ProjectRecord& record, Integer units) {
  for (const StartValue& start : StartValues) {
    const Single value = units == Metric ? start.MET : start.ENG;
    if (const auto* single = std::get_if<SingleField>(&start.Field)) {
      record.** single = value;
    } else {
      record.*std::get<IntegerField>(start.Field) = static_cast<Integer>(value);
    }
  }
}

void FillBolts(Program& program, const BoltFields& set) {
  const DefaultPair& grade = program.BoltStrengthMode == 1 ? UltimateGrade : YieldGrade;
  const DesignDefaults& defaults = program.defaults;
  ProjectRecord& record = program.WorkParms;
  record.*set.Length = defaults.*BoltLength.In(program.Units);
  // Nothing of the previous project's table row may show up in the next one.
  for (const IntegerField field : {set.Options, set.TableRow, set.DiameterMode, set.GradeMode}) record.*field = 0;
  for (const SingleField field : {set.TableDiameter, set.TableGrade}) record.*field = 0;
  (record.*set.Desc).clear();
  for (const SingleField field : {set.DiameterStd, set.DiameterManual}) {
    record.*field = defaults.*BoltDiameter.In(program.Units);
  }
  for (const SingleField field : {set.GradeStd, set.GradeManual}) record.*field = defaults.*grade.In(program.Units);
}

void FillConfiguredValues(Program& program) {
  const DesignDefaults& defaults = program.defaults;
  ProjectRecord& record = program.WorkParms;
  for (const auto& [field, value] : ConfiguredValues) record.*field = defaults.*value.In(program.Units);
  for (const BoltFields* set : {&PrimaryBolt, &SecEntryBolt, &SecInterBolt}) FillBolts(program, *set);
  record.CMRR = defaults.DefaultCMRR;
  record.BoltsperRowPrimary = defaults.DefaultNumberBoltsPerRow;

  const StandingSupports& supports = program.catalogs.StandSupports;
  const bool hasSupports = supports.HighestIndex >= 0 && !supports.DefaultStandSupportType.empty();
  record.SupportTypeNameSecEntry = hasSupports ? supports.DefaultStandSupportType.front() : std::string();
  record.SupportTypeNameSecInter = record.SupportTypeNameSecEntry;
}

}  // namespace

void FileNew(Program& program, bool untitled, bool resetUnits) {
  if (untitled) {
    program.CurrentFile = UntitledName;
    program.LastFile = {};
  }
  if (resetUnits) {
    program.Units = program.settings.UnitsDefault;
    program.BoltStrengthMode = program.options.BoltGradeAsUltimateDefault;
  }
  program.FileSaved = true;
  program.FileEmpty = true;
  program.UnitsLocked = false;
  program.RecentMode = 1;
  // The input echo in front of them is rebuilt whenever it is printed.
  std::for_each(program.OutBuf.begin() + 1, program.OutBuf.end(), [](std::string& page) { page.clear(); });
  FillStartValues(program.WorkParms, program.Units);
  FillConfiguredValues(program);
  program.ProjectDescription.clear();
  program.ProjectTitle.clear();
  AddHistoryLine(program, "File initialized. Use Edit-Project Parameters to enter data");
}

}  // namespace orby
