// The spreadsheet file that a curve is exported to.
#include "spreadsheet/sheet_file.h"

#include <gmock/gmock.h>

#include "base/runtime_error.h"
#include "spreadsheet/sheet_bench.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"

namespace orby::test {
namespace {

using testing::Eq;
using testing::SizeIs;

// A curve of the suggested PSUP for 22 depths of cover.
Sheet CurveOf22Points() {
  SheetSeries series{"X-coord", "Sug.PSUP", {}, {}};
  for (int i = 0; i < 22; ++i) {
    series.x.push_back(200 + 20 * i);
    series.y.push_back(3.25 + 0.125 * i);
  }
  return {"Panel 3", "Depth of Cover (ft)", "Suggested PSUP", {series}};
}

class SheetFile : public testing::Test {
 protected:
  void Write(const Sheet& sheet) { WriteSheetFile(sheet, path); }

  const TemporaryFolder folder;
  const std::string path = folder.At("ORBY Suggested PSUP vs Depth of Cover.xlsx");
};

TEST_F(SheetFile, HasTheHeadersInItsFirstRow) {
  Write(CurveOf22Points());

  const auto cells = SheetCells(path);
  EXPECT_THAT(cells.at("A1"), Eq("X-coord"));
  EXPECT_THAT(cells.at("B1"), Eq("Sug.PSUP"));
}

TEST_F(SheetFile, HasTwentyTwoPointsInRows2To23) {
  Write(CurveOf22Points());

  const auto cells = SheetCells(path);
  EXPECT_THAT(cells, SizeIs(46));
  EXPECT_THAT(cells.at("A2"), Eq("200"));
  EXPECT_THAT(cells.at("B2"), Eq("3.25"));
  EXPECT_THAT(cells.at("A3"), Eq("220"));
  EXPECT_THAT(cells.at("B3"), Eq("3.375"));
  EXPECT_THAT(cells.at("A23"), Eq("620"));
  EXPECT_THAT(cells.at("B23"), Eq("5.875"));
}

TEST_F(SheetFile, HasAChartOfThePoints) {
  Write(CurveOf22Points());

  const std::string chart = SheetPart(path, "xl/charts/chart1.xml");
  EXPECT_THAT(chart, testing::HasSubstr("<c:scatterChart>"));
  EXPECT_THAT(chart, testing::HasSubstr("<c:f>Curve!$A$2:$A$23</c:f>"));
  EXPECT_THAT(chart, testing::HasSubstr("<c:f>Curve!$B$2:$B$23</c:f>"));
  EXPECT_THAT(chart, testing::HasSubstr("<a:t>Panel 3</a:t>"));
  EXPECT_THAT(chart, testing::HasSubstr("<a:t>Depth of Cover (ft)</a:t>"));
  EXPECT_THAT(chart, testing::HasSubstr("<a:t>Suggested PSUP</a:t>"));
}

TEST_F(SheetFile, HasTwoColumnsForEachSeries) {
  Sheet sheet = CurveOf22Points();
  sheet.series.push_back({"X-coord", "Sug.PSUP", {17.5}, {4.25}});

  Write(sheet);

  const auto cells = SheetCells(path);
  EXPECT_THAT(cells.at("C1"), Eq("X-coord"));
  EXPECT_THAT(cells.at("D1"), Eq("Sug.PSUP"));
  EXPECT_THAT(cells.at("C2"), Eq("17.5"));
  EXPECT_THAT(cells.at("D2"), Eq("4.25"));
}

TEST_F(SheetFile, HasOneEmptyRowForACurveWithoutPoints) {
  Sheet sheet = CurveOf22Points();
  sheet.series[0].x.clear();
  sheet.series[0].y.clear();

  Write(sheet);

  const std::string chart = SheetPart(path, "xl/charts/chart1.xml");
  EXPECT_THAT(chart, testing::HasSubstr("<c:f>Curve!$A$2</c:f>"));
  EXPECT_THAT(chart, testing::HasSubstr("<c:f>Curve!$B$2</c:f>"));
  EXPECT_THAT(SheetCells(path), SizeIs(2));
}

TEST_F(SheetFile, FailsInAMissingFolder) {
  const std::string nowhere = folder.At("missing/curve.xlsx");

  EXPECT_EQ(ErrorNumberOf([&] { WriteSheetFile(CurveOf22Points(), nowhere); }), error_number::PathFileAccess);
}

}  // namespace
}  // namespace orby::test
