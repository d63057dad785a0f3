#include "files/new_project.h"

#include <gmock/gmock.h>

#include "project_fixture.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

TEST(NewProject, EnglishDefaultsAreTheseToTheLetter) {
  TestProject project;

  FileNew(project.program, true, true);

  EXPECT_EQ(ProjectFileBytes(project.program), ReadTestData("projects/new_english.orb"));
}

TEST(NewProject, MetricDefaultsAreTheseToTheLetter) {
  TestProject project;
  project.program.settings.UnitsDefault = Metric;

  FileNew(project.program, true, true);

  EXPECT_EQ(ProjectFileBytes(project.program), ReadTestData("projects/new_metric.orb"));
}

TEST(NewProject, UltimateStrengthTakesTheUltimateGrade) {
  TestProject project;
  project.program.options.BoltGradeAsUltimateDefault = 1;

  FileNew(project.program, true, true);
  EXPECT_EQ(project.program.BoltStrengthMode, 1);
  EXPECT_EQ(project.program.WorkParms.BoltGradeStdPrimary, 100);
  EXPECT_EQ(project.program.WorkParms.BoltGradeManualSecInter, 100);
  EXPECT_EQ(project.program.WorkParms.BoltTableGradePrimary, 0);

  project.program.settings.UnitsDefault = Metric;
  FileNew(project.program, true, true);
  EXPECT_EQ(project.program.WorkParms.BoltGradeManualPrimary, 690);
  EXPECT_EQ(project.program.WorkParms.BoltGradeStdSecEntry, 690);
}

TEST(NewProject, TakesTheUsersOwnDefaults) {
  TestProject project;
  DesignDefaults& defaults = project.program.defaults;
  defaults.DefaultCMRR = 52;
  defaults.DefaultENGDepthofCover = 850;
  defaults.DefaultENGUnitWeight = 158;
  defaults.DefaultStabilityFactor = 1.2F;
  defaults.DefaultENGActualBoltLength = 8;
  defaults.DefaultENGboltDiameter = 0.875F;
  defaults.DefaultENGBoltGrade = 60;
  defaults.DefaultNumberBoltsPerRow = 5;
  defaults.DefaultENGrowSpacing = 4.5F;
  defaults.DefaultENGActualInterSpan = 62;
  defaults.DefaultENGEntryWidth = 18;

  FileNew(project.program, true, true);

  const ProjectRecord& record = project.program.WorkParms;
  EXPECT_EQ(record.CMRR, 52);
  EXPECT_EQ(record.DepthofCover, 850);
  EXPECT_EQ(record.UnitWeight, 158);
  EXPECT_EQ(record.StabilityFactor, 1.2F);
  EXPECT_EQ(record.BoltLengthPrimary, 8);
  EXPECT_EQ(record.BoltLengthSecEntry, 8);
  EXPECT_EQ(record.BoltLengthSecInter, 8);
  EXPECT_EQ(record.BoltDiameterStdPrimary, 0.875F);
  EXPECT_EQ(record.BoltDiameterManualSecInter, 0.875F);
  EXPECT_EQ(record.BoltGradeManualSecEntry, 60);
  EXPECT_EQ(record.BoltsperRowPrimary, 5);
  EXPECT_EQ(record.BoltsperRowSecEntry, 4);
  EXPECT_EQ(record.RowSpacingPrimary, 4.5F);
  EXPECT_EQ(record.RowSpacingSecEntry, 4.5F);
  EXPECT_EQ(record.ActualSpanDiagonals, 62);
  EXPECT_EQ(record.EntryWidth, 18);
}

TEST(NewProject, KeepsNameAndUnitsWhenAskedTo) {
  TestProject project;
  project.program.Units = Metric;
  project.program.BoltStrengthMode = 1;

  FileNew(project.program, false, false);

  EXPECT_EQ(project.program.CurrentFile, ProjectPath);
  EXPECT_EQ(project.program.Units, Metric);
  EXPECT_EQ(project.program.BoltStrengthMode, 1);
  EXPECT_EQ(project.program.WorkParms.DepthofCover, 150);
  EXPECT_EQ(project.program.WorkParms.BoltGradeStdPrimary, 690);
}

