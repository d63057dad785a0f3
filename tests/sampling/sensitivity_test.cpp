// What a figure depends on, and the values at which judgements change.
#include "sampling/sensitivity.h"

#include <gmock/gmock.h>

#include "sampling/samples.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr StudiedVerdict SpanVerdict{Opening::Primary, Aspect::Span};
constexpr StudiedVerdict PsupVerdictKey{Opening::Primary, Aspect::Psup};

const StudiedFigure& Figure(std::string_view key) { return *FigureWithKey(key); }

Holding ResultOf(const Design& design, const StudiedVerdict& judged) {
  const Catalogs lists = BuiltInLists();
  VariedDesign varied(design, lists);
  varied.Refresh();
  return varied.ResultOf(judged);
}

std::vector<TurningPoint> TurnsOf(const SensitivityRow& row, const StudiedVerdict& judged) {
  std::vector<TurningPoint> turns;
  std::ranges::copy_if(row.Turns, std::back_inserter(turns),
                       [&](const TurningPoint& turn) { return turn.Judged == judged; });
  return turns;
}

TEST(Sensitivity, HasTheFigureAtBothEndsOfEachRange) {
  const VariedRange ranges[] = {{"roof rating", RatingField, 40, 50}, {"depth of cover", DepthField, 300, 500}};

  const auto rows = FindSensitivity(FullDesign(), BuiltInLists(), Figure("suggested-span"), ranges);

  ASSERT_EQ(rows.size(), 2);
  EXPECT_FLOAT_EQ(rows[0].AtLow.Value, 61.3F);  // 0.38 CMRR + 46.1
  EXPECT_FLOAT_EQ(rows[0].AtHigh.Value, 65.1F);
  EXPECT_NEAR(rows[0].Swing(), 3.8, 1e-5);
  EXPECT_EQ(rows[1].Swing(), 0);
}

TEST(Sensitivity, SortsByTheSwing) {
  std::vector<SensitivityRow> rows;
  for (const Single high : {2.0F, 5.0F, 2.0F, 9.0F}) {
    rows.push_back({{"x", DepthField}, {1, 0}, {high, 0}, {}});
  }
  rows.push_back({{"x", DepthField}, {1, 0}, {std::numeric_limits<Single>::quiet_NaN(), 6}, {}});

  EXPECT_THAT(BySwing(rows), ElementsAre(3, 1, 0, 2, 4));
}

// The sum of the diagonals may be at most 63.2 ft.
TEST(Sensitivity, FindsTheValueAtWhichAJudgementChanges) {
  const VariedRange ranges[] = {{"sum of the diagonals", SpanField, 55, 70, {10}},
                                {"the same in whole feet", SpanField, 55, 70, {1}},
                                {"the same below the limit", SpanField, 55, 63, {10}}};

  const auto rows = FindSensitivity(FullDesign(), BuiltInLists(), Figure("suggested-psup"), ranges);

  EXPECT_THAT(TurnsOf(rows[0], SpanVerdict),
              ElementsAre(TurningPoint{SpanVerdict, Holding::Holds, Holding::Short, 63.2F, 63.3F}));
  EXPECT_THAT(TurnsOf(rows[1], SpanVerdict),
              ElementsAre(TurningPoint{SpanVerdict, Holding::Holds, Holding::Short, 63, 64}));
  EXPECT_THAT(TurnsOf(rows[2], SpanVerdict), IsEmpty());
}

TEST(Sensitivity, FindsAChangeAtTheVeryEndsOfARange) {
  const VariedRange ranges[] = {{"up to the first span that is short", SpanField, 55, 63.3F, {10}},
                                {"from the last span that holds", SpanField, 63.2F, 70, {10}}};

  const auto rows = FindSensitivity(FullDesign(), BuiltInLists(), Figure("suggested-psup"), ranges);

  for (const SensitivityRow& row : rows) {
    EXPECT_THAT(TurnsOf(row, SpanVerdict),
                ElementsAre(TurningPoint{SpanVerdict, Holding::Holds, Holding::Short, 63.2F, 63.3F}))
        << row.Range.Name;
  }
}

