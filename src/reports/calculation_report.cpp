#include "reports/calculation_report.h"

#include <string_view>
#include <utility>

#include "reports/primary_report.h"
#include "reports/report_text.h"
#include "reports/secondary_report.h"

namespace orby {
namespace {

constexpr std::string_view Heading = "[ORBY CALCULATIONS]";

void SetPage(Program& program, std::string page) {
  program.session.OutBuf[1] = std::move(page);
  program.windows.LastPage = 1;
}

ReportBasis BasisOf(const Program& program) {
  return {program.project.WorkParms.Support(), UsesAustralianTable(program.project), program.session.catalogs};
}

}  // namespace

std::string CalculationReport(const RoofSupport& design, const Figures& figures) {
  static_cast<void>(figures.Working.Value());
  ReportText page(design.Units);
  page.Line(Heading);
  if (design.Primary.Analysed == 1) ReportPrimarySupport(page, design, figures);
  if (design.Entries.Analysed == 1) ReportEntrySupport(page, design, figures);
  if (design.Intersections.Analysed == 1) ReportIntersectionSupport(page, design, figures);
  return page.Take();
}

void CalculationReport(Program& program) {
  const Design& design = program.project.WorkParms;
  SetPage(program, CalculationReport(design, Analyze(design, program.session.catalogs)));
}

void NoCalculationReport(Program& program) {
  ReportText page(program.project.WorkParms.Units);
  page.Line(Heading);
  page.Line("The results cannot be computed from these inputs.");
  SetPage(program, page.Take());
}

void KeepShownResults(Program& program) { program.session.LastResults = {BasisOf(program), program.session.OutBuf[1]}; }

bool RestoreShownResults(Program& program) {
  if (!program.session.LastResults || program.session.LastResults->MadeFrom != BasisOf(program)) return false;
  program.session.OutBuf[1] = program.session.LastResults->Page;
  program.windows.LastPage = 1;
  return true;
}

}  // namespace orby
