// Designs side by side: which rows are shown, what their cells say, and which one is the best of a row.
#include "tables/comparison.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

#include "sheet/sheets.h"
#include "spreadsheet/sheet_bench.h"
#include "support/temporary_folder.h"
#include "tables/rows.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

struct SideBySide : testing::Test {
  // Returns the design of an example of the program.
  Design Example(const std::string& name) const {
    std::ifstream file(std::string(EXAMPLES_DIR) + "/" + name + ".ORB", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    return RowMaker(run.program).RowOfBytes(name, bytes).Shown;
  }

  void Add(const std::string& name, const Design& design) { designs.push_back({name, RowOfDesign(run, design)}); }

  const ComparedRow* RowWith(std::string_view key, UnitSystem units = English) {
    shown = CompareDesigns(designs, units);
    for (const ComparedSection& section : shown.Sections) {
      for (const ComparedRow& row : section.Rows) {
        if (row.Key == key) return &row;
      }
    }
    return nullptr;
  }

  std::vector<std::string> TextsOf(std::string_view key, UnitSystem units = English) {
    const ComparedRow* row = RowWith(key, units);
    std::vector<std::string> texts;
    if (row == nullptr) return texts;
    for (const ComparedCell& cell : row->Cells) texts.push_back(MarkedText(cell));
    return texts;
  }

  TableRun run;
  std::vector<ComparedDesign> designs;
  DesignComparison shown;
};

TEST_F(SideBySide, HasOnlyTheInputsThatDiffer) {
  Design deeper = Example("development-entry");
  deeper.Place.DepthofCover = 900;
  Add("As it is", Example("development-entry"));
  Add("Deeper", deeper);

  EXPECT_THAT(TextsOf("depth-of-cover"), ElementsAre("650", "900"));
  EXPECT_EQ(RowWith("cmrr"), nullptr) << "which is the same";
  const auto& inputs = shown.Sections.at(1);
  EXPECT_EQ(inputs.Title, "Inputs that differ");
  EXPECT_THAT(inputs.Rows, SizeIs(1));
  EXPECT_EQ(inputs.Rows.front().Head, "Depth of Cover (ft)");
}

TEST_F(SideBySide, HasNoSectionOfInputsIfNoneDiffers) {
  Add("One", Example("development-entry"));
  Add("Other", Example("development-entry"));

  for (const ComparedSection& section : CompareDesigns(designs, English).Sections) {
    EXPECT_NE(section.Title, "Inputs that differ");
  }
}

TEST_F(SideBySide, HasTitlesBesideTheFilesAndNotAmongTheInputs) {
  for (const char* title : {"North mains", "South mains"}) {
    Add(title, Example("development-entry"));
    designs.back().Row.Title = title;
  }

  EXPECT_THAT(TextsOf("title"), ElementsAre("North mains", "South mains"));
  const ComparedSection& first = shown.Sections.front();
  EXPECT_EQ(first.Title, "Designs");
  EXPECT_THAT(first.Rows, ElementsAre(Field(&ComparedRow::Key, "file"), Field(&ComparedRow::Key, "title")));
}

TEST_F(SideBySide, SaysThatDesignsHaveOtherUnitsAndComparesThemInOneSystem) {
  Add("English", Example("development-entry"));
  Add("Metric", Example("australian-grade-metric"));

  EXPECT_THAT(TextsOf("units"), ElementsAre("English", "Metric"));
  const std::vector<std::string> feet = TextsOf("depth-of-cover");
  EXPECT_EQ(feet.at(0), "650");
  EXPECT_EQ(RowWith("depth-of-cover", Metric)->Head, "Depth of Cover (m)");
  EXPECT_EQ(TextsOf("depth-of-cover", Metric).at(0), "198.12");
  EXPECT_EQ(TextsOf("depth-of-cover", Metric).at(1), OwnText(designs[1].Row, "depth-of-cover"));
}

TEST_F(SideBySide, MarksTheGreaterStabilityFactor) {
  Design denser = Example("gateroad-standing-supports");
  denser.Entries.Cable.RowSpacing /= 2;
  Add("As it is", Example("gateroad-standing-supports"));
  Add("Denser", denser);

  const ComparedRow* row = RowWith("report-entry-cable-bolt-system-stability-factor");

  ASSERT_NE(row, nullptr);
  EXPECT_FALSE(row->Cells.at(0).IsBest);
  EXPECT_TRUE(row->Cells.at(1).IsBest);
  EXPECT_THAT(MarkedText(row->Cells.at(1)), testing::EndsWith(" best"));
  EXPECT_EQ(row->Head, "Entries: Cable Bolt System Stability Factor");
}

TEST_F(SideBySide, MarksTheSmallerCost) {
  Design dear = Example("development-entry");
  dear.Cost.BoltCost += 4;
  Add("As it is", Example("development-entry"));
  Add("Dear bolts", dear);
  const ComparedRow* row = RowWith("cost-total-bolt");

  ASSERT_NE(row, nullptr);
  EXPECT_TRUE(row->Cells.at(0).IsBest);
  EXPECT_FALSE(row->Cells.at(1).IsBest);
  EXPECT_EQ(row->Head, "Total per bolt ($/bolt)");
}

TEST_F(SideBySide, MarksTheBetterJudgementByItsResult) {
  Design dense = Example("development-entry");
  dense.Primary.RowSpacing /= 2;
  Add("As it is", Example("development-entry"));
  Add("Dense", dense);

  EXPECT_THAT(TextsOf("verdict-primary-psup"), ElementsAre("Short", "Holds best"));
  EXPECT_THAT(TextsOf("verdict-primary-psup-demand"), Not(testing::Contains(HasSubstr("best"))));
  EXPECT_THAT(TextsOf("verdicts-short"), ElementsAre("1", "0 best"));
}

TEST_F(SideBySide, MarksTheSmallestShortfallOnlyIfAllFallShort) {
  Design sparse = Example("development-entry");
  sparse.Primary.RowSpacing *= 1.5F;
  Add("As it is", Example("development-entry"));
  Add("Sparse", sparse);
  EXPECT_THAT(TextsOf("verdict-primary-psup-short-by").front(), testing::EndsWith(" best"));

  Design dense = Example("development-entry");
  dense.Primary.RowSpacing /= 2;
  Add("Dense", dense);
  EXPECT_THAT(TextsOf("verdict-primary-psup-short-by"), Not(testing::Contains(HasSubstr("best"))));
}

TEST_F(SideBySide, MarksAllThatAreEquallyGood) {
  Design weak = Example("development-entry");
  weak.Primary.RowSpacing = 8;
  Add("One", Example("development-entry"));
  Add("Sparse", weak);
  Add("The same", Example("development-entry"));

  const ComparedRow* row = RowWith("report-primary-actual-psup-for-this-design");

  ASSERT_NE(row, nullptr);
  EXPECT_TRUE(row->Cells.at(0).IsBest);
  EXPECT_FALSE(row->Cells.at(1).IsBest);
  EXPECT_TRUE(row->Cells.at(2).IsBest);
}

TEST_F(SideBySide, MarksNothingInARowOfOneTextOrWithoutADirection) {
  Design deeper = Example("development-entry");
  deeper.Place.DepthofCover = 900;
  Add("As it is", Example("development-entry"));
  Add("Deeper", deeper);
  shown = CompareDesigns(designs, English);

  EXPECT_THAT(TextsOf("report-primary-suggested-psup-for-this-location"), Not(testing::Contains(HasSubstr("best"))));
  EXPECT_THAT(TextsOf("cost-total-bolt"), Not(testing::Contains(HasSubstr("best"))));
}

TEST_F(SideBySide, LeavesOutFiguresOfTheDialogThatTheReportHas) {
  Add("One", Example("development-entry"));
  Add("Other", Example("development-entry"));
  EXPECT_NE(RowWith("report-primary-suggested-psup-for-this-location"), nullptr);
  EXPECT_EQ(RowWith("live-primary-suggested-psup"), nullptr);

  Design unanalysed = Example("development-entry");
  unanalysed.Primary.Analysed = 0;
  Add("Not in its report", unanalysed);
  EXPECT_THAT(TextsOf("live-primary-suggested-psup"), SizeIs(3));
}

TEST_F(SideBySide, SaysWhyAFileCannotBeRead) {
  run.platform.files.files["/plans/letter.ORB"] = "Dear sir,\r\n";
  Add("As it is", Example("development-entry"));
  const RowMaker maker(run.program);
  designs.push_back({"letter", maker.RowOfFile(run.platform.files, "/plans/letter.ORB")});
  designs.push_back({"gone", maker.RowOfFile(run.platform.files, "/plans/gone.ORB")});

  EXPECT_THAT(TextsOf("file"), ElementsAre("panel.ORB", "/plans/letter.ORB", "/plans/gone.ORB"));
  EXPECT_THAT(TextsOf("reason"),
              ElementsAre("", "Invalid ORBY file format. File can not be opened.", "File not found"));
  EXPECT_EQ(RowWith("depth-of-cover"), nullptr) << "a file without inputs does not differ in them";
  EXPECT_THAT(TextsOf("verdict-primary-psup"), ElementsAre("Short", "", ""));
}

TEST_F(SideBySide, TellsDesignsOfOneNameApart) {
  for (int i = 0; i < 3; ++i) Add("panel", Example("development-entry"));

  EXPECT_THAT(CompareDesigns(designs, English).Names, ElementsAre("panel", "panel (2)", "panel (3)"));
}

// Every cell is that of a table of designs.
TEST_F(SideBySide, HasTheTextsOfATableOfDesigns) {
  DesignsOfSheets random(20);
  for (int i = 0; i < 50; ++i) {
    designs.clear();
    for (std::size_t n = 0; n < MostCompared; ++n) Add("design", random.Next());
    for (const UnitSystem units : {English, Metric}) {
      const DesignComparison comparison = CompareDesigns(designs, units);
      ASSERT_THAT(comparison.Names, SizeIs(8));
      for (const ComparedSection& section : comparison.Sections) {
        for (const ComparedRow& row : section.Rows) {
          ASSERT_THAT(row.Cells, SizeIs(8)) << row.Head;
          for (std::size_t n = 0; n < designs.size(); ++n) {
            ASSERT_EQ(row.Cells[n].Text, ShownText(CellOf(ColumnWith(row.Key), designs[n].Row, units))) << row.Head;
          }
        }
      }
    }
  }
}

TEST_F(SideBySide, IsASpreadsheetWhoseNumbersStayNumbers) {
  const TemporaryFolder folder;
  const std::string longName(80, 'x');
  Design sparse = Example("development-entry");
  sparse.Primary.RowSpacing = 8;
  Add("North & south", Example("development-entry"));
  Add(longName, sparse);

  WriteComparisonWorkbook(CompareDesigns(designs, English), folder.At("side.xlsx"));

  const std::string sheet = SheetPart(folder.At("side.xlsx"), "xl/worksheets/sheet1.xml");
  EXPECT_THAT(sheet, HasSubstr("North &amp; south"));
  EXPECT_THAT(sheet, HasSubstr(longName));
  EXPECT_THAT(sheet, HasSubstr("<v>8</v>"));
  EXPECT_THAT(sheet, HasSubstr("topLeftCell=\"A2\""));
  EXPECT_THAT(SheetPart(folder.At("side.xlsx"), "xl/styles.xml"), HasSubstr("formatCode=\"0.0&quot; best&quot;\""));
}

}  // namespace
}  // namespace orby::test
