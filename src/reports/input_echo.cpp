#include "reports/input_echo.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "base/number_text.h"
#include "base/text.h"
#include "core/description.h"
#include "core/shared_texts.h"
#include "engine/estimator.h"
#include "engine/formulas.h"
#include "engine/primary_support.h"
#include "reports/report_text.h"
#include "reports/support_fields.h"

namespace orby {
namespace {

using R = ProjectRecord;

struct NumberRow {
  std::string_view Label;
  Single R::*Field;
  int Unit = report_unit::None;
};
using NumberRows = std::span<const NumberRow>;

struct FlagRow {
  std::string_view Label;
  Integer R::*Field;
};

struct SystemRow {
  std::string_view Label;
  SystemFields SupportFields::*System;
};

// The rows that entries and intersections have each of their own.
struct SupportEcho {
  const SupportFields& Fields;
  std::string_view OptionsHeading;
  NumberRows Rock;
  NumberRows CableLayout;
  NumberRows Trusses;
  NumberRows RoofBolts;
  NumberRows StandingSupports;
};

struct BoltEcho {
  const BoltFields& Set;
  // A Metric grade that is an ultimate strength is in ksi when its yield strength is asked for. The secondary sets ask
  // as if it were MPa all the same: users know their capacities so.
  Single (*YieldOfMetricGrade)(Single grade, const Catalogs& catalogs);
};

constexpr BoltEcho PrimaryBoltEcho{PrimaryBolt, YieldFromUltimateKsi};

constexpr auto SiteRows = std::to_array<NumberRow>({
    {"Depth of Cover", &R::DepthofCover, unit_row::Length},
    {"Unit Weight of Rock", &R::UnitWeight, unit_row::UnitWeight},
});
constexpr auto MiningRows = std::to_array<NumberRow>({
    {"Sum of Intersection Diagonals", &R::ActualSpanDiagonals, unit_row::Length},
    {"Entry Width", &R::EntryWidth, unit_row::Length},
});
constexpr auto AnalysisRows = std::to_array<FlagRow>({
    {"Analysis of Primary Roof Bolts", &R::PrimSupport},
    {"Analysis of Secondary Support: Entries", &R::SecondSupEntries},
    {"Analysis of Secondary Support: Intersections", &R::SecondSupInter},
});
constexpr auto PrimaryRows = std::to_array<NumberRow>({
    {"Roof Bolt Length", &R::BoltLengthPrimary, unit_row::Length},
    {"Number of Roof Bolts per Row", &R::BoltsperRowPrimary},
    {"Roof Bolt Row Spacing", &R::RowSpacingPrimary, unit_row::Length},
    {"Target Stability Factor", &R::StabilityFactor},
});
constexpr auto SystemRows = std::to_array<SystemRow>({
    {"Evaluation of Cable Bolt Systems", &SupportFields::CableBolts},
    {"Evaluation of Truss Systems", &SupportFields::Trusses},
    {"Evaluation of Roof Bolt Systems", &SupportFields::RoofBolts},
    {"Evaluation of Standing Support Systems", &SupportFields::StandingSupports},
});

constexpr auto EntryRockRows = std::to_array<NumberRow>({
    {"Rock Load Height", &R::RockLoadHeight, unit_row::Length},
    {"Rock Fall Angle", &R::RockFallAngle, report_unit::Degrees},
});
constexpr auto EntryCableRows = std::to_array<NumberRow>({
    {"Number of Cable Bolts per Row", &R::CableBoltsPerRowSecEntry},
    {"Cable Bolt Row Spacing", &R::CableRowSpacingSecEntry, unit_row::Length},
});
constexpr auto EntryTrussRows = std::to_array<NumberRow>({
    {"Length of Angled Truss Member", &R::TrussLengthMemberSecEntry, unit_row::Length},
    {"Truss Angle", &R::TrussAngleSecEntry, report_unit::Degrees},
    {"Truss Capacity", &R::TrussCapacitySecEntry, unit_row::Force},
    {"Truss Spacing", &R::TrussSpacingSecEntry, unit_row::Length},
});
constexpr auto EntryBoltRows = std::to_array<NumberRow>({
    {"Number of Roof Bolts per Row", &R::BoltsperRowSecEntry},
    {"Roof Bolt Row Spacing", &R::RowSpacingSecEntry, unit_row::Length},
    {"Roof Bolt Length", &R::BoltLengthSecEntry, unit_row::Length},
});
constexpr auto EntryStandingRows = std::to_array<NumberRow>({
    {"Standing Support Capacity", &R::SupportCapSecEntry, unit_row::Force},
    {"Number of Standing Supports per Row", &R::NumberSupPerRowSecEntry},
    {"Standing Support Row Spacing", &R::SupportRowSpacingSecEntry, unit_row::Length},
});
constexpr SupportEcho EntryEcho{EntrySupport,     "[SECONDARY ENTRY SUPPORT ANALYSIS OPTIONS]",
                                EntryRockRows,    EntryCableRows,
                                EntryTrussRows,   EntryBoltRows,
                                EntryStandingRows};

constexpr auto IntersectionRockRows = std::to_array<NumberRow>({
    {"Rock Load Height", &R::RockLoadHeightInter, unit_row::Length},
    {"Rock Fall Angle (Entry)", &R::RockFallAngleEntry, report_unit::Degrees},
    {"Rock Fall Angle (Crosscut)", &R::RockFallAngleXcut, report_unit::Degrees},
});
constexpr auto IntersectionCableRows = std::to_array<NumberRow>({
    {"Number of Cable Bolts", &R::CableNumberSecInter},
});
constexpr auto IntersectionTrussRows = std::to_array<NumberRow>({
    {"Length of Angled Truss Member", &R::TrussLengthMemberSecInter, unit_row::Length},
    {"Truss Angle", &R::TrussAngleSecInter, report_unit::Degrees},
    {"Truss Capacity", &R::TrussCapacitySecInter, unit_row::Force},
    {"Number of Trusses", &R::TrussNumberSecInter},
});
constexpr auto IntersectionBoltRows = std::to_array<NumberRow>({
    {"Roof Bolt Length", &R::BoltLengthSecInter, unit_row::Length},
    {"Number of Roof Bolts", &R::BoltNumberSecInter},
});
constexpr auto IntersectionStandingRows = std::to_array<NumberRow>({
    {"Standing Support Capacity", &R::SupportCapSecInter, unit_row::Force},
    {"Number of Standing Supports", &R::SupportNumberSecInter},
});
constexpr SupportEcho IntersectionEcho{IntersectionSupport,     "[SECONDARY INTERSECTION SUPPORT ANALYSIS OPTIONS]",
                                       IntersectionRockRows,    IntersectionCableRows,
                                       IntersectionTrussRows,   IntersectionBoltRows,
                                       IntersectionStandingRows};

// Writes the parts of the page one after the other.
class Echo {
 public:
  explicit Echo(const Program& theProgram)
      : program(theProgram), record(theProgram.WorkParms), page(theProgram.Units) {}

