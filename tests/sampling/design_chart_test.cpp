// Charts over two inputs.
#include "sampling/design_chart.h"

#include <gmock/gmock.h>

#include "sampling/samples.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

constexpr StudiedVerdict JudgedPsup{Opening::Primary, Aspect::Psup};
constexpr StudiedVerdict OnPsup[] = {JudgedPsup};
const SingleField SpacingField([](auto& d) { return &d.Primary.RowSpacing; });
const SingleField BoltsField([](auto& d) { return &d.Primary.BoltsperRow; });

TEST(DesignChart, HasTheFigureAndTheJudgementOfEachPoint) {
  const Catalogs lists = BuiltInLists();
  const VariedAxis depths{DepthField, EvenValues(200, 1000, 9)};
  const VariedAxis ratings{RatingField, EvenValues(35, 65, 7)};

  const FigureChart chart =
      ChartFigure(FullDesign(), lists, *FigureWithKey("suggested-psup"), JudgedPsup, depths, ratings);

  ASSERT_EQ(chart.Values.size(), 63);
  int shorts = 0;
  for (std::size_t row = 0; row < 7; ++row) {
    for (std::size_t column = 0; column < 9; ++column) {
      Design design = FullDesign();
      design.Place.DepthofCover = static_cast<Single>(200 + 100 * column);
      design.Place.CMRR = static_cast<Single>(35 + 5 * row);
      const Figures figures = Analyze(design, lists);
      EXPECT_EQ(chart.Values[row * 9 + column].Value, figures.Suggested.Value().SugPSUP);
      const bool isShort = figures.Primary.Value().ActualPSUP < figures.Suggested.Value().SugPSUP;
      EXPECT_EQ(chart.Results[row * 9 + column], isShort ? Holding::Short : Holding::Holds);
      shorts += isShort ? 1 : 0;
    }
  }
  EXPECT_GT(shorts, 10);
  EXPECT_LT(shorts, 50);
}

// Compares with a search through all spacings.
TEST(DesignChart, FindsTheGreatestSpacingThatHolds) {
  const Catalogs lists = BuiltInLists();
  const VariedAxis depths{DepthField, EvenValues(200, 1400, 13)};
  const VariedAxis ratings{RatingField, EvenValues(30, 70, 11)};
  const ChosenNumber spacing{SpacingField, 2, 6, {10}};

  const auto chart = ChartNumberThatHolds(FullDesign(), lists, OnPsup, spacing, depths, ratings);

  int found = 0;
  int without = 0;
  for (std::size_t row = 0; row < 11; ++row) {
    for (std::size_t column = 0; column < 13; ++column) {
      VariedDesign varied(FullDesign(), lists);
      varied.Set(DepthField, depths.Values[column]);
      varied.Set(RatingField, ratings.Values[row]);
      std::optional<Single> greatest;
      for (int tenth = 20; tenth <= 60; ++tenth) {
        varied.Set(SpacingField, static_cast<Single>(tenth / 10.0));
        varied.Refresh();
        if (varied.ResultOf(JudgedPsup) == Holding::Holds) greatest = static_cast<Single>(tenth / 10.0);
      }
      ASSERT_EQ(chart[row * 13 + column], greatest) << row << " " << column;
      ++(greatest ? found : without);
    }
  }
  EXPECT_GT(found, 20);
  EXPECT_GT(without, 5);
}

TEST(DesignChart, FindsTheLeastNumberThatHolds) {
  const Catalogs lists = BuiltInLists();
  const VariedAxis depth{DepthField, {400}};
  const VariedAxis rating{RatingField, {45}};
  const ChosenNumber bolts{BoltsField, 1, 10, {1}, false};

  // One bolt in a row has a PSUP of 2.485; the suggested one is 7.607.
  EXPECT_THAT(ChartNumberThatHolds(FullDesign(), lists, OnPsup, bolts, depth, rating),
              ElementsAre(std::optional<Single>(4)));
}

