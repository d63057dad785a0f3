#include "dialogs/project_report.h"

#include "base/attempt.h"
#include "files/shown_design.h"
#include "reports/calculation_report.h"
#include "reports/input_echo.h"

namespace orby {
namespace {

// Returns the inputs from which the pages of this design are made.
ReportBasis BasisOf(const Program& program, const Design& design) {
  return {design.Support(), UsesAustralianTable(program.project), program.session.catalogs};
}

}  // namespace

void BuildResults(Program& program, const Design& previewed) {
  LoadOutBuf0(program, previewed);
  TakeCalculationPage(program, CalculationReport(previewed, program.session.catalogs));
  program.session.LastResults = {BasisOf(program, previewed), program.session.OutBuf[1]};
}

void BuildProjectReport(Program& program) {
  Design design = program.project.WorkParms;
  const auto& last = program.session.LastResults;
  if (last && last->MadeFrom == BasisOf(program, design)) {
    TakeCalculationPage(program, last->Page);
  } else {
    TakeMetricCables(design);  // applies even if the design cannot be shown
    const bool isComputed = Succeeds([&] {
      design = AsReported(program.project, program.session.catalogs);
      TakeCalculationPage(program, CalculationReport(design, program.session.catalogs));
    });
    if (!isComputed) TakeCalculationPage(program, NoCalculationReport());
  }
  LoadOutBuf0(program, design);
}

}  // namespace orby
