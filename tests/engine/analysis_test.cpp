// All figures and judgements of a design: the inputs of each figure, failures, and the use from many threads.
#include "engine/analysis.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <thread>
#include <vector>

#include "engine/designs.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

constexpr int NoError = 0;
constexpr int BadCall = 5;
constexpr int Overflow = 6;
constexpr int DivisionByZero = 11;

const Catalogs& Lists() {
  static const Catalogs lists = BuiltInLists();
  return lists;
}

Figures FiguresOf(const Design& design) { return Analyze(design, Lists()); }

std::array<int, SystemCount> ErrorsOf(const SupportFigures& figures) {
  std::array<int, SystemCount> errors{};
  for (std::size_t i = 0; i < SystemCount; ++i) errors[i] = figures.Systems[i].Error();
  return errors;
}

TEST(Analysis, OfAFullDesignComputesEveryFigure) {
  const Figures figures = FiguresOf(FullDesign());

  EXPECT_FLOAT_EQ(figures.Suggested.Value().SugPSUP, 7.6068387F);
  EXPECT_FLOAT_EQ(figures.Primary.Value().ActualPSUP, 9.94019508F);
  EXPECT_FLOAT_EQ(figures.Primary.Value().PRSUP, 13.2535934F);
  EXPECT_FLOAT_EQ(figures.Primary.Value().RDI, 192.177109F);
  EXPECT_EQ(figures.Primary.Value().Psup, PsupVerdict::Fine);
  EXPECT_FLOAT_EQ(*figures.Entries.RockLoad.Value(), 9.96701622F);
  EXPECT_FLOAT_EQ(figures.Entries.Systems[0].Value()->Capacity, 10.8F);      // 27 tons, 2 in a row, 5 ft apart
  EXPECT_FLOAT_EQ(figures.Entries.Systems[3].Value()->Capacity, 12.5F);      // 50 tons, 2 in a row, 8 ft apart
  EXPECT_FLOAT_EQ(figures.Intersections.Systems[3].Value()->Capacity, 200);  // 4 of 50 tons
  EXPECT_FLOAT_EQ(figures.EntryReinforcement.Value().HighestRock, 17.320508F);
  EXPECT_GT(figures.EntryReinforcement.Value().CableSRDI, 0);
  EXPECT_GT(figures.EntryReinforcement.Value().BoltSRDI, 0);
  EXPECT_TRUE(figures.IntersectionReinforcement.IsThere());
}

TEST(Analysis, HasNoFiguresOfASystemThatIsNotInUse) {
  Design design = FullDesign();
  design.Entries.Truss.Use = 0;

  const Figures figures = FiguresOf(design);

  EXPECT_FALSE(figures.Entries.Systems[1].Value());
  EXPECT_TRUE(figures.Intersections.Systems[1].Value());
}

TEST(Analysis, HasNoFiguresOfRoofBoltsWithoutBoltsInARow) {
  Design design = FullDesign();
  const auto bolts = [&] { return Analyze(design, BuiltInLists()).Entries.Systems[2].Value(); };

  design.Entries.Bolt.BoltsperRow = 0;
  EXPECT_FALSE(bolts().has_value());
  design.Entries.Bolt.BoltsperRow = 1;
  EXPECT_TRUE(bolts().has_value());
}

TEST(Analysis, WarnsOfAWideSpanAndShortBolts) {
  Design design = FullDesign();
  design.Place.ActualSpanDiagonals = 80;
  design.Primary.Length = 2;
  design.Entries.Cable.Length = 11;
  design.Entries.Bolt.Length = 8;

  const Figures figures = FiguresOf(design);

  EXPECT_TRUE(figures.Suggested.Value().SpanIsTooLarge);
  EXPECT_EQ(figures.Primary.Value().Length, LengthVerdict::TooShort);
  EXPECT_EQ(figures.Primary.Value().Psup, PsupVerdict::TooLow);
  EXPECT_TRUE(figures.EntryReinforcement.Value().CablesAreShort);
  EXPECT_TRUE(figures.EntryReinforcement.Value().BoltsAreShort);
  EXPECT_TRUE(figures.IntersectionReinforcement.Value().BoltsAreShort);
}

TEST(Analysis, WithoutADepthFailsOnlyInTheSuggestions) {
  Design design = FullDesign();
  design.Place.DepthofCover = 0;

  const Figures figures = FiguresOf(design);

  EXPECT_EQ(figures.Suggested.Error(), BadCall);
  EXPECT_EQ(figures.LiveSuggestion.Error(), BadCall);
  EXPECT_EQ(figures.Primary.Error(), BadCall);
  EXPECT_TRUE(figures.LivePSUP.Value());
  EXPECT_TRUE(figures.Entries.RockLoad.Value());
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(figures.Suggested.Value()); }), BadCall);
}

TEST(Analysis, FailsInTheDensitiesOfRoofBoltsWithoutCables) {
  Design design = FullDesign();
  design.Entries.Cable.Use = 0;

  const Figures figures = FiguresOf(design);

  EXPECT_EQ(figures.EntryReinforcement.Error(), DivisionByZero);
  EXPECT_TRUE(figures.Entries.Systems[2].Value());
}

TEST(Analysis, OverflowsOnlyWhereATooLargeNumberIsNeeded) {
  Design design = FullDesign();
  design.Entries.Truss.Capacity = Unfit;

  const Figures figures = FiguresOf(design);

  EXPECT_THAT(ErrorsOf(figures.Entries), testing::ElementsAre(NoError, Overflow, NoError, NoError));
  EXPECT_THAT(ErrorsOf(figures.Intersections), testing::Each(NoError));
  EXPECT_TRUE(figures.LiveSuggestion.Value());
}

