#include "reports/calculation_report.h"

#include <string_view>

#include "reports/primary_report.h"
#include "reports/report_text.h"
#include "reports/secondary_report.h"
#include "reports/working_values.h"

namespace orby {
namespace {

constexpr std::string_view Heading = "[ORBY CALCULATIONS]";

void SetPage(Program& program, ReportText& page) {
  program.OutBuf[1] = page.Take();
  program.LastPage = 1;
}

ReportBasis BasisOf(const Program& program) {
  return {program.WorkParms.Support(), UsesAustralianTable(program), program.catalogs};
}

}  // namespace

void CalculationReport(Program& program) {
  const Design& design = program.WorkParms;
  const WorkingValues working = BuildWorkingValues(program);
  ReportText page(program.WorkParms.Units);
  page.Line(Heading);
  if (design.Primary.Analysed == 1) ReportPrimarySupport(page, program, working);
  if (design.Entries.Analysed == 1) ReportEntrySupport(page, program, working);
  if (design.Intersections.Analysed == 1) ReportIntersectionSupport(page, program, working);
  SetPage(program, page);
}

void NoCalculationReport(Program& program) {
  ReportText page(program.WorkParms.Units);
  page.Line(Heading);
  page.Line("The results cannot be computed from these inputs.");
  SetPage(program, page);
}

void KeepShownResults(Program& program) { program.LastResults = {BasisOf(program), program.OutBuf[1]}; }

bool RestoreShownResults(Program& program) {
  if (!program.LastResults || program.LastResults->MadeFrom != BasisOf(program)) return false;
  program.OutBuf[1] = program.LastResults->Page;
  program.LastPage = 1;
  return true;
}

}  // namespace orby
