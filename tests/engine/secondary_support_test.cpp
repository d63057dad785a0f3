#include "engine/secondary_support.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/designs.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::Field;
using testing::Optional;

constexpr Single EnglishEntryLoad = 9.96701622F;
constexpr Single MetricEntryLoad = 335.096161F;
constexpr Single EnglishInterLoad = 183.050446F;
constexpr Single MetricInterLoad = 2212.88281F;

auto Gives(Single capacity, Single stabilityFactor) {
  return Optional(
      AllOf(Field(&SupportResult::Capacity, capacity), Field(&SupportResult::StabilityFactor, stabilityFactor)));
}

SupportSystems EnglishEntrySystems() {
  SupportSystems systems;
  systems.Cable = {26.4F, 2, 5};
  systems.Truss = {30, 45, 0, 4};
  systems.RoofBolt = {{0.75F, 75}, 4, 4};
  systems.Standing = {50, 2, 8};
  systems.StandingSpacing = 8;
  return systems;
}

SupportSystems MetricEntrySystems() {
  SupportSystems systems;
  systems.Cable = {590, 4, 5};
  systems.Truss = {300, 45, 0, 4};
  systems.RoofBolt = {{20, 520}, 4, 1.2F};
  systems.Standing = {500, 2, 3};
  systems.StandingSpacing = 3;
  return systems;
}

TEST(EntrySupport, OfTheEnglishDefaults) {
  const auto results = SupportEntry(EnglishEntryLoad, EnglishEntrySystems(), English, Grades(Yield));

  EXPECT_EQ(results.RockLoad, EnglishEntryLoad);
  EXPECT_THAT(results.Systems[0], Gives(10.5599995F, 1.05949461F));
  EXPECT_THAT(results.Systems[1], Gives(10.6066017F, 1.06417024F));
  EXPECT_THAT(results.Systems[2], Gives(16.5669918F, 1.66218173F));
  EXPECT_THAT(results.Systems[3], Gives(12.5F, 1.25413656F));
}

TEST(EntrySupport, OfTheMetricDefaults) {
  const auto results = SupportEntry(MetricEntryLoad, MetricEntrySystems(), Metric, Grades(Yield));

  EXPECT_EQ(results.RockLoad, MetricEntryLoad);
  EXPECT_THAT(results.Systems[0], Gives(472, 1.40855086F));
  EXPECT_THAT(results.Systems[1], Gives(106.066017F, 0.316524118F));
  EXPECT_THAT(results.Systems[2], Gives(544.542725F, 1.62503421F));
  EXPECT_THAT(results.Systems[3], Gives(333.333344F, 0.994739354F));
}

TEST(EntrySupport, ThatIsNotInUseIsNotComputed) {
  const auto results = SupportEntry(EnglishEntryLoad, SupportSystems{}, English, Grades(Yield));

  EXPECT_EQ(results.RockLoad, EnglishEntryLoad);
  for (const auto& system : results.Systems) EXPECT_FALSE(system);
}

TEST(EntrySupport, OfBoltsIsOnYieldWhenGradesAreUltimateStrengths) {
  SupportSystems systems;
  systems.RoofBolt = {{0.75F, 100}, 4, 4};
  EXPECT_THAT(SupportEntry(EnglishEntryLoad, systems, English, Grades(Ultimate)).Systems[2],
              Gives(16.5669918F, 1.66218173F));

  systems.RoofBolt = {{20, 690}, 4, 1.2F};
  EXPECT_THAT(SupportEntry(MetricEntryLoad, systems, Metric, Grades(Ultimate)).Systems[2],
              Gives(544.542725F, 1.62503421F));
}

TEST(EntrySupport, OfBoltsWithAnUnlistedUltimateStrengthFollowsTheStraightLine) {
  SupportSystems systems;
  systems.RoofBolt = {{0.75F, 80}, 4, 4};
  EXPECT_THAT(SupportEntry(EnglishEntryLoad, systems, English, Grades(Ultimate)).Systems[2],
              Gives(11.0446615F, 1.10812116F));

  systems.RoofBolt = {{20, 700}, 4, 1.2F};
  EXPECT_THAT(SupportEntry(MetricEntryLoad, systems, Metric, Grades(Ultimate)).Systems[2],
              Gives(533.702454F, 1.59268451F));
}

TEST(EntrySupport, OfBoltsTakesGradesAsUltimateStrengthsInModeOneAlone) {
  SupportSystems systems;
  systems.RoofBolt = {{0.75F, 75}, 4, 4};

  EXPECT_THAT(SupportEntry(EnglishEntryLoad, systems, English, Grades(2)).Systems[2], Gives(16.5669918F, 1.66218173F));
}

TEST(EntrySupport, ByCablesAtASpacingOfZeroIsPassedOver) {
  SupportSystems systems = EnglishEntrySystems();
  systems.Cable->Spacing = 0;

  const auto results = SupportEntry(EnglishEntryLoad, systems, English, Grades(Yield));

  EXPECT_FALSE(results.Systems[0]);
  EXPECT_TRUE(results.Systems[1]);
}

TEST(EntrySupport, ByTrussesIsPassedOverWhenTheStandingSupportsHaveNoSpacing) {
  SupportSystems systems = EnglishEntrySystems();
  systems.Standing->Spacing = 0;
  systems.StandingSpacing = 0;

  const auto results = SupportEntry(EnglishEntryLoad, systems, English, Grades(Yield));

  EXPECT_TRUE(results.Systems[0]);
  EXPECT_FALSE(results.Systems[1]);
  EXPECT_TRUE(results.Systems[2]);
  EXPECT_FALSE(results.Systems[3]);
}

