// Tables of designs as texts.
#include "tables/design_table.h"

#include <gmock/gmock.h>

#include "engine/designs.h"
#include "sheet/json_reader.h"
#include "tables/rows.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// An English and a Metric design, and a file that cannot be read.
struct ThreeRows : testing::Test {
  ThreeRows() {
    Design english = EnglishDesign();
    Design metric = EnglishDesign();
    metric.Units = Metric;
    metric.Place.DepthofCover = 121.92F;
    table.Rows = {RowOfDesign(run, english), RowOfDesign(run, metric), TableRow()};
    table.Rows[0].File = "a.ORB";
    table.Rows[0].Title = "North, \"old\" side";
    table.Rows[1].File = "b.ORB";
    table.Rows[1].Title =
        "S\xC3\xBC"
        "d";
    table.Rows[2].File = "c.ORB";
    table.Rows[2].Reason = "File not found";
  }

  void Show(std::string_view columns) {
    std::string unknown;
    table.Shown = ChosenColumns(columns, unknown).value();
  }

  const TableRun run;
  DesignTable table;
};

TEST_F(ThreeRows, InCsvHaveUnitsInTheHeadAndQuotedTexts) {
  Show("file,title,depth-of-cover,reason");

  EXPECT_EQ(TableAsCsv(table),
            "File,Title,Depth of Cover (ft),Reason\r\n"
            "a.ORB,\"North, \"\"old\"\" side\",400,\r\n"
            "b.ORB,S\xC3\xBC"
            "d,400,\r\n"
            "c.ORB,,,File not found\r\n");
}

TEST_F(ThreeRows, InCsvHaveNothingForAFigureWithoutAValue) {
  table.Rows.resize(1);
  table.Rows[0].Live.LivePSUP = std::optional<Single>();
  Show("live-primary-actual-psup,file");

  EXPECT_EQ(TableAsCsv(table), "Dialog: Primary: Actual PSUP,File\r\n,a.ORB\r\n");
}

TEST_F(ThreeRows, InCsvKeepLineEndsInQuotes) {
  table.Rows.resize(1);
  table.Rows[0].File = "a\nb";
  Show("file");

  EXPECT_EQ(TableAsCsv(table), "File\r\n\"a\nb\"\r\n");
}

TEST_F(ThreeRows, InJsonHaveNumbersAndNull) {
  Show("file,depth-of-cover,live-primary-actual-psup,reason");
  table.Units = Metric;
  table.Rows[0].Live.LivePSUP = std::optional<Single>();
  table.Rows[1].Live.LivePSUP = std::optional<Single>(11.0F / 3);

  const Json json = ReadJson(TableAsJson(table));

  EXPECT_EQ(json["format"].Number(), 1);
  EXPECT_EQ(json["program"]["name"].Text(), "Orby Roof Support Workbench");
  EXPECT_EQ(json["units"].Text(), "metric");
  EXPECT_EQ(json["columns"].Items().at(1)["key"].Text(), "depth-of-cover");
  EXPECT_EQ(json["columns"].Items().at(1)["head"].Text(), "Depth of Cover");
  EXPECT_EQ(json["columns"].Items().at(1)["unit"].Text(), "m");
  const JsonArray& rows = json["rows"].Items();
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0]["depth-of-cover"].Number(), 121.92);
  EXPECT_EQ(rows[0]["live-primary-actual-psup"].Value.index(), 0U) << "null";
  EXPECT_EQ(rows[1]["live-primary-actual-psup"].Number(), 3.666667) << "more digits than are shown";
  EXPECT_EQ(rows[2]["depth-of-cover"].Value.index(), 0U) << "null";
  EXPECT_EQ(rows[2]["reason"].Text(), "File not found");
}

TEST_F(ThreeRows, AsPlainTextStandInColumns) {
  Show("file,title,depth-of-cover,reason");
  table.Rows[1].File = "b\x1B[2J.ORB";

  EXPECT_EQ(TableAsText(table),
            "File       Title              Depth of Cover (ft)  Reason\n"
            "a.ORB      North, \"old\" side                  400\n"
            "b?[2J.ORB  S\xC3\xBC"
            "d                                400\n"
            "c.ORB                                              File not found\n");
}

TEST(ATable, HasTheUnitsThatAllItsDesignsShare) {
  const TableRun run;
  Design metric = EnglishDesign();
  metric.Units = Metric;
  const TableRow inFeet = RowOfDesign(run, EnglishDesign());
  const TableRow inMetres = RowOfDesign(run, metric);
  TableRow unread;
  unread.Reason = "File not found";

  EXPECT_EQ(CommonUnits({inMetres, unread, inMetres}), Metric);
  EXPECT_EQ(CommonUnits({inFeet, inFeet}), English);
  EXPECT_EQ(CommonUnits({inMetres, inFeet}), English);
  EXPECT_EQ(CommonUnits({unread}), English);
  EXPECT_EQ(CommonUnits({}), English);
  EXPECT_FALSE(AllAreRead({inFeet, unread}));
  EXPECT_TRUE(AllAreRead({inFeet, inMetres}));
}

TEST(ATable, WrittenByManyThreadsKeepsTheOrderOfItsRows) {
  const TableRun run;
  DesignTable table;
  std::string unknown;
  table.Shown = ChosenColumns("file", unknown).value();
  std::string expected = "File\r\n";
  for (int i = 0; i < 1000; ++i) {
    TableRow row;
    row.File = std::to_string(i);
    row.Reason = "File not found";
    table.Rows.push_back(row);
    expected += row.File + "\r\n";
  }

  EXPECT_EQ(TableAsCsv(table), expected);
}

}  // namespace
}  // namespace orby::test
