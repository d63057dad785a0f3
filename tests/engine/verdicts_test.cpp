// The judgements on a design at their limits.
#include "engine/verdicts.h"

#include <algorithm>
#include <optional>

#include "engine/designs.h"

namespace orby::test {
namespace {

class Judging : public testing::Test {
 protected:
  // Returns the judgement, or nothing when there is none.
  std::optional<Verdict> Of(Aspect what, Opening where = Opening::Primary) const {
    const Verdicts verdicts = Judge(design, Analyze(design, BuiltInLists()));
    const auto all = verdicts.All();
    const auto found = std::ranges::find_if(all, [&](const Verdict& v) { return v.What == what && v.Where == where; });
    return found == all.end() ? std::nullopt : std::optional(*found);
  }
  Holding ResultOf(Aspect what, Opening where = Opening::Primary) const { return Of(what, where).value().Result; }

  Design design = FullDesign();
};

TEST_F(Judging, JudgesOnlyWhatIsToBeAnalysed) {
  design.Primary.Analysed = design.Entries.Analysed = 0;

  EXPECT_FALSE(Of(Aspect::Psup));
  EXPECT_FALSE(Of(Aspect::Cables, Opening::Entries));
  EXPECT_TRUE(Of(Aspect::Cables, Opening::Intersections));
}

TEST_F(Judging, JudgesOnlySystemsInUse) {
  design.Entries.Truss.Use = 0;
  design.Entries.Bolt.Use = 0;

  EXPECT_FALSE(Of(Aspect::Trusses, Opening::Entries));
  EXPECT_FALSE(Of(Aspect::BoltAnchorage, Opening::Entries));
  EXPECT_FALSE(Of(Aspect::BoltCapacity, Opening::Entries));
  EXPECT_TRUE(Of(Aspect::BoltCapacity, Opening::Intersections));
}

TEST_F(Judging, FindsASystemShortBelowAFactorOfOneAndToBeCheckedBelowThatOfTheProject) {
  StandingSelection& standing = design.Entries.Standing;
  design.Primary.StabilityFactor = 1.5F;
  standing.Capacity = 1;
  standing.NumberPerRow = 1;
  standing.RowSpacing = 1;  // the capacity per foot is 1 ton
  const Single load = Of(Aspect::Standing, Opening::Entries).value().Demand;
  ASSERT_GT(load, 0);

  standing.Capacity = load * 0.999F;
  EXPECT_EQ(ResultOf(Aspect::Standing, Opening::Entries), Holding::Short);
  standing.Capacity = load;
  EXPECT_EQ(ResultOf(Aspect::Standing, Opening::Entries), Holding::Check);
  standing.Capacity = load * 1.499F;
  EXPECT_EQ(ResultOf(Aspect::Standing, Opening::Entries), Holding::Check);
  standing.Capacity = load * 1.501F;
  EXPECT_EQ(ResultOf(Aspect::Standing, Opening::Entries), Holding::Holds);
}

TEST_F(Judging, WantsAnchorageBeyondTheRockLoadHeight) {
  design.Entries.RockLoadHeight = 8;
  design.Entries.Cable.Length = 12;
  design.Entries.Bolt.Length = 9;
  EXPECT_EQ(ResultOf(Aspect::CableAnchorage, Opening::Entries), Holding::Holds);
  EXPECT_EQ(ResultOf(Aspect::BoltAnchorage, Opening::Entries), Holding::Holds);

  design.Entries.Cable.Length = 11.9F;
  design.Entries.Bolt.Length = 8.9F;
  EXPECT_EQ(ResultOf(Aspect::CableAnchorage, Opening::Entries), Holding::Short);
  EXPECT_EQ(ResultOf(Aspect::BoltAnchorage, Opening::Entries), Holding::Short);
}

TEST_F(Judging, JudgesTheBoltsOfAnIntersectionByItsOwnLength) {
  design.Entries.RockLoadHeight = 8;
  design.Entries.Bolt.Length = 4;
  design.Intersections.RockLoadHeight = 5;
  design.Intersections.Bolt.Length = 6;

  const Verdict anchorage = Of(Aspect::BoltAnchorage, Opening::Intersections).value();

  EXPECT_EQ(anchorage.Result, Holding::Holds);
  EXPECT_TRUE(anchorage.ReportDiffers);
  EXPECT_FALSE(Of(Aspect::BoltAnchorage, Opening::Entries).value().ReportDiffers);
}

TEST_F(Judging, NamesWhatIsMissing) {
  design.Place.EntryWidth = 0;
  EXPECT_EQ(Of(Aspect::Span).value().Reason, Missing::Site);
  EXPECT_EQ(Of(Aspect::Cables, Opening::Entries).value().Reason, Missing::RockLoad);

  design = FullDesign();
  design.Primary.RowSpacing = 0;
  EXPECT_EQ(Of(Aspect::Psup).value().Reason, Missing::Pattern);
  EXPECT_EQ(ResultOf(Aspect::BoltLength), Holding::Holds) << "the length needs no row spacing";

  design = FullDesign();
  design.Entries.Cable.RowSpacing = 0;
  EXPECT_EQ(Of(Aspect::Cables, Opening::Entries).value().Reason, Missing::Spacing);

  design.Entries.Bolt.RowSpacing = 0;
  const Verdict bolts = Of(Aspect::Bolts, Opening::Entries).value();
  EXPECT_EQ(bolts.Reason, Missing::Result);
  EXPECT_EQ(bolts.Error, 11);
}

TEST_F(Judging, TakesANumberThatNothingCanHoldAsMissing) {
  design.Place.EntryWidth = Unfit;

  EXPECT_EQ(ResultOf(Aspect::Span), Holding::Uncomputed);
  EXPECT_EQ(ResultOf(Aspect::Psup), Holding::Uncomputed);
}

TEST_F(Judging, TakesALengthThatNothingCanHoldAsAnOverflow) {
  design.Entries.RockLoadHeight = Unfit;
  design.Intersections.Cable.Length = Unfit;

  EXPECT_EQ(Of(Aspect::CableAnchorage, Opening::Entries).value().Error, 6);
  EXPECT_EQ(Of(Aspect::BoltAnchorage, Opening::Entries).value().Error, 6);
  EXPECT_EQ(Of(Aspect::CableAnchorage, Opening::Intersections).value().Error, 6);
}

TEST_F(Judging, OfOneSupportAreThoseOfTheWholeDesign) {
  const Figures figures = Analyze(design, BuiltInLists());
  const auto of = [](const Verdicts& verdicts) {
    std::vector<std::pair<Aspect, Opening>> list;
    for (const Verdict& verdict : verdicts.All()) list.emplace_back(verdict.What, verdict.Where);
    return list;
  };
  using testing::ElementsAre;
  using testing::Pair;

  EXPECT_THAT(of(JudgePrimaryBolts(design, figures)),
              ElementsAre(Pair(Aspect::BoltLength, Opening::Primary), Pair(Aspect::BoltCapacity, Opening::Primary),
                          Pair(Aspect::Psup, Opening::Primary)));
  EXPECT_THAT(of(JudgeSupport(design, figures, Opening::Entries, 0)),
              ElementsAre(Pair(Aspect::Cables, Opening::Entries), Pair(Aspect::CableAnchorage, Opening::Entries)));
  const Verdicts bolts = JudgeSupport(design, figures, Opening::Intersections, 2);
  ASSERT_EQ(bolts.All().size(), 3U);
  EXPECT_EQ(bolts.All()[0], Of(Aspect::Bolts, Opening::Intersections));
  EXPECT_EQ(bolts.All()[1], Of(Aspect::BoltAnchorage, Opening::Intersections));
  EXPECT_EQ(bolts.All()[2], Of(Aspect::BoltCapacity, Opening::Intersections));
}

TEST(ShareMissing, IsOfTheDemand) {
  EXPECT_DOUBLE_EQ(ShareMissing({.What = Aspect::Psup, .Result = Holding::Short, .Demand = 4, .Supply = 3}), 0.25);
  EXPECT_DOUBLE_EQ(ShareMissing({.What = Aspect::Span, .Result = Holding::Short, .Demand = 4, .Supply = 5}), 0.25);
  EXPECT_EQ(ShareMissing({.What = Aspect::Psup, .Result = Holding::Holds, .Demand = 4, .Supply = 3}), 0);
}

}  // namespace
}  // namespace orby::test
