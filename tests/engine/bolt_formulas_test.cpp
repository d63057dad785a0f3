// Bolt grades and capacities, and the densities of support patterns.
#include <gtest/gtest.h>

#include "engine/designs.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

struct Pair {
  Single yield;
  Single ultimate;
};
constexpr Pair KsiPairs[] = {{40, 70}, {55, 85}, {60, 90}, {75, 100}, {90, 116}, {100, 125}};
constexpr Pair MPaPairs[] = {{280, 480}, {390, 590}, {420, 620}, {520, 690}, {620, 800}, {690, 860}};

TEST(BoltGrade, OfTheListHasItsPairedStrength) {
  const Catalogs lists = BuiltInLists();

  for (const auto& [yield, ultimate] : KsiPairs) {
    EXPECT_EQ(UltimateFromYieldKsi(Ksi(yield), lists).Value, ultimate) << yield;
    EXPECT_EQ(YieldFromUltimateKsi(Ksi(ultimate), lists).Value, yield) << ultimate;
  }
  for (const auto& [yield, ultimate] : MPaPairs)
    EXPECT_EQ(YieldFromUltimateMPa(MPa(ultimate), lists).Value, yield) << ultimate;
}

TEST(BoltGrade, OutsideTheListFollowsTheFormula) {
  const Catalogs lists = BuiltInLists();

  EXPECT_EQ(UltimateFromYieldKsi(Ksi(50), lists).Value, 80.0F);
  EXPECT_EQ(UltimateFromYieldKsi(Ksi(80), lists).Value, 107.0F);
  EXPECT_EQ(YieldFromUltimateKsi(Ksi(80), lists).Value, 50.0F);
  EXPECT_EQ(YieldFromUltimateKsi(Ksi(110), lists).Value, 83.3333359F);
  EXPECT_EQ(YieldFromUltimateMPa(MPa(550), lists).Value, 342.981659F);
  EXPECT_EQ(YieldFromUltimateMPa(MPa(700), lists).Value, 509.648315F);
}

TEST(BoltGrade, OneBitOffAListedGradeFollowsTheFormula) {
  const Catalogs lists = BuiltInLists();

  EXPECT_EQ(UltimateFromYieldKsi(Ksi(74.9999924F), lists).Value, 102.499992F);
  EXPECT_EQ(UltimateFromYieldKsi(Ksi(75.0000076F), lists).Value, 102.500008F);
  EXPECT_EQ(YieldFromUltimateKsi(Ksi(99.9999924F), lists).Value, 72.2222137F);
  EXPECT_EQ(YieldFromUltimateKsi(Ksi(100.000008F), lists).Value, 72.222229F);
  EXPECT_EQ(YieldFromUltimateMPa(MPa(689.999939F), lists).Value, 498.53714F);
  EXPECT_EQ(YieldFromUltimateMPa(MPa(690.000061F), lists).Value, 498.537292F);
}

TEST(BoltGrade, ThatIsListedTwiceHasTheFirstPairedStrength) {
  Catalogs lists = BuiltInLists();
  lists.DefaultBoltGradeArrayENG.Values[4] = 75;
  lists.DefaultBoltUTSArrayENG.Values[4] = 100;
  lists.DefaultBoltUTSArrayMET.Values[4] = 690;

  EXPECT_EQ(UltimateFromYieldKsi(Ksi(75), lists).Value, 100.0F);
  EXPECT_EQ(YieldFromUltimateKsi(Ksi(100), lists).Value, 75.0F);
  EXPECT_EQ(YieldFromUltimateMPa(MPa(690), lists).Value, 520.0F);
}

