// Which fields of a project would not come back from its file.
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

TEST(ReadBack, ANewProjectComesBackWhole) {
  ReadProject project;

  EXPECT_THAT(project.Differing(), IsEmpty());
}

TEST(ReadBack, TheFieldsThatTheFormatReadsIntoOthersAreLeftOut) {
  ReadProject project;
  project.program.project.WorkParms.Entries.Standing.TypeMode = 1;
  project.program.project.WorkParms.Intersections.Standing.TypeMode = 0;

  EXPECT_THAT(project.Differing(), IsEmpty());
}

TEST(ReadBack, TheShiftedHeaderChangesNoField) {
  ReadProject project;
  project.program.project.ProjectTitle = "Panel 3, north";
  project.program.project.ProjectDescription = "Shale, wet\r\n\"quoted\" line";

  EXPECT_THAT(project.Differing(), IsEmpty());
}

TEST(ReadBack, AQuotedDescriptionOfABoltLosesItsQuotesAlone) {
  ReadProject project;
  project.program.project.WorkParms.Primary.Desc = "\"No. 6\"";

  EXPECT_THAT(project.Differing(), ElementsAre("primary bolt description"));
}

TEST(ReadBack, BlanksBeforeTheDescriptionOfABoltAreLost) {
  ReadProject project;
  project.program.project.WorkParms.Entries.Bolt.Desc = "  rebar";

  EXPECT_THAT(project.Differing(), ElementsAre("entry bolt description"));
}

TEST(ReadBack, AnUnclosedQuoteTakesAllThatFollows) {
  ReadProject project;
  project.program.project.WorkParms.Intersections.Bolt.Desc = "\"No. 6";

  // All fields of the intersections from the description on, without the one that has no field of its own.
  EXPECT_EQ(project.Differing().size(), 35U);
}

TEST(ReadBack, ALineOfTheDescriptionThatEndsItMovesTheFields) {
  ReadProject project;
  project.program.project.ProjectDescription = "Shale\r\n##EndDesc##\r\nWater";

  EXPECT_EQ(project.Differing().front(), "roof rating");
}

}  // namespace
}  // namespace orby::test
