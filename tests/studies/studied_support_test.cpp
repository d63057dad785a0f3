// Which support each judgement is on, and when a support holds.
#include "studies/studied_support.h"

#include "studies/study_designs.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

TEST(StudiedSupport, IsOnlyWhatIsAnalysedAndInUse) {
  Design design = FullDesign();
  EXPECT_EQ(StudiedSupports(design), std::vector<StudiedSupport>(AllSupports.begin(), AllSupports.end()));

  design.Primary.Analysed = 0;
  design.Intersections.Analysed = 0;
  design.Entries.Truss.Use = 0;
  EXPECT_THAT(StudiedSupports(design), ElementsAre(EntryCables, EntryBolts, EntryStanding));
}

TEST(StudiedSupport, OfTheSpansJudgementsIsNone) {
  EXPECT_FALSE(SupportOf({.What = Aspect::Span}));
  EXPECT_FALSE(SupportOf({.What = Aspect::SpanAndWidth}));
  EXPECT_FALSE(SupportOf({.What = Aspect::Supplement}));
}

TEST(StudiedSupport, OwnsItsLengthCapacityAndFactor) {
  EXPECT_EQ(SupportOf({.What = Aspect::BoltLength}), PrimaryBolts);
  EXPECT_EQ(SupportOf({.What = Aspect::Psup}), PrimaryBolts);
  EXPECT_EQ(SupportOf({.What = Aspect::BoltCapacity}), PrimaryBolts);
  EXPECT_EQ(SupportOf({.What = Aspect::BoltCapacity, .Where = Opening::Entries}), EntryBolts);
  EXPECT_EQ(SupportOf({.What = Aspect::BoltAnchorage, .Where = Opening::Intersections}), CrossingBolts);
  EXPECT_EQ(SupportOf({.What = Aspect::Bolts, .Where = Opening::Intersections}), CrossingBolts);
  EXPECT_EQ(SupportOf({.What = Aspect::CableAnchorage, .Where = Opening::Entries}), EntryCables);
  EXPECT_EQ(SupportOf({.What = Aspect::Cables, .Where = Opening::Intersections}), CrossingCables);
  EXPECT_EQ(SupportOf({.What = Aspect::Trusses, .Where = Opening::Entries}), EntryTrusses);
  EXPECT_EQ(SupportOf({.What = Aspect::Standing, .Where = Opening::Entries}), EntryStanding);
}

TEST(StudiedSupport, HoldsWithBoltsLongerThanNeededAndSaysSo) {
  Assessment judged;
  judged.Found.Add({.What = Aspect::BoltLength, .Result = Holding::Check, .Demand = 5, .Supply = 8});
  judged.Found.Add({.What = Aspect::Psup, .Result = Holding::Holds, .Demand = 4, .Supply = 5});

  EXPECT_TRUE(judged.Holds());
  EXPECT_TRUE(judged.IsLongerThanNeeded());
  EXPECT_DOUBLE_EQ(judged.Margin(), 0.25);
}

TEST(StudiedSupport, DoesNotHoldBelowTheFactorOfTheProject) {
  Assessment judged;
  judged.Found.Add({.What = Aspect::Cables,
                    .Where = Opening::Entries,
                    .Result = Holding::Check,
                    .Demand = 10,
                    .Supply = 12,
                    .Factor = 1.2F,
                    .WantedFactor = 1.3F});

  EXPECT_FALSE(judged.Holds());
}

TEST(StudiedSupport, DoesNotHoldForAFactorThatNothingCanReach) {
  Design design = FullDesign();
  design.Primary.StabilityFactor = Unfit;

  EXPECT_FALSE(Assess(design, Lists(), EntryStanding).Holds());
}

TEST(StudiedSupport, DoesNotHoldIfAJudgementIsShortOrCannotBeMade) {
  for (const Holding result : {Holding::Short, Holding::Uncomputed}) {
    Assessment judged;
    judged.Found.Add({.What = Aspect::BoltLength, .Result = Holding::Holds, .Demand = 5, .Supply = 6});
    judged.Found.Add({.What = Aspect::Psup, .Result = result});

    EXPECT_FALSE(judged.Holds());
  }
}

TEST(StudiedSupport, OfTrussesNeedsTheSpacingOfTheStandingSupports) {
  Design design = FullDesign();
  EXPECT_FALSE(LacksStandingSpacing(design, EntryTrusses));

  design.Entries.Standing.RowSpacing = 0;
  EXPECT_TRUE(LacksStandingSpacing(design, EntryTrusses));
  EXPECT_FALSE(LacksStandingSpacing(design, CrossingTrusses));
  EXPECT_FALSE(LacksStandingSpacing(design, EntryStanding));
}

}  // namespace
}  // namespace orby::test
