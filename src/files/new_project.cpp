#include "files/new_project.h"

#include <algorithm>
#include <array>

#include "core/messages.h"
#include "design/field.h"

namespace orby {
namespace {

using D = DesignDefaults;

using Default = Single DesignDefaults::*;

// A default of the user for each unit system.
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

// Sets the initial values that entries and intersections share. Only cables are in use.
void FillSupport(SecondarySupport& support, bool isMetric) {
  support.Analysed = 1;
  support.RockLoadHeight = isMetric ? 3 : 8;
  support.RockFallAngle = 30;
  for (SupportSystem* system : support.Systems()) system->Use = 0;
  support.Cable.Use = 1;
  support.Cable.Length = isMetric ? 3 : 10;
  support.Cable.CapMode = CapacityMode::ByDiameter;
  support.Cable.Capacity = ValueSource::Standard;
  support.Cable.Diam = isMetric ? 21.8F : 0.6F;
  support.Cable.CapacityStd = support.Cable.CapacityManual = isMetric ? 590 : 27;
  support.Truss.LengthMember = isMetric ? 2.7F : 8;
  support.Truss.Angle = 45;
  support.Truss.Capacity = isMetric ? 300 : 30;
  support.Standing.TypeMode = ValueSource::Standard;
  support.Standing.Capacity = isMetric ? 500 : 50;
}

CostInputs StartCosts(bool isMetric) {
  return {.BoltCost = 3,
          .PlateCost = 1,
          .ResinCost = 1.5F,
          .BitCost = 67,
          .HeaderCost = 0,
          .StrapCost = 0,
          .NboltsShift = 300,
          .NBoltsRow = 4,
          .RowSpacing = isMetric ? 1.2F : 4,
          .NOperShift = 2,
          .TotalLabor = 35,
          .HoursShift = 8,
          .MaintainHrs = 2,
          .MaintainCost = 30000,
          .TranspCost = 100,
          .CapitalCost = 1000000,
          .YearsDepr = 5,
          .AdvanceShift = isMetric ? 100.0F : 300.0F,
          .Advance = 1,
          .AdvanceRate = isMetric ? 12.0F : 4.0F,
          .CleanProduction = 1200,
          .Production = 1,
          .ShiftsWeek = 12,
          .WeeksYear = 50};
}

void FillStartValues(Design& design) {
  const bool isMetric = design.Units == Metric;
  design.Primary.Analysed = 1;
  for (SecondarySupport* support : {&design.Entries, &design.Intersections}) FillSupport(*support, isMetric);
  design.Entries.Cable.BoltsPerRow = isMetric ? 4 : 2;
  design.Entries.Cable.RowSpacing = 5;
  design.Entries.Truss.Spacing = 4;
  design.Entries.Bolt.BoltsperRow = 4;
  design.Entries.Standing.NumberPerRow = 2;
  design.Entries.Standing.RowSpacing = isMetric ? 3 : 8;
  design.Intersections.RockFallAngleXcut = 30;
  design.Intersections.Cable.Number = isMetric ? 4 : 10;
  design.Intersections.Truss.Number = 4;
  design.Intersections.Bolt.Number = 10;
  design.Intersections.Standing.Number = 4;
  design.Cost = StartCosts(isMetric);
}

// Does not change the number of bolts and their spacing. Resets the table row, so that nothing of the previous
// project's row remains.
void FillBolts(const Design& design, const DesignDefaults& defaults, BoltSelection& set) {
  set.Length = defaults.*BoltLength.In(design.Units);
  set.Options = BoltSource::Table;
  set.TableRow = 0;
  set.TableDiameter = 0;
  set.TableGrade = 0;
  set.Desc.clear();
  set.DiameterMode = ValueSource::Standard;
  set.DiameterStd = set.DiameterManual = defaults.*BoltDiameter.In(design.Units);
  set.GradeMode = ValueSource::Standard;
  const DefaultPair& grade = design.Basis == StrengthBasis::Ultimate ? UltimateGrade : YieldGrade;
  set.GradeStd = set.GradeManual = defaults.*grade.In(design.Units);
}

void FillConfiguredValues(Design& design, const DesignDefaults& defaults, const StandingSupports& supports) {
  for (const auto& [field, value] : ConfiguredValues) field.In(design) = defaults.*value.In(design.Units);
  for (BoltSelection* set : design.BoltSets()) FillBolts(design, defaults, *set);
  design.Place.CMRR = defaults.DefaultCMRR;
  design.Primary.BoltsperRow = defaults.DefaultNumberBoltsPerRow;

  const bool hasSupports = supports.HighestIndex >= 0 && !supports.DefaultStandSupportType.empty();
  design.Entries.Standing.TypeName = hasSupports ? supports.DefaultStandSupportType.front() : std::string();
  design.Intersections.Standing.TypeName = design.Entries.Standing.TypeName;
}

}  // namespace

void FillNewValues(Design& design, const DesignDefaults& defaults, const Catalogs& catalogs) {
  FillStartValues(design);
  FillConfiguredValues(design, defaults, catalogs.StandSupports);
}

void FileNew(Program& program, Keeping keeping) {
  if (keeping == Keeping::Nothing) {
    program.project.CurrentFile = UntitledName;
    program.project.LastFile = {};
  }
  if (keeping != Keeping::NameAndUnits) {
    program.project.WorkParms.Units = program.session.settings.UnitsDefault;
    program.project.WorkParms.Basis = program.session.options.BoltGradeAsUltimateDefault;
  }
  program.project.FileSaved = true;
  program.project.FileEmpty = true;
  program.project.UnitsLocked = false;
  program.windows.RecentMode = 1;
  // The first page, the inputs, is rebuilt each time it is printed.
  std::for_each(program.session.OutBuf.begin() + 1, program.session.OutBuf.end(),
                [](std::string& page) { page.clear(); });
  FillNewValues(program.project.WorkParms, program.session.defaults, program.session.catalogs);
  program.project.ProjectDescription.clear();
  program.project.ProjectTitle.clear();
  AddHistoryLine(program, "File initialized. Use Edit-Project Parameters to enter data");
}

}  // namespace orby
