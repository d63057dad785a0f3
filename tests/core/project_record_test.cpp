#include "core/project_record.h"

#include "core/program_bench.h"

namespace orby::test {
namespace {

// Three bolt sets that differ in every value: sizes in inches, grades in ksi.
ProjectRecord ThreeBoltSets() {
  ProjectRecord record;
  record.BoltTableDiameterPrimary = 0.625F;
  record.BoltTableGradePrimary = 60;
  record.BoltDiameterStdPrimary = 0.75F;
  record.BoltGradeStdPrimary = 75;
  record.BoltDiameterManualPrimary = 0.8F;
  record.BoltGradeManualPrimary = 72;
  record.BoltTableDiameterSecEntry = 0.875F;
  record.BoltTableGradeSecEntry = 55;
  record.BoltDiameterStdSecEntry = 1;
  record.BoltGradeStdSecEntry = 40;
  record.BoltDiameterManualSecEntry = 1.1F;
  record.BoltGradeManualSecEntry = 42;
  record.BoltTableDiameterSecInter = 1.125F;
  record.BoltTableGradeSecInter = 100;
  record.BoltDiameterStdSecInter = 1.25F;
  record.BoltGradeStdSecInter = 90;
  record.BoltDiameterManualSecInter = 1.2F;
  record.BoltGradeManualSecInter = 88;
  return record;
}

struct SetCase {
  const char* name;
  const BoltFields& fields;
  Bolt table;
  Bolt standard;
  Bolt typed;
};

struct BoltOfASet : testing::TestWithParam<SetCase> {
  Bolt Selected() const { return SelectedBolt(record, GetParam().fields); }

  void Choose(Integer option, Integer diameterMode, Integer gradeMode) {
    record.*GetParam().fields.Options = option;
    record.*GetParam().fields.DiameterMode = diameterMode;
    record.*GetParam().fields.GradeMode = gradeMode;
  }

