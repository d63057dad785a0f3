#include "reports/secondary_report.h"

#include <string>
#include <string_view>

#include "base/number_text.h"
#include "reports/primary_report.h"
#include "reports/support_headings.h"

namespace orby {
namespace {

constexpr NumberPattern OneDecimal = "0.0";

Single HighestOverEntry(const Design& design) {
  return MaxRockHeightEntry(design.Place.EntryWidth, design.Entries.RockFallAngle);
}

Single HighestOverIntersection(const Design& design) {
  return MaxRockHeightIntersection(design.Intersections.RockLoadHeight, design.Place.ActualSpanDiagonals,
                                   design.Intersections.RockFallAngle, design.Intersections.RockFallAngleXcut);
}

Bolt EntryBolt(const WorkingValues& working) { return {working.EntryBolts.Diameter, working.EntryBolts.Grade}; }
Bolt IntersectionBolt(const WorkingValues& working) { return working.IntersectionBolt; }

std::string EntryLoad(Single load) { return FormatNumber(load, OneDecimal); }
std::string IntersectionLoad(Single load) { return NumberText(load); }

// What the blocks of entries and of intersections have each of their own.
struct SupportBlock {
  SupportHeadings Headings;
  SecondarySupport RoofSupport::*Support;
  Single (*HighestRock)(const Design& design);
  Bolt (*WorkingBolt)(const WorkingValues& working);
  std::string (*LoadText)(Single load);
  int LoadUnit;
  bool ShowsDensities;
};

constexpr SupportBlock EntryBlock{
    EntryHeadings, &RoofSupport::Entries, HighestOverEntry, EntryBolt, EntryLoad, unit_row::LineLoad, true};
constexpr SupportBlock IntersectionBlock{IntersectionHeadings,
                                         &RoofSupport::Intersections,
                                         HighestOverIntersection,
                                         IntersectionBolt,
                                         IntersectionLoad,
                                         unit_row::Force,
                                         false};

class SecondaryReport {
 public:
  SecondaryReport(ReportText& thePage, const Program& theProgram, const WorkingValues& theWorking,
                  const SupportBlock& theBlock)
      : page(thePage),
        program(theProgram),
        design(theProgram.WorkParms),
        support(design.*theBlock.Support),
        working(theWorking),
        block(theBlock) {}

  void Write();

 private:
  void Load(std::string_view label, Single load) { page.Value(label, block.LoadText(load), block.LoadUnit); }
  void RockLoad();
  void System(std::string_view heading, const SupportSystem& system, std::string_view capacityLabel,
              std::string_view factorLabel);
  void CableBolts();
  void RoofBolts();
  void Densities(Single srdi, Single prsup);
  void WarnOfAnchorage(double anchored, Single height, std::string_view warning);

  ReportText& page;
  const Program& program;
  const Design& design;
  const SecondarySupport& support;
  const WorkingValues& working;
  const SupportBlock& block;
};

void SecondaryReport::RockLoad() {
  page.Line(block.Headings.Support);
  Load("Rock Load", support.RockLoad);
  const Single highest = block.HighestRock(design);
  if (support.RockLoadHeight > highest) {
    page.Value("(*) Rock Load Height adjusted. Maximum possible height", FormatNumber(highest, OneDecimal),
               unit_row::Length);
  }
  page.Line();
}

void SecondaryReport::System(std::string_view heading, const SupportSystem& system, std::string_view capacityLabel,
                             std::string_view factorLabel) {
  page.Line(heading);
  Load(capacityLabel, system.SupportCap);
  page.Value(factorLabel, FormatNumber(system.StabFactor, "0.00"));
}

void SecondaryReport::Densities(Single srdi, Single prsup) {
  page.Value("Secondary Reinforcement Density Index (SRDI)", FormatNumber(srdi, OneDecimal));
  page.Value("Secondary PRSUP", FormatNumber(prsup, OneDecimal));
}

void SecondaryReport::WarnOfAnchorage(double anchored, Single height, std::string_view warning) {
  if (anchored >= height) return;
  page.Line(WarningHeading);
  page.Wrapped(warning, ReportWidth);
}

void SecondaryReport::CableBolts() {
  const double anchorage = program.WorkParms.Units == Metric ? 1.3 : 4;
  System(block.Headings.CableBolts, support.Cable, "Cable Bolt System Support Capacity",
         "Cable Bolt System Stability Factor");
  if (block.ShowsDensities) {
    const SupportPattern& cables = working.EntryCables;
    // The PRSUP goes by the length of the primary bolts.
    SupportPattern asLongAsBolts = cables;
    asLongAsBolts.Length = working.Primary.Length;
    Densities(CableSRDI(cables), CablePRSUP(asLongAsBolts));
  }
  page.Line();
  WarnOfAnchorage(support.Cable.Length - anchorage, support.RockLoadHeight,
                  "Cable bolt may not be long enough to achieve adequate anchorage for the assumed rock load height.");
}

void SecondaryReport::RoofBolts() {
  const double anchorage = program.WorkParms.Units == Metric ? 0.305 : 1;
  System(block.Headings.RoofBolts, support.Bolt, "Roof Bolt Support System Capacity",
         "Roof Bolt Support System Stability Factor");
  if (block.ShowsDensities) {
    const BoltPattern& bolts = working.EntryBolts;
    // The SRDI takes the width that cable bolts bring along: without them the report ends in a division by zero.
    const SupportPattern byCapacity{bolts.Length, bolts.BoltsPerRow,
                                    UltimateCapacity(bolts.Grade, bolts.Diameter, program.catalogs) / 2,
                                    bolts.RowSpacing, working.EntryCables.EntryWidth};
    Densities(BoltSRDI(byCapacity), BoltPRSUP(bolts, {program.WorkParms.Basis, program.catalogs}));
  }
  page.Line();
  // Intersections are warned of by the length and the rock of the entries, too.
  WarnOfAnchorage(
      design.Entries.Bolt.Length - anchorage, design.Entries.RockLoadHeight,
      "Secondary roof bolt may not be long enough to achieve adequate anchorage for the assumed rock load height.");
  if (!FailsASTM(block.WorkingBolt(working), program.WorkParms.Units)) return;
  page.Line(BelowASTM);
  page.Line();
}

void SecondaryReport::Write() {
  RockLoad();
  if (support.Cable.Use == 1) CableBolts();
  if (support.Truss.Use == 1) {
    System(block.Headings.Trusses, support.Truss, "Truss System Support Capacity", "Truss Stability Factor");
    page.Line();
  }
  if (support.Bolt.Use == 1) RoofBolts();
  if (support.Standing.Use == 1) {
    System(block.Headings.StandingSupports, support.Standing, "Standing Support System Capacity",
           "Standing Support System Stability Factor");
  }
}

}  // namespace

void ReportEntrySupport(ReportText& page, const Program& program, const WorkingValues& working) {
  SecondaryReport(page, program, working, EntryBlock).Write();
}

void ReportIntersectionSupport(ReportText& page, const Program& program, const WorkingValues& working) {
  SecondaryReport(page, program, working, IntersectionBlock).Write();
}

}  // namespace orby
