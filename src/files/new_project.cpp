#include "files/new_project.h"

#include <algorithm>
#include <array>

#include "base/arithmetic.h"
#include "core/messages.h"
#include "design/field.h"

namespace orby {
namespace {

using D = DesignDefaults;

struct StartValue {
  std::variant<IntegerField, SingleField> Field;
  Single ENG;
  Single MET;
};

constexpr auto StartValues = std::to_array<StartValue>({
    {[](auto& d) { return &d.Primary.Analysed; }, 1, 1},
    {[](auto& d) { return &d.Entries.Analysed; }, 1, 1},
    {[](auto& d) { return &d.Intersections.Analysed; }, 1, 1},
    {[](auto& d) { return &d.Entries.RockLoadHeight; }, 8, 3},
    {[](auto& d) { return &d.Entries.RockFallAngle; }, 30, 30},
    {[](auto& d) { return &d.Entries.Cable.Use; }, 1, 1},
    {[](auto& d) { return &d.Entries.Truss.Use; }, 0, 0},
    {[](auto& d) { return &d.Entries.Bolt.Use; }, 0, 0},
    {[](auto& d) { return &d.Entries.Standing.Use; }, 0, 0},
    {[](auto& d) { return &d.Entries.Cable.Length; }, 10, 3},
    {[](auto& d) { return &d.Entries.Cable.CapMode; }, 0, 0},
    {[](auto& d) { return &d.Entries.Cable.Capacity; }, 0, 0},
    {[](auto& d) { return &d.Entries.Cable.Diam; }, 0.6F, 21.8F},
    {[](auto& d) { return &d.Entries.Cable.CapacityStd; }, 27, 590},
    {[](auto& d) { return &d.Entries.Cable.CapacityManual; }, 27, 590},
    {[](auto& d) { return &d.Entries.Cable.BoltsPerRow; }, 2, 4},
    {[](auto& d) { return &d.Entries.Cable.RowSpacing; }, 5, 5},
    {[](auto& d) { return &d.Entries.Truss.LengthMember; }, 8, 2.7F},
    {[](auto& d) { return &d.Entries.Truss.Angle; }, 45, 45},
    {[](auto& d) { return &d.Entries.Truss.Capacity; }, 30, 300},
    {[](auto& d) { return &d.Entries.Truss.Spacing; }, 4, 4},
    {[](auto& d) { return &d.Entries.Bolt.BoltsperRow; }, 4, 4},
    {[](auto& d) { return &d.Entries.Standing.TypeMode; }, 0, 0},
    {[](auto& d) { return &d.Entries.Standing.Capacity; }, 50, 500},
    {[](auto& d) { return &d.Entries.Standing.NumberPerRow; }, 2, 2},
    {[](auto& d) { return &d.Entries.Standing.RowSpacing; }, 8, 3},
    {[](auto& d) { return &d.Intersections.RockLoadHeight; }, 8, 3},
    {[](auto& d) { return &d.Intersections.RockFallAngle; }, 30, 30},
    {[](auto& d) { return &d.Intersections.RockFallAngleXcut; }, 30, 30},
    {[](auto& d) { return &d.Intersections.Cable.Use; }, 1, 1},
    {[](auto& d) { return &d.Intersections.Truss.Use; }, 0, 0},
    {[](auto& d) { return &d.Intersections.Bolt.Use; }, 0, 0},
    {[](auto& d) { return &d.Intersections.Standing.Use; }, 0, 0},
    {[](auto& d) { return &d.Intersections.Cable.Length; }, 10, 3},
    {[](auto& d) { return &d.Intersections.Cable.CapMode; }, 0, 0},
    {[](auto& d) { return &d.Intersections.Cable.Capacity; }, 0, 0},
    {[](auto& d) { return &d.Intersections.Cable.Diam; }, 0.6F, 21.8F},
    {[](auto& d) { return &d.Intersections.Cable.CapacityStd; }, 27, 590},
    {[](auto& d) { return &d.Intersections.Cable.CapacityManual; }, 27, 590},
    {[](auto& d) { return &d.Intersections.Cable.Number; }, 10, 4},
    {[](auto& d) { return &d.Intersections.Truss.LengthMember; }, 8, 2.7F},
    {[](auto& d) { return &d.Intersections.Truss.Angle; }, 45, 45},
    {[](auto& d) { return &d.Intersections.Truss.Capacity; }, 30, 300},
    {[](auto& d) { return &d.Intersections.Truss.Number; }, 4, 4},
    {[](auto& d) { return &d.Intersections.Bolt.Number; }, 10, 10},
    {[](auto& d) { return &d.Intersections.Standing.TypeMode; }, 0, 0},
    {[](auto& d) { return &d.Intersections.Standing.Capacity; }, 50, 500},
    {[](auto& d) { return &d.Intersections.Standing.Number; }, 4, 4},
    {[](auto& d) { return &d.Cost.BoltCost; }, 3, 3},
    {[](auto& d) { return &d.Cost.PlateCost; }, 1, 1},
    {[](auto& d) { return &d.Cost.ResinCost; }, 1.5F, 1.5F},
    {[](auto& d) { return &d.Cost.BitCost; }, 67, 67},
    {[](auto& d) { return &d.Cost.HeaderCost; }, 0, 0},
    {[](auto& d) { return &d.Cost.StrapCost; }, 0, 0},
    {[](auto& d) { return &d.Cost.NboltsShift; }, 300, 300},
    {[](auto& d) { return &d.Cost.NBoltsRow; }, 4, 4},
    {[](auto& d) { return &d.Cost.RowSpacing; }, 4, 1.2F},
    {[](auto& d) { return &d.Cost.NOperShift; }, 2, 2},
    {[](auto& d) { return &d.Cost.TotalLabor; }, 35, 35},
    {[](auto& d) { return &d.Cost.HoursShift; }, 8, 8},
    {[](auto& d) { return &d.Cost.MaintainHrs; }, 2, 2},
    {[](auto& d) { return &d.Cost.MaintainCost; }, 30000, 30000},
    {[](auto& d) { return &d.Cost.TranspCost; }, 100, 100},
    {[](auto& d) { return &d.Cost.CapitalCost; }, 1000000, 1000000},
    {[](auto& d) { return &d.Cost.YearsDepr; }, 5, 5},
    {[](auto& d) { return &d.Cost.AdvanceShift; }, 300, 100},
    {[](auto& d) { return &d.Cost.Advance; }, 1, 1},
    {[](auto& d) { return &d.Cost.AdvanceRate; }, 4, 12},
    {[](auto& d) { return &d.Cost.CleanProduction; }, 1200, 1200},
    {[](auto& d) { return &d.Cost.Production; }, 1, 1},
    {[](auto& d) { return &d.Cost.ShiftsWeek; }, 12, 12},
    {[](auto& d) { return &d.Cost.WeeksYear; }, 50, 50},
});

using Default = Single DesignDefaults::*;

// A default that the user sets, for each unit system.
struct DefaultPair {
  Default ENG;
  Default MET;
  Default In(UnitSystem units) const { return units == Metric ? MET : ENG; }
};

struct ConfiguredValue {
  SingleField Field;
  DefaultPair Value;
};

constexpr auto ConfiguredValues = std::to_array<ConfiguredValue>({
    {[](auto& d) { return &d.Place.DepthofCover; }, {&D::DefaultENGDepthofCover, &D::DefaultMETDepthofCover}},
    {[](auto& d) { return &d.Place.UnitWeight; }, {&D::DefaultENGUnitWeight, &D::DefaultMETUnitWeight}},
    {[](auto& d) { return &d.Place.ActualSpanDiagonals; },
     {&D::DefaultENGActualInterSpan, &D::DefaultMETActualInterSpan}},
    {[](auto& d) { return &d.Place.EntryWidth; }, {&D::DefaultENGEntryWidth, &D::DefaultMETEntryWidth}},
    {[](auto& d) { return &d.Primary.StabilityFactor; }, {&D::DefaultStabilityFactor, &D::DefaultStabilityFactor}},
    {[](auto& d) { return &d.Primary.RowSpacing; }, {&D::DefaultENGrowSpacing, &D::DefaultMETrowSpacing}},
    {[](auto& d) { return &d.Entries.Bolt.RowSpacing; }, {&D::DefaultENGrowSpacing, &D::DefaultMETrowSpacing}},
});

constexpr DefaultPair BoltLength{&D::DefaultENGActualBoltLength, &D::DefaultMETActualBoltLength};
constexpr DefaultPair BoltDiameter{&D::DefaultENGboltDiameter, &D::DefaultMETboltDiameter};
constexpr DefaultPair YieldGrade{&D::DefaultENGBoltGrade, &D::DefaultMETBoltGrade};
constexpr DefaultPair UltimateGrade{&D::DefaultENGBoltUTS, &D::DefaultMETBoltUTS};

void FillStartValues(Design& design, UnitSystem units) {
  for (const StartValue& start : StartValues) {
    const Single value = units == Metric ? start.MET : start.ENG;
    if (const auto* single = std::get_if<SingleField>(&start.Field)) {
      single->In(design) = value;
    } else {
      std::get<IntegerField>(start.Field).In(design) = static_cast<Integer>(value);
    }
  }
}

// The number of bolts and their spacing stay. Nothing of the previous project's table row may show up in the next one.
void FillBolts(const Program& program, BoltSelection& set) {
  const DesignDefaults& defaults = program.session.defaults;
  set.Length = defaults.*BoltLength.In(program.project.WorkParms.Units);
  set.Options = 0;
  set.TableRow = 0;
  set.TableDiameter = 0;
  set.TableGrade = 0;
  set.Desc.clear();
  set.DiameterMode = 0;
  set.DiameterStd = set.DiameterManual = defaults.*BoltDiameter.In(program.project.WorkParms.Units);
  set.GradeMode = 0;
  const DefaultPair& grade = program.project.WorkParms.Basis == StrengthBasis::Ultimate ? UltimateGrade : YieldGrade;
  set.GradeStd = set.GradeManual = defaults.*grade.In(program.project.WorkParms.Units);
}

void FillConfiguredValues(Program& program) {
  const DesignDefaults& defaults = program.session.defaults;
  Design& design = program.project.WorkParms;
  for (const auto& [field, value] : ConfiguredValues)
    field.In(design) = defaults.*value.In(program.project.WorkParms.Units);
  for (BoltSelection* set : design.BoltSets()) FillBolts(program, *set);
  design.Place.CMRR = defaults.DefaultCMRR;
  design.Primary.BoltsperRow = defaults.DefaultNumberBoltsPerRow;

  const StandingSupports& supports = program.session.catalogs.StandSupports;
  const bool hasSupports = supports.HighestIndex >= 0 && !supports.DefaultStandSupportType.empty();
  design.Entries.Standing.TypeName = hasSupports ? supports.DefaultStandSupportType.front() : std::string();
  design.Intersections.Standing.TypeName = design.Entries.Standing.TypeName;
}

}  // namespace

void FileNew(Program& program, bool untitled, bool resetUnits) {
  if (untitled) {
    program.project.CurrentFile = UntitledName;
    program.project.LastFile = {};
  }
  if (resetUnits) {
    program.project.WorkParms.Units = program.session.settings.UnitsDefault;
    program.project.WorkParms.Basis = program.session.options.BoltGradeAsUltimateDefault;
  }
  program.project.FileSaved = true;
  program.project.FileEmpty = true;
  program.project.UnitsLocked = false;
  program.windows.RecentMode = 1;
  // The input echo in front of them is rebuilt whenever it is printed.
  std::for_each(program.session.OutBuf.begin() + 1, program.session.OutBuf.end(),
                [](std::string& page) { page.clear(); });
  FillStartValues(program.project.WorkParms, program.project.WorkParms.Units);
  FillConfiguredValues(program);
  program.project.ProjectDescription.clear();
  program.project.ProjectTitle.clear();
  AddHistoryLine(program, "File initialized. Use Edit-Project Parameters to enter data");
}

}  // namespace orby
