#include "files/conversion.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <utility>

#include "design/field.h"
#include "project_fixture.h"

namespace orby::test {
namespace {

struct Expectation {
  const char* name;
  SingleField field;
  Single english;    // the value in English units
  Single metric;     // that value after conversion to Metric
  Single backAgain;  // a Metric value of 123.4567 after conversion to English
};

// 123.4567 m are 405.0417 ft, 123.4567 kN/m3 are 785.9627 pcf, mm 4.8605 in, MPa 17.90588 ksi, kN 13.87708 tons, and
// kN/m 4.229735 tons/ft.
constexpr Expectation Expectations[] = {
    {"DepthofCover", [](auto& d) { return &d.Place.DepthofCover; }, 405, 123.44F, 405},
    {"EntryWidth", [](auto& d) { return &d.Place.EntryWidth; }, 20, 6.1F, 405},
    {"ActualSpanDiagonals", [](auto& d) { return &d.Place.ActualSpanDiagonals; }, 60, 18.29F, 405},
    {"BoltLengthPrimary", [](auto& d) { return &d.Primary.Length; }, 6.5F, 1.98F, 405.04F},
    {"BoltLengthSecEntry", [](auto& d) { return &d.Entries.Bolt.Length; }, 6.5F, 1.98F, 405.04F},
    {"BoltLengthSecInter", [](auto& d) { return &d.Intersections.Bolt.Length; }, 6.5F, 2, 405.04F},
    {"RowSpacingPrimary", [](auto& d) { return &d.Primary.RowSpacing; }, 4, 1.2F, 405},
    {"RockLoadHeight", [](auto& d) { return &d.Entries.RockLoadHeight; }, 8, 2.4F, 405},
    {"CableLengthSecEntry", [](auto& d) { return &d.Entries.Cable.Length; }, 10, 3, 405},
    {"CableRowSpacingSecEntry", [](auto& d) { return &d.Entries.Cable.RowSpacing; }, 5, 1.5F, 405},
    {"TrussLengthMemberSecEntry", [](auto& d) { return &d.Entries.Truss.LengthMember; }, 8, 2.4F, 405},
    {"TrussSpacingSecEntry", [](auto& d) { return &d.Entries.Truss.Spacing; }, 4, 1.2F, 405},
    {"RowSpacingSecEntry", [](auto& d) { return &d.Entries.Bolt.RowSpacing; }, 4, 1.2F, 405},
    {"SupportRowSpacingSecEntry", [](auto& d) { return &d.Entries.Standing.RowSpacing; }, 8, 2.4F, 405},
    {"RockLoadHeightInter", [](auto& d) { return &d.Intersections.RockLoadHeight; }, 8, 2.4F, 405},
    {"CableLengthSecInter", [](auto& d) { return &d.Intersections.Cable.Length; }, 10, 3, 405},
    {"TrussLengthMemberSecInter", [](auto& d) { return &d.Intersections.Truss.LengthMember; }, 8, 2.4F, 405},
    {"UnitWeight", [](auto& d) { return &d.Place.UnitWeight; }, 162, 25.45F, 785.96F},
    {"BoltTableDiameterPrimary", [](auto& d) { return &d.Primary.TableDiameter; }, 0.75F, 19.05F, 4.86F},
    {"BoltDiameterStdPrimary", [](auto& d) { return &d.Primary.DiameterStd; }, 0.75F, 19.05F, 4.86F},
    {"BoltDiameterManualPrimary", [](auto& d) { return &d.Primary.DiameterManual; }, 0.804F, 20.42F, 4.86F},
    {"CableDiamSecEntry", [](auto& d) { return &d.Entries.Cable.Diam; }, 0.6F, 15.24F, 4.86F},
    {"BoltTableDiameterSecEntry", [](auto& d) { return &d.Entries.Bolt.TableDiameter; }, 0.875F, 22.22F, 4.86F},
    {"BoltDiameterStdSecEntry", [](auto& d) { return &d.Entries.Bolt.DiameterStd; }, 0.625F, 15.88F, 4.86F},
    {"BoltDiameterManualSecEntry", [](auto& d) { return &d.Entries.Bolt.DiameterManual; }, 0.75F, 19.05F, 4.86F},
    {"CableDiamSecInter", [](auto& d) { return &d.Intersections.Cable.Diam; }, 0.6F, 15.24F, 4.86F},
    {"BoltTableDiameterSecInter", [](auto& d) { return &d.Intersections.Bolt.TableDiameter; }, 0.75F, 19.05F, 4.86F},
    {"BoltDiameterStdSecInter", [](auto& d) { return &d.Intersections.Bolt.DiameterStd; }, 0.75F, 19.05F, 4.86F},
    {"BoltDiameterManualSecInter", [](auto& d) { return &d.Intersections.Bolt.DiameterManual; }, 0.75F, 19.05F, 4.86F},
    {"BoltTableGradePrimary", [](auto& d) { return &d.Primary.TableGrade; }, 75, 517, 18},
    {"BoltGradeStdPrimary", [](auto& d) { return &d.Primary.GradeStd; }, 75, 517, 18},
    {"BoltGradeManualPrimary", [](auto& d) { return &d.Primary.GradeManual; }, 100, 689, 18},
    {"BoltTableGradeSecEntry", [](auto& d) { return &d.Entries.Bolt.TableGrade; }, 60, 414, 18},
    {"BoltGradeStdSecEntry", [](auto& d) { return &d.Entries.Bolt.GradeStd; }, 75, 517, 18},
    {"BoltGradeManualSecEntry", [](auto& d) { return &d.Entries.Bolt.GradeManual; }, 75, 517, 18},
    {"BoltTableGradeSecInter", [](auto& d) { return &d.Intersections.Bolt.TableGrade; }, 75, 517, 18},
    {"BoltGradeStdSecInter", [](auto& d) { return &d.Intersections.Bolt.GradeStd; }, 75, 517, 18},
    {"BoltGradeManualSecInter", [](auto& d) { return &d.Intersections.Bolt.GradeManual; }, 75, 517, 18},
    {"CableCapacityStdSecEntry", [](auto& d) { return &d.Entries.Cable.CapacityStd; }, 27, 240.2F, 13.88F},
    {"CableCapacityStdSecInter", [](auto& d) { return &d.Intersections.Cable.CapacityStd; }, 27, 240.2F, 13.88F},
    {"CableCapacityManualSecEntry", [](auto& d) { return &d.Entries.Cable.CapacityManual; }, 29.3F, 260.7F, 13.9F},
    {"TrussCapacitySecEntry", [](auto& d) { return &d.Entries.Truss.Capacity; }, 30, 266.9F, 13.9F},
    {"SupportCapSecEntry", [](auto& d) { return &d.Entries.Standing.Capacity; }, 50, 444.8F, 13.9F},
    {"RockLoadInter1", [](auto& d) { return &d.Intersections.RockLoad; }, 182.9F, 1627.2F, 13.9F},
    {"CableCapacityManualSecInter", [](auto& d) { return &d.Intersections.Cable.CapacityManual; }, 29.3F, 260.7F,
     13.9F},
    {"SupportCapInter1", [](auto& d) { return &d.Intersections.Cable.SupportCap; }, 264, 2348.7F, 13.9F},
    {"TrussCapacitySecInter", [](auto& d) { return &d.Intersections.Truss.Capacity; }, 30, 266.9F, 13.9F},
    {"SupportCapInter2", [](auto& d) { return &d.Intersections.Truss.SupportCap; }, 240, 2135.1F, 13.9F},
    {"SupportCapInter3", [](auto& d) { return &d.Intersections.Bolt.SupportCap; }, 150, 1334.5F, 13.9F},
    {"SupportCapSecInter", [](auto& d) { return &d.Intersections.Standing.Capacity; }, 50, 444.8F, 13.9F},
    {"SupportCapInter4", [](auto& d) { return &d.Intersections.Standing.SupportCap; }, 200, 1779.3F, 13.9F},
    {"RockLoadEntry1", [](auto& d) { return &d.Entries.RockLoad; }, 10, 291.9F, 4.2F},
    {"SupportCapEntry1", [](auto& d) { return &d.Entries.Cable.SupportCap; }, 10.6F, 309.4F, 4.2F},
    {"SupportCapEntry2", [](auto& d) { return &d.Entries.Truss.SupportCap; }, 15, 437.8F, 4.2F},
    {"SupportCapEntry3", [](auto& d) { return &d.Entries.Bolt.SupportCap; }, 12, 350.3F, 4.2F},
    {"SupportCapEntry4", [](auto& d) { return &d.Entries.Standing.SupportCap; }, 12.5F, 364.8F, 4.2F},
};

TEST(Conversion, ToMetricRoundsEveryFieldToItsDecimals) {
  TestProject project;
  for (const auto& row : Expectations) row.field.In(project.program.project.WorkParms) = row.english;

  ConvertProject(project.program, Metric);

  for (const auto& row : Expectations)
    EXPECT_EQ(row.field.In(project.program.project.WorkParms), row.metric) << row.name;
}

TEST(Conversion, ToEnglishRoundsEveryFieldToItsDecimals) {
  TestProject project;
  project.program.project.WorkParms.Units = Metric;
  for (const auto& row : Expectations) row.field.In(project.program.project.WorkParms) = 123.4567F;

  ConvertProject(project.program, English);

  for (const auto& row : Expectations)
    EXPECT_EQ(row.field.In(project.program.project.WorkParms), row.backAgain) << row.name;
}

// Fields with the same unit and the same decimals have the same result for 123.4567, and so for 80.54. This is rounded
// from 264.2388 ft, 512.742 pcf, 3.1709 in, 11.68134 ksi, 9.053056 tons and 2.759372 tons/ft, where no digit is a 0
// that would hide a decimal.
constexpr std::pair<Single, Single> SecondValues[] = {{405, 264.2F},  {405.04F, 264.24F}, {785.96F, 512.74F},
                                                      {4.86F, 3.17F}, {18, 12},           {13.88F, 9.05F},
                                                      {13.9F, 9.1F},  {4.2F, 2.8F}};

TEST(Conversion, ToEnglishRoundsASecondValueOfEveryFieldToItsDecimals) {
  TestProject project;
  project.program.project.WorkParms.Units = Metric;
  for (const auto& row : Expectations) row.field.In(project.program.project.WorkParms) = 80.54F;

  ConvertProject(project.program, English);

  for (const auto& row : Expectations) {
    const auto* second = std::ranges::find(SecondValues, row.backAgain, &std::pair<Single, Single>::first);
    ASSERT_NE(second, std::end(SecondValues)) << row.name;
    EXPECT_EQ(row.field.In(project.program.project.WorkParms), second->second) << row.name;
  }
}

TEST(Conversion, RoundsTheStandardCableCapacityOfIntersectionsToOneMoreDecimal) {
  TestProject project;
  project.program.project.WorkParms.Entries.Cable.CapacityStd = 27.11F;
  project.program.project.WorkParms.Intersections.Cable.CapacityStd = 27.11F;

  ConvertProject(project.program, Metric);

  EXPECT_EQ(project.program.project.WorkParms.Entries.Cable.CapacityStd, 241.2F);
  EXPECT_EQ(project.program.project.WorkParms.Intersections.Cable.CapacityStd, 241.18F);
}

TEST(Conversion, RoundsTiesToTheEvenDigit) {
  TestProject project;
  project.program.project.WorkParms.Primary.TableDiameter = 0.875F;  // 22.225 mm
  project.program.project.WorkParms.Primary.DiameterStd = 0.625F;    // 15.875 mm

  ConvertProject(project.program, Metric);

  EXPECT_EQ(project.program.project.WorkParms.Primary.TableDiameter, 22.22F);
  EXPECT_EQ(project.program.project.WorkParms.Primary.DiameterStd, 15.88F);
}

TEST(Conversion, ToMetricAndBackChangesADepth) {
  TestProject project;
  project.program.project.WorkParms.Place.DepthofCover = 401.37F;

  ConvertProject(project.program, Metric);
  ConvertProject(project.program, English);

  EXPECT_EQ(project.program.project.WorkParms.Place.DepthofCover, 401.4F);
}

TEST(Conversion, DoesNotChangeAnglesCountsFactorsFlagsAndCosts) {
  TestProject project;
  Design& record = project.program.project.WorkParms;
  FileNew(project.program, Keeping::Name);
  record.Entries.Cable.StabFactor = 1.06F;
  record.Intersections.Standing.StabFactor = 1.44F;

  ConvertProject(project.program, Metric);

  EXPECT_EQ(record.Entries.RockFallAngle, 30);
  EXPECT_EQ(record.Intersections.Truss.Angle, 45);
  EXPECT_EQ(record.Primary.BoltsperRow, 4);
  EXPECT_EQ(record.Entries.Cable.BoltsPerRow, 2);
  EXPECT_EQ(record.Intersections.Cable.Number, 10);
  EXPECT_EQ(record.Intersections.Truss.Number, 4);
  EXPECT_EQ(record.Primary.StabilityFactor, 1);
  EXPECT_EQ(record.Entries.Cable.StabFactor, 1.06F);
  EXPECT_EQ(record.Intersections.Standing.StabFactor, 1.44F);
  EXPECT_EQ(record.Place.CMRR, 45);
  EXPECT_EQ(record.Cost.RowSpacing, 4);
  EXPECT_EQ(record.Cost.AdvanceShift, 300);
  EXPECT_EQ(record.Cost.CapitalCost, 1000000);
}

TEST(Conversion, KnowsTheQuantityOfEachNumber) {
  EXPECT_EQ(QuantityOf([](auto& d) { return &d.Place.EntryWidth; }), UnitSuffix::Length);
  EXPECT_EQ(QuantityOf([](auto& d) { return &d.Place.UnitWeight; }), UnitSuffix::UnitWeight);
  EXPECT_EQ(QuantityOf([](auto& d) { return &d.Primary.DiameterManual; }), UnitSuffix::Diameter);
  EXPECT_EQ(QuantityOf([](auto& d) { return &d.Primary.GradeManual; }), UnitSuffix::Grade);
  EXPECT_EQ(QuantityOf([](auto& d) { return &d.Entries.Truss.Capacity; }), UnitSuffix::Force);
  EXPECT_EQ(QuantityOf([](auto& d) { return &d.Entries.RockLoad; }), UnitSuffix::LineLoad);
  EXPECT_EQ(QuantityOf([](auto& d) { return &d.Place.CMRR; }), UnitSuffix::None);
  EXPECT_EQ(QuantityOf([](auto& d) { return &d.Entries.Truss.Angle; }), UnitSuffix::None);
}

TEST(Conversion, MakesAnUnsavedProjectWithAPrefixBeforeItsFileName) {
  TestProject project;
  project.program.project.FileSaved = true;

  ConvertProject(project.program, Metric);

  EXPECT_EQ(project.program.project.CurrentFile, "Metric_panel3.orb");
  EXPECT_EQ(project.program.project.WorkParms.Units, Metric);
  EXPECT_FALSE(project.program.project.FileSaved);
  EXPECT_FALSE(project.platform.files.files.contains("Metric_panel3.orb"));
}

TEST(Conversion, AddsItsPrefixBeforeEarlierOnes) {
  TestProject project;
  project.program.project.CurrentFile = "C:\\designs\\panel3.orb";

  ConvertProject(project.program, Metric);
  ConvertProject(project.program, English);

  EXPECT_EQ(project.program.project.CurrentFile, "English_Metric_panel3.orb");
  EXPECT_EQ(project.program.project.WorkParms.Units, English);
}

TEST(Conversion, ThatOverflowsKeepsTheValuesConvertedBefore) {
  TestProject project;
  project.program.project.WorkParms.Place.DepthofCover = 400;
  project.program.project.WorkParms.Entries.Cable.Diam = 3E38F;
  project.program.project.WorkParms.Primary.GradeStd = 75;
  project.program.project.FileSaved = true;

  EXPECT_EQ(ErrorNumberOf([&] { ConvertProject(project.program, Metric); }), 6);

  EXPECT_EQ(project.program.project.WorkParms.Place.DepthofCover, 121.92F);
  EXPECT_EQ(project.program.project.WorkParms.Entries.Cable.Diam, 3E38F);
  EXPECT_EQ(project.program.project.WorkParms.Primary.GradeStd, 75);
  EXPECT_EQ(project.program.project.CurrentFile, ProjectPath);
  EXPECT_EQ(project.program.project.WorkParms.Units, English);
  EXPECT_FALSE(project.program.project.FileSaved);
}

TEST(Conversion, ConvertsOnlyTheCommittedDesign) {
  TestProject project;
  project.program.windows.WorkParmsCopy.Place.DepthofCover = 400;

  ConvertProject(project.program, Metric);

  EXPECT_EQ(project.program.windows.WorkParmsCopy.Place.DepthofCover, 400);
}

}  // namespace
}  // namespace orby::test
