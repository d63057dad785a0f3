#include "files/kept_project.h"

#include <gmock/gmock.h>

#include "project_fixture.h"

namespace orby::test {
namespace {

using testing::IsEmpty;

struct KeptProject : testing::Test {
  KeptProject() {
    FileNew(project.program, Keeping::Name);
    project.program.project.ProjectTitle = "Panel 3";
    project.program.project.ProjectDescription = "Belt entry\r\n\r\nsouth";
    project.program.project.WorkParms.Place.DepthofCover = 725;
    project.program.session.history = {};
  }

  TestProject project;
};

TEST_F(KeptProject, FromAProjectFileHasItsOldName) {
  const auto read = ReadKeptProject(project.program, ProjectFileBytes(project.program.project), "/designs/panel7.orb");

  ASSERT_TRUE(read);
  EXPECT_EQ(read->CurrentFile, "/designs/panel7.orb");
  EXPECT_EQ(read->WorkParms.Place.DepthofCover, 725);
  EXPECT_FALSE(read->FileEmpty);
  EXPECT_TRUE(read->UnitsLocked);
}

TEST_F(KeptProject, OfAnOlderFormatHasDefaultsForMissingValues) {
  project.program.project.WorkParms.Primary.Desc = "of the open project";
  std::string bytes = ProjectFileBytes(project.program.project);
  bytes.replace(bytes.find("ORBY_105"), 8, "ORBY_104");

  const auto read = ReadKeptProject(project.program, bytes, ProjectPath);

  ASSERT_TRUE(read);
  EXPECT_EQ(read->WorkParms.Primary.Desc, "");
}

TEST_F(KeptProject, FromARecoveryFileHasTheNameInTheFile) {
  const auto read = ReadKeptProject(project.program, RecoveryBytes(project.program.project), "other");

  ASSERT_TRUE(read);
  EXPECT_EQ(read->CurrentFile, ProjectPath);
  EXPECT_EQ(read->WorkParms.Place.DepthofCover, 725);
}

TEST_F(KeptProject, IsNotReadFromDamagedBytes) {
  const std::string file = ProjectFileBytes(project.program.project);
  const std::string recovery = RecoveryBytes(project.program.project);

  for (const std::string& bytes : {file.substr(0, file.size() / 2), recovery.substr(0, recovery.size() / 2),
                                   std::string(), std::string("notes of the shift")}) {
    EXPECT_FALSE(ReadKeptProject(project.program, bytes, ProjectPath));
    EXPECT_FALSE(KeptProjectAsFile(project.program, bytes));
  }
}

TEST_F(KeptProject, IsReadWithoutAChangeOfTheProgram) {
  project.program.session.settings.DisplayHistoryWin = 1;

  ReadKeptProject(project.program, "notes of the shift", ProjectPath);
  ReadKeptProject(project.program, ProjectFileBytes(project.program.project), ProjectPath);

  EXPECT_THAT(project.program.session.history.Text, IsEmpty());
  EXPECT_THAT(project.platform.boxes.shown, IsEmpty());
  EXPECT_EQ(project.program.project.ProjectTitle, "Panel 3");
}

TEST_F(KeptProject, AsAFileIsTheProjectFileUnchanged) {
  const std::string bytes = ProjectFileBytes(project.program.project);

  EXPECT_EQ(KeptProjectAsFile(project.program, bytes), bytes);
}

TEST_F(KeptProject, AsAFileIsTheRecoveryFileAsASaveWritesIt) {
  const std::string recovery = RecoveryBytes(project.program.project);

  const auto bytes = KeptProjectAsFile(project.program, recovery);

  ASSERT_TRUE(project.Save());
  EXPECT_EQ(bytes, project.File());
}

}  // namespace
}  // namespace orby::test
