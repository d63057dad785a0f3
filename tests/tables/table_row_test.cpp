// Rows of files that can and cannot be read.
#include "tables/table_row.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "files/new_project.h"
#include "files/project_writer.h"
#include "tables/rows.h"

namespace orby::test {
namespace {

std::string NewProjectBytes(TableRun& run, const std::string& title) {
  FileNew(run.program, Keeping::Nothing);
  run.program.project.ProjectTitle = title;
  return ProjectFileBytes(run.program.project);
}

TEST(ARow, OfAFileHasItsTitleAndFigures) {
  const TableRun run;
  std::ifstream file(std::string(EXAMPLES_DIR) + "/development-entry.ORB", std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};

  const TableRow row = RowMaker(run.program).RowOfBytes("development-entry.ORB", bytes);

  EXPECT_EQ(row.Reason, "");
  EXPECT_EQ(OwnText(row, "file"), "development-entry.ORB");
  EXPECT_EQ(OwnText(row, "title"), "Alder Ridge, first east development");
  EXPECT_EQ(OwnText(row, "units"), "English");
  EXPECT_EQ(OwnText(row, "bolt-grades"), "yield strengths");
  EXPECT_EQ(OwnText(row, "depth-of-cover"), "650");
  EXPECT_EQ(OwnText(row, "live-primary-suggested-psup"), "8.2");
  EXPECT_EQ(OwnText(row, "verdict-primary-psup"), "Short");
  EXPECT_EQ(OwnText(row, "verdicts-short"), "1");
}

TEST(ARow, OfAnotherFileHasTheReadersMessage) {
  const TableRun run;

  const TableRow row = RowMaker(run.program).RowOfBytes("notes.txt", "Dear diary\r\n");

  EXPECT_EQ(row.Reason, "Invalid ORBY file format. File can not be opened.");
  EXPECT_EQ(OwnText(row, "file"), "notes.txt");
  EXPECT_EQ(OwnText(row, "reason"), row.Reason);
  EXPECT_EQ(OwnText(row, "units") + OwnText(row, "cmrr") + OwnText(row, "verdicts-short"), "");
}

TEST(ARow, OfABrokenFileHasItsError) {
  TableRun run;
  const std::string bytes = NewProjectBytes(run, "Third left");
  const RowMaker maker(run.program);

  EXPECT_EQ(maker.RowOfBytes("half.ORB", bytes.substr(0, bytes.size() / 2)).Reason, "Input past end of file");
  EXPECT_EQ(maker.RowOfBytes("empty.ORB", "").Reason, "Input past end of file");
}

TEST(ARow, OfAMissingFileHasItsError) {
  TableRun run;

  const TableRow row = RowMaker(run.program).RowOfFile(run.platform.files, "/mine/missing.ORB");

  EXPECT_EQ(row.Reason, "File not found");
  EXPECT_EQ(row.File, "/mine/missing.ORB");
}

TEST(ARow, OfAnUnknownChoiceHasTheMessageOfTheDialog) {
  const TableRun run;
  Design design;
  design.Primary.Options = BoltSource{7};

  EXPECT_EQ(RowOfDesign(run, design).Reason, "Internal Error: SetArrayIndex. Check input/form data.");
}

TEST(ARow, SaysWhyThereIsNoReport) {
  TableRun run;
  FileNew(run.program, Keeping::Nothing);
  Design design = run.program.project.WorkParms;
  design.Primary.RowSpacing = 0;

  const TableRow row = RowOfDesign(run, design);

  EXPECT_EQ(OwnText(row, "why-there-is-no-report"), "Division by zero");
  EXPECT_EQ(OwnText(row, "report-primary-prsup"), "");
}

TEST(ARow, UsesTheAustralianBoltsOfTheRun) {
  TableRun run;
  run.program.session.settings.UnitsDefault = Metric;
  FileNew(run.program, Keeping::Nothing);
  Design design = run.program.project.WorkParms;
  design.Primary.TableRow = 1;
  Project project;
  project.WorkParms = design;
  const RowMaker maker(run.program);
  const std::string usual = OwnText(maker.RowOfProject("a", project), "primary-bolt-description");
  project.UseAUSStandardTable = 1;

  EXPECT_EQ(usual, run.program.session.catalogs.BoltTableMET.at(1).Name);
  SetBoltTableAUS(run.program.session.catalogs);
  EXPECT_EQ(OwnText(maker.RowOfProject("a", project), "primary-bolt-description"),
            run.program.session.catalogs.BoltTableMET.at(1).Name);
}

}  // namespace
}  // namespace orby::test
