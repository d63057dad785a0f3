// A study from its inputs to its result.
#include "sampling/study_run.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstring>
#include <numbers>

#include "sampling/batch_values.h"
#include "sampling/samples.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

const VerdictResult& VerdictOn(const StudyResult& result, Aspect what, Opening where = Opening::Primary) {
  for (const VerdictResult& verdict : result.Verdicts) {
    if (verdict.Judged == StudiedVerdict{where, what}) return verdict;
  }
  throw std::logic_error("no such judgement");
}

const FigureResult& FigureIn(const StudyResult& result, std::string_view key) {
  for (const FigureResult& figure : result.Figures) {
    if (figure.Figure->Key == key) return figure;
  }
  throw std::logic_error("no such figure");
}

// All numbers of a result as bits.
std::string BytesOf(const StudyResult& result) {
  std::string bytes;
  const auto add = [&](const auto& number) {
    static_assert(std::is_arithmetic_v<std::remove_cvref_t<decltype(number)>>);
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
  };
  add(result.Samples);
  for (const FigureResult& figure : result.Figures) {
    add(figure.Sums.Mean());
    add(figure.Sums.Deviation());
    add(figure.Sums.Least());
    add(figure.Sums.Greatest());
    add(figure.Histogram.From);
    add(figure.MeanInterval.value_or(Interval()).Low);
    for (const std::uint64_t count : figure.Sums.Counts()) add(count);
    for (const auto& correlation : figure.RankCorrelations) add(correlation.value_or(7));
  }
  for (const VerdictResult& verdict : result.Verdicts) {
    add(verdict.Probability);
    add(verdict.Confidence.value_or(Interval()).High);
    for (const std::uint64_t count : verdict.Counts.Of) add(count);
  }
  for (const auto* columns : {&result.Chosen.Inputs, &result.Chosen.Figures}) {
    for (const auto& column : *columns) {
      for (const Single number : column) add(number);
    }
  }
  return bytes;
}

// The sum of the diagonals may be at most 0.38 CMRR + 46.1 = 63.2 ft, so this judgement falls short when a normal
// number with a mean of 60 ft and a deviation of 2 ft is above that.
Study OneNormalInput(std::uint64_t samples, Scheme scheme) {
  Study study;
  study.Inputs = {{"sum of the diagonals", SpanField, {NormalLaw{60, 2}}}};
  study.Samples = samples;
  study.Sampling = scheme;
  study.Figures = {"suggested-span"};
  return study;
}

constexpr double AboveTheSuggestion = 0.054799291699557974;  // 1 - Phi(1.6)

TEST(StudyRun, FindsTheNormalIntegralOfALinearFigure) {
  const StudyResult result =
      RunStudy(FullDesign(), BuiltInLists(), OneNormalInput(1'000'000, Scheme::LatinHypercube), 2);

  ASSERT_EQ(FigureIn(result, "suggested-span").AtDesign.Value, 63.2F);
  const VerdictResult& span = VerdictOn(result, Aspect::Span);
  EXPECT_EQ(result.Samples, 1'000'000);
  EXPECT_NEAR(span.Probability, AboveTheSuggestion, 2e-5);
  EXPECT_LE(span.Confidence->Low, AboveTheSuggestion);
  EXPECT_GE(span.Confidence->High, AboveTheSuggestion);
  EXPECT_LT(span.Confidence->Width(), 4e-5);
}

// Of 60 studies with an interval of 95 %, three miss the true probability on average, and hardly ever more than eight.
TEST(StudyRun, IntervalHoldsTheTrueProbabilityAsOftenAsItSays) {
  int held = 0;
  Study study = OneNormalInput(2000, Scheme::Random);
  for (study.Seed = 1; study.Seed <= 60; ++study.Seed) {
    const StudyResult result = RunStudy(FullDesign(), BuiltInLists(), study, 1);
    const Interval interval = VerdictOn(result, Aspect::Span).Confidence.value();
    if (interval.Low <= AboveTheSuggestion && AboveTheSuggestion <= interval.High) ++held;
  }
  EXPECT_GE(held, 52);
  EXPECT_LT(held, 60);
}

