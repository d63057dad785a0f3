// What a study may be, and its batches.
#include <gmock/gmock.h>

#include "sampling/samples.h"

namespace orby::test {
namespace {

std::string FaultAfter(const std::function<void(Study&)>& change) {
  Study study = SmallStudy();
  change(study);
  return FaultOf(study);
}

TEST(Study, OfPossibleInputsHasNoFault) {
  EXPECT_EQ(FaultOf(SmallStudy()), "");
  EXPECT_EQ(FaultAfter([](Study& study) { study.Samples = 10'000'000; }), "");
  EXPECT_EQ(FaultAfter([](Study& study) { study.Figures = {"actual-psup"}; }), "");
  EXPECT_EQ(FaultAfter([](Study& study) { study.Spearman = SquareMatrix::Identity(3); }), "");
}

TEST(Study, TellsItsFault) {
  EXPECT_EQ(FaultAfter([](Study& study) { study.Inputs.clear(); }), "No input of the study varies.");
  EXPECT_EQ(FaultAfter([](Study& study) { study.Inputs.push_back(study.Inputs.front()); }),
            "roof rating: this input is there twice.");
  EXPECT_EQ(FaultAfter([](Study& study) {
              study.Inputs[1].Law = {NormalLaw{1, 0}};
            }),
            "depth of cover: the deviation must be above 0.");
  EXPECT_EQ(FaultAfter([](Study& study) { study.Spearman = SquareMatrix::Identity(2); }),
            "The matrix of rank correlations must have a row for each input.");
  EXPECT_EQ(FaultAfter([](Study& study) { study.Samples = 999; }),
            "The number of samples must be between 1,000 and 10,000,000.");
  EXPECT_EQ(FaultAfter([](Study& study) { study.Samples = 10'000'001; }),
            "The number of samples must be between 1,000 and 10,000,000.");
  EXPECT_EQ(FaultAfter([](Study& study) { study.BatchSize = 99; }),
            "The samples of a batch must be between 100 and 100,000.");
  EXPECT_EQ(FaultAfter([](Study& study) { study.Confidence = 1; }), "The confidence must be between 0.5 and 0.9999.");
  EXPECT_EQ(FaultAfter([](Study& study) { study.StopWidth = 0; }),
            "The width of the intervals at which the study ends must be between 0 and 1.");
  EXPECT_EQ(FaultAfter([](Study& study) { study.Figures = {"psup"}; }), "There is no figure \"psup\".");
}

TEST(Study, HasTenBatchesOrMore) {
  const auto plan = [](std::uint64_t samples) {
    Study study;
    study.Samples = samples;
    return PlanOf(study);
  };

  EXPECT_EQ(plan(1000).Size, 100);
  EXPECT_EQ(plan(1000).Count, 10);
  EXPECT_EQ(plan(12'345).Size, 1235);
  EXPECT_EQ(plan(12'345).Count, 10);
  EXPECT_EQ(plan(100'001).Size, 10'000);
  EXPECT_EQ(plan(100'001).Count, 11);
  EXPECT_EQ(plan(10'000'000).Count, 1000);
}

}  // namespace
}  // namespace orby::test
