#include "reports/cost_report.h"

#include <array>
#include <string>
#include <string_view>

#include "base/number_text.h"
#include "base/text.h"
#include "engine/cost.h"
#include "reports/report_text.h"

namespace orby {
namespace {

constexpr std::size_t FigureWidth = 10;
constexpr std::array<std::string_view, 4> Columns{"$/Bolt", "$/ft", "$/shift", "$/ton"};
constexpr std::string_view Title = "OUTPUT TABLE           ";
constexpr std::array<std::string_view, CostHeads> HeadLabels{
    "Consumables Cost:      ", "Operating Labor Cost:  ", "Maintenance Cost:      ", "Transportation Cost:   ",
    "Machine Ownership Cost:"};
constexpr std::string_view TotalLabel = "TOTAL COST:            ";

std::string HeadingRow() {
  std::string row(Title);
  for (const std::string_view column : Columns) row += AlignRight(column, FigureWidth);
  return row;
}

std::string CostLine(std::string_view label, const CostRow& costs) {
  std::string row(label);
  for (const Single cost : costs) row += AlignRight(FormatNumber(cost, "0.00"), FigureWidth);
  return row;
}

}  // namespace

std::string CostReport(const CostInputs& costs, UnitSystem units) {
  const CostTable table = AnalyseCost(costs);
  ReportText page(units);
  page.Line("[TULK COST CALCULATIONS]");
  page.Line();
  page.Line(HeadingRow());
  for (std::size_t head = 0; head < CostHeads; ++head) page.Line(CostLine(HeadLabels[head], table.Heads[head]));
  page.Line(CostLine(TotalLabel, table.Totals));
  return page.Take();
}

}  // namespace orby
