// The result of a study as text and as lines of values.
#include "reports/study_report.h"

#include <gmock/gmock.h>

namespace orby::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

// A study of one input with a judgement and two figures, one of them without a value.
struct Example {
  Example() {
    study.Inputs = {{"roof rating", [](auto& d) { return &d.Place.CMRR; }, {NormalLaw{45, 6}, 39, 54}}};
    study.Seed = 1907;
    result.Samples = 2000;
    result.Batches = 10;
    VerdictResult& verdict = result.Verdicts.emplace_back();
    verdict.Judged = {Opening::Entries, Aspect::Cables};
    verdict.AtDesign = Holding::Check;
    verdict.Counts.Of = {1500, 300, 0, 200};
    verdict.Probability = 0.1;
    verdict.Confidence = Interval{0.0875, 0.1125};
    FigureResult& factor = result.Figures.emplace_back();
    factor.Figure = FigureWithKey("entry-cable-capacity");
    factor.AtDesign = {1.25F, 0};
    const Single values[] = {1, 1.25F, 1.5F, 1.75F};
    factor.Histogram = BinsFor(values);
    factor.Sums.Take(values, factor.Histogram);
    factor.RankCorrelations = {-0.5};
    FigureResult& density = result.Figures.emplace_back();
    density.Figure = FigureWithKey("entry-bolt-srdi");
    density.AtDesign = {std::numeric_limits<Single>::quiet_NaN(), 11};
    density.Failed = 2000;
    density.FirstError = 11;
    density.RankCorrelations = {std::nullopt};
  }

  Study study;
  StudyResult result;
};

TEST(StudyReport, TellsProbabilitiesFiguresAndRankCorrelations) {
  const Example example;

  EXPECT_EQ(
      StudyText(example.result, example.study, English),
      "2,000 samples in 10 batches, latin hypercube, seed 1907.\n"
      "\n"
      "Input           distribution    mean  deviation\n"
      "roof rating  normal, cut off  45.871      3.868\n"
      "\n"
      "Judgement               now  falls short  95 % from       to  to check  not computed\n"
      "Cable bolts, entries  check      0.10000    0.08750  0.11250   0.15000\n"
      "\n"
      "Figure                                         now   mean  deviation  least     P5    P50    P95  greatest  "
      "no value\n"
      "Capacity of cable bolts in entries, tons/ft  1.250  1.375      0.323  1.000  1.000  1.250  1.750     1.750\n"
      "SRDI of roof bolts in entries                   --     --         --     --     --     --     --        --     "
      "2,000\n"
      "\n"
      "Rank correlation with               roof rating\n"
      "Capacity of cable bolts in entries       -0.500\n"
      "\n"
      "SRDI of roof bolts in entries could not be computed in 2,000 samples: run-time error 11: Division by zero.\n");
}

TEST(StudyReport, TellsWhyAStudyEndedEarly) {
  Example example;
  example.result.End = StudyEnd::NarrowEnough;

  EXPECT_THAT(StudyText(example.result, example.study, English),
              StartsWith("2,000 samples in 10 batches, latin hypercube, seed 1907; ended because the intervals are "
                         "narrow enough.\n"));
}

TEST(StudyReport, HasTheUnitsOfTheDesign) {
  const Example example;

  EXPECT_THAT(StudyText(example.result, example.study, Metric), HasSubstr("Capacity of cable bolts in entries, kN/m "));
}

TEST(StudyReport, HasALineForEachNumber) {
  const Example example;

  const std::string lines = StudyCsv(example.result, example.study);

  EXPECT_THAT(lines, StartsWith("kind,item,quantity,value\n"
                                "study,,samples,2000\n"
                                "study,,batches,10\n"
                                "judgement,entries.cables,probability,0.1\n"
                                "judgement,entries.cables,low,0.0875\n"
                                "judgement,entries.cables,high,0.1125\n"
                                "judgement,entries.cables,holds,1500\n"
                                "judgement,entries.cables,check,300\n"
                                "judgement,entries.cables,uncomputed,0\n"
                                "judgement,entries.cables,short,200\n"
                                "figure,entry-cable-capacity,design,1.25\n"
                                "figure,entry-cable-capacity,values,4\n"
                                "figure,entry-cable-capacity,missing,0\n"
                                "figure,entry-cable-capacity,failed,0\n"
                                "figure,entry-cable-capacity,mean,1.375\n"
                                "figure,entry-cable-capacity,deviation,0.3227486121839514\n"));
  EXPECT_THAT(lines, HasSubstr("\nrank correlation,entry-cable-capacity,roof rating,-0.5\n"));
  EXPECT_THAT(lines, EndsWith("\nfigure,entry-bolt-srdi,values,0\n"
                              "figure,entry-bolt-srdi,missing,0\n"
                              "figure,entry-bolt-srdi,failed,2000\n"));
}

TEST(StudyReport, WritesLargeCountsWithAllDigits) {
  Example example;
  example.result.Samples = 10'000'000;

  EXPECT_THAT(StudyCsv(example.result, example.study), HasSubstr("study,,samples,10000000\n"));
}

TEST(StudyReport, NamesJudgementsWithTheirPlace) {
  EXPECT_EQ(VerdictName({Opening::Primary, Aspect::Psup}), "Actual PSUP");
  EXPECT_EQ(VerdictName({Opening::Intersections, Aspect::Standing}), "Standing supports, intersections");
}

}  // namespace
}  // namespace orby::test
