// Tables of designs as spreadsheet files, read back.
#include <gmock/gmock.h>

#include "engine/designs.h"
#include "spreadsheet/sheet_bench.h"
#include "support/temporary_folder.h"
#include "tables/design_table.h"
#include "tables/rows.h"

namespace orby::test {
namespace {

using testing::HasSubstr;

TEST(ATableInASpreadsheet, HasItsCellsWithFormatsAndAFrozenHead) {
  const TableRun run;
  const TemporaryFolder folder;
  DesignTable table;
  Design design = EnglishDesign();
  table.Rows = {RowOfDesign(run, design)};
  table.Rows[0].Title = "North & south";
  table.Rows[0].Live.LivePSUP = std::optional<Single>(11.0F / 3);
  std::string unknown;
  table.Shown = ChosenColumns("file,title,depth-of-cover,live-primary-actual-psup,reason", unknown).value();

  WriteTableWorkbook(table, folder.At("table.xlsx"));

  const std::string sheet = SheetPart(folder.At("table.xlsx"), "xl/worksheets/sheet1.xml");
  EXPECT_THAT(sheet, HasSubstr("<pane ySplit=\"1\" topLeftCell=\"A2\" activePane=\"bottomLeft\" state=\"frozen\"/>"));
  EXPECT_THAT(sheet, HasSubstr("Depth of Cover (ft)"));
  EXPECT_THAT(sheet, HasSubstr("North &amp; south"));
  EXPECT_THAT(sheet, HasSubstr("<c r=\"C2\"><v>400</v></c>"));
  EXPECT_THAT(sheet, HasSubstr("<c r=\"D2\" s=\"2\"><v>3.666667"));
  EXPECT_THAT(sheet, HasSubstr("<autoFilter ref=\"A1:E2\"/>"));
  EXPECT_THAT(sheet, HasSubstr("<col min=\"3\" max=\"3\" width=\"21.7"));
  const std::string styles = SheetPart(folder.At("table.xlsx"), "xl/styles.xml");
  EXPECT_THAT(styles, HasSubstr("formatCode=\"0.0\""));
}

}  // namespace
}  // namespace orby::test
