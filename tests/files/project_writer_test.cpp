#include "files/project_writer.h"

#include <gmock/gmock.h>

#include "files/project_lines.h"
#include "project_fixture.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::string DataLine(const std::string& bytes, int number) {
  std::string_view rest = bytes;
  rest.remove_prefix(rest.find("##EndDesc##") + 13);
  for (int line = 1; line < number; ++line) rest.remove_prefix(rest.find("\r\n") + 2);
  return std::string(rest.substr(0, rest.find("\r\n")));
}

TEST(ProjectWriter, WritesTheFileAndMarksTheProjectAsSaved) {
  NewProject project;
  project.program.project.FileSaved = false;
  project.program.project.FileEmpty = true;

  EXPECT_TRUE(project.Save());

  EXPECT_EQ(project.File(), ReadTestData("projects/new_english.orb"));
  EXPECT_TRUE(project.program.project.FileSaved);
  EXPECT_TRUE(project.program.project.FileEmpty);
  EXPECT_FALSE(project.platform.windows.waitCursor);
  EXPECT_THAT(project.program.session.history.Text, HasSubstr("2. Saving: /designs/panel3.orb\r\n"));
}

TEST(ProjectWriter, WritesUnitsStrengthModeTableChoiceTitleAndDescriptionFirst) {
  NewProject project;
  project.program.project.WorkParms.Units = Metric;
  project.program.project.WorkParms.Basis = StrengthBasis::Ultimate;
  project.program.project.UseAUSStandardTable = 1;
  project.program.project.ProjectTitle = "Panel 3";
  project.program.project.ProjectDescription = "Shale roof\r\n\r\nWater";

  project.Save();

  EXPECT_THAT(project.File(), StartsWith("ORBY_105\r\n 1 \r\n 1 \r\n 1 \r\nPanel 3\r\n##StartDesc##\r\nShale roof\r\n"
                                         "Water\r\n##EndDesc##\r\n45\r\n"));
  EXPECT_EQ(project.program.project.ProjectDescription, "Shale roof\r\nWater");
}

TEST(ProjectWriter, WritesNumbersAsGeneralTextWithAPoint) {
  NewProject project;
  Design& record = project.program.project.WorkParms;
  record.Place.DepthofCover = 12.5F;
  record.Place.UnitWeight = 0.7F;
  record.Place.ActualSpanDiagonals = 1.0F / 30;
  record.Place.EntryWidth = -0.0F;
  record.Primary.StabilityFactor = 1E7F;
  record.Place.CMRR = -3;

  const std::string bytes = ProjectFileBytes(project.program.project);

  EXPECT_EQ(DataLine(bytes, 1), "-3");
  EXPECT_EQ(DataLine(bytes, 5), "12.5");
  EXPECT_EQ(DataLine(bytes, 6), "0.7");
  EXPECT_EQ(DataLine(bytes, 7), "3.333334E-02");
  EXPECT_EQ(DataLine(bytes, 8), "0");
  EXPECT_EQ(DataLine(bytes, 12), "1E+07");
}

TEST(ProjectWriter, PadsTheLastTwoLines) {
  NewProject project;
  project.program.project.WorkParms.Cost.Production = 0;
  project.program.project.WorkParms.Cost.Advance = -1;

  const std::string bytes = ProjectFileBytes(project.program.project);

  EXPECT_EQ(DataLine(bytes, 121), " 0 ");
  EXPECT_EQ(DataLine(bytes, 122), "-1 ");
  EXPECT_TRUE(bytes.ends_with("\r\n 0 \r\n-1 \r\n"));
}

TEST(ProjectWriter, WritesBothSupportModes) {
  NewProject project;
  project.program.project.WorkParms.Entries.Standing.TypeMode = ValueSource::Standard;
  project.program.project.WorkParms.Intersections.Standing.TypeMode = ValueSource::Typed;

  const std::string bytes = ProjectFileBytes(project.program.project);

  EXPECT_EQ(DataLine(bytes, 59), "0");
  EXPECT_EQ(DataLine(bytes, 95), "1");
}

TEST(ProjectWriter, DoesNotWriteComputedFields) {
  NewProject project;
  project.program.project.WorkParms.Entries.RockLoad = 98765;
  project.program.project.WorkParms.Intersections.Standing.StabFactor = 98765;
  project.program.project.WorkParms.Entries.Truss.SupportCap = 98765;

  EXPECT_EQ(ProjectFileBytes(project.program.project), ReadTestData("projects/new_english.orb"));
}

TEST(ProjectWriter, WritesTextsUnchanged) {
  NewProject project;
  project.program.project.WorkParms.Primary.Desc = " Rebar, \"no. 6\" ";
  project.program.project.WorkParms.Intersections.Standing.TypeName = "Crib, 4-point";

  const std::string bytes = ProjectFileBytes(project.program.project);

  EXPECT_EQ(DataLine(bytes, 18), " Rebar, \"no. 6\" ");
  EXPECT_EQ(DataLine(bytes, 96), "Crib, 4-point");
}

TEST(ProjectWriter, WritesWesternTextsAsWindows1252) {
  NewProject project;
  project.program.project.ProjectTitle =
      "Gr\xC3\xBC"
      "be";
  project.program.project.ProjectDescription = "5 \xE2\x82\xAC";

  project.Save();

  EXPECT_THAT(project.File(), HasSubstr("\r\nGr\xFC"
                                        "be\r\n##StartDesc##\r\n5 \x80\r\n##EndDesc##\r\n"));
}

TEST(ProjectWriter, WritesUtf8IfACharacterIsOutsideWindows1252) {
  NewProject project;
  project.program.project.ProjectTitle =
      "Gr\xC3\xBC"
      "be";
  project.program.project.WorkParms.Intersections.Standing.TypeName = "\xE6\x94\xAF\xE6\x9F\xB1";

  project.Save();

  EXPECT_THAT(project.File(), HasSubstr("\r\nGr\xC3\xBC"
                                        "be\r\n"));
  EXPECT_THAT(project.File(), HasSubstr("\r\n\xE6\x94\xAF\xE6\x9F\xB1\r\n"));
  EXPECT_EQ(project.File(), ProjectFileBytes(project.program.project));
}

}  // namespace
}  // namespace orby::test
