// Runs every command on the example designs.
#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>

#include "companion_run.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class ExampleDesign : public CompanionTest {
 protected:
  // Returns the data lines after the description.
  static std::string Data(const std::string& project) { return project.substr(project.find("##EndDesc##")); }
};

TEST_F(ExampleDesign, OpensAndReportsWithoutAMessage) {
  for (const std::string& name : Examples) {
    const Outcome report = Run({"report", "--validate", Example(name)});

    EXPECT_EQ(report.exitCode, 0) << name;
    EXPECT_EQ(report.err, "") << name;
    EXPECT_THAT(report.out, HasSubstr("[ORBY CALCULATIONS]\r\n")) << name;
  }
}

TEST_F(ExampleDesign, HasItsCostAndItsLiveResults) {
  for (const std::string& name : Examples) {
    const Outcome cost = Run({"cost", Example(name)});
    const Outcome live = Run({"live", Example(name)});

    EXPECT_THAT(cost.out, StartsWith("[TULK COST CALCULATIONS]\r\n\r\nOUTPUT TABLE ")) << name;
    EXPECT_EQ(std::count(live.out.begin(), live.out.end(), '\n'), 30) << name;
    EXPECT_EQ(cost.err + live.err, "") << name;
  }
}

TEST_F(ExampleDesign, HasAllTenCurves) {
  for (const std::string& name : Examples) {
    for (int curve = 0; curve < 10; ++curve) {
      const Outcome outcome = Run({"curve", std::to_string(curve), Example(name)});
      EXPECT_EQ(outcome.exitCode, 0) << name << curve;
      EXPECT_NE(outcome.out, "") << name << curve;
    }
  }
}

// The lines of a report that judge.
std::string JudgingLines(const std::string& report) {
  std::istringstream lines(report);
  std::string judging;
  bool isWarned = false;
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const bool isHeading = line.starts_with("[Warning");
    isWarned = isHeading || (isWarned && !line.empty() && !line.starts_with('['));
    if ((isWarned && !isHeading) || line.ends_with("OK.")) judging += "  " + line + "\n";
  }
  return judging;
}

TEST_F(ExampleDesign, IsJudgedAsItsReportJudges) {
  std::string judged;
  for (const std::string& name : Examples) {
    const Outcome verdicts = Run({"verdicts", Example(name)});
    EXPECT_EQ(verdicts.err, "") << name;
    const Outcome report = Run({"report", "--page", "1", Example(name)});
    judged.append(name + "\n" + verdicts.out + "report:\n" + JudgingLines(report.out) + "\n");
  }

  EXPECT_EQ(judged, ReadTestData("reports/examples_verdicts.txt"));
}

TEST_F(ExampleDesign, SavedThreeTimesGrowsByItsHeaderAndKeepsEveryValue) {
  for (const std::string& name : Examples) {
    const std::string data = Data(Read(Example(name)));
    std::string file = Example(name);
    for (int round = 1; round <= 3; ++round) {
      const std::string out = Path(name + std::to_string(round) + ".ORB");
      ASSERT_EQ(Run({"save", file, out}).exitCode, 0) << name;
      EXPECT_EQ(Data(Read(out)), data) << name << round;
      file = out;
    }
    const std::string grown = Read(file);
    EXPECT_THAT(grown, HasSubstr("\r\n 0 \r\n 0 \r\n##StartDesc##\r\n")) << "the table choice became the title";
    EXPECT_THAT(grown, HasSubstr("##StartDesc##\r\n 0 \r\n##StartDesc##\r\n")) << name;
  }
}

TEST_F(ExampleDesign, ConvertsToTheOtherUnitSystem) {
  for (const std::string& name : Examples) {
    const std::string out = Path(name + ".ORB");
    const bool wasMetric = Read(Example(name)).find("\r\n 1 \r\n") == 8;

    const Outcome outcome = Run({"convert", Example(name), out});

    EXPECT_EQ(outcome.exitCode, 0) << name;
    EXPECT_EQ(outcome.err, "message: Conversion Completed: The conversion form will be closed\n");
    EXPECT_THAT(Read(out), StartsWith(wasMetric ? "ORBY_105\r\n 0 \r\n" : "ORBY_105\r\n 1 \r\n")) << name;
    EXPECT_EQ(Run({"report", out}).exitCode, 0) << name;
  }
}

TEST_F(ExampleDesign, WithAWeakRoofShowsEveryWarning) {
  const std::string report = Run({"report", "--page", "1", Example("weak-roof")}).out;

  for (const char* warning : {"Actual sum of diagonals exceeds suggested sum of diagonals.",
                              "Intersection diagonals and entry width may not match.",
                              "The actual roof bolt length is shorter than the suggested length",
                              "Bolt capacity may not meet ASTM minimum standards for roof support",
                              "The actual PSUP for this design is less than the suggested",
                              "Consider using supplemental support for roof control",
                              "(*) Rock Load Height adjusted. Maximum possible height",
                              "Cable bolt may not be long enough to achieve adequate",
                              "Secondary roof bolt may not be long enough to achieve"}) {
    EXPECT_THAT(report, HasSubstr(warning));
  }
}

}  // namespace
}  // namespace orby::test
