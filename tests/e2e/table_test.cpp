// The table of designs of the real orby-cli.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

#include "companion_run.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class TableCommand : public CompanionTest {
 protected:
  // Copies an example into the test's folder.
  std::string Copy(const std::string& example, const std::string& name) const {
    const std::string path = Path(name);
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::filesystem::copy_file(Example(example), path);
    return path;
  }
};

TEST_F(TableCommand, PrintsAFewColumnsToATerminal) {
  const Outcome outcome = Run({"table", Example("development-entry"), Example("weak-roof")});

  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(outcome.out, StartsWith("File "));
  EXPECT_EQ(std::ranges::count(outcome.out, '\n'), 3);
  EXPECT_THAT(outcome.out, HasSubstr("English    25                 1200"));
}

TEST_F(TableCommand, WritesChosenColumnsAsCsv) {
  const Outcome outcome = Run({"table", "--csv", "--columns", "title,depth-of-cover,live-primary-suggested-psup",
                               Example("development-entry"), Example("gateroad-standing-supports")});

  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out,
            "Title,Depth of Cover (ft),Dialog: Primary: Suggested PSUP\r\n"
            "\"Alder Ridge, first east development\",650,8.2\r\n"
            "\"Quill Creek, tailgate 7\",1017.06,14.2\r\n");
}

TEST_F(TableCommand, ConvertsToTheUnitsThatAreAskedFor) {
  const std::string columns = "depth-of-cover,report-entry-rock-load";

  EXPECT_EQ(Run({"table", "--csv", "--columns", columns, "--units", "metric", Example("development-entry")}).out,
            "Depth of Cover (m),Report: Entries: Rock Load (kN/m)\r\n198.12,234.6\r\n");
  EXPECT_EQ(Run({"table", "--csv", "--columns", columns, Example("gateroad-standing-supports")}).out,
            "Depth of Cover (m),Report: Entries: Rock Load (kN/m)\r\n310,335.2\r\n");
}

TEST_F(TableCommand, WalksFoldersInTheOrderOfPaths) {
  Copy("weak-roof", "mine/south/a.ORB");
  Copy("weak-roof", "mine/north/deep/b.orb");
  Copy("weak-roof", "mine/c.ORB");
  std::filesystem::create_directory_symlink(Path("mine"), Path("mine/north/loop"));

  const Outcome outcome = Run({"table", "--csv", "--columns", "file", Path("mine")});

  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out, "File\r\n" + Path("mine/c.ORB") + "\r\n" + Path("mine/north/deep/b.orb") + "\r\n" +
                             Path("mine/south/a.ORB") + "\r\n");
}

TEST_F(TableCommand, HasARowWithTheReasonForAFileThatCannotBeRead) {
  const std::string notes = Write("notes.ORB", "Dear diary\r\n");

  const Outcome outcome =
      Run({"table", "--csv", "--columns", "cmrr,reason", notes, Example("weak-roof"), Path("missing.ORB")});

  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out,
            "CMRR,Reason\r\n,Invalid ORBY file format. File can not be opened.\r\n25,\r\n,File not found\r\n");
}

TEST_F(TableCommand, WritesJsonOfAllColumns) {
  const Outcome outcome = Run({"table", "--json", Example("weak-roof")});

  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, StartsWith("{\n  \"format\": 1,\n"));
  EXPECT_THAT(outcome.out, HasSubstr("\"depth-of-cover\": 1200, "));
  EXPECT_THAT(outcome.out, HasSubstr("\"verdict-primary-psup\": \"Short\", "));
}

TEST_F(TableCommand, WritesASpreadsheetOverAnOldOne) {
  const std::string out = Write("table.xlsx", "old");

  const Outcome outcome = Run({"table", "--xlsx", out, Example("weak-roof")});

  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out + outcome.err, "");
  EXPECT_THAT(Read(out), StartsWith("PK"));
  EXPECT_THAT(Names(), ElementsAre("table.xlsx"));
  EXPECT_THAT(RunProgram("unzip", {"-p", out, "xl/worksheets/sheet1.xml"}).out, HasSubstr("state=\"frozen\""));
}

TEST_F(TableCommand, KeepsTheOldSpreadsheetWhenTheNewOneFails) {
  const Outcome outcome = Run({"table", "--xlsx", Path("missing/table.xlsx"), Example("weak-roof")});

  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_THAT(outcome.err, HasSubstr("run-time error 75"));

  const std::string out = Write("table.xlsx", "old");
  EXPECT_EQ(RunWithSmallFiles(1, {"table", "--xlsx", out, Example("weak-roof")}).exitCode, 3);
  EXPECT_EQ(Read(out), "old");
  EXPECT_THAT(Names(), ElementsAre("table.xlsx"));
}

TEST_F(TableCommand, ListsTheColumns) {
  const Outcome outcome = Run({"table", "--columns", "list"});

  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, StartsWith("groups: all, overview, "));
  EXPECT_THAT(outcome.out, HasSubstr("\ndepth-of-cover\tDepth of Cover (ft)\n"));
}

TEST_F(TableCommand, RefusesWhatItDoesNotKnow) {
  const std::string file = Example("weak-roof");
  for (const std::vector<std::string>& words :
       std::vector<std::vector<std::string>>{{"table"},
                                             {"table", "--csv"},
                                             {"table", "--csv", "--json", file},
                                             {"table", "--xlsx"},
                                             {"table", file, "--columns"},
                                             {"table", "--units", "feet", file}}) {
    const Outcome outcome = Run(words);
    EXPECT_EQ(outcome.exitCode, 1) << testing::PrintToString(words);
    EXPECT_THAT(outcome.err, StartsWith("usage: "));
  }
  const Outcome outcome = Run({"table", "--columns", "file,depht", file});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "unknown column: depht\n");
  EXPECT_EQ(outcome.out, "");
}

TEST_F(TableCommand, HasTheSameRowsOnEveryRun) {
  for (int i = 0; i < 300; ++i) {
    Copy(Examples[static_cast<std::size_t>(i) % Examples.size()], "mine/" + std::to_string(i) + ".ORB");
  }

  const std::string first = Run({"table", "--csv", Path("mine")}).out;

  EXPECT_EQ(std::ranges::count(first, '\n'), 301);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(Run({"table", "--csv", Path("mine")}).out, first);
}

}  // namespace
}  // namespace orby::test
