// Which rows of a table are shown, and in which order.
#include "tables/row_choice.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <set>

#include "engine/designs.h"
#include "tables/design_table.h"
#include "tables/rows.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Designs of different depths, in the order of their creation, and a file that cannot be read.
struct RowsOfDepths {
  explicit RowsOfDepths(const std::vector<int>& depths) {
    for (const int depth : depths) {
      Design design = EnglishDesign();
      design.Place.DepthofCover = static_cast<Single>(depth);
      rows.push_back(RowOfDesign(run, design));
      rows.back().File = "/mine/panel" + std::to_string(rows.size()) + ".ORB";
    }
    rows.emplace_back();
    rows.back().File = "/mine/bad.ORB";
    rows.back().Reason = "File not found";
    std::string unknown;
    choice.Shown = ChosenColumns("overview", unknown).value();
    choice.Folder = "/mine/";
  }

  std::vector<std::size_t> Chosen(unsigned threads = 1) const {
    std::vector<const orby::TableRow*> all;
    all.reserve(rows.size());
    for (const auto& row : rows) all.push_back(&row);
    return ChosenRows(all, choice, threads, [] { return true; });
  }

  const TableRun run;
  std::vector<orby::TableRow> rows;
  RowChoice choice;
};

TEST(RowChoice, SortsNumbersAsNumbersAndEmptyCellsLast) {
  RowsOfDepths table({900, 1200, 80});
  table.choice.SortedBy = &ColumnWith("depth-of-cover");
  EXPECT_THAT(table.Chosen(), ElementsAre(2, 0, 1, 3));

  table.choice.IsDescending = true;
  EXPECT_THAT(table.Chosen(), ElementsAre(1, 0, 2, 3));
}

TEST(RowChoice, KeepsEqualRowsInTheOrderOfTheirFilesInBothDirections) {
  RowsOfDepths table({900, 900, 900});
  table.choice.SortedBy = &ColumnWith("depth-of-cover");
  EXPECT_THAT(table.Chosen(), ElementsAre(0, 1, 2, 3));

  table.choice.IsDescending = true;
  EXPECT_THAT(table.Chosen(), ElementsAre(0, 1, 2, 3));
}

TEST(RowChoice, SortsByThePathWithoutAColumn) {
  const RowsOfDepths table({900, 80});

  EXPECT_THAT(table.Chosen(), ElementsAre(2, 0, 1));
}

TEST(RowChoice, SearchesTheCellsOfTheUnitsOnView) {
  RowsOfDepths table({1000, 2000});
  table.choice.Containing = "304.8";
  EXPECT_THAT(table.Chosen(), IsEmpty());

  table.choice.Units = Metric;
  EXPECT_THAT(table.Chosen(), ElementsAre(0));
}

TEST(RowChoice, SearchesPathsFromTheFolderOn) {
  RowsOfDepths table({1000, 2000});
  table.choice.Containing = "mine";
  EXPECT_THAT(table.Chosen(), IsEmpty());

  table.choice.Containing = "PANEL2";
  EXPECT_THAT(table.Chosen(), ElementsAre(1));
}

TEST(RowChoice, GivesNothingAfterItWasEnded) {
  const RowsOfDepths table({1000, 2000});

  EXPECT_THAT(ChosenRows({&table.rows[0]}, table.choice, 1, [] { return false; }), IsEmpty());
}

RC_GTEST_PROP(RowChoice, OrdersEachRowOnceOnAnyNumberOfThreads, ()) {
  const auto depths = *rc::gen::container<std::vector<int>>(rc::gen::inRange(1, 40));
  RowsOfDepths table(depths);
  table.choice.SortedBy = &ColumnWith("depth-of-cover");
  table.choice.IsDescending = *rc::gen::arbitrary<bool>();

  const std::vector<std::size_t> order = table.Chosen();

  RC_ASSERT(table.Chosen(3) == order);
  RC_ASSERT(std::set<std::size_t>(order.begin(), order.end()).size() == depths.size() + 1);
  for (std::size_t i = 1; i < depths.size(); ++i) {
    const int before = depths[order[i - 1]];
    const int after = depths[order[i]];
    RC_ASSERT((table.choice.IsDescending ? before >= after : before <= after));
  }
}

TEST(PastedCells, HaveNoTabsAndLineEndsOfTheirOwn) {
  RowsOfDepths table({900});
  table.rows[0].Title = "North\tside\r\nold";
  std::string unknown;
  const TableView view{
      .Rows = {&table.rows[0]}, .Shown = ChosenColumns("title,depth-of-cover", unknown).value(), .Units = English};

  EXPECT_EQ(TableAsCells(view, [](std::size_t) { return true; }),
            "Title\tDepth of Cover (ft)\r\nNorth side  old\t900\r\n");
}

}  // namespace
}  // namespace orby::test
