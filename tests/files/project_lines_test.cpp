// The field of each line of a file, for each format.

#include "files/project_lines.h"

#include <gmock/gmock.h>

#include <set>

#include "project_fixture.h"
#include "saved_fields.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

const std::set<std::string> MissingBefore105{
    "BoltOptionsPrimary",        "BoltTableRowPrimary",    "BoltTableDiameterPrimary", "BoltTableGradePrimary",
    "BoltDescPrimary",           "BoltOptionsSecEntry",    "BoltTableRowSecEntry",     "BoltTableDiameterSecEntry",
    "BoltTableGradeSecEntry",    "BoltDescSecEntry",       "BoltOptionsSecInter",      "BoltTableRowSecInter",
    "BoltTableDiameterSecInter", "BoltTableGradeSecInter", "BoltDescSecInter"};
const std::set<std::string> MissingBefore104{"CableCapacitySecEntry", "CableCapacityManualSecEntry",
                                             "CableCapacitySecInter", "CableCapacityManualSecInter"};

struct Format {
  const char* file;
  Integer fileVersion;
  Integer boltStrengthMode;  // after the file is read; 0 is the default
  const char* title;
  const char* description;
};

class FileFormats : public testing::TestWithParam<Format> {};

TEST_P(FileFormats, EveryLineIsReadIntoItsField) {
  const Format& format = GetParam();
  TestProject project;
  FileNew(project.program, Keeping::Name);
  const Design fresh = project.program.project.WorkParms;

  ASSERT_TRUE(project.Open(ReadTestData(format.file)));

  const Design& record = project.program.project.WorkParms;
  int compared = 0;
  for (const auto& row : ReadTable("projects/data_lines.tsv")) {
    const std::string& name = row.fields[1];
    std::string expected = row.fields[2];
    if (format.fileVersion < 104 && MissingBefore105.contains(name)) expected = ValueOf(fresh, name);
    if (format.fileVersion < 103 && MissingBefore104.contains(name)) expected = ValueOf(fresh, name);
    if (name == "SupportTypeModeSecEntry") expected = "195";
    if (name == "SupportTypeModeSecInter") expected = "0";
    EXPECT_EQ(ValueOf(record, name), expected) << name;
    ++compared;
  }
  EXPECT_EQ(compared, 122);
  EXPECT_EQ(project.program.project.FileVersion, format.fileVersion);
  EXPECT_EQ(project.program.project.WorkParms.Units, Metric);
  EXPECT_EQ(NumberOf(project.program.project.WorkParms.Basis), format.boltStrengthMode);
  EXPECT_EQ(project.program.project.UseAUSStandardTable, 0);
  EXPECT_EQ(project.program.project.ProjectTitle, format.title);
  EXPECT_EQ(project.program.project.ProjectDescription, format.description);
}

INSTANTIATE_TEST_SUITE_P(
    Labels, FileFormats,
    testing::Values(Format{"projects/orby_102.orb", 101, 0, "Tailgate crosscuts, panel 3",
                           "Shale roof with thin coal bands\r\nWater at two crosscuts\r\n"},
                    Format{"projects/orby_103.orb", 102, 1, "Tailgate crosscuts, panel 3",
                           "Shale roof with thin coal bands\r\nWater at two crosscuts\r\n"},
                    Format{"projects/orby_104.orb", 103, 1, "Tailgate crosscuts, panel 3",
                           "Shale roof with thin coal bands\r\nWater at two crosscuts\r\n"},
                    Format{"projects/orby_105.orb", 104, 1, " 0 ",
                           "Tailgate crosscuts, panel 3\r\n##StartDesc##\r\nShale roof with thin coal bands\r\n"
                           "Water at two crosscuts\r\n"}));

TEST(FileFormats, HaveAtMost122DataLines) { EXPECT_EQ(ProjectLines.size(), 122U); }

TEST(FileFormats, ThatAreOlderGetMissingValuesInTheDefaultUnits) {
  TestProject project;
  ASSERT_TRUE(project.Open(ReadTestData("projects/orby_103.orb")));
  ASSERT_EQ(project.program.project.WorkParms.Units, Metric);
  EXPECT_EQ(project.program.project.WorkParms.Entries.Cable.CapacityManual, 27);

  ASSERT_TRUE(project.Save());
  ASSERT_TRUE(project.Open());

  EXPECT_EQ(project.program.project.FileVersion, 104);
  EXPECT_EQ(project.program.project.WorkParms.Units, Metric);
  EXPECT_EQ(project.program.project.WorkParms.Entries.Cable.CapacityManual, 27);
  EXPECT_EQ(project.program.project.WorkParms.Intersections.Cable.CapacityManual, 27);
  EXPECT_EQ(project.program.project.WorkParms.Entries.Cable.Capacity, ValueSource::Standard);
  EXPECT_EQ(project.program.project.WorkParms.Primary.TableDiameter, 0);
  EXPECT_EQ(project.program.project.WorkParms.Intersections.Bolt.Desc, "");
}

TEST(FileFormats, ThatAreOlderKeepNoValuesOfThePreviousProject) {
  TestProject project;
  ASSERT_TRUE(project.Open(ReadTestData("projects/orby_105.orb")));
  ASSERT_EQ(project.program.project.WorkParms.Primary.Desc, "Rebar no. 6 row 18");

  ASSERT_TRUE(project.Open(ReadTestData("projects/orby_102.orb")));

  EXPECT_EQ(project.program.project.WorkParms.Primary.Desc, "");
  EXPECT_EQ(project.program.project.WorkParms.Entries.Bolt.TableDiameter, 0);
  EXPECT_EQ(project.program.project.WorkParms.Intersections.Cable.CapacityManual, 27);
  EXPECT_EQ(project.program.project.WorkParms.Basis, StrengthBasis::Yield);
}

}  // namespace
}  // namespace orby::test