// A cable with an unlisted diameter has a capacity of 0. A cable with a diameter outside the range has no capacity.
TEST(Analysis, OverflowsForATooLargeCableDiameter) {
  Design design = FullDesign();
  design.Intersections.Cable.CapMode = CapacityMode::ByDiameter;
  design.Intersections.Cable.Diam = Unfit;

  EXPECT_THAT(ErrorsOf(FiguresOf(design).Intersections), testing::ElementsAre(Overflow, NoError, NoError, NoError));
}

TEST(Analysis, IgnoresATooLargeNumberThatIsNotSelected) {
  Design design = FullDesign();
  design.Entries.Bolt.GradeManual = Unfit;

  EXPECT_THAT(ErrorsOf(FiguresOf(design).Entries), testing::Each(NoError));
}

TEST(Analysis, OfATooLargeWorkingNumberFailsOnlyInThePartsOfTheReport) {
  Design design = FullDesign();
  design.Units = Metric;
  design.Entries.Bolt.Length = 2e38F;

  const Figures figures = FiguresOf(design);

  EXPECT_EQ(figures.Working.Error(), Overflow);
  EXPECT_EQ(figures.Primary.Error(), Overflow);
  EXPECT_EQ(figures.IntersectionReinforcement.Error(), Overflow);
  EXPECT_TRUE(figures.Entries.RockLoad.IsThere());
}

// ---- one support again ----------------------------------------------------------------------------------------------

TEST(RefreshedFigures, AreThoseOfTheChangedPattern) {
  const Catalogs lists = BuiltInLists();
  Design design = FullDesign();
  Figures figures = Analyze(design, lists);
  design.Primary.RowSpacing = 7;
  design.Entries.Cable.RowSpacing = 0;
  design.Intersections.Standing.Number = 9;
  const Figures whole = Analyze(design, lists);

  RefreshPrimary(figures, design, lists);
  RefreshEntrySystem(figures, design, lists, 0);
  RefreshIntersectionSystem(figures, design, lists, 3);

  EXPECT_EQ(figures.Primary.Value().ActualPSUP, whole.Primary.Value().ActualPSUP);
  EXPECT_EQ(figures.Working.Value().Primary.RowSpacing, Feet(7));
  EXPECT_FALSE(figures.Entries.Systems[0].Value()) << "it has no row spacing any more";
  EXPECT_EQ(figures.Intersections.Systems[3].Value()->Capacity, 450);
}

// ---- from many threads ----------------------------------------------------------------------------------------------

Design AnyDesign(std::uint32_t number) {
  std::mt19937 random(number);
  const auto between = [&](double low, double high) {
    return static_cast<Single>(std::uniform_real_distribution(low, high)(random));
  };
  Design design = FullDesign();
  design.Units = random() % 2 == 0 ? English : Metric;
  design.Basis = random() % 2 == 0 ? Yield : Ultimate;
  design.Place.CMRR = between(15, 110);
  design.Place.DepthofCover = between(-50, 2000);
  design.Place.UnitWeight = between(10, 180);
  design.Place.EntryWidth = between(4, 24);
  design.Place.ActualSpanDiagonals = between(10, 90);
  for (SecondarySupport* support : {&design.Entries, &design.Intersections}) {
    support->RockFallAngle = between(-5, 95);
    for (SupportSystem* system : support->Systems()) system->Use = static_cast<Integer>(random() % 2);
  }
  return design;
}

// Returns all numbers and judgements, and the error of each figure that failed.
std::vector<double> Listed(const Figures& figures) {
  std::vector<double> list{static_cast<double>(figures.Suggested.Error()), static_cast<double>(figures.Primary.Error()),
                           static_cast<double>(figures.EntryReinforcement.Error()),
                           static_cast<double>(figures.IntersectionReinforcement.Error())};
  if (figures.Suggested.IsThere()) list.push_back(figures.Suggested.Value().SugPSUP);
  if (figures.Primary.IsThere()) list.push_back(figures.Primary.Value().RDI);
  if (figures.EntryReinforcement.IsThere()) list.push_back(figures.EntryReinforcement.Value().CableSRDI);
  if (figures.LivePSUP.IsThere()) list.push_back(figures.LivePSUP.Value().value_or(-1));
  for (const SupportFigures* support : {&figures.Entries, &figures.Intersections}) {
    list.push_back(support->RockLoad.IsThere() ? support->RockLoad.Value().value_or(-1) : -2);
    for (const auto& system : support->Systems) {
      list.push_back(system.Error());
      if (system.IsThere() && system.Value()) list.push_back(system.Value()->StabilityFactor);
    }
  }
  return list;
}

TEST(Analysis, HasTheSameResultsOnEightThreadsAsOnOne) {
  constexpr std::uint32_t Designs = 400;
  constexpr std::size_t Threads = 8;
  std::vector<std::vector<double>> alone;
  for (std::uint32_t i = 0; i < Designs; ++i) alone.push_back(Listed(FiguresOf(AnyDesign(i))));

  std::array<std::vector<std::vector<double>>, Threads> together;
  {
    std::vector<std::jthread> threads;
    for (auto& results : together) {
      threads.emplace_back([&results] {
        for (std::uint32_t i = 0; i < Designs; ++i) results.push_back(Listed(FiguresOf(AnyDesign(i))));
      });
    }
  }

  for (const auto& results : together) EXPECT_EQ(results, alone);
}

}  // namespace
}  // namespace orby::test
