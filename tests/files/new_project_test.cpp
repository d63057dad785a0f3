#include "files/new_project.h"

#include <gmock/gmock.h>

#include "project_fixture.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

TEST(NewProject, HasTheEnglishDefaults) {
  TestProject project;

  FileNew(project.program, Keeping::Nothing);

  EXPECT_EQ(ProjectFileBytes(project.program.project), ReadTestData("projects/new_english.orb"));
}

TEST(NewProject, HasTheMetricDefaults) {
  TestProject project;
  project.program.session.settings.UnitsDefault = Metric;

  FileNew(project.program, Keeping::Nothing);

  EXPECT_EQ(ProjectFileBytes(project.program.project), ReadTestData("projects/new_metric.orb"));
}

TEST(NewProject, WithUltimateStrengthHasTheUltimateGrade) {
  TestProject project;
  project.program.session.options.BoltGradeAsUltimateDefault = StrengthBasis::Ultimate;

  FileNew(project.program, Keeping::Nothing);
  EXPECT_EQ(project.program.project.WorkParms.Basis, StrengthBasis::Ultimate);
  EXPECT_EQ(project.program.project.WorkParms.Primary.GradeStd, 100);
  EXPECT_EQ(project.program.project.WorkParms.Intersections.Bolt.GradeManual, 100);
  EXPECT_EQ(project.program.project.WorkParms.Primary.TableGrade, 0);

  project.program.session.settings.UnitsDefault = Metric;
  FileNew(project.program, Keeping::Nothing);
  EXPECT_EQ(project.program.project.WorkParms.Primary.GradeManual, 690);
  EXPECT_EQ(project.program.project.WorkParms.Entries.Bolt.GradeStd, 690);
}

TEST(NewProject, HasTheDefaultsOfTheUser) {
  TestProject project;
  DesignDefaults& defaults = project.program.session.defaults;
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

  FileNew(project.program, Keeping::Nothing);

  const Design& record = project.program.project.WorkParms;
  EXPECT_EQ(record.Place.CMRR, 52);
  EXPECT_EQ(record.Place.DepthofCover, 850);
  EXPECT_EQ(record.Place.UnitWeight, 158);
  EXPECT_EQ(record.Primary.StabilityFactor, 1.2F);
  EXPECT_EQ(record.Primary.Length, 8);
  EXPECT_EQ(record.Entries.Bolt.Length, 8);
  EXPECT_EQ(record.Intersections.Bolt.Length, 8);
  EXPECT_EQ(record.Primary.DiameterStd, 0.875F);
  EXPECT_EQ(record.Intersections.Bolt.DiameterManual, 0.875F);
  EXPECT_EQ(record.Entries.Bolt.GradeManual, 60);
  EXPECT_EQ(record.Primary.BoltsperRow, 5);
  EXPECT_EQ(record.Entries.Bolt.BoltsperRow, 4);
  EXPECT_EQ(record.Primary.RowSpacing, 4.5F);
  EXPECT_EQ(record.Entries.Bolt.RowSpacing, 4.5F);
  EXPECT_EQ(record.Place.ActualSpanDiagonals, 62);
  EXPECT_EQ(record.Place.EntryWidth, 18);
}

TEST(NewProject, KeepsNameAndUnitsOnRequest) {
  TestProject project;
  project.program.project.WorkParms.Units = Metric;
  project.program.project.WorkParms.Basis = StrengthBasis::Ultimate;

  FileNew(project.program, Keeping::NameAndUnits);

  EXPECT_EQ(project.program.project.CurrentFile, ProjectPath);
  EXPECT_EQ(project.program.project.WorkParms.Units, Metric);
  EXPECT_EQ(project.program.project.WorkParms.Basis, StrengthBasis::Ultimate);
  EXPECT_EQ(project.program.project.WorkParms.Place.DepthofCover, 150);
  EXPECT_EQ(project.program.project.WorkParms.Primary.GradeStd, 690);
}

