#include "engine/secondary_support.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/designs.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::Field;

constexpr Single EnglishEntryLoad = 9.96701622F;
constexpr Single MetricEntryLoad = 335.096161F;
constexpr Single EnglishInterLoad = 183.050446F;
constexpr Single MetricInterLoad = 2212.88281F;

auto Gives(Single capacity, Single stabilityFactor) {
  return AllOf(Field(&SupportResult::Capacity, capacity), Field(&SupportResult::StabilityFactor, stabilityFactor));
}

constexpr CountedSystem EnglishEntryCables{26.4F, 2, 5};
constexpr TrussSystem EnglishEntryTrusses{30, 45, 0, 4};
constexpr BoltSystem EnglishEntryBolts{{0.75F, 75}, 4, 4};
constexpr CountedSystem EnglishEntrySupports{50, 2, 8};

TEST(EntrySupport, IsComputedForTheEnglishDefaults) {
  EXPECT_THAT(SupportEntry(EnglishEntryLoad, EnglishEntryCables), Gives(10.5599995F, 1.05949461F));
  EXPECT_THAT(SupportEntry(EnglishEntryLoad, EnglishEntryTrusses), Gives(10.6066017F, 1.06417024F));
  EXPECT_THAT(SupportEntry(EnglishEntryLoad, EnglishEntryBolts, English, Grades(Yield)),
              Gives(16.5669918F, 1.66218173F));
  EXPECT_THAT(SupportEntry(EnglishEntryLoad, EnglishEntrySupports), Gives(12.5F, 1.25413656F));
}

TEST(EntrySupport, IsComputedForTheMetricDefaults) {
  EXPECT_THAT(SupportEntry(MetricEntryLoad, CountedSystem{590, 4, 5}), Gives(472, 1.40855086F));
  EXPECT_THAT(SupportEntry(MetricEntryLoad, TrussSystem{300, 45, 0, 4}), Gives(106.066017F, 0.316524118F));
  EXPECT_THAT(SupportEntry(MetricEntryLoad, BoltSystem{{20, 520}, 4, 1.2F}, Metric, Grades(Yield)),
              Gives(544.542725F, 1.62503421F));
  EXPECT_THAT(SupportEntry(MetricEntryLoad, CountedSystem{500, 2, 3}), Gives(333.333344F, 0.994739354F));
}

TEST(EntrySupport, OfBoltsUsesTheYieldStrengthOfUltimateGrades) {
  EXPECT_THAT(SupportEntry(EnglishEntryLoad, BoltSystem{{0.75F, 100}, 4, 4}, English, Grades(Ultimate)),
              Gives(16.5669918F, 1.66218173F));
  EXPECT_THAT(SupportEntry(MetricEntryLoad, BoltSystem{{20, 690}, 4, 1.2F}, Metric, Grades(Ultimate)),
              Gives(544.542725F, 1.62503421F));
}

TEST(EntrySupport, OfBoltsWithAnUnlistedUltimateGradeFollowsTheFormula) {
  EXPECT_THAT(SupportEntry(EnglishEntryLoad, BoltSystem{{0.75F, 80}, 4, 4}, English, Grades(Ultimate)),
              Gives(11.0446615F, 1.10812116F));
  EXPECT_THAT(SupportEntry(MetricEntryLoad, BoltSystem{{20, 700}, 4, 1.2F}, Metric, Grades(Ultimate)),
              Gives(533.702454F, 1.59268451F));
}

TEST(EntrySupport, OfBoltsUsesUltimateGradesOnlyInModeOne) {
  EXPECT_THAT(SupportEntry(EnglishEntryLoad, EnglishEntryBolts, English, Grades(StrengthBasis{2})),
              Gives(16.5669918F, 1.66218173F));
}

TEST(EntrySupport, AtASpacingOfZeroFails) {
  const auto failsWith = [](const auto&... system) {
    return ErrorNumberOf([&] { static_cast<void>(SupportEntry(EnglishEntryLoad, system...)); });
  };

  EXPECT_EQ(failsWith(CountedSystem{26.4F, 2, 0}), 11);
  EXPECT_EQ(failsWith(TrussSystem{30, 45, 0, 0}), 11);
  EXPECT_EQ(failsWith(BoltSystem{{0.75F, 75}, 4, 0}, English, Grades(Yield)), 11);
}

TEST(EntrySupport, BeyondTheRangeOfASingleFails) {
  const auto act = [] { static_cast<void>(SupportEntry(EnglishEntryLoad, CountedSystem{1E30F, 1E20F, 5})); };

  EXPECT_EQ(ErrorNumberOf(act), 6);
}

// Nobody builds them, but a slip of the finger may ask for them.
TEST(IntersectionSupport, HasTrussesAtAnyAngle) {
  EXPECT_FLOAT_EQ(SupportIntersection(EnglishInterLoad, TrussSystem{35, 1E20F, 4, 0}).Capacity, 139.97528F);
  EXPECT_FLOAT_EQ(SupportIntersection(EnglishInterLoad, TrussSystem{35, -1E20F, 4, 0}).Capacity, 139.97528F);
}

TEST(IntersectionSupport, IsComputedForTheEnglishDefaults) {
  EXPECT_THAT(SupportIntersection(EnglishInterLoad, CountedSystem{26.4F, 10, 0}), Gives(264, 1.44222534F));
  EXPECT_THAT(SupportIntersection(EnglishInterLoad, TrussSystem{30, 45, 4, 0}), Gives(169.705627F, 0.927097619F));
  EXPECT_THAT(SupportIntersection(EnglishInterLoad, BoltSystem{{0.75F, 75}, 10, 0}, English, Grades(Yield)),
              Gives(165.669922F, 0.905050635F));
  EXPECT_THAT(SupportIntersection(EnglishInterLoad, CountedSystem{50, 4, 0}), Gives(200, 1.09259498F));
}

TEST(IntersectionSupport, IsComputedForTheMetricDefaults) {
  EXPECT_THAT(SupportIntersection(MetricInterLoad, CountedSystem{590, 4, 0}), Gives(2360, 1.06648219F));
  EXPECT_THAT(SupportIntersection(MetricInterLoad, TrussSystem{300, 45, 4, 0}), Gives(1697.05627F, 0.766898394F));
  EXPECT_THAT(SupportIntersection(MetricInterLoad, BoltSystem{{20, 520}, 10, 0}, Metric, Grades(Yield)),
              Gives(1633.62817F, 0.738235295F));
  EXPECT_THAT(SupportIntersection(MetricInterLoad, CountedSystem{500, 4, 0}), Gives(2000, 0.903798401F));
}

TEST(IntersectionSupport, OfBoltsUsesTheYieldStrengthOfUltimateGrades) {
  EXPECT_THAT(SupportIntersection(EnglishInterLoad, BoltSystem{{0.75F, 100}, 10, 0}, English, Grades(Ultimate)),
              Gives(165.669922F, 0.905050635F));
  EXPECT_THAT(SupportIntersection(MetricInterLoad, BoltSystem{{20, 700}, 10, 0}, Metric, Grades(Ultimate)),
              Gives(1601.1074F, 0.723539174F));
}

TEST(IntersectionSupport, OfNoUnitsHasNoCapacity) {
  EXPECT_THAT(SupportIntersection(EnglishInterLoad, CountedSystem{26.4F, 0, 0}), Gives(0, 0));
  EXPECT_THAT(SupportIntersection(EnglishInterLoad, BoltSystem{{0.75F, 75}, 0, 0}, English, Grades(Yield)),
              Gives(0, 0));
}

}  // namespace
}  // namespace orby::test