TEST(DesignChart, NeedsAllJudgementsToHold) {
  const Catalogs lists = BuiltInLists();
  const VariedAxis depth{DepthField, {400}};
  const VariedAxis rating{RatingField, {45}};
  const ChosenNumber span{SpanField, 50, 80, {1}};
  const StudiedVerdict both[] = {JudgedPsup, {Opening::Primary, Aspect::Span}};

  const auto psupAlone = ChartNumberThatHolds(FullDesign(), lists, OnPsup, span, depth, rating);
  const auto withSpan = ChartNumberThatHolds(FullDesign(), lists, both, span, depth, rating);

  EXPECT_EQ(psupAlone[0], 68);  // 9.940 / 7.607 allows 60 ft times the root of that
  EXPECT_EQ(withSpan[0], 63);   // at most 63.2 ft
}

TEST(DesignChart, OnSeveralThreadsIsTheSame) {
  const Catalogs lists = BuiltInLists();
  const VariedAxis depths{DepthField, EvenValues(200, 1400, 40)};
  const VariedAxis ratings{RatingField, EvenValues(30, 70, 40)};
  const ChosenNumber spacing{SpacingField, 2, 6, {10}};

  const auto alone = ChartNumberThatHolds(FullDesign(), lists, OnPsup, spacing, depths, ratings, 1);

  EXPECT_EQ(ChartNumberThatHolds(FullDesign(), lists, OnPsup, spacing, depths, ratings, 3), alone);
}

// Between all neighbours that differ, the judgement is another one just before and just after the turn.
TEST(DesignChart, FindsWhereAJudgementTurnsBetweenPoints) {
  const Catalogs lists = BuiltInLists();
  const VariedAxis depths{DepthField, EvenValues(200, 2600, 9)};
  const VariedAxis ratings{RatingField, EvenValues(35, 65, 7)};
  const FigureChart chart =
      ChartFigure(FullDesign(), lists, *FigureWithKey("suggested-psup"), JudgedPsup, depths, ratings);

  const ChartTurns turns = FindTurns(FullDesign(), lists, JudgedPsup, chart.Results, depths, ratings);

  int found = 0;
  for (std::size_t row = 0; row < 7; ++row) {
    for (std::size_t column = 0; column < 8; ++column) {
      const double share = turns.ToNextX[row * 9 + column];
      ASSERT_EQ(share > 0, chart.Results[row * 9 + column] != chart.Results[row * 9 + column + 1]);
      if (share == 0) continue;
      ++found;
      VariedDesign varied(FullDesign(), lists);
      varied.Set(RatingField, ratings.Values[row]);
      for (const auto& [step, result] : {std::pair(-0.001, chart.Results[row * 9 + column]),
                                         std::pair(0.001, chart.Results[row * 9 + column + 1])}) {
        varied.Set(DepthField, static_cast<Single>(200 + 300 * (static_cast<double>(column) + share + step)));
        varied.Refresh();
        EXPECT_EQ(varied.ResultOf(JudgedPsup), result) << row << " " << column;
      }
    }
  }
  EXPECT_GT(found, 2);
}

TEST(DesignChart, EndsWhenItIsCancelled) {
  const Catalogs lists = BuiltInLists();
  const VariedAxis depths{DepthField, EvenValues(200, 1000, 9)};
  const VariedAxis ratings{RatingField, EvenValues(35, 65, 7)};
  ChartProgress progress;
  progress.IsCancelled = true;

  ChartFigure(FullDesign(), lists, *FigureWithKey("suggested-psup"), JudgedPsup, depths, ratings, 0, &progress);
  EXPECT_EQ(progress.RowsDone, 0U);
  progress.IsCancelled = false;
  ChartFigure(FullDesign(), lists, *FigureWithKey("suggested-psup"), JudgedPsup, depths, ratings, 0, &progress);

  EXPECT_EQ(progress.RowsDone, 7U);
}

TEST(EvenValues, HaveBothEnds) { EXPECT_THAT(EvenValues(1, 2, 5), ElementsAre(1, 1.25F, 1.5F, 1.75F, 2)); }

}  // namespace
}  // namespace orby::test