TEST(NewProject, SetsTheStateOfAnUntouchedProject) {
  TestProject project;
  Program& program = project.program;
  program.project.FileSaved = program.project.FileEmpty = false;
  program.project.UnitsLocked = true;
  program.session.OutBuf = {"echo", "report", "two", "three", "four"};
  program.project.ProjectTitle = "Panel 3";
  program.project.ProjectDescription = "Shale roof";

  FileNew(program, Keeping::Nothing);

  EXPECT_EQ(program.project.CurrentFile, "Untitled");
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_TRUE(program.project.FileEmpty);
  EXPECT_FALSE(program.project.UnitsLocked);
  EXPECT_EQ(program.windows.RecentMode, 1);
  EXPECT_THAT(program.session.OutBuf, testing::ElementsAre("echo", "", "", "", ""));
  EXPECT_EQ(program.project.ProjectTitle, "");
  EXPECT_EQ(program.project.ProjectDescription, "");
  EXPECT_EQ(program.session.history.Text, "1. File initialized. Use Edit-Project Parameters to enter data\r\n");
}

TEST(NewProject, KeepsNothingOfThePreviousBolts) {
  TestProject project;
  for (BoltSelection* set : project.program.project.WorkParms.BoltSets()) {
    set->Options = BoltSource::Manual;
    set->TableRow = 1;
    set->DiameterMode = set->GradeMode = ValueSource::Typed;
    set->TableDiameter = set->TableGrade = 60;
    set->Desc = "Rebar no. 6";
  }

  FileNew(project.program, Keeping::Nothing);

  for (const BoltSelection* set : project.program.project.WorkParms.BoltSets()) {
    EXPECT_EQ(set->Options, BoltSource::Table);
    EXPECT_EQ(set->TableRow, 0);
    EXPECT_EQ(set->DiameterMode, ValueSource::Standard);
    EXPECT_EQ(set->GradeMode, ValueSource::Standard);
    EXPECT_EQ(set->TableDiameter, 0);
    EXPECT_EQ(set->TableGrade, 0);
    EXPECT_EQ(set->Desc, "");
  }
}

TEST(NewProject, DoesNotChangeTheEstimatorTheComputedFieldsAndThePreview) {
  TestProject project;
  Program& program = project.program;
  program.project.WorkParms.Place.CMRRRegionIndex = 3;
  program.project.WorkParms.Place.CMRRRockTypeIndex = 2;
  program.project.WorkParms.Place.CMRRManual = 1;
  program.project.WorkParms.Entries.Bolt.StabFactor = 1.25F;
  program.project.WorkParms.Intersections.Standing.SupportCap = 264;
  program.project.WorkParms.Entries.RockLoad = 10;
  program.windows.WorkParmsCopy.Place.DepthofCover = 777;
  program.project.UseAUSStandardTable = 1;

  FileNew(program, Keeping::Nothing);

  EXPECT_EQ(program.project.WorkParms.Place.CMRRRegionIndex, 3);
  EXPECT_EQ(program.project.WorkParms.Place.CMRRRockTypeIndex, 2);
  EXPECT_EQ(program.project.WorkParms.Place.CMRRManual, 1);
  EXPECT_EQ(program.project.WorkParms.Entries.Bolt.StabFactor, 1.25F);
  EXPECT_EQ(program.project.WorkParms.Intersections.Standing.SupportCap, 264);
  EXPECT_EQ(program.project.WorkParms.Entries.RockLoad, 10);
  EXPECT_EQ(program.windows.WorkParmsCopy.Place.DepthofCover, 777);
  EXPECT_EQ(program.project.UseAUSStandardTable, 1);
}

TEST(NewProject, HasAnEmptySupportNameWhenTheListIsEmpty) {
  TestProject project;
  project.program.project.WorkParms.Entries.Standing.TypeName = "Pumped crib";
  project.program.session.catalogs.StandSupports.HighestIndex = -1;

  FileNew(project.program, Keeping::Nothing);

  EXPECT_EQ(project.program.project.WorkParms.Entries.Standing.TypeName, "");
  EXPECT_EQ(project.program.project.WorkParms.Intersections.Standing.TypeName, "");
}

}  // namespace
}  // namespace orby::test
