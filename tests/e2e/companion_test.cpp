// orby-cli: its command line, its exit codes, and the files that it does not touch.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

#include "companion_run.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class Companion : public CompanionTest {};

TEST_F(Companion, PrintsItsUsageOnRequest) {
  const Outcome outcome = Run({"--help"});

  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, StartsWith("usage: orby-cli COMMAND"));
  EXPECT_EQ(outcome.err, "");
}

TEST_F(Companion, PrintsItsUsageForABadCommandLine) {
  const std::string file = Example("weak-roof");
  const std::vector<std::vector<std::string>> lines{
      {},
      {"reprot", file},
      {"report"},
      {"report", "--page", "2", file},
      {"report", "--page"},
      {"report", file, "--name"},
      {"report", "--colour", file},
      {"curve", file},
      {"curve", "10", file},
      {"curve", "x", file},
      {"live", file, file},
      {"save", file},
      {"convert", file, Path("a.ORB"), Path("b.ORB")},
  };

  for (const auto& words : lines) {
    const Outcome outcome = Run(words);
    EXPECT_EQ(outcome.exitCode, 1) << testing::PrintToString(words);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.err, StartsWith("usage: "));
  }
}

TEST_F(Companion, PrintsOnePageOfTheReportOrBothWithoutASeparator) {
  const std::string file = Example("development-entry");

  const Outcome both = Run({"report", file});
  const Outcome echo = Run({"report", "--page", "0", file});
  const Outcome calculations = Run({"report", "--page", "1", file});

  EXPECT_EQ(both.exitCode, 0);
  EXPECT_THAT(echo.out, StartsWith("ORBY module build: 201030\r\n"));
  EXPECT_THAT(calculations.out, StartsWith("[ORBY CALCULATIONS]\r\n"));
  EXPECT_EQ(both.out, echo.out + calculations.out);
}

TEST_F(Companion, ShowsTheGivenNameInTheReport) {
  const std::string file = Example("development-entry");

  EXPECT_THAT(Run({"report", "--page", "0", file}).out, HasSubstr("development-entry.ORB\r\n"));
  EXPECT_THAT(Run({"report", "--page", "0", "--name", "east.ORB", file}).out, HasSubstr("Project File: east.ORB\r\n"));
}

TEST_F(Companion, PrintsTheReportsOfSeveralFilesInTurn) {
  const std::string first = Example("development-entry");
  const std::string second = Example("weak-roof");

  const Outcome together = Run({"report", first, second});

  EXPECT_EQ(together.out, Run({"report", first}).out + Run({"report", second}).out);
}

TEST_F(Companion, ReturnsTheHighestExitCodeOfSeveralFiles) {
  const std::string good = Example("development-entry");
  const std::string refused = Write("old.ORB", "ORBY_101\r\n");

  const Outcome outcome = Run({"report", good, refused, Path("missing.ORB"), good});

  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_THAT(outcome.err, HasSubstr("Invalid ORBY file format. File can not be opened."));
  EXPECT_THAT(outcome.err, EndsWith("run-time error 53: File not found\n"));
  const std::string report = Run({"report", good}).out;
  EXPECT_EQ(outcome.out, report + report);
}

TEST_F(Companion, PrintsEachMessageOfTheValidationOnALine) {
  std::string bytes = Read(Example("development-entry"));
  const std::string depth = "\r\n650\r\n162\r\n";
  bytes.replace(bytes.find(depth), depth.size(), "\r\n650\r\n99\r\n");
  const std::string width = "\r\n6\r\n30\r\n";  // rock load height and fall angle of the entry
  bytes.replace(bytes.find(width), width.size(), "\r\n6\r\n61\r\n");
  const std::string file = Write("light.ORB", bytes);

  const Outcome outcome = Run({"validate", file});

  EXPECT_EQ(outcome.exitCode, 4);
  EXPECT_EQ(outcome.out, "Invalid Unit Weight for Rock. Valid range 100-200 lbs/cf\nInvalid roof fall angle\n");
  EXPECT_EQ(outcome.err, "");
}

TEST_F(Companion, PrintsNoReportOfADesignThatFailsItsValidation) {
  std::string bytes = Read(Example("development-entry"));
  const std::string depth = "\r\n650\r\n162\r\n";
  bytes.replace(bytes.find(depth), depth.size(), "\r\n650\r\n99\r\n");
  const std::string file = Write("light.ORB", bytes);

  const Outcome checked = Run({"report", "--validate", file});

  EXPECT_EQ(checked.exitCode, 4);
  EXPECT_EQ(checked.out, "");
  EXPECT_EQ(checked.err, "message: Invalid Unit Weight for Rock. Valid range 100-200 lbs/cf\n");
  EXPECT_EQ(Run({"report", file}).exitCode, 0);
}

