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
#include "reports/input_rows.h"
#include "reports/report_text.h"

namespace orby {
namespace {

using YieldOfMetricGrade = Ksi (*)(Ksi grade, const Catalogs& catalogs);

// A Metric ultimate grade is in ksi when its yield strength is looked up. For secondary bolts it is looked up as if it
// were MPa. Users know their capacities this way.
Ksi YieldAsIfInMPa(Ksi grade, const Catalogs& catalogs) {
  return Ksi(YieldFromUltimateMPa(MPa(grade.Value), catalogs).Value);
}

// Writes the parts of the page.
class Echo {
 public:
  Echo(const Design& theDesign, const EchoedProject& theProject, const Catalogs& theCatalogs)
      : design(theDesign), project(theProject), catalogs(theCatalogs), page(theDesign.Units) {}

  void Header();
  void Project();
  void Geology();
  void Analyses();
  void Primary();
  void Secondary();
  std::string Take() { return page.Take(); }

 private:
  void Support(const SupportEcho& echo, const SecondarySupport& support);
  template <class Rows, class Source>
  void Numbers(const Rows& rows, const Source& source);
  void Region();
  void Bolts(const BoltSelection& set, YieldOfMetricGrade yieldOf);
  void BoltCapacities(const Bolt& bolt, YieldOfMetricGrade yieldOf);
  void Cables(const CableSelection& cable);

