#include "reports/cost_report.h"

#include <gtest/gtest.h>

#include "reports/designs.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

// The initial costs of the cost dialog in a new English design.
struct CostDesk : Desk {
  CostInputs& Costs() { return program.project.WorkParms.Cost; }
  std::string Page() { return CostReport(Costs(), English); }
  // Returns the row that starts with the label.
  std::string Row(std::string_view label) {
    for (const std::string& line : LinesOf(Page())) {
      if (line.starts_with(label)) return line;
    }
    return "no such row";
  }
};

TEST(CostReport, HasTheCostsOfTheEnglishDefaults) {
  CostDesk desk;

  EXPECT_EQ(desk.Page(), ReadTestData("reports/cost_english_defaults.txt"));
}

TEST(CostReport, IsATableOfZerosForInputsOfZero) {
  CostDesk desk;
  desk.Costs() = {};

  EXPECT_EQ(desk.Page(), ReadTestData("reports/cost_all_zero.txt"));
}

TEST(CostReport, HasNoCostsPerFootAndPerTonWithoutARowSpacing) {
  CostDesk desk;
  desk.Costs().RowSpacing = 0;

  EXPECT_EQ(desk.Row("Consumables Cost:"), "Consumables Cost:            5.72      0.00   1717.00      0.00");
  EXPECT_EQ(desk.Row("TOTAL COST:"), "TOTAL COST:                  9.22      0.00   2766.17      0.00");
}

TEST(CostReport, HasNoMaintenanceAndOwnershipWithoutShifts) {
  CostDesk desk;
  desk.Costs().ShiftsWeek = 0;

  EXPECT_EQ(desk.Row("Maintenance Cost:"), "Maintenance Cost:            0.00      0.00      0.00      0.00");
  EXPECT_EQ(desk.Row("Transportation Cost:"), "Transportation Cost:         0.33      0.33    100.00      0.08");
  EXPECT_EQ(desk.Row("Machine Ownership Cost:"), "Machine Ownership Cost:      0.00      0.00      0.00      0.00");
}

TEST(CostReport, HasNoOwnershipWithoutYearsOfDepreciation) {
  CostDesk desk;
  desk.Costs().YearsDepr = 0;

  EXPECT_EQ(desk.Row("Maintenance Cost:"), "Maintenance Cost:            0.19      0.19     55.83      0.05");
  EXPECT_EQ(desk.Row("Machine Ownership Cost:"), "Machine Ownership Cost:      0.00      0.00      0.00      0.00");
}

TEST(CostReport, DoesNotDependOnTheAdvanceFields) {
  CostDesk desk;
  const std::string before = desk.Page();

  desk.Costs().Advance = 0;
  desk.Costs().AdvanceShift = 77;

  EXPECT_EQ(desk.Page(), before);
}

TEST(CostReport, DoesNotCutAFigureThatIsWiderThanItsColumn) {
  CostDesk desk;
  desk.Costs().BoltCost = 0;
  desk.Costs().TranspCost = 123456792;

  EXPECT_EQ(desk.Row("Transportation Cost:"), "Transportation Cost:    411522.60 411522.60123456800.00 102880.70");
}

TEST(CostReport, FailsForAFigureOutsideTheRangeOfASingle) {
  CostDesk desk;
  desk.Costs().TotalLabor = 3e38F;

  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(desk.Page()); }), 6);
}

}  // namespace
}  // namespace orby::test