TEST_F(Companion, PrintsTheTenCurvesAroundADesign) {
  const std::string file = Example("belt-entry-trusses");
  const std::vector<int> points{9, 11, 11, 4, 28, 22, 61, 33, 81, 61};

  for (int curve = 0; curve < 10; ++curve) {
    const Outcome outcome = Run({"curve", std::to_string(curve), file});

    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(std::count(outcome.out.begin(), outcome.out.end(), '\n'), points[static_cast<std::size_t>(curve)]);
  }
}

TEST_F(Companion, SaysOnStandardErrorThatACurveWasTrimmed) {
  const Outcome outcome = Run({"curve", "0", Example("development-entry")});

  EXPECT_EQ(outcome.err, "message: Upper limit for CMRR trimmed to 51\n");
  EXPECT_THAT(outcome.out, StartsWith("40,"));
}

TEST_F(Companion, ShowsTheAustralianBoltsInMetricProjectsOnly) {
  std::string bytes = Read(Example("gateroad-standing-supports"));
  const std::string row = "#7 special rebar - grade 75";
  ASSERT_NE(bytes.find(row), std::string::npos);
  const std::string metric = Write("metric.ORB", bytes);

  EXPECT_THAT(Run({"report", metric}).out, HasSubstr(row));
  EXPECT_THAT(Run({"report", "--aus", metric}).out, HasSubstr("Bolt 1\r\n"));
  EXPECT_EQ(Run({"report", "--aus", Example("weak-roof")}).out, Run({"report", Example("weak-roof")}).out);
}

TEST_F(Companion, UsesDefaultsAndCatalogsOfAConfigurationFileWithoutChangingIt) {
  const std::string settings =
      "[ORBYDefaults]\r\nDefaultCMRR=45\r\n[ORBYBoltParams]\r\nDefaultCableIndexENG=0\r\n"
      "DefaultCableCapArrayENG0=40\r\nDefaultCableDiamArrayENG0=0.6\r\n";
  const std::string ini = Write("ORBY.INI", settings);

  const Outcome builtIn = Run({"live", Example("development-entry")});
  const Outcome configured = Run({"live", "--config", ini, Example("development-entry")});

  EXPECT_THAT(builtIn.out, HasSubstr("txtSupportCapEntry1=10.6\n"));
  EXPECT_THAT(configured.out, HasSubstr("txtSupportCapEntry1=16.0\n"));
  EXPECT_EQ(Read(ini), settings);
  EXPECT_EQ(Run({"live", "--config", Path("none.INI"), Example("development-entry")}).exitCode, 3);
}

TEST_F(Companion, WritesNoOtherFiles) {
  const auto count = [this] {
    const std::filesystem::directory_iterator files(Path("."));
    return std::distance(begin(files), end(files));
  };
  Run({"report", Example("development-entry")});
  const auto before = count();

  for (const char* command : {"report", "cost", "live", "verdicts", "validate"})
    Run({command, Example("belt-entry-trusses")});
  Run({"curve", "4", Example("belt-entry-trusses")});

  EXPECT_EQ(count(), before);
}

TEST_F(Companion, SaysThatTheTargetCannotBeWritten) {
  const Outcome outcome = Run({"save", Example("weak-roof"), Path("no-such-folder/out.ORB")});

  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_EQ(outcome.err, "run-time error 76: Path not found\n");
}

TEST_F(Companion, LeavesTheTargetUnchangedIfItCannotBeWrittenCompletely) {
  const std::string out = Write("out.ORB", "the project of yesterday");

  const Outcome outcome = RunWithSmallFiles(1, {"save", Example("weak-roof"), out});

  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_EQ(outcome.err, "run-time error 61: Disk full\n");
  EXPECT_EQ(Read(out), "the project of yesterday");
  EXPECT_THAT(Names(), ElementsAre("out.ORB"));
}

TEST_F(Companion, SaysThatTheDiskIsFull) {
  const Outcome outcome = Run({"save", Example("weak-roof"), "/dev/full"});

  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_EQ(outcome.err, "run-time error 61: Disk full\n");
}

TEST_F(Companion, SaysThatItsOutputCannotBeWritten) {
  const Outcome outcome = RunWithSmallFiles(1, {"report", Example("weak-roof")});

  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_EQ(outcome.err, "run-time error 61: Disk full\n");
}