  const Design& design;
  const EchoedProject& project;
  const Catalogs& catalogs;
  ReportText page;
};

template <class Rows, class Source>
void Echo::Numbers(const Rows& rows, const Source& source) {
  for (const auto& [label, value, unit] : rows) page.Value(label, NumberText(value(source)), unit);
}

void Echo::Header() {
  constexpr std::size_t FileNameWidth = 70;
  page.Line("ORBY module build: " + std::string(BuildStamp));
  page.Wrapped("Project File: " + project.File, FileNameWidth);
  std::string units = "Input Units: ";
  units += UnitLabel(UnitSuffix::Length, design.Units);
  units += UnitLabel(UnitSuffix::Stress, design.Units);
  page.Line(units);
  page.Line();
}

void Echo::Project() {
  page.Line("[PROJECT TITLE]");
  page.Line(project.Title);
  page.Line();
  page.Line("[PROJECT DESCRIPTION]");
  page.Line(project.Description);
  page.Line();
}

void Echo::Region() {
  constexpr std::string_view RegionLabel = "CMRR Region";
  constexpr std::string_view RockTypeLabel = "CMRR Rock Type";
  if (design.Place.CMRRManual == 1) {
    page.Words(RegionLabel, ManualSelection);
    page.Words(RockTypeLabel, ManualSelection);
    return;
  }
  const Integer region = design.Place.CMRRRegionIndex;
  const Integer rockType = design.Place.CMRRRockTypeIndex;
  if (region < 0 || static_cast<std::size_t>(region) >= RegionNames.size()) return;
  page.Words(RegionLabel, RegionNames[static_cast<std::size_t>(region)]);
  if (rockType >= 0 && rockType < RockTypeCount) page.Words(RockTypeLabel, RockTypeName(region, rockType));
}

void Echo::Geology() {
  page.Line("[GEOLOGY PARAMETERS]");
  page.Value("CMRR", NumberText(design.Place.CMRR));
  Region();
  Numbers(SiteRows, design);
  page.Line();
  page.Line();
  page.Line("[MINING PARAMETERS]");
  Numbers(MiningRows, design);
  page.Line();
  page.Line();
}

void Echo::Analyses() {
  page.Line("[ROOF SUPPORT ANALYSIS OPTIONS]");
  page.Words("Analysis of Primary Roof Bolts", YesNoText(design.Primary.Analysed));
  page.Words("Analysis of Secondary Support: Entries", YesNoText(design.Entries.Analysed));
  page.Words("Analysis of Secondary Support: Intersections", YesNoText(design.Intersections.Analysed));
  page.Line();
  page.Line();
}

void Echo::BoltCapacities(const Bolt& bolt, YieldOfMetricGrade yieldOf) {
  const bool metric = design.Units == Metric;
  auto [diameter, grade] = InEnglishUnits(bolt, design.Units);
  if (design.Basis != StrengthBasis::Yield) {
    grade = metric ? yieldOf(grade, catalogs) : YieldFromUltimateKsi(grade, catalogs);
  }
  const std::string yield = metric ? FormatNumber(CapacityKN(grade, diameter), "0")
                                   : FormatNumber(CapacityFromGrade(grade, diameter) / 2, OneDecimal);
  const std::string ultimate = metric ? FormatNumber(UltimateCapacityKN(grade, diameter, catalogs), "0")
                                      : FormatNumber(UltimateCapacity(grade, diameter, catalogs) / 2, OneDecimal);
  page.Value("Roof Bolt Yield Capacity", yield, UnitSuffix::Force);
  page.Value("Roof Bolt Ultimate Capacity", ultimate, UnitSuffix::Force);
}

void Echo::Bolts(const BoltSelection& set, YieldOfMetricGrade yieldOf) {
  constexpr std::string_view OptionLabel = "Roof Bolt Option";
  if (design.Basis == StrengthBasis::Ultimate) page.Line("Roof Bolt Grade specified as Ultimate Strength");
  if (set.Options == BoltSource::Table) {
    page.Words(OptionLabel, TableSelection);
    page.Words("Bolt Description", set.Desc);
  } else {
    page.Words(OptionLabel, ManualSelection);
  }
  const Bolt bolt = SelectedBolt(set);
  page.Value("Roof Bolt Diameter", NumberText(bolt.Diameter), UnitSuffix::Diameter);
  page.Value("Roof Bolt Grade", NumberText(bolt.Grade), UnitSuffix::Grade);
  BoltCapacities(bolt, yieldOf);
}

void Echo::Primary() {
  if (design.Primary.Analysed != 1) return;
  page.Line(PrimarySupportHeading);
  Numbers(PrimaryRows, design);
  Bolts(design.Primary, YieldFromUltimateKsi);
  page.Line();
  page.Line();
}

void Echo::Cables(const CableSelection& cable) {
  page.Value("Cable Bolt Length", NumberText(cable.Length), UnitSuffix::Length);
  if (cable.CapMode == CapacityMode::ByDiameter)
    page.Value("Cable Bolt Diameter", NumberText(cable.Diam), UnitSuffix::Diameter);
  const Single capacity = cable.Capacity == ValueSource::Standard ? cable.CapacityStd : cable.CapacityManual;
  page.Value("Cable Bolt Capacity", NumberText(capacity), UnitSuffix::Force);
}

void Echo::Support(const SupportEcho& echo, const SecondarySupport& support) {
  page.Line(echo.Headings.Support);
  Numbers(echo.Rock, support);
  page.Line();
  page.Line(echo.OptionsHeading);
  page.Words("Evaluation of Cable Bolt Systems", YesNoText(support.Cable.Use));
  page.Words("Evaluation of Truss Systems", YesNoText(support.Truss.Use));
  page.Words("Evaluation of Roof Bolt Systems", YesNoText(support.Bolt.Use));
  page.Words("Evaluation of Standing Support Systems", YesNoText(support.Standing.Use));
  page.Line();
  const auto section = [&](const SupportSystem& system, std::string_view heading, const auto& rows) {
    if (system.Use != 1) return;
    page.Line(heading);
    rows();
    page.Line();
  };
  section(support.Cable, echo.Headings.CableBolts, [&] {
    Cables(support.Cable);
    Numbers(echo.CableLayout, support);
  });
  section(support.Truss, echo.Headings.Trusses, [&] {
    Numbers(TrussRows, support);
    Numbers(echo.TrussLayout, support);
  });
  section(support.Bolt, echo.Headings.RoofBolts, [&] {
    Numbers(echo.RoofBolts, support);
    Bolts(support.Bolt, YieldAsIfInMPa);
  });
  section(support.Standing, echo.Headings.StandingSupports, [&] {
    page.Line("Standing Support Type: " + support.Standing.TypeName);
    Numbers(echo.StandingSupports, support);
  });
}

void Echo::Secondary() {
  if (design.Entries.Analysed == 1) Support(EntryEcho, design.Entries);
  if (design.Intersections.Analysed != 1) return;
  page.Line();
  Support(IntersectionEcho, design.Intersections);
}

}  // namespace

std::string InputEcho(const Design& design, const EchoedProject& project, const Catalogs& catalogs) {
  Echo echo(design, project, catalogs);
  if (project.HasModuleHeader) echo.Header();
  echo.Project();
  echo.Geology();
  echo.Analyses();
  echo.Primary();
  echo.Secondary();
  return echo.Take();
}

void LoadOutBuf0(Program& program, const Design& design) {
  SaveDescription(program);
  const Project& project = program.project;
  const bool hasHeader = program.session.options.PrintModuleHeader == 1;
  program.session.OutBuf[0] =
      InputEcho(design, {project.CurrentFile, project.ProjectTitle, project.ProjectDescription, hasHeader},
                program.session.catalogs);
  program.windows.LastPage = 1;
}

}  // namespace orby
