#include "files/conversion.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <utility>

#include "project_fixture.h"

namespace orby::test {
namespace {

struct Expectation {
  const char* name;
  Single ProjectRecord::*field;
  Single english;    // what is stored under English units
  Single metric;     // what that becomes under Metric units
  Single backAgain;  // what a Metric value of 123.4567 becomes under English units
};

using R = ProjectRecord;
#define FIELD(name) #name, &R::name

// 123.4567 m are 405.0417 ft, kN/m3 785.9627 pcf, mm 4.8605 in, MPa 17.90588 ksi, kN 13.87708 tons, kN/m 4.229735
// tons/ft.
constexpr Expectation Expectations[] = {
    {FIELD(DepthofCover), 405, 123.44F, 405},
    {FIELD(EntryWidth), 20, 6.1F, 405},
    {FIELD(ActualSpanDiagonals), 60, 18.29F, 405},
    {FIELD(BoltLengthPrimary), 6.5F, 1.98F, 405.04F},
    {FIELD(BoltLengthSecEntry), 6.5F, 1.98F, 405.04F},
    {FIELD(BoltLengthSecInter), 6.5F, 2, 405.04F},
    {FIELD(RowSpacingPrimary), 4, 1.2F, 405},
    {FIELD(RockLoadHeight), 8, 2.4F, 405},
    {FIELD(CableLengthSecEntry), 10, 3, 405},
    {FIELD(CableRowSpacingSecEntry), 5, 1.5F, 405},
    {FIELD(TrussLengthMemberSecEntry), 8, 2.4F, 405},
    {FIELD(TrussSpacingSecEntry), 4, 1.2F, 405},
    {FIELD(RowSpacingSecEntry), 4, 1.2F, 405},
    {FIELD(SupportRowSpacingSecEntry), 8, 2.4F, 405},
    {FIELD(RockLoadHeightInter), 8, 2.4F, 405},
    {FIELD(CableLengthSecInter), 10, 3, 405},
    {FIELD(TrussLengthMemberSecInter), 8, 2.4F, 405},
    {FIELD(UnitWeight), 162, 25.45F, 785.96F},
    {FIELD(BoltTableDiameterPrimary), 0.75F, 19.05F, 4.86F},
    {FIELD(BoltDiameterStdPrimary), 0.75F, 19.05F, 4.86F},
    {FIELD(BoltDiameterManualPrimary), 0.804F, 20.42F, 4.86F},
    {FIELD(CableDiamSecEntry), 0.6F, 15.24F, 4.86F},
    {FIELD(BoltTableDiameterSecEntry), 0.875F, 22.22F, 4.86F},
    {FIELD(BoltDiameterStdSecEntry), 0.625F, 15.88F, 4.86F},
    {FIELD(BoltDiameterManualSecEntry), 0.75F, 19.05F, 4.86F},
    {FIELD(CableDiamSecInter), 0.6F, 15.24F, 4.86F},
    {FIELD(BoltTableDiameterSecInter), 0.75F, 19.05F, 4.86F},
    {FIELD(BoltDiameterStdSecInter), 0.75F, 19.05F, 4.86F},
    {FIELD(BoltDiameterManualSecInter), 0.75F, 19.05F, 4.86F},
    {FIELD(BoltTableGradePrimary), 75, 517, 18},
    {FIELD(BoltGradeStdPrimary), 75, 517, 18},
    {FIELD(BoltGradeManualPrimary), 100, 689, 18},
    {FIELD(BoltTableGradeSecEntry), 60, 414, 18},
    {FIELD(BoltGradeStdSecEntry), 75, 517, 18},
    {FIELD(BoltGradeManualSecEntry), 75, 517, 18},
    {FIELD(BoltTableGradeSecInter), 75, 517, 18},
    {FIELD(BoltGradeStdSecInter), 75, 517, 18},
    {FIELD(BoltGradeManualSecInter), 75, 517, 18},
    {FIELD(CableCapacityStdSecEntry), 27, 240.2F, 13.88F},
    {FIELD(CableCapacityStdSecInter), 27, 240.2F, 13.88F},
    {FIELD(CableCapacityManualSecEntry), 29.3F, 260.7F, 13.9F},
    {FIELD(TrussCapacitySecEntry), 30, 266.9F, 13.9F},
    {FIELD(SupportCapSecEntry), 50, 444.8F, 13.9F},
    {FIELD(RockLoadInter1), 182.9F, 1627.2F, 13.9F},
    {FIELD(CableCapacityManualSecInter), 29.3F, 260.7F, 13.9F},
    {FIELD(SupportCapInter1), 264, 2348.7F, 13.9F},
    {FIELD(TrussCapacitySecInter), 30, 266.9F, 13.9F},
    {FIELD(SupportCapInter2), 240, 2135.1F, 13.9F},
    {FIELD(SupportCapInter3), 150, 1334.5F, 13.9F},
    {FIELD(SupportCapSecInter), 50, 444.8F, 13.9F},
    {FIELD(SupportCapInter4), 200, 1779.3F, 13.9F},
    {FIELD(RockLoadEntry1), 10, 291.9F, 4.2F},
    {FIELD(SupportCapEntry1), 10.6F, 309.4F, 4.2F},
    {FIELD(SupportCapEntry2), 15, 437.8F, 4.2F},
    {FIELD(SupportCapEntry3), 12, 350.3F, 4.2F},
    {FIELD(SupportCapEntry4), 12.5F, 364.8F, 4.2F},
};

TEST(Conversion, EveryFieldToMetricWithItsOwnDecimals) {
  TestProject project;
  for (const auto& row : Expectations) project.program.WorkParms.*row.field = row.english;

  ConvertProject(project.program, Metric);

  for (const auto& row : Expectations) EXPECT_EQ(project.program.WorkParms.*row.field, row.metric) << row.name;
}

TEST(Conversion, EveryFieldToEnglishWithItsOwnDecimals) {
  TestProject project;
  project.program.Units = Metric;
  for (const auto& row : Expectations) project.program.WorkParms.*row.field = 123.4567F;

  ConvertProject(project.program, English);

  for (const auto& row : Expectations) EXPECT_EQ(project.program.WorkParms.*row.field, row.backAgain) << row.name;
}

// Fields of one unit and one number of decimals share what 123.4567 becomes, and so what 80.54 does: from 264.2388 ft,
// 512.742 pcf, 3.1709 in, 11.68134 ksi, 9.053056 tons, 2.759372 tons/ft. No digit of these is a 0 that hides a decimal.
constexpr std::pair<Single, Single> SecondValues[] = {{405, 264.2F},  {405.04F, 264.24F}, {785.96F, 512.74F},
                                                      {4.86F, 3.17F}, {18, 12},           {13.88F, 9.05F},
                                                      {13.9F, 9.1F},  {4.2F, 2.8F}};

TEST(Conversion, EveryFieldToEnglishHasNoDecimalFewerOrMore) {
  TestProject project;
  project.program.Units = Metric;
  for (const auto& row : Expectations) project.program.WorkParms.*row.field = 80.54F;

  ConvertProject(project.program, English);

  for (const auto& row : Expectations) {
    const auto* second = std::ranges::find(SecondValues, row.backAgain, &std::pair<Single, Single>::first);
    ASSERT_NE(second, std::end(SecondValues)) << row.name;
    EXPECT_EQ(project.program.WorkParms.*row.field, second->second) << row.name;
  }
}

TEST(Conversion, TheTwoStandardCableCapacitiesDifferByADecimal) {
  TestProject project;
  project.program.WorkParms.CableCapacityStdSecEntry = 27.11F;
  project.program.WorkParms.CableCapacityStdSecInter = 27.11F;

  ConvertProject(project.program, Metric);

  EXPECT_EQ(project.program.WorkParms.CableCapacityStdSecEntry, 241.2F);
  EXPECT_EQ(project.program.WorkParms.CableCapacityStdSecInter, 241.18F);
}

TEST(Conversion, TiesGoToTheEvenDigit) {
  TestProject project;
  project.program.WorkParms.BoltTableDiameterPrimary = 0.875F;  // 22.225 mm
  project.program.WorkParms.BoltDiameterStdPrimary = 0.625F;    // 15.875 mm

  ConvertProject(project.program, Metric);

  EXPECT_EQ(project.program.WorkParms.BoltTableDiameterPrimary, 22.22F);
  EXPECT_EQ(project.program.WorkParms.BoltDiameterStdPrimary, 15.88F);
}

TEST(Conversion, ThereAndBackDoesNotRestoreADepth) {
  TestProject project;
  project.program.WorkParms.DepthofCover = 401.37F;

  ConvertProject(project.program, Metric);
  ConvertProject(project.program, English);

  EXPECT_EQ(project.program.WorkParms.DepthofCover, 401.4F);
}

TEST(Conversion, AnglesCountsFactorsFlagsAndCostsStay) {
  TestProject project;
  ProjectRecord& record = project.program.WorkParms;
  FileNew(project.program, false, true);
  record.StabFactorEntry1 = 1.06F;
  record.StabFactorInter4 = 1.44F;

  ConvertProject(project.program, Metric);

  EXPECT_EQ(record.RockFallAngle, 30);
  EXPECT_EQ(record.TrussAngleSecInter, 45);
  EXPECT_EQ(record.BoltsperRowPrimary, 4);
  EXPECT_EQ(record.CableBoltsPerRowSecEntry, 2);
  EXPECT_EQ(record.CableNumberSecInter, 10);
  EXPECT_EQ(record.TrussNumberSecInter, 4);
  EXPECT_EQ(record.StabilityFactor, 1);
  EXPECT_EQ(record.StabFactorEntry1, 1.06F);
  EXPECT_EQ(record.StabFactorInter4, 1.44F);
  EXPECT_EQ(record.CMRR, 45);
  EXPECT_EQ(record.CostRowSpacing, 4);
  EXPECT_EQ(record.CostAdvanceShift, 300);
  EXPECT_EQ(record.CostCapitalCost, 1000000);
}

TEST(Conversion, TheResultIsAnUnsavedProjectUnderItsBareNameWithAPrefix) {
  TestProject project;
  project.program.FileSaved = true;

  ConvertProject(project.program, Metric);

  EXPECT_EQ(project.program.CurrentFile, "Metric_panel3.orb");
  EXPECT_EQ(project.program.Units, Metric);
  EXPECT_FALSE(project.program.FileSaved);
  EXPECT_FALSE(project.platform.files.files.contains("Metric_panel3.orb"));
}

TEST(Conversion, PrefixesPileUpTheNewestFirst) {
  TestProject project;
  project.program.CurrentFile = "C:\\designs\\panel3.orb";

  ConvertProject(project.program, Metric);
  ConvertProject(project.program, English);

  EXPECT_EQ(project.program.CurrentFile, "English_Metric_panel3.orb");
  EXPECT_EQ(project.program.Units, English);
}

TEST(Conversion, AnOverflowEndsItAndKeepsWhatWasConverted) {
  TestProject project;
  project.program.WorkParms.DepthofCover = 400;
  project.program.WorkParms.CableDiamSecEntry = 3E38F;
  project.program.WorkParms.BoltGradeStdPrimary = 75;
  project.program.FileSaved = true;

  EXPECT_EQ(ErrorNumberOf([&] { ConvertProject(project.program, Metric); }), 6);

  EXPECT_EQ(project.program.WorkParms.DepthofCover, 121.92F);
  EXPECT_EQ(project.program.WorkParms.CableDiamSecEntry, 3E38F);
  EXPECT_EQ(project.program.WorkParms.BoltGradeStdPrimary, 75);
  EXPECT_EQ(project.program.CurrentFile, ProjectPath);
  EXPECT_EQ(project.program.Units, English);
  EXPECT_FALSE(project.program.FileSaved);
}

TEST(Conversion, WorksOnTheCommittedDesignAlone) {
  TestProject project;
  project.program.WorkParmsCopy.DepthofCover = 400;

  ConvertProject(project.program, Metric);

  EXPECT_EQ(project.program.WorkParmsCopy.DepthofCover, 400);
}

}  // namespace
}  // namespace orby::test
