// Keys, heads and units of the columns.
#include "tables/column.h"

#include <gmock/gmock.h>

#include <fstream>
#include <set>
#include <sstream>

#include "engine/designs.h"
#include "tables/column_list.h"
#include "tables/rows.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::SizeIs;

std::vector<std::string> KeysOf(const std::optional<Columns>& columns) {
  std::vector<std::string> keys;
  for (const Column* column : columns.value()) keys.push_back(column->Key);
  return keys;
}

TEST(AColumn, HasAKeyAndAHeadOfItsOwn) {
  std::set<std::string> keys;
  std::set<std::string> heads;
  for (const Column& column : AllColumns()) {
    EXPECT_TRUE(keys.insert(column.Key).second) << column.Key;
    EXPECT_TRUE(heads.insert(column.Head).second) << column.Head;
    EXPECT_EQ(column.Key.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-"), std::string::npos) << column.Key;
  }
}

TEST(AColumn, IsDescribedWithItsKeyAndHead) {
  std::ifstream file(std::string(DOCS_DIR) + "/table-format.md");
  std::ostringstream page;
  page << file.rdbuf();
  for (const Column& column : AllColumns()) {
    const std::string unit = UnitText(column.Unit, English);
    const std::string line = "| `" + column.Key + "` | " + column.Head + " | " + unit + (unit.empty() ? "|" : " |");
    EXPECT_NE(page.str().find("\n" + line + "\n"), std::string::npos) << line;
  }
}

TEST(AKey, LeavesOutUnitsInBrackets) {
  EXPECT_EQ(KeyOf("Rock Fall Angle (Entry)"), "rock-fall-angle-entry");
  EXPECT_EQ(KeyOf("Preventative maintenance (labor hrs/day)"), "preventative-maintenance");
  EXPECT_EQ(KeyOf("Capital cost for machine ($)"), "capital-cost-for-machine");
  EXPECT_EQ(KeyOf("Input: Advance per shift"), "input-advance-per-shift");
}

TEST(AListOfColumns, HasThemInItsOrder) {
  std::string unknown;
  EXPECT_THAT(KeysOf(ChosenColumns("depth-of-cover,file,cmrr", unknown)),
              ElementsAre("depth-of-cover", "file", "cmrr"));
}

TEST(AListOfColumns, MayNameGroups) {
  std::string unknown;
  EXPECT_THAT(KeysOf(ChosenColumns("file,cost", unknown)),
              ElementsAre("file", "cost-total-bolt", "cost-total-length", "cost-total-shift", "cost-total-ton"));
  EXPECT_EQ(KeysOf(ChosenColumns("overview", unknown)).front(), "file");
  EXPECT_THAT(KeysOf(ChosenColumns("all", unknown)), SizeIs(AllColumns().size()));
  EXPECT_THAT(KeysOf(ChosenColumns("inputs", unknown)), Contains("entry-rock-load-height"));
}

TEST(AListOfColumns, NamesWhatDoesNotExist) {
  for (const std::string list : {"file,depht", "depht", "depht,file"}) {
    std::string unknown;
    EXPECT_FALSE(ChosenColumns(list, unknown)) << list;
    EXPECT_EQ(unknown, "depht");
  }
  std::string unknown = "before";
  EXPECT_FALSE(ChosenColumns("file,,cmrr", unknown));
  EXPECT_EQ(unknown, "");
}

TEST(AHead, HasTheUnitOfTheTable) {
  const Column& load = ColumnWith("report-entry-rock-load");
  EXPECT_EQ(HeadText(load, English), "Report: Entries: Rock Load (tons/ft)");
  EXPECT_EQ(HeadText(load, Metric), "Report: Entries: Rock Load (kN/m)");
  EXPECT_EQ(HeadText(ColumnWith("cost-total-length"), Metric), "Cost: Total per length ($/m)");
  EXPECT_EQ(HeadText(ColumnWith("live-primary-actual-psup"), English), "Dialog: Primary: Actual PSUP");
  EXPECT_EQ(HeadText(ColumnWith("entry-rock-fall-angle"), Metric), "Entries: Rock Fall Angle (deg)");
}

// Returns what the cell of an English design shows in Metric units.
std::string InMetric(const TableRow& row, std::string_view key) {
  return ShownText(CellOf(ColumnWith(key), row, Metric));
}

TEST(ACell, OfAnEnglishDesignIsItsNumberTimesOneFactorInMetricUnits) {
  const TableRun run;
  Design design = EnglishDesign();  // 400 ft deep, 162 pcf
  design.Entries.Truss.Use = 1;
  design.Entries.Truss.Capacity = 10;
  design.Primary.Options = BoltSource::Manual;
  design.Primary.DiameterMode = design.Primary.GradeMode = ValueSource::Typed;
  design.Primary.DiameterManual = 0.75F;
  design.Primary.GradeManual = 60;
  const TableRow row = RowOfDesign(run, design);

  EXPECT_EQ(OwnText(row, "depth-of-cover"), "400");
  EXPECT_EQ(InMetric(row, "depth-of-cover"), "121.92");
  EXPECT_EQ(InMetric(row, "unit-weight-of-rock"), "25.44648");
  EXPECT_EQ(InMetric(row, "entry-truss-capacity"), "88.96443");
  EXPECT_EQ(InMetric(row, "primary-roof-bolt-diameter"), "19.05");
  EXPECT_EQ(InMetric(row, "primary-roof-bolt-grade"), "413.6854");
  EXPECT_EQ(InMetric(row, "cmrr"), OwnText(row, "cmrr"));
}

TEST(ACell, OfAnotherSystemKeepsItsPattern) {
  const CellUnit length{.Suffix = UnitSuffix::Length, .Before = {}};
  const CellUnit lineLoad{.Suffix = UnitSuffix::LineLoad, .Before = {}};
  const CellUnit perLength{.Suffix = UnitSuffix::Length, .Before = "$/"};
  const CellUnit perTon{.Suffix = UnitSuffix::ProductionMass, .Before = "$/"};
  const CellUnit percent{.Suffix = UnitSuffix::None, .Before = "%"};

  EXPECT_EQ(ShownText(Converted(NumberCell(63.21F, "#.0"), length, English, Metric)), "19.3");
  EXPECT_EQ(ShownText(Converted(NumberCell(0.1F, "#.0"), length, English, Metric)), ".0");
  EXPECT_EQ(ShownText(Converted(NumberCell(1, OneDecimal), lineLoad, English, Metric)), "29.2");
  EXPECT_EQ(ShownText(Converted(NumberCell(29.1878F, OneDecimal), lineLoad, Metric, English)), "1.0");
  EXPECT_EQ(ShownText(Converted(NumberCell(2, "0.00"), perLength, English, Metric)), "6.56");
  EXPECT_EQ(ShownText(Converted(NumberCell(6.56F, "0.00"), perLength, Metric, English)), "2.00");
  EXPECT_EQ(ShownText(Converted(NumberCell(2, "0.00"), perTon, English, Metric)), "2.20");
  EXPECT_EQ(ShownText(Converted(NumberCell(53, "0"), percent, English, Metric)), "53");
}

TEST(ACell, ThatNoSingleHoldsInTheOtherSystemHasNoResult) {
  const CellUnit force{.Suffix = UnitSuffix::Force, .Before = {}};

  EXPECT_EQ(ShownText(Converted(NumberCell(3e38F), force, English, Metric)), "--");
}

TEST(ACell, OfAPatternHasTheFormatOfASpreadsheet) {
  EXPECT_EQ(NumberFormat(NumberCell(1)), "");
  EXPECT_EQ(NumberFormat(NumberCell(1, "0")), "0");
  EXPECT_EQ(NumberFormat(NumberCell(1, "0.0")), "0.0");
  EXPECT_EQ(NumberFormat(NumberCell(1, "#.0")), "#.0");
  EXPECT_EQ(NumberFormat(NumberCell(1, "0.#0")), "0.0#");
  EXPECT_EQ(NumberFormat(NumberCell(1, "0.000")), "0.000");
}

}  // namespace
}  // namespace orby::test