TEST(BoltGrade, WithoutAPairInAShorterListIsZero) {
  Catalogs lists = BuiltInLists();
  lists.DefaultBoltUTSArrayENG.HighestIndex = 2;
  EXPECT_EQ(UltimateFromYieldKsi(Ksi(60), lists).Value, 90.0F);
  EXPECT_EQ(UltimateFromYieldKsi(Ksi(75), lists).Value, 0.0F);

  lists = BuiltInLists();
  lists.DefaultBoltGradeArrayENG.HighestIndex = 2;
  lists.DefaultBoltGradeArrayMET.HighestIndex = 2;
  EXPECT_EQ(YieldFromUltimateKsi(Ksi(90), lists).Value, 60.0F);
  EXPECT_EQ(YieldFromUltimateKsi(Ksi(100), lists).Value, 0.0F);
  EXPECT_EQ(YieldFromUltimateMPa(MPa(620), lists).Value, 420.0F);
  EXPECT_EQ(YieldFromUltimateMPa(MPa(690), lists).Value, 0.0F);
}

TEST(BoltGrade, AfterTheLastEntryInUseIsNotFound) {
  Catalogs lists = BuiltInLists();
  lists.DefaultBoltGradeArrayENG.HighestIndex = 2;
  lists.DefaultBoltUTSArrayENG.HighestIndex = -1;

  EXPECT_EQ(UltimateFromYieldKsi(Ksi(75), lists).Value, 102.5F);
  EXPECT_EQ(YieldFromUltimateKsi(Ksi(80), lists).Value, 50.0F);
}

struct CapacityRow {
  Ksi grade;
  Inches diameter;
  Single area;      // kips
  Single ultimate;  // kips
  Single yield;     // kips
  Single areaKN;
  Single ultimateKN;
  Single checkTons;
};
constexpr CapacityRow Capacities[] = {
    {Ksi(40), Inches(0.625F), 12.2718468F, 21.4757309F, 1.70442307F, 54.5878792F, 95.5287857F, 6.13592339F},
    {Ksi(50), Inches(0.75F), 22.089323F, 35.3429184F, 7.36310768F, 98.2581787F, 157.213089F, 11.0446615F},
    {Ksi(60), Inches(0.875F), 36.0792274F, 54.1188431F, 16.7033463F, 160.488358F, 240.732544F, 18.0396137F},
    {Ksi(75), Inches(0.75F), 33.1339836F, 44.1786461F, 19.6349525F, 147.387268F, 196.516357F, 16.5669918F},
    {Ksi(100), Inches(1.25F), 122.71846F, 153.398071F, 92.0388489F, 545.878784F, 682.34845F, 61.35923F},
};

TEST(BoltCapacity, DependsOnGradeAndDiameter) {
  const Catalogs lists = BuiltInLists();

  for (const auto& row : Capacities) {
    SCOPED_TRACE(row.grade.Value);
    EXPECT_EQ(CapacityFromGrade(row.grade, row.diameter), row.area);
    EXPECT_EQ(UltimateCapacity(row.grade, row.diameter, lists), row.ultimate);
    EXPECT_EQ(YieldCapacity(row.grade, row.diameter, lists), row.yield);
    EXPECT_EQ(CapacityKN(row.grade, row.diameter), row.areaKN);
    EXPECT_EQ(UltimateCapacityKN(row.grade, row.diameter, lists), row.ultimateKN);
  }
}

TEST(BoltCapacity, IsCheckedInTonsOrKilonewtons) {
  for (const auto& row : Capacities) {
    EXPECT_EQ(BoltCapacityCheck(row.grade, row.diameter, English), row.checkTons) << row.grade.Value;
    EXPECT_EQ(BoltCapacityCheck(row.grade, row.diameter, Metric), row.areaKN) << row.grade.Value;
  }
}

TEST(BoltCapacity, OfAnUltimateGradeOutsideTheListFollowsTheFormula) {
  const Catalogs lists = BuiltInLists();

  EXPECT_EQ(YieldCapacity(Ksi(110), Inches(0.75F), lists), 36.8155403F);
  EXPECT_EQ(YieldCapacity(Ksi(80), Inches(0.688F), lists), 18.5881767F);
}

