// orby-cli study: from a file beside the project to the probabilities.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "companion_run.h"

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class StudyCommand : public CompanionTest {
 protected:
  StudyCommand() { Write("roof.ORB", Read(Example("weak-roof"))); }

  // Depth and roof rating vary.
  const std::string Scatter = Read(std::string(TEST_DATA_DIR) + "/studies/roof.study.json");

  Outcome RunStudy(std::vector<std::string> options) const {
    options.insert(options.begin(), "study");
    options.push_back(Path("roof.ORB"));
    return Run(options);
  }
};

TEST_F(StudyCommand, PrintsProbabilitiesFiguresAndRankCorrelations) {
  Write("roof.study.json", Scatter);

  const Outcome outcome = RunStudy({});

  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(outcome.out, StartsWith("20,000 samples in 10 batches, latin hypercube, seed 7.\n"));
  EXPECT_THAT(outcome.out, HasSubstr("\nJudgement "));
  EXPECT_THAT(outcome.out, HasSubstr("\nActual PSUP "));
  EXPECT_THAT(outcome.out, HasSubstr("\nSuggested sum of diagonals, ft "));
  EXPECT_THAT(outcome.out, HasSubstr("\nRank correlation with "));
}

TEST_F(StudyCommand, PrintsTheSameBytesForTheSameSeed) {
  Write("roof.study.json", Scatter);
  for (const std::string format : {"--json", "--csv"}) {
    const Outcome stored = RunStudy({format});

    EXPECT_EQ(RunStudy({format, "--seed", "7"}).out, stored.out);
    EXPECT_NE(RunStudy({format, "--seed", "8"}).out, stored.out);
  }
}

TEST_F(StudyCommand, PrintsAllNumbersAsJson) {
  Write("roof.study.json", Scatter);

  const auto json = nlohmann::json::parse(RunStudy({"--json"}).out);
  const std::string lines = RunStudy({"--csv"}).out;

  EXPECT_EQ(json["format"], 1);
  EXPECT_EQ(json["units"], "english");
  EXPECT_EQ(json["seed"], "7");
  EXPECT_EQ(json["samples"], 20000);
  EXPECT_NEAR(json["inputs"][0]["mean"].get<double>(), 47.3, 1e-12);
  for (const auto& judgement : json["judgements"]) {
    const std::string item = judgement["where"].get<std::string>() + "." + judgement["what"].get<std::string>();
    const int judged = judgement["holds"].get<int>() + judgement["check"].get<int>() + judgement["short"].get<int>();
    EXPECT_EQ(judged + judgement["uncomputed"].get<int>(), 20000) << item;
    EXPECT_DOUBLE_EQ(judgement["probability"].get<double>(), judgement["short"].get<double>() / judged) << item;
    EXPECT_LE(judgement["low"], judgement["probability"]);
    EXPECT_GE(judgement["high"], judgement["probability"]);
    EXPECT_THAT(lines, HasSubstr("\njudgement," + item + ",short," + judgement["short"].dump() + "\n"));
  }
  for (const auto& figure : json["figures"]) {
    double sum = 0;
    for (const auto& count : figure["histogram"]["counts"]) sum += count.get<double>();
    EXPECT_EQ(sum, figure["values"].get<double>()) << figure["key"];
    EXPECT_LE(figure["least"], figure["percentiles"]["5"]);
    EXPECT_LE(figure["percentiles"]["5"], figure["percentiles"]["95"]);
    EXPECT_LE(figure["percentiles"]["95"], figure["greatest"]);
    EXPECT_TRUE(figure["rankCorrelations"].contains("depth of cover"));
  }
}

TEST_F(StudyCommand, HasTheUnitsOfAMetricDesign) {
  Write("metric.ORB", Read(Example("australian-grade-metric")));
  Write("metric.study.json", R"({"format": 1, "samples": 1000, "inputs": [
    {"field": "depth of cover", "distribution": "uniform", "least": 150, "greatest": 250}]})");

  const auto json = nlohmann::json::parse(Run({"study", "--json", Path("metric.ORB")}).out);

  EXPECT_EQ(json["units"], "metric");
  EXPECT_EQ(json["figures"][0]["unit"], "m");
}

TEST_F(StudyCommand, TakesTheNumberOfSamplesFromTheCommandLine) {
  Write("roof.study.json", Scatter);

  EXPECT_THAT(RunStudy({"--samples", "1000"}).out, StartsWith("1,000 samples in 10 batches"));
  EXPECT_THAT(RunStudy({"--samples", "1000", "--csv"}).out,
              StartsWith("kind,item,quantity,value\nstudy,,samples,1000\n"));
}

TEST_F(StudyCommand, LeavesItsFilesAsTheyAre) {
  Write("roof.study.json", Scatter);

  RunStudy({});

  EXPECT_EQ(Read(Path("roof.study.json")), Scatter);
  EXPECT_EQ(Names(), (std::vector<std::string>{"roof.ORB", "roof.study.json"}));
}

TEST_F(StudyCommand, TellsThatThereIsNoStudy) {
  const Outcome outcome = RunStudy({});

  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "There is no study " + Path("roof.study.json") + ".\n");
}

TEST_F(StudyCommand, TellsThatAStudyIsDamagedAndLeavesIt) {
  Write("roof.study.json", Scatter.substr(0, 100));

  const Outcome outcome = RunStudy({});

  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.err,
            "The study " + Path("roof.study.json") + " cannot be used. It is not the study of a project.\n");
  EXPECT_TRUE(Exists(Path("roof.study.json")));
}

TEST_F(StudyCommand, TellsThatAStudyIsNotPossible) {
  Write("roof.study.json", Scatter);

  const Outcome outcome = RunStudy({"--samples", "5"});

  EXPECT_EQ(outcome.exitCode, 4);
  EXPECT_EQ(outcome.err, "The study " + Path("roof.study.json") +
                             " is not possible. The number of samples must be between 1,000 and 10,000,000.\n");
}

TEST_F(StudyCommand, PrintsTheUsageForABadCommandLine) {
  for (const std::vector<std::string>& options : std::vector<std::vector<std::string>>{
           {"--json", "--csv"}, {"--samples", "many"}, {"--seed", "-1"}, {"--samples"}, {Path("roof.ORB")}}) {
    const Outcome outcome = RunStudy(options);
    EXPECT_EQ(outcome.exitCode, 1) << testing::PrintToString(options);
    EXPECT_THAT(outcome.err, StartsWith("usage: "));
  }
}

}  // namespace
}  // namespace orby::test
