#include "reports/calculation_report.h"

#include <string_view>
#include <utility>

#include "reports/primary_report.h"
#include "reports/report_text.h"
#include "reports/secondary_report.h"

namespace orby {
namespace {

constexpr std::string_view Heading = "[ORBY CALCULATIONS]";

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

std::string CalculationReport(const RoofSupport& design, const Catalogs& catalogs) {
  return CalculationReport(design, Analyze(design, catalogs));
}

std::string NoCalculationReport() {
  ReportText page(English);
  page.Line(Heading);
  page.Line("The results cannot be computed from these inputs.");
  return page.Take();
}

void TakeCalculationPage(Program& program, std::string page) {
  program.session.OutBuf[1] = std::move(page);
  program.windows.LastPage = 1;
}

}  // namespace orby