TEST(BoltCapacity, FailsBeyondTheRangeOfASingle) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(CapacityFromGrade(Ksi(75), Inches(1E20F))); }), 6);
}

struct PatternRow {
  BoltPattern pattern;
  StrengthBasis mode;
  Single psup;
  Single prsup;
  Single rdi;
};
constexpr PatternRow Patterns[] = {
    {{Feet(6), 4, Inches(0.75F), Ksi(75), Feet(4), Feet(20)}, Yield, 9.94019508F, 13.2535934F, 192.177109F},
    {{Feet(6), 4, Inches(0.75F), Ksi(75), Feet(4), Feet(20)}, Ultimate, 5.89048576F, 9.94019508F, 144.132828F},
    {{Feet(5), 5, Inches(0.875F), Ksi(60), Feet(3.5F), Feet(18)}, Yield, 14.3171539F, 21.4757309F, 311.398102F},
    {{Feet(5), 5, Inches(0.875F), Ksi(60), Feet(3.5F), Feet(18)}, Ultimate, 6.62831211F, 14.3171539F, 207.598724F},
    {{Feet(6), 4, Inches(0.75F), Ksi(75), Feet(4), Feet(20)}, StrengthBasis{2}, 5.89048576F, 9.94019508F, 144.132828F},
    {{Feet(6), 4, Inches(0.75F), Ksi(80), Feet(4), Feet(20)}, Yield, 10.6028757F, 14.1813459F, 205.629517F},
    {{Feet(6), 4, Inches(0.75F), Ksi(80), Feet(4), Feet(20)}, Ultimate, 6.62679672F, 10.6028757F, 153.741699F},
};

TEST(BoltPatternDensity, UsesYieldForPsupAndUltimateForPrsupInBothModes) {
  for (const auto& row : Patterns) {
    SCOPED_TRACE(testing::Message() << "grade " << row.pattern.Grade.Value << ", mode " << NumberOf(row.mode));
    EXPECT_EQ(ActualPSUP(row.pattern, Grades(row.mode)), row.psup);
    EXPECT_EQ(BoltPRSUP(row.pattern, Grades(row.mode)), row.prsup);
    EXPECT_EQ(BoltRDI(row.pattern, Grades(row.mode)), row.rdi);
  }
}

TEST(BoltPatternDensity, OfPairedGradesIsTheSameInBothModes) {
  const BoltPattern byYield{Feet(6), 4, Inches(0.75F), Ksi(75), Feet(4), Feet(20)};
  const BoltPattern byUltimate{Feet(6), 4, Inches(0.75F), Ksi(100), Feet(4), Feet(20)};

  EXPECT_EQ(ActualPSUP(byUltimate, Grades(Ultimate)), 9.94019508F);
  EXPECT_EQ(BoltPRSUP(byUltimate, Grades(Ultimate)), 13.2535934F);
  EXPECT_EQ(BoltRDI(byYield, Grades(Yield)), BoltRDI(byUltimate, Grades(Ultimate)));
}

TEST(BoltPatternDensity, FailsWithoutARowSpacingOrAWidth) {
  const BoltPattern noSpacing{Feet(6), 4, Inches(0.75F), Ksi(75), Feet(0), Feet(20)};
  const BoltPattern noWidth{Feet(6), 4, Inches(0.75F), Ksi(75), Feet(4), Feet(0)};

  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(ActualPSUP(noSpacing, Grades(Yield))); }), 11);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(BoltPRSUP(noSpacing, Grades(Yield))); }), 11);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(BoltRDI(noWidth, Grades(Ultimate))); }), 11);
}

