// Spreadsheet files of cells below a head, read back.
#include "spreadsheet/cell_file.h"

#include <gmock/gmock.h>

#include "base/runtime_error.h"
#include "spreadsheet/sheet_bench.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct ACellFile : testing::Test {
  std::string Sheet() const { return SheetPart(path, "xl/worksheets/sheet1.xml"); }

  const TemporaryFolder folder;
  const std::string path = folder.At("cells.xlsx");
};

TEST_F(ACellFile, HasHeadsTextsAndNumbers) {
  CellFile file(path, "Designs");
  file.Head("File");
  file.Head("Depth (ft)");
  file.NextRow();
  file.Text("a <b>.ORB");
  file.Number(712.25, "0.0", 5);
  file.NextRow();
  file.Blank();
  file.Number(3, "", 1);
  file.Close();

  EXPECT_THAT(Sheet(), HasSubstr("<c r=\"A1\" s=\"1\" t=\"inlineStr\"><is><t>File</t></is></c>"));
  EXPECT_THAT(Sheet(), HasSubstr("<c r=\"A2\" t=\"inlineStr\"><is><t>a &lt;b&gt;.ORB</t></is></c>"));
  EXPECT_THAT(Sheet(), HasSubstr("<c r=\"B2\" s=\"2\"><v>712.25</v></c>"));
  EXPECT_THAT(Sheet(), HasSubstr("<c r=\"B3\"><v>3</v></c>"));
  EXPECT_THAT(Sheet(), Not(HasSubstr("r=\"A3\"")));
  EXPECT_THAT(SheetPart(path, "xl/workbook.xml"), HasSubstr("name=\"Designs\""));
  EXPECT_THAT(SheetPart(path, "xl/styles.xml"), HasSubstr("formatCode=\"0.0\""));
}

TEST_F(ACellFile, KeepsItsHeadOnViewWithFilters) {
  CellFile file(path, "Designs");
  file.Head("File");
  file.Head("Title");
  file.NextRow();
  file.Text("a.ORB");
  file.Close();

  EXPECT_THAT(Sheet(), HasSubstr("ySplit=\"1\" topLeftCell=\"A2\""));
  EXPECT_THAT(Sheet(), HasSubstr("state=\"frozen\""));
  EXPECT_THAT(Sheet(), HasSubstr("<autoFilter ref=\"A1:B2\"/>"));
}

TEST_F(ACellFile, HasColumnsAsWideAsTheirTextsWithinLimits) {
  CellFile file(path, "Designs");
  file.Head("N");
  file.Head("Twenty characters...");
  file.Head(std::string(200, 'x'));
  file.Close();

  EXPECT_THAT(Sheet(), HasSubstr("<col min=\"1\" max=\"1\" width=\"8.7"));
  EXPECT_THAT(Sheet(), HasSubstr("<col min=\"2\" max=\"2\" width=\"22.7"));
  EXPECT_THAT(Sheet(), HasSubstr("<col min=\"3\" max=\"3\" width=\"48.7"));
}

TEST_F(ACellFile, CutsATextThatNoCellHolds) {
  CellFile file(path, "Designs");
  file.Head("Text");
  file.NextRow();
  file.Text(std::string(40000, 'x'));
  file.Close();

  EXPECT_THAT(Sheet(), HasSubstr("<t>" + std::string(32767, 'x') + "</t>"));
}

TEST_F(ACellFile, WithoutRowsHasOnlyItsHead) {
  CellFile file(path, "Designs");
  file.Head("File");
  file.Close();

  EXPECT_THAT(Sheet(), HasSubstr("<dimension ref=\"A1\"/>"));
  EXPECT_THAT(Sheet(), HasSubstr("<t>File</t>"));
}

TEST_F(ACellFile, ThatIsNotClosedIsNotWritten) {
  {
    CellFile file(path, "Designs");
    file.Head("File");
    file.NextRow();
    file.Text("a.ORB");
  }

  EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST_F(ACellFile, FailsInAMissingFolder) {
  CellFile file(folder.At("missing/cells.xlsx"), "Designs");
  file.Head("File");

  EXPECT_EQ(ErrorNumberOf([&] { file.Close(); }), error_number::PathFileAccess);
  EXPECT_THAT(folder.Names(), IsEmpty());
}

}  // namespace
}  // namespace orby::test