TEST(NewProject, SetsTheStateOfAnUntouchedProject) {
  TestProject project;
  Program& program = project.program;
  program.FileSaved = program.FileEmpty = false;
  program.UnitsLocked = true;
  program.OutBuf = {"echo", "report", "two", "three", "four"};
  program.ProjectTitle = "Panel 3";
  program.ProjectDescription = "Shale roof";

  FileNew(program, true, true);

  EXPECT_EQ(program.CurrentFile, "Untitled");
  EXPECT_TRUE(program.FileSaved);
  EXPECT_TRUE(program.FileEmpty);
  EXPECT_FALSE(program.UnitsLocked);
  EXPECT_EQ(program.RecentMode, 1);
  EXPECT_THAT(program.OutBuf, testing::ElementsAre("echo", "", "", "", ""));
  EXPECT_EQ(program.ProjectTitle, "");
  EXPECT_EQ(program.ProjectDescription, "");
  EXPECT_EQ(program.history.Text, "1. File initialized. Use Edit-Project Parameters to enter data\r\n");
}

TEST(NewProject, LeavesNothingOfThePreviousBolts) {
  TestProject project;
  for (const BoltFields* set : {&PrimaryBolt, &SecEntryBolt, &SecInterBolt}) {
    ProjectRecord& record = project.program.WorkParms;
    record.*set->Options = record.*set->TableRow = record.*set->DiameterMode = record.*set->GradeMode = 1;
    record.*set->TableDiameter = record.*set->TableGrade = 60;
    record.*set->Desc = "Rebar no. 6";
  }

  FileNew(project.program, true, true);

  for (const BoltFields* set : {&PrimaryBolt, &SecEntryBolt, &SecInterBolt}) {
    const ProjectRecord& record = project.program.WorkParms;
    EXPECT_EQ(record.*set->Options, 0);
    EXPECT_EQ(record.*set->TableRow, 0);
    EXPECT_EQ(record.*set->DiameterMode, 0);
    EXPECT_EQ(record.*set->GradeMode, 0);
    EXPECT_EQ(record.*set->TableDiameter, 0);
    EXPECT_EQ(record.*set->TableGrade, 0);
    EXPECT_EQ(record.*set->Desc, "");
  }
}

TEST(NewProject, LeavesTheEstimatorsChoiceTheComputedFieldsAndThePreviewAlone) {
  TestProject project;
  Program& program = project.program;
  program.WorkParms.CMRRRegionIndex = 3;
  program.WorkParms.CMRRRockTypeIndex = 2;
  program.WorkParms.CMRRManual = 1;
  program.WorkParms.StabFactorEntry3 = 1.25F;
  program.WorkParms.SupportCapInter4 = 264;
  program.WorkParms.RockLoadEntry1 = 10;
  program.WorkParmsCopy.DepthofCover = 777;
  program.UseAUSStandardTable = 1;

  FileNew(program, true, true);

  EXPECT_EQ(program.WorkParms.CMRRRegionIndex, 3);
  EXPECT_EQ(program.WorkParms.CMRRRockTypeIndex, 2);
  EXPECT_EQ(program.WorkParms.CMRRManual, 1);
  EXPECT_EQ(program.WorkParms.StabFactorEntry3, 1.25F);
  EXPECT_EQ(program.WorkParms.SupportCapInter4, 264);
  EXPECT_EQ(program.WorkParms.RockLoadEntry1, 10);
  EXPECT_EQ(program.WorkParmsCopy.DepthofCover, 777);
  EXPECT_EQ(program.UseAUSStandardTable, 1);
}

TEST(NewProject, AnEmptySupportListGivesAnEmptyName) {
  TestProject project;
  project.program.WorkParms.SupportTypeNameSecEntry = "Pumped crib";
  project.program.catalogs.StandSupports.HighestIndex = -1;

  FileNew(project.program, true, true);

  EXPECT_EQ(project.program.WorkParms.SupportTypeNameSecEntry, "");
  EXPECT_EQ(project.program.WorkParms.SupportTypeNameSecInter, "");
}

}  // namespace
}  // namespace orby::test