TEST(SecondaryDensity, OfCablesExcludesTheAnchorFromTheSrdi) {
  EXPECT_EQ(CablePRSUP({Feet(10), 2, 26.4F, Feet(5), Feet(20)}), 5.27999973F);
  EXPECT_EQ(CableSRDI({Feet(10), 2, 26.4F, Feet(5), Feet(20)}), 74.0335159F);
  EXPECT_EQ(CablePRSUP({Feet(12), 3, 35.7F, Feet(4), Feet(18)}), 17.8500004F);
  EXPECT_EQ(CableSRDI({Feet(12), 3, 35.7F, Feet(4), Feet(18)}), 251.707321F);
}

TEST(SecondaryDensity, OfBoltsUsesTheWholeLength) {
  EXPECT_EQ(BoltSRDI({Feet(10), 2, 26.4F, Feet(5), Feet(20)}), 76.5599976F);
  EXPECT_EQ(BoltSRDI({Feet(12), 3, 35.7F, Feet(4), Feet(18)}), 258.825012F);
}

TEST(SecondaryDensity, FailsWithoutARowSpacing) {
  const SupportPattern pattern{Feet(10), 2, 26.4F, Feet(0), Feet(20)};

  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(CablePRSUP(pattern)); }), 11);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(CableSRDI(pattern)); }), 11);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(BoltSRDI(pattern)); }), 11);
}

TEST(CableCapacity, IsLookedUpInTheListOfItsUnits) {
  const Catalogs lists = BuiltInLists();

  EXPECT_EQ(CableCapacityFromDiameter(0.6F, English, lists), 26.4F);
  EXPECT_EQ(CableCapacityFromDiameter(0.7F, English, lists), 35.7F);
  EXPECT_EQ(CableCapacityFromDiameter(15.2F, Metric, lists), 235.0F);
  EXPECT_EQ(CableCapacityFromDiameter(21.8F, Metric, lists), 590.0F);
  EXPECT_EQ(CableCapacityFromDiameter(28, Metric, lists), 635.0F);
  EXPECT_EQ(CableCapacityFromDiameter(28.6F, Metric, lists), 970.0F);
}

TEST(CableCapacity, OfADiameterThatIsListedTwiceIsTheLast) {
  EXPECT_EQ(CableCapacityFromDiameter(31, Metric, BuiltInLists()), 880.0F);
}

TEST(CableCapacity, OfAnUnlistedDiameterIsZero) {
  const Catalogs lists = BuiltInLists();

  EXPECT_EQ(CableCapacityFromDiameter(0.65F, English, lists), 0.0F);
  EXPECT_EQ(CableCapacityFromDiameter(21.8F, English, lists), 0.0F);
  EXPECT_EQ(CableCapacityFromDiameter(0.6F, Metric, lists), 0.0F);
}

TEST(CableCapacity, OfADiameterOneBitOffAListedOneIsZero) {
  const Catalogs lists = BuiltInLists();

  EXPECT_EQ(CableCapacityFromDiameter(0.599999964F, English, lists), 0.0F);
  EXPECT_EQ(CableCapacityFromDiameter(0.600000083F, English, lists), 0.0F);
  EXPECT_EQ(CableCapacityFromDiameter(30.9999981F, Metric, lists), 0.0F);
  EXPECT_EQ(CableCapacityFromDiameter(31.0000019F, Metric, lists), 0.0F);
}

TEST(CableCapacity, IgnoresEntriesAfterTheLastOneInUse) {
  Catalogs lists = BuiltInLists();
  lists.DefaultCableDiamArrayENG.HighestIndex = 0;
  lists.DefaultCableDiamArrayMET.HighestIndex = 3;
  EXPECT_EQ(CableCapacityFromDiameter(0.7F, English, lists), 0.0F);
  EXPECT_EQ(CableCapacityFromDiameter(31, Metric, lists), 620.0F);

  lists = BuiltInLists();
  lists.DefaultCableCapArrayENG.HighestIndex = 0;
  EXPECT_EQ(CableCapacityFromDiameter(0.7F, English, lists), 0.0F);
}

}  // namespace
}  // namespace orby::test
