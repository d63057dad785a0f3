#include "reports/secondary_report.h"

#include <string>
#include <string_view>

#include "base/number_text.h"
#include "reports/primary_report.h"
#include "reports/support_headings.h"

namespace orby {
namespace {

std::string EntryLoad(Single load) { return FormatNumber(load, OneDecimal); }
std::string IntersectionLoad(Single load) { return NumberText(load); }

// The parts that differ between the blocks of entries and of intersections.
struct SupportBlock {
  SupportHeadings Headings;
  SecondarySupport RoofSupport::*Support;
  Computed<Reinforcement> Figures::*Added;
  std::string (*LoadText)(Single load);
  UnitSuffix LoadUnit;
  bool ShowsDensities;
};

constexpr SupportBlock EntryBlock{.Headings = EntryHeadings,
                                  .Support = &RoofSupport::Entries,
                                  .Added = &Figures::EntryReinforcement,
                                  .LoadText = EntryLoad,
                                  .LoadUnit = UnitSuffix::LineLoad,
                                  .ShowsDensities = true};
constexpr SupportBlock IntersectionBlock{.Headings = IntersectionHeadings,
                                         .Support = &RoofSupport::Intersections,
                                         .Added = &Figures::IntersectionReinforcement,
                                         .LoadText = IntersectionLoad,
                                         .LoadUnit = UnitSuffix::Force,
                                         .ShowsDensities = false};

class SecondaryReport {
 public:
  SecondaryReport(ReportText& thePage, const RoofSupport& design, const Figures& figures, const SupportBlock& theBlock)
      : page(thePage), support(design.*theBlock.Support), added((figures.*theBlock.Added).Value()), block(theBlock) {}

  void Write();

 private:
  void Load(std::string_view label, Single load) { page.Value(label, block.LoadText(load), block.LoadUnit); }
  void RockLoad();
  void System(std::string_view heading, const SupportSystem& system, std::string_view capacityLabel,
              std::string_view factorLabel);
  void CableBolts();
  void RoofBolts();
  void Densities(Single srdi, Single prsup);
  void Warn(std::string_view warning);

  ReportText& page;
  const SecondarySupport& support;
  const Reinforcement& added;
  const SupportBlock& block;
};

void SecondaryReport::RockLoad() {
  page.Line(block.Headings.Support);
  Load("Rock Load", support.RockLoad);
  if (added.HeightIsAdjusted) {
    page.Value(HeightAdjusted, FormatNumber(added.HighestRock, OneDecimal), UnitSuffix::Length);
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

void SecondaryReport::Warn(std::string_view warning) {
  page.Line(WarningHeading);
  page.Wrapped(warning, ReportWidth);
}

void SecondaryReport::CableBolts() {
  System(block.Headings.CableBolts, support.Cable, "Cable Bolt System Support Capacity",
         "Cable Bolt System Stability Factor");
  if (block.ShowsDensities) Densities(added.CableSRDI, added.CablePRSUP);
  page.Line();
  if (!added.CablesAreShort) return;
  Warn("Cable bolt may not be long enough to achieve adequate anchorage for the assumed rock load height.");
}

void SecondaryReport::RoofBolts() {
  System(block.Headings.RoofBolts, support.Bolt, "Roof Bolt Support System Capacity",
         "Roof Bolt Support System Stability Factor");
  if (block.ShowsDensities) Densities(added.BoltSRDI, added.BoltPRSUP);
  page.Line();
  if (added.BoltsAreShort) {
    Warn("Secondary roof bolt may not be long enough to achieve adequate anchorage for the assumed rock load height.");
  }
  if (!added.BoltsFailASTM) return;
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

void ReportEntrySupport(ReportText& page, const RoofSupport& design, const Figures& figures) {
  SecondaryReport(page, design, figures, EntryBlock).Write();
}

void ReportIntersectionSupport(ReportText& page, const RoofSupport& design, const Figures& figures) {
  SecondaryReport(page, design, figures, IntersectionBlock).Write();
}

}  // namespace orby
