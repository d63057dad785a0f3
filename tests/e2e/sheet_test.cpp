// Runs the calculation sheet on the example designs.
#include <gmock/gmock.h>

#include "companion_run.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

class SheetCommand : public CompanionTest {};

TEST_F(SheetCommand, WritesTheFormatOfTheEnding) {
  for (const char* ending : {"html", "md", "txt", "json"}) {
    const std::string out = Path(std::string("sheet.") + ending);
    const Outcome outcome = Run({"sheet", Example("weak-roof"), out});

    EXPECT_EQ(outcome.exitCode, 0) << ending;
    EXPECT_EQ(outcome.out + outcome.err, "");
    EXPECT_THAT(Read(out), AllOf(HasSubstr("Cinder Hollow, fault zone"), HasSubstr("44.86371"))) << ending;
  }
}

TEST_F(SheetCommand, PrintsDataToStandardOutput) {
  const Outcome outcome = Run({"sheet", Example("belt-entry-trusses"), "-"});

  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, StartsWith("{"));
  EXPECT_THAT(Names(), SizeIs(0));
}

TEST_F(SheetCommand, WritesTheSheetsOfSeveralFilesIntoAFolder) {
  std::vector<std::string> words{"sheet", "--to", Path(""), "--as", "txt"};
  for (const std::string& name : Examples) words.push_back(Example(name));

  EXPECT_EQ(Run(words).exitCode, 0);

  EXPECT_THAT(Names(),
              ElementsAre("australian-grade-metric.txt", "belt-entry-trusses.txt", "development-entry.txt",
                          "gateroad-standing-supports.txt", "intersection-secondary-bolts.txt", "weak-roof.txt"));
}

TEST_F(SheetCommand, NamesTheBytesThatSavingWrites) {
  const std::string saved = Path("saved.orb");
  const std::string sheet = Path("sheet.txt");
  ASSERT_EQ(Run({"save", Example("weak-roof"), saved}).exitCode, 0);
  ASSERT_EQ(Run({"sheet", Example("weak-roof"), sheet}).exitCode, 0);

  const std::string sum = RunProgram("sha256sum", {saved}).out.substr(0, 64);
  EXPECT_THAT(Read(sheet), HasSubstr(sum));
}

TEST_F(SheetCommand, RefusesWhatItCannotWrite) {
  const std::string file = Example("weak-roof");
  for (const std::vector<std::string>& words :
       std::vector<std::vector<std::string>>{{"sheet", file},
                                             {"sheet", file, Path("sheet.doc")},
                                             {"sheet", file, Path("sheet")},
                                             {"sheet", "--to", Path(""), file},
                                             {"sheet", "--to", Path(""), "--as", "doc", file},
                                             {"sheet", "--to", Path(""), "--as", "txt", file, file},
                                             {"sheet", "--as", "txt", file, Path("sheet.txt")}}) {
    EXPECT_EQ(Run(words).exitCode, 1) << words.back();
  }
  EXPECT_THAT(Names(), SizeIs(0));
}

TEST_F(SheetCommand, KeepsTheOldSheetOfAFileThatIsNoProject) {
  const std::string out = Write("sheet.txt", "old");

  EXPECT_EQ(Run({"sheet", Write("no.orb", "no project"), out}).exitCode, 2);

  EXPECT_EQ(Read(out), "old");
}

}  // namespace
}  // namespace orby::test