  ProjectRecord record = ThreeBoltSets();
};

TEST_P(BoltOfASet, IsTheTablesWhateverTheManualModesSay) {
  Choose(0, 1, 1);

  EXPECT_EQ(Selected().Diameter, GetParam().table.Diameter);
  EXPECT_EQ(Selected().Grade, GetParam().table.Grade);
}

TEST_P(BoltOfASet, IsTheStandardOneOfAManualSelection) {
  Choose(1, 0, 0);

  EXPECT_EQ(Selected().Diameter, GetParam().standard.Diameter);
  EXPECT_EQ(Selected().Grade, GetParam().standard.Grade);
}

TEST_P(BoltOfASet, IsTheTypedOneOfAManualSelection) {
  Choose(1, 1, 1);

  EXPECT_EQ(Selected().Diameter, GetParam().typed.Diameter);
  EXPECT_EQ(Selected().Grade, GetParam().typed.Grade);
}

TEST_P(BoltOfASet, MayHaveATypedDiameterWithAStandardGradeAndTheReverse) {
  Choose(1, 1, 0);
  EXPECT_EQ(Selected().Diameter, GetParam().typed.Diameter);
  EXPECT_EQ(Selected().Grade, GetParam().standard.Grade);

  Choose(1, 0, 1);
  EXPECT_EQ(Selected().Diameter, GetParam().standard.Diameter);
  EXPECT_EQ(Selected().Grade, GetParam().typed.Grade);
}

INSTANTIATE_TEST_SUITE_P(Set, BoltOfASet,
                         testing::Values(SetCase{"Primary", PrimaryBolt, {0.625F, 60}, {0.75F, 75}, {0.8F, 72}},
                                         SetCase{"Entries", SecEntryBolt, {0.875F, 55}, {1, 40}, {1.1F, 42}},
                                         SetCase{
                                             "Intersections", SecInterBolt, {1.125F, 100}, {1.25F, 90}, {1.2F, 88}}),
                         [](const auto& set) { return set.param.name; });

TEST(BoltSets, KeepLengthRowAndDescriptionApart) {
  ProjectRecord record;
  record.*PrimaryBolt.Length = 6;
  record.*SecEntryBolt.Length = 8;
  record.*SecInterBolt.Length = 10;
  record.*PrimaryBolt.TableRow = 1;
  record.*SecEntryBolt.TableRow = 2;
  record.*SecInterBolt.TableRow = 3;
  record.*PrimaryBolt.Desc = "#6";
  record.*SecEntryBolt.Desc = "#7";
  record.*SecInterBolt.Desc = "#8";

  EXPECT_EQ(record.BoltLengthPrimary, 6);
  EXPECT_EQ(record.BoltLengthSecEntry, 8);
  EXPECT_EQ(record.BoltLengthSecInter, 10);
  EXPECT_EQ(record.BoltTableRowPrimary, 1);
  EXPECT_EQ(record.BoltTableRowSecEntry, 2);
  EXPECT_EQ(record.BoltTableRowSecInter, 3);
  EXPECT_EQ(record.BoltDescPrimary, "#6");
  EXPECT_EQ(record.BoltDescSecEntry, "#7");
  EXPECT_EQ(record.BoltDescSecInter, "#8");
}

TEST(CableSets, KeepTheirFieldsApart) {
  ProjectRecord record;
  record.*SecEntryCable.Length = 12;
  record.*SecEntryCable.CapMode = 1;
  record.*SecEntryCable.Capacity = 1;
  record.*SecEntryCable.Diam = 0.6F;
  record.*SecEntryCable.CapacityStd = 27;
  record.*SecEntryCable.CapacityManual = 28;
  record.*SecInterCable.Length = 14;
  record.*SecInterCable.Diam = 0.7F;
  record.*SecInterCable.CapacityStd = 33;
  record.*SecInterCable.CapacityManual = 34;

  EXPECT_EQ(record.CableLengthSecEntry, 12);
  EXPECT_EQ(record.CableCapModeSecEntry, 1);
  EXPECT_EQ(record.CableCapacitySecEntry, 1);
  EXPECT_EQ(record.CableDiamSecEntry, 0.6F);
  EXPECT_EQ(record.CableCapacityStdSecEntry, 27);
  EXPECT_EQ(record.CableCapacityManualSecEntry, 28);
  EXPECT_EQ(record.CableLengthSecInter, 14);
  EXPECT_EQ(record.CableCapModeSecInter, 0);
  EXPECT_EQ(record.CableCapacitySecInter, 0);
  EXPECT_EQ(record.CableDiamSecInter, 0.7F);
  EXPECT_EQ(record.CableCapacityStdSecInter, 33);
  EXPECT_EQ(record.CableCapacityManualSecInter, 34);
}

TEST(DesignPreview, TakesTheFourDesignGroupsAndLeavesTheCost) {
  ProjectRecord committed;
  ProjectRecord preview;
  committed.DepthofCover = 400;
  committed.BoltLengthPrimary = 6;
  committed.RockFallAngle = 55;
  committed.RockFallAngleXcut = 65;
  committed.CostBoltCost = 5.72F;
  preview.CostBoltCost = 4.5F;

  preview.Design() = committed.Design();

  EXPECT_EQ(preview.DepthofCover, 400);
  EXPECT_EQ(preview.BoltLengthPrimary, 6);
  EXPECT_EQ(preview.RockFallAngle, 55);
  EXPECT_EQ(preview.RockFallAngleXcut, 65);
  EXPECT_EQ(preview.CostBoltCost, 4.5F);
}

TEST(DesignPreview, CanTakeTheCostAlone) {
  ProjectRecord committed;
  ProjectRecord preview;
  committed.DepthofCover = 400;
  committed.CostBoltCost = 5.72F;

  preview.Cost() = committed.Cost();

  EXPECT_EQ(preview.DepthofCover, 0);
  EXPECT_EQ(preview.CostBoltCost, 5.72F);
}

using AustralianTable = ProgramBench;

TEST_F(AustralianTable, IsInForceInAMetricProjectWithTheSettingOn) {
  program.UseAUSStandardTable = 1;
  program.Units = Metric;

  EXPECT_TRUE(UsesAustralianTable(program));
}

TEST_F(AustralianTable, IsNotInForceInAnEnglishProject) {
  program.UseAUSStandardTable = 1;
  program.Units = English;

  EXPECT_FALSE(UsesAustralianTable(program));
}

TEST_F(AustralianTable, IsNotInForceWithTheSettingOff) {
  program.Units = Metric;

  EXPECT_FALSE(UsesAustralianTable(program));
}

TEST(CatalogListOfNumbers, GrowsAsFarAsAnEntryIsSetAndKeepsItsEnd) {
  CatalogList diameters;
  EXPECT_EQ(diameters.Count(), 0U);

  diameters.Set(2, 22);
  EXPECT_EQ(diameters.Count(), 0U);
  EXPECT_EQ(diameters.Values.size(), 3U);
  EXPECT_EQ(diameters[0], 0);
  EXPECT_EQ(diameters[2], 22);

  diameters.HighestIndex = 1;
  diameters.Set(0, 20);
  EXPECT_EQ(diameters.Count(), 2U);
  EXPECT_EQ(diameters.Values.size(), 3U);
  EXPECT_EQ(diameters[0], 20);
}

}  // namespace
}  // namespace orby::test