  void Header();
  void Project();
  void Geology();
  void Analyses();
  void Primary();
  void Secondary();
  std::string Take() { return page.Take(); }

 private:
  void Support(const SupportEcho& echo);
  void Rows(NumberRows rows);
  void Region();
  void Bolts(const BoltEcho& echo);
  void BoltCapacities(const BoltEcho& echo, const Bolt& bolt);
  void Cables(const CableFields& cable);

  const Program& program;
  const ProjectRecord& record;
  ReportText page;
};

void Echo::Rows(NumberRows rows) {
  for (const auto& [label, field, unit] : rows) page.Value(label, NumberText(record.*field), unit);
}

void Echo::Header() {
  constexpr std::size_t FileNameWidth = 70;
  if (program.options.PrintModuleHeader != 1) return;
  page.Line("ORBY module build: " + std::string(BuildStamp));
  page.Wrapped("Project File: " + program.CurrentFile, FileNameWidth);
  std::string units = "Input Units: ";
  units += UnitLabel(unit_row::Length, program.Units);
  units += UnitLabel(unit_row::Stress, program.Units);
  page.Line(units);
  page.Line();
}

void Echo::Project() {
  page.Line("[PROJECT TITLE]");
  page.Line(program.ProjectTitle);
  page.Line();
  page.Line("[PROJECT DESCRIPTION]");
  page.Line(program.ProjectDescription);
  page.Line();
}

void Echo::Region() {
  constexpr std::string_view RegionLabel = "CMRR Region";
  constexpr std::string_view RockTypeLabel = "CMRR Rock Type";
  if (record.CMRRManual == 1) {
    page.Words(RegionLabel, ManualSelection);
    page.Words(RockTypeLabel, ManualSelection);
    return;
  }
  const Integer region = record.CMRRRegionIndex;
  const Integer rockType = record.CMRRRockTypeIndex;
  if (region < 0 || static_cast<std::size_t>(region) >= RegionNames.size()) return;
  page.Words(RegionLabel, RegionNames[static_cast<std::size_t>(region)]);
  if (rockType >= 0 && rockType < RockTypeCount) page.Words(RockTypeLabel, RockTypeName(region, rockType));
}

void Echo::Geology() {
  page.Line("[GEOLOGY PARAMETERS]");
  page.Value("CMRR", NumberText(record.CMRR));
  Region();
  Rows(SiteRows);
  page.Line();
  page.Line();
  page.Line("[MINING PARAMETERS]");
  Rows(MiningRows);
  page.Line();
  page.Line();
}

void Echo::Analyses() {
  page.Line("[ROOF SUPPORT ANALYSIS OPTIONS]");
  for (const auto& [label, field] : AnalysisRows) page.Words(label, YesNoText(record.*field));
  page.Line();
  page.Line();
}

void Echo::BoltCapacities(const BoltEcho& echo, const Bolt& bolt) {
  const bool metric = program.Units == Metric;
  const Catalogs& catalogs = program.catalogs;
  auto [diameter, grade] = InEnglishUnits(bolt, program.Units);
  if (program.BoltStrengthMode != 0) {
    grade = metric ? echo.YieldOfMetricGrade(grade, catalogs) : YieldFromUltimateKsi(grade, catalogs);
  }
  const std::string yield = metric ? FormatNumber(CapacityKN(grade, diameter), "0")
                                   : FormatNumber(CapacityFromGrade(grade, diameter) / 2, "0.0");
  const std::string ultimate = metric ? FormatNumber(UltimateCapacityKN(grade, diameter, catalogs), "0")
                                      : FormatNumber(UltimateCapacity(grade, diameter, catalogs) / 2, "0.0");
  page.Value("Roof Bolt Yield Capacity", yield, unit_row::Force);
  page.Value("Roof Bolt Ultimate Capacity", ultimate, unit_row::Force);
}

void Echo::Bolts(const BoltEcho& echo) {
  constexpr std::string_view OptionLabel = "Roof Bolt Option";
  if (program.BoltStrengthMode == 1) page.Line("Roof Bolt Grade specified as Ultimate Strength");
  if (record.*echo.Set.Options == 0) {
    page.Words(OptionLabel, TableSelection);
    page.Words("Bolt Description", record.*echo.Set.Desc);
  } else {
    page.Words(OptionLabel, ManualSelection);
  }
  const Bolt bolt = SelectedBolt(record, echo.Set);
  page.Value("Roof Bolt Diameter", NumberText(bolt.Diameter), unit_row::Diameter);
  page.Value("Roof Bolt Grade", NumberText(bolt.Grade), unit_row::Grade);
  BoltCapacities(echo, bolt);
}

void Echo::Primary() {
  if (record.PrimSupport != 1) return;
  page.Line(PrimarySupportHeading);
  Rows(PrimaryRows);
  Bolts(PrimaryBoltEcho);
  page.Line();
  page.Line();
}

void Echo::Cables(const CableFields& cable) {
  page.Value("Cable Bolt Length", NumberText(record.*cable.Length), unit_row::Length);
  if (record.*cable.CapMode == 0) {
    page.Value("Cable Bolt Diameter", NumberText(record.*cable.Diam), unit_row::Diameter);
  }
  const Single capacity = record.*cable.Capacity == 0 ? record.*cable.CapacityStd : record.*cable.CapacityManual;
  page.Value("Cable Bolt Capacity", NumberText(capacity), unit_row::Force);
}

void Echo::Support(const SupportEcho& echo) {
  const SupportFields& fields = echo.Fields;
  page.Line(fields.Heading);
  Rows(echo.Rock);
  page.Line();
  page.Line(echo.OptionsHeading);
  for (const auto& [label, system] : SystemRows) page.Words(label, YesNoText(record.*(fields.*system).InUse));
  page.Line();
  const auto section = [&](const SystemFields& system, const auto& rows) {
    if (record.*system.InUse != 1) return;
    page.Line(system.Heading);
    rows();
    page.Line();
  };
  section(fields.CableBolts, [&] {
    Cables(fields.Cable);
    Rows(echo.CableLayout);
  });
  section(fields.Trusses, [&] { Rows(echo.Trusses); });
  section(fields.RoofBolts, [&] {
    Rows(echo.RoofBolts);
    Bolts({fields.RoofBolt, YieldFromUltimateMPa});
  });
  section(fields.StandingSupports, [&] {
    page.Line("Standing Support Type: " + record.*fields.StandingType);
    Rows(echo.StandingSupports);
  });
}

void Echo::Secondary() {
  if (record.*EntrySupport.Analysed == 1) Support(EntryEcho);
  if (record.*IntersectionSupport.Analysed != 1) return;
  page.Line();
  Support(IntersectionEcho);
}

}  // namespace

void LoadOutBuf0(Program& program) {
  SaveDescription(program);
  Echo echo(program);
  echo.Header();
  echo.Project();
  echo.Geology();
  echo.Analyses();
  echo.Primary();
  echo.Secondary();
  program.OutBuf[0] = echo.Take();
  program.LastPage = 1;
}

}  // namespace orby
