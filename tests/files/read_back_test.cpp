// The fields of a project that would not read back unchanged from its file.
#include "files/read_back.h"

#include <gmock/gmock.h>

#include "project_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ReadProject : NewProject {
  std::vector<std::string_view> Differing() {
    return FieldsThatReadDifferently(program.project, ProjectFileBytes(program.project));
  }
};

TEST(ReadBack, OfANewProjectHasNoDifferences) {
  ReadProject project;

  EXPECT_THAT(project.Differing(), IsEmpty());
}

TEST(ReadBack, IgnoresFieldsThatTheFormatReadsIntoOthers) {
  ReadProject project;
  project.program.project.WorkParms.Entries.Standing.TypeMode = ValueSource::Typed;
  project.program.project.WorkParms.Intersections.Standing.TypeMode = ValueSource::Standard;

  EXPECT_THAT(project.Differing(), IsEmpty());
}

TEST(ReadBack, OfAShiftedHeaderHasNoDifferences) {
  ReadProject project;
  project.program.project.ProjectTitle = "Panel 3, north";
  project.program.project.ProjectDescription = "Shale, wet\r\n\"quoted\" line";

  EXPECT_THAT(project.Differing(), IsEmpty());
}

TEST(ReadBack, ReportsOnlyTheBoltDescriptionThatLosesItsQuotes) {
  ReadProject project;
  project.program.project.WorkParms.Primary.Desc = "\"No. 6\"";

  EXPECT_THAT(project.Differing(), ElementsAre("primary bolt description"));
}

TEST(ReadBack, ReportsABoltDescriptionThatLosesItsLeadingBlanks) {
  ReadProject project;
  project.program.project.WorkParms.Entries.Bolt.Desc = "  rebar";

  EXPECT_THAT(project.Differing(), ElementsAre("entry bolt description"));
}

TEST(ReadBack, ReportsAllFieldsAfterAnUnclosedQuote) {
  ReadProject project;
  project.program.project.WorkParms.Intersections.Bolt.Desc = "\"No. 6";

  // All fields from the bolt description of intersections, without the line that has no field of its own.
  EXPECT_EQ(project.Differing().size(), 35U);
}

TEST(ReadBack, ReportsTheFieldsThatAnEndMarkerInTheDescriptionMoves) {
  ReadProject project;
  project.program.project.ProjectDescription = "Shale\r\n##EndDesc##\r\nWater";

  EXPECT_EQ(project.Differing().front(), "roof rating");
}

}  // namespace
}  // namespace orby::test