TEST(EntrySupport, ByTrussesAndStandingSupportsWithoutAnySpacingDoesNotFail) {
  SupportSystems systems = EnglishEntrySystems();
  systems.Truss->Spacing = 0;
  systems.Standing->Spacing = 0;
  systems.StandingSpacing = 0;

  EXPECT_FALSE(SupportEntry(EnglishEntryLoad, systems, English, Grades(Yield)).Systems[1]);
}

TEST(EntrySupport, ByTrussesAtASpacingOfZeroFails) {
  SupportSystems systems;
  systems.Truss = {30, 45, 0, 0};
  systems.StandingSpacing = 8;

  const auto act = [&] { static_cast<void>(SupportEntry(EnglishEntryLoad, systems, English, Grades(Yield))); };

  EXPECT_EQ(ErrorNumberOf(act), 11);
}

TEST(EntrySupport, ByTrussesNeedsTheStandingSpacingEvenWhenNoneStand) {
  SupportSystems systems;
  systems.Truss = {30, 45, 0, 4};
  systems.StandingSpacing = 8;

  EXPECT_THAT(SupportEntry(EnglishEntryLoad, systems, English, Grades(Yield)).Systems[1],
              Gives(10.6066017F, 1.06417024F));
}

TEST(EntrySupport, WithoutBoltsPerRowIsPassedOver) {
  SupportSystems systems;
  systems.RoofBolt = {{0.75F, 75}, 0, 0};

  EXPECT_FALSE(SupportEntry(EnglishEntryLoad, systems, English, Grades(Yield)).Systems[2]);
}

TEST(EntrySupport, ByBoltsAtARowSpacingOfZeroFails) {
  SupportSystems systems;
  systems.RoofBolt = {{0.75F, 75}, 4, 0};

  const auto act = [&] { static_cast<void>(SupportEntry(EnglishEntryLoad, systems, English, Grades(Yield))); };

  EXPECT_EQ(ErrorNumberOf(act), 11);
}

TEST(EntrySupport, BeyondTheRangeOfASingleFails) {
  SupportSystems systems;
  systems.Cable = {1E30F, 1E20F, 5};

  const auto act = [&] { static_cast<void>(SupportEntry(EnglishEntryLoad, systems, English, Grades(Yield))); };

  EXPECT_EQ(ErrorNumberOf(act), 6);
}

SupportSystems EnglishInterSystems() {
  SupportSystems systems;
  systems.Cable = {26.4F, 10, 0};
  systems.Truss = {30, 45, 4, 0};
  systems.RoofBolt = {{0.75F, 75}, 10, 0};
  systems.Standing = {50, 4, 0};
  return systems;
}

SupportSystems MetricInterSystems() {
  SupportSystems systems;
  systems.Cable = {590, 4, 0};
  systems.Truss = {300, 45, 4, 0};
  systems.RoofBolt = {{20, 520}, 10, 0};
  systems.Standing = {500, 4, 0};
  return systems;
}

TEST(IntersectionSupport, OfTheEnglishDefaults) {
  const auto results = SupportIntersection(EnglishInterLoad, EnglishInterSystems(), English, Grades(Yield));

  EXPECT_EQ(results.RockLoad, EnglishInterLoad);
  EXPECT_THAT(results.Systems[0], Gives(264, 1.44222534F));
  EXPECT_THAT(results.Systems[1], Gives(169.705627F, 0.927097619F));
  EXPECT_THAT(results.Systems[2], Gives(165.669922F, 0.905050635F));
  EXPECT_THAT(results.Systems[3], Gives(200, 1.09259498F));
}

TEST(IntersectionSupport, OfTheMetricDefaults) {
  const auto results = SupportIntersection(MetricInterLoad, MetricInterSystems(), Metric, Grades(Yield));

  EXPECT_EQ(results.RockLoad, MetricInterLoad);
  EXPECT_THAT(results.Systems[0], Gives(2360, 1.06648219F));
  EXPECT_THAT(results.Systems[1], Gives(1697.05627F, 0.766898394F));
  EXPECT_THAT(results.Systems[2], Gives(1633.62817F, 0.738235295F));
  EXPECT_THAT(results.Systems[3], Gives(2000, 0.903798401F));
}

TEST(IntersectionSupport, OfBoltsIsOnYieldWhenGradesAreUltimateStrengths) {
  SupportSystems systems;
  systems.RoofBolt = {{0.75F, 100}, 10, 0};
  EXPECT_THAT(SupportIntersection(EnglishInterLoad, systems, English, Grades(Ultimate)).Systems[2],
              Gives(165.669922F, 0.905050635F));

  systems.RoofBolt = {{20, 700}, 10, 0};
  EXPECT_THAT(SupportIntersection(MetricInterLoad, systems, Metric, Grades(Ultimate)).Systems[2],
              Gives(1601.1074F, 0.723539174F));
}

TEST(IntersectionSupport, ThatIsNotInUseIsNotComputed) {
  SupportSystems systems;
  systems.Standing = {50, 4, 0};

  const auto results = SupportIntersection(EnglishInterLoad, systems, English, Grades(Yield));

  EXPECT_FALSE(results.Systems[0]);
  EXPECT_FALSE(results.Systems[1]);
  EXPECT_FALSE(results.Systems[2]);
  EXPECT_TRUE(results.Systems[3]);
}

TEST(IntersectionSupport, OfNoUnitsHasNoCapacity) {
  SupportSystems systems = EnglishInterSystems();
  systems.Cable->Count = 0;
  systems.RoofBolt->Count = 0;

  const auto results = SupportIntersection(EnglishInterLoad, systems, English, Grades(Yield));

  EXPECT_THAT(results.Systems[0], Gives(0, 0));
  EXPECT_THAT(results.Systems[2], Gives(0, 0));
}

}  // namespace
}  // namespace orby::test