TEST_F(Companion, WritesTheTargetOfALinkAndKeepsItsPermissions) {
  const std::string real = Write("real.ORB", "old");
  std::filesystem::permissions(real, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  std::filesystem::create_symlink("real.ORB", Path("out.ORB"));

  for (const char* command : {"save", "convert"}) {
    EXPECT_EQ(Run({command, Example("weak-roof"), Path("out.ORB")}).exitCode, 0);

    EXPECT_THAT(Read(real), StartsWith("ORBY_105\r\n")) << command;
    EXPECT_TRUE(std::filesystem::is_symlink(Path("out.ORB"))) << command;
    EXPECT_EQ(std::filesystem::status(real).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write)
        << command;
    EXPECT_THAT(Names(), ElementsAre("out.ORB", "real.ORB")) << command;
  }
}

TEST_F(Companion, CanOverwriteTheProjectWithItself) {
  const std::string file = Write("panel.ORB", Read(Example("weak-roof")));

  EXPECT_EQ(Run({"convert", file, file}).exitCode, 0);

  EXPECT_THAT(Read(file), StartsWith("ORBY_105\r\n 1 \r\n"));
  EXPECT_THAT(Names(), ElementsAre("panel.ORB"));
}

TEST_F(Companion, SaysWhyAProjectCannotBeConvertedAndWritesNothing) {
  std::string bytes = Read(Example("development-entry"));
  const std::string depth = "\r\n650\r\n162\r\n";
  ASSERT_NE(bytes.find(depth), std::string::npos);
  bytes.replace(bytes.find(depth), depth.size(), "\r\n650\r\n3E38\r\n");
  const std::string file = Write("heavy.ORB", "ORBY_105\r\n 1" + bytes.substr(bytes.find(" \r\n")));
  const std::string out = Write("out.ORB", "the project of yesterday");

  const Outcome outcome = Run({"convert", file, out});

  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_EQ(outcome.err,
            "message: Error in the Conversion Procedure. Call technical support\nrun-time error 6: Overflow\n");
  EXPECT_EQ(Read(out), "the project of yesterday");
  EXPECT_THAT(Names(), ElementsAre("heavy.ORB", "out.ORB"));
}

TEST_F(Companion, SaysThatTheInputsOfTheCostsCannotBeWritten) {
  std::string bytes = Read(Example("weak-roof"));
  const std::string diameter = "#5 smooth - grade 55\r\n0\r\n0.625\r\n";
  bytes.replace(bytes.find(diameter), diameter.size(), "#5 smooth - grade 55\r\n0\r\n1E+20\r\n");

  const Outcome outcome = Run({"cost", Write("thick.ORB", bytes)});

  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "run-time error 6: Overflow\n");
}

TEST_F(Companion, SaysThatARunTimeErrorEndedTheReport) {
  std::string bytes = Read(Example("development-entry"));
  const std::string cablesOnly = "\r\n1\r\n0\r\n0\r\n0\r\n12\r\n";
  ASSERT_NE(bytes.find(cablesOnly), std::string::npos);
  bytes.replace(bytes.find(cablesOnly), cablesOnly.size(), "\r\n0\r\n0\r\n1\r\n0\r\n12\r\n");

  const Outcome outcome = Run({"report", Write("bolts-alone.ORB", bytes)});

  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_EQ(outcome.err, "run-time error 11: Division by zero\n");
  EXPECT_EQ(outcome.out, "");
}

TEST_F(Companion, OpensADesignWithoutADepthButCannotReportIt) {
  std::string bytes = Read(Example("development-entry"));
  const std::string depth = "\r\n650\r\n162\r\n";
  ASSERT_NE(bytes.find(depth), std::string::npos);
  bytes.replace(bytes.find(depth), depth.size(), "\r\n0\r\n162\r\n");
  const std::string file = Write("no-depth.ORB", bytes);

  const Outcome live = Run({"live", file});
  EXPECT_EQ(live.exitCode, 0);
  EXPECT_THAT(live.out, HasSubstr("txtSugPSUP=--\n"));
  EXPECT_THAT(live.out, HasSubstr("txtActualPSUP=8.0\n"));
  const Outcome validate = Run({"validate", file});
  EXPECT_EQ(validate.exitCode, 4);
  EXPECT_EQ(validate.out, "Invalid depth of cover\n");
  const Outcome report = Run({"report", file});
  EXPECT_EQ(report.exitCode, 3);
  EXPECT_EQ(report.err, "run-time error 5: Invalid procedure call or argument\n");
  EXPECT_EQ(report.out, "");
}

TEST_F(Companion, AcceptsOptionsInAnyOrderAndFileNamesAfterTwoDashes) {
  const std::string file = Write("-odd.ORB", Read(Example("weak-roof")));

  EXPECT_EQ(Run({"--page", "1", "report", Example("weak-roof")}).out,
            Run({"report", Example("weak-roof"), "--page", "1"}).out);
  EXPECT_EQ(Run({"validate", "--", file}).exitCode, 0);
  EXPECT_THAT(Run({"report", "--name", "x", file}).out, Not(HasSubstr("-odd")));
}

}  // namespace
}  // namespace orby::test