// A judgement that never falls short may still do so once in a while.
TEST(StudyRun, IntervalOfWhatNeverHappenedReachesUpToTheExactLimit) {
  const StudyResult result = RunStudy(FullDesign(), BuiltInLists(), SmallStudy(), 2);

  const VerdictResult& capacity = VerdictOn(result, Aspect::BoltCapacity);
  EXPECT_EQ(capacity.Probability, 0);
  EXPECT_EQ(capacity.Confidence->Low, 0);
  EXPECT_NEAR(capacity.Confidence->High, 1.844270e-4, 1e-9);
}

TEST(StudyRun, HasTheFiguresThatTheAnalysisOfEachSampleHas) {
  const Catalogs lists = BuiltInLists();
  const Study study = SmallStudy();

  const StudyResult result = RunStudy(FullDesign(), lists, study, 2);

  ASSERT_EQ(result.Chosen.Size(), 20'000);
  for (std::size_t sample = 0; sample < result.Chosen.Size(); ++sample) {
    Design design = FullDesign();
    design.Place.CMRR = result.Chosen.Inputs[0][sample];
    design.Place.DepthofCover = result.Chosen.Inputs[1][sample];
    design.Entries.RockLoadHeight = result.Chosen.Inputs[2][sample];
    const Figures figures = Analyze(design, lists);
    for (std::size_t i = 0; i < result.Figures.size(); ++i) {
      ASSERT_EQ(result.Chosen.Figures[i][sample], result.Figures[i].Figure->Of(figures).Value)
          << result.Figures[i].Figure->Key << ", sample " << sample;
    }
  }
}

TEST(StudyRun, CountsTheJudgementsOfAllSamples) {
  const Catalogs lists = BuiltInLists();

  const StudyResult result = RunStudy(FullDesign(), lists, SmallStudy(), 2);

  std::vector<ResultCounts> counts(result.Verdicts.size());
  for (std::size_t sample = 0; sample < result.Chosen.Size(); ++sample) {
    Design design = FullDesign();
    design.Place.CMRR = result.Chosen.Inputs[0][sample];
    design.Place.DepthofCover = result.Chosen.Inputs[1][sample];
    design.Entries.RockLoadHeight = result.Chosen.Inputs[2][sample];
    const Verdicts verdicts = Judge(design, Analyze(design, lists));
    for (std::size_t i = 0; i < counts.size(); ++i) {
      EXPECT_EQ(verdicts.All()[i].What, result.Verdicts[i].Judged.What);
      ++counts[i].Of[static_cast<std::size_t>(verdicts.All()[i].Result)];
    }
  }
  for (std::size_t i = 0; i < counts.size(); ++i) EXPECT_EQ(result.Verdicts[i].Counts, counts[i]);
  EXPECT_GT(VerdictOn(result, Aspect::Psup).Counts.Short(), 100);
}

TEST(StudyRun, OnSeveralThreadsHasTheSameNumbersToTheLastDigit) {
  for (const Scheme scheme : AllSchemes) {
    Study study = SmallStudy();
    study.Sampling = scheme;
    study.Spearman = SquareMatrix::Identity(3);
    study.Spearman(0, 1) = study.Spearman(1, 0) = -0.5;
    const std::string alone = BytesOf(RunStudy(FullDesign(), BuiltInLists(), study, 1));

    EXPECT_EQ(BytesOf(RunStudy(FullDesign(), BuiltInLists(), study, 2)), alone);
    EXPECT_EQ(BytesOf(RunStudy(FullDesign(), BuiltInLists(), study, 3)), alone);
    study.Seed = 1908;
    EXPECT_NE(BytesOf(RunStudy(FullDesign(), BuiltInLists(), study, 1)), alone);
  }
}

// Libraries of other machines may round the last digits of a distribution in another way.
TEST(StudyRun, HasTheNumbersOfItsSeedOnEachMachine) {
  Study study = SmallStudy();
  study.Spearman = SquareMatrix::Identity(3);
  study.Spearman(0, 1) = study.Spearman(1, 0) = -0.5;

  const StudyResult result = RunStudy(FullDesign(), BuiltInLists(), study, 2);

  EXPECT_NEAR(FigureIn(result, "suggested-psup").Sums.Mean(), 9.503537, 1e-5);
  EXPECT_NEAR(FigureIn(result, "suggested-psup").Sums.Deviation(), 5.487982, 1e-5);
  EXPECT_NEAR(FigureIn(result, "entry-rock-load").Sums.Mean(), 10.156271, 1e-5);
  EXPECT_NEAR(VerdictOn(result, Aspect::Psup).Probability, 0.3929, 1e-4);
}

TEST(StudyRun, CancelledEndsAfterABatch) {
  std::vector<std::uint64_t> told;
  const StudyResult result = RunStudy(FullDesign(), BuiltInLists(), SmallStudy(), 2, [&](const StudyProgress& done) {
    told.push_back(done.SamplesDone);
    EXPECT_EQ(done.BatchesPlanned, 20);
    return done.BatchesDone < 3;
  });

  EXPECT_EQ(result.End, StudyEnd::Cancelled);
  EXPECT_THAT(told, ElementsAre(1000, 2000, 3000));
  EXPECT_EQ(result.Batches, 3);
  EXPECT_EQ(result.Samples, 3000);
  EXPECT_EQ(result.Convergence.size(), 3);
  EXPECT_EQ(FigureIn(result, "suggested-psup").Sums.Count(), 3000);
  EXPECT_EQ(VerdictOn(result, Aspect::Psup).Counts.Total(), 3000);
}

TEST(StudyRun, EndsWhenItsIntervalsAreNarrowEnough) {
  Study study = SmallStudy();
  study.Sampling = Scheme::Random;
  study.StopWidth = 0.03;

  const StudyResult result = RunStudy(FullDesign(), BuiltInLists(), study, 2);

  EXPECT_EQ(result.End, StudyEnd::NarrowEnough);
  EXPECT_GE(result.Batches, 10);
  EXPECT_LT(result.Batches, 20);
  for (const VerdictResult& verdict : result.Verdicts) EXPECT_LE(verdict.Confidence->Width(), 0.03);
  EXPECT_EQ(BytesOf(RunStudy(FullDesign(), BuiltInLists(), study, 3)), BytesOf(result));
}

TEST(StudyRun, PassesAnErrorOfItsListenerOn) {
  EXPECT_THROW(RunStudy(FullDesign(), BuiltInLists(), SmallStudy(), 2,
                        [](const StudyProgress&) -> bool { throw std::runtime_error("full"); }),
               std::runtime_error);
}

// Without cable bolts, the density of the bolts in entries is a division by zero. An angle of 90 degrees or more has no
// rock load.
TEST(StudyRun, CountsSamplesWithoutAFigure) {
  Design design = FullDesign();
  design.Entries.Cable.Use = 0;
  Study study = SmallStudy();
  study.Inputs = {{"rock fall angle", [](auto& d) { return &d.Entries.RockFallAngle; }, {UniformLaw{80, 100}}}};

  const StudyResult result = RunStudy(design, BuiltInLists(), study, 2);

  const FigureResult& density = FigureIn(result, "entry-bolt-srdi");
  EXPECT_EQ(density.Failed, 20'000);
  EXPECT_EQ(density.FirstError, 11);
  EXPECT_EQ(density.Sums.Count(), 0);
  EXPECT_FALSE(density.MeanInterval);
  const FigureResult& load = FigureIn(result, "entry-rock-load");
  EXPECT_EQ(load.Missing, 10'000);
  EXPECT_EQ(load.Sums.Count(), 10'000);
  const VerdictResult& trusses = VerdictOn(result, Aspect::Trusses, Opening::Entries);
  EXPECT_EQ(trusses.Counts.Of[static_cast<std::size_t>(Holding::Uncomputed)], 10'000);
  EXPECT_EQ(trusses.Probability,
            static_cast<double>(trusses.Counts.Short()) / static_cast<double>(trusses.Counts.Total() - 10'000));
}

TEST(StudyRun, RanksOnlySamplesWithAValue) {
  Study study = SmallStudy();
  study.Inputs = {{"rock fall angle", [](auto& d) { return &d.Entries.RockFallAngle; }, {UniformLaw{80, 100}}},
                  {"unit weight", [](auto& d) { return &d.Place.UnitWeight; }, {UniformLaw{101, 230}}}};

  const StudyResult result = RunStudy(FullDesign(), BuiltInLists(), study, 2);

  const auto& correlations = FigureIn(result, "entry-rock-load").RankCorrelations;
  ASSERT_EQ(correlations.size(), 2);
  EXPECT_LT(*correlations[0], -0.8);
  EXPECT_GT(*correlations[1], 0.2);
}

TEST(StudyRun, RankCorrelationsTellWhatAFigureDependsOn) {
  const StudyResult result = RunStudy(FullDesign(), BuiltInLists(), SmallStudy(), 2);

  const auto& psup = FigureIn(result, "suggested-psup").RankCorrelations;
  EXPECT_LT(*psup[0], -0.8);
  EXPECT_GT(*psup[1], 0.2);
  EXPECT_NEAR(*psup[2], 0, 0.03);
  EXPECT_NEAR(*FigureIn(result, "suggested-span").RankCorrelations[0], 1, 1e-3);
  EXPECT_FALSE(FigureIn(result, "actual-psup").RankCorrelations[0]);
}

TEST(StudyRun, ChoosesAHundredThousandSamplesFromAllOfThem) {
  Study study = OneNormalInput(400'000, Scheme::LatinHypercube);

  const StudyResult result = RunStudy(FullDesign(), BuiltInLists(), study, 2);

  ASSERT_EQ(result.Chosen.Size(), 100'000);
  double sum = 0;
  for (const Single span : result.Chosen.Inputs[0]) sum += span;
  EXPECT_NEAR(sum / 100'000, 60, 0.02);
}

TEST(StudyRun, TellsWhatWasKnownAfterEachBatch) {
  const StudyResult result = RunStudy(FullDesign(), BuiltInLists(), SmallStudy(), 2);

  ASSERT_EQ(result.Convergence.size(), 20);
  EXPECT_EQ(result.Convergence[4].Samples, 5000);
  EXPECT_TRUE(result.Convergence[0].Intervals.empty());
  const ConvergencePoint& last = result.Convergence.back();
  for (std::size_t i = 0; i < result.Verdicts.size(); ++i) {
    EXPECT_EQ(last.Probabilities[i], result.Verdicts[i].Probability);
    EXPECT_EQ(last.Intervals[i], result.Verdicts[i].Confidence);
  }
  for (std::size_t i = 0; i < result.Figures.size(); ++i) EXPECT_EQ(last.Means[i], result.Figures[i].Sums.Mean());
}

TEST(StudyRun, KeepsTheFiguresOfTheDesignItself) {
  const StudyResult result = RunStudy(FullDesign(), BuiltInLists(), SmallStudy(), 1);
  const Figures figures = Analyze(FullDesign(), BuiltInLists());
  const Verdicts verdicts = Judge(FullDesign(), figures);

  EXPECT_EQ(FigureIn(result, "suggested-psup").AtDesign.Value, figures.Suggested.Value().SugPSUP);
  for (std::size_t i = 0; i < result.Verdicts.size(); ++i) {
    EXPECT_EQ(result.Verdicts[i].AtDesign, verdicts.All()[i].Result);
  }
}

}  // namespace
}  // namespace orby::test