// As the capacity of a truss rises, its factor passes 1 and then the wanted factor.
TEST(Sensitivity, FindsEachChangeOfAJudgement) {
  Design design = FullDesign();
  design.Primary.StabilityFactor = 1.5F;
  const StudiedVerdict trusses{Opening::Entries, Aspect::Trusses};
  const VariedRange ranges[] = {{"truss capacity", [](auto& d) { return &d.Entries.Truss.Capacity; }, 1, 200, {1}}};

  const auto turns = TurnsOf(FindSensitivity(design, BuiltInLists(), Figure("entry-truss-factor"), ranges)[0], trusses);

  ASSERT_EQ(turns.size(), 2);
  EXPECT_EQ(turns[0].Before, Holding::Short);
  EXPECT_EQ(turns[0].After, Holding::Check);
  EXPECT_EQ(turns[1].Before, Holding::Check);
  EXPECT_EQ(turns[1].After, Holding::Holds);
  for (const TurningPoint& turn : turns) {
    EXPECT_EQ(turn.First, turn.Last + 1);
    for (const auto& [capacity, result] : {std::pair(turn.Last, turn.Before), std::pair(turn.First, turn.After)}) {
      design.Entries.Truss.Capacity = capacity;
      EXPECT_EQ(ResultOf(design, trusses), result) << capacity;
    }
  }
}

TEST(Sensitivity, FindsTheDepthUpToWhichAPatternHolds) {
  const VariedRange ranges[] = {{"depth of cover", DepthField, 100, 3000, {1}}};
  Design design = FullDesign();

  const auto turns =
      TurnsOf(FindSensitivity(design, BuiltInLists(), Figure("suggested-psup"), ranges)[0], PsupVerdictKey);

  ASSERT_EQ(turns.size(), 1);
  EXPECT_EQ(turns[0].First, turns[0].Last + 1);
  for (int depth = 100; depth <= 3000; ++depth) {
    design.Place.DepthofCover = static_cast<Single>(depth);
    ASSERT_EQ(ResultOf(design, PsupVerdictKey) == Holding::Holds, depth <= static_cast<int>(turns[0].Last)) << depth;
  }
}

TEST(Sensitivity, TakesAShareOfANumberInSensibleSteps) {
  Design design = FullDesign();
  design.Place.DepthofCover = 400;
  design.Place.ActualSpanDiagonals = 62;
  design.Place.EntryWidth = 0;
  const SingleField width([](auto& d) { return &d.Place.EntryWidth; });

  const auto depth = RangeAround(design, "depth of cover", DepthField, 0.1);
  const auto span = RangeAround(design, "sum of the diagonals", SpanField, 0.5);

  ASSERT_TRUE(depth && span);
  EXPECT_EQ(depth->Low, 360);
  EXPECT_EQ(depth->High, 440);
  EXPECT_EQ(depth->Steps.PerUnit, 1);
  EXPECT_EQ(span->Low, 31);
  EXPECT_EQ(span->High, 93);
  EXPECT_EQ(span->Steps.PerUnit, 10);
  EXPECT_FALSE(RangeAround(design, "entry width", width, 0.1));
}

TEST(Sensitivity, FollowsAFigureAlongAnInput) {
  const Single depths[] = {0, 400};

  const auto values = FigureAlong(FullDesign(), BuiltInLists(), Figure("suggested-psup"), DepthField, depths);

  ASSERT_EQ(values.size(), 2);
  EXPECT_EQ(values[0].IsThere() ? values[0].Value : 0, 0);
  EXPECT_NEAR(values[1].Value, 7.606839, 1e-5);  // the example of the help
}

}  // namespace
}  // namespace orby::test
