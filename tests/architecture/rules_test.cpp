// The rules of the architecture, applied to small invented trees that keep or break them.
#include "architecture/rules.h"

#include <gmock/gmock.h>

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(IncludeRule, AllowsLowerFloorsAndTheSameFolder) {
  const Tree tree = {{"src/files/reader.cpp", "#include \"files/reader.h\"\n#include \"core/units.h\"\n"},
                     {"src/apps/orby-cli/main.cpp", "#include \"shell/menu.h\"\n#include \"qt/window.h\"\n"}};

  EXPECT_THAT(WrongArrows(tree), IsEmpty());
}

TEST(IncludeRule, ForbidsHigherFloors) {
  const Tree tree = {{"src/base/text.h", "#pragma once\n\n#include \"core/units.h\"\n"}};

  EXPECT_THAT(WrongArrows(tree), ElementsAre("src/base/text.h:3: \"core/units.h\" leads from base up to core"));
}

TEST(IncludeRule, ForbidsOtherFoldersOfTheSameFloor) {
  const Tree tree = {{"src/platform/boxes.h", "#include \"controls/form.h\"\n"},
                     {"src/config/ini.cpp", "#include \"files/reader.h\"\n"},
                     {"src/reports/report.cpp", "#include \"config/ini.h\"\n"}};

  EXPECT_THAT(WrongArrows(tree),
              ElementsAre("src/platform/boxes.h:1: \"controls/form.h\" leads from platform sideways to controls",
                          "src/config/ini.cpp:1: \"files/reader.h\" leads from config sideways to files",
                          "src/reports/report.cpp:1: \"config/ini.h\" leads from reports sideways to config"));
}

TEST(IncludeRule, ForbidsFoldersWithoutAFloor) {
  const Tree tree = {{"src/cellar/wine.cpp", "#include \"base/text.h\"\n"},
                     {"src/shell/menu.cpp", "#include \"cellar/wine.h\"\n"}};

  EXPECT_THAT(WrongArrows(tree),
              ElementsAre("src/cellar/wine.cpp:1: \"base/text.h\" lies in cellar, a folder without a floor",
                          "src/shell/menu.cpp:1: \"cellar/wine.h\" leads to cellar, a folder without a floor"));
}

TEST(IncludeRule, ForbidsAHeaderWithoutItsFolder) {
  const Tree tree = {{"src/base/text.cpp", "#include \"text.h\"\n"}};

  EXPECT_THAT(WrongArrows(tree), ElementsAre("src/base/text.cpp:1: \"text.h\" names no folder"));
}

TEST(IncludeRule, FindsIncludesWithBlanksAroundTheHashAndTheQuotes) {
  const Tree tree = {{"src/base/text.h", "\n  #  include\t\"shell/menu.h\"  // the menu\n"}};

  EXPECT_THAT(WrongArrows(tree), ElementsAre("src/base/text.h:2: \"shell/menu.h\" leads from base up to shell"));
}

TEST(IncludeRule, IgnoresCommentsAndTests) {
  const Tree tree = {{"src/base/text.h", "// #include \"shell/menu.h\"\n"},
                     {"tests/base/text_test.cpp", "#include \"support/test_data.h\"\n"},
                     {"src/base/CMakeLists.txt", "#include \"shell/menu.h\"\n"}};

  EXPECT_THAT(WrongArrows(tree), IsEmpty());
}

TEST(CircleRule, AllowsADiamond) {
  const Tree tree = {{"src/base/a.h", "#include \"base/b.h\"\n#include \"base/c.h\"\n"},
                     {"src/base/b.h", "#include \"base/d.h\"\n"},
                     {"src/base/c.h", "#include \"base/d.h\"\n"},
                     {"src/base/d.h", "#include <string>\n"}};

  EXPECT_THAT(Circles(tree), IsEmpty());
}

TEST(CircleRule, FindsThreeFilesInARingAsOneCircle) {
  const Tree tree = {{"src/base/a.h", "#include \"base/b.h\"\n"},
                     {"src/base/b.h", "#include \"base/c.h\"\n"},
                     {"src/base/c.h", "#include \"base/a.h\"\n"}};

  EXPECT_THAT(Circles(tree), ElementsAre("base/a.h -> base/b.h -> base/c.h -> base/a.h"));
}

TEST(CircleRule, LeavesAFileThatOnlyLeadsToARingOut) {
  const Tree tree = {{"src/base/a.cpp", "#include \"base/b.h\"\n"},
                     {"src/base/b.h", "#include \"base/c.h\"\n"},
                     {"src/base/c.h", "#include \"base/b.h\"\n"}};

  EXPECT_THAT(Circles(tree), ElementsAre("base/b.h -> base/c.h -> base/b.h"));
}

TEST(CircleRule, FindsAFileThatIncludesItself) {
  const Tree tree = {{"src/base/a.h", "#include \"base/a.h\"\n"}};

  EXPECT_THAT(Circles(tree), ElementsAre("base/a.h -> base/a.h"));
}

TEST(ToolkitRule, AllowsItsRoomAndThePrograms) {
  const Tree tree = {{"src/qt/binder.cpp", "#include <QWidget>\n"},
                     {"src/apps/orby/main.cpp", "#include <QApplication>\n"},
                     {"src/core/units.cpp", "#include <array>\n"}};

  EXPECT_THAT(ToolkitOutside(tree), IsEmpty());
}

TEST(ToolkitRule, ForbidsAllOtherRoomsAndAllSpellings) {
  const Tree tree = {{"src/dialogs/cost.h", "#include <QtWidgets/QLabel>\n"},
                     {"src/shell/menu.cpp", "#include <qmenu.h>\n"},
                     {"src/base/text.h", "#include \"qcustomplot.h\"\n"}};

  EXPECT_THAT(ToolkitOutside(tree), ElementsAre("src/dialogs/cost.h:1: QtWidgets/QLabel",
                                                "src/shell/menu.cpp:1: qmenu.h", "src/base/text.h:1: qcustomplot.h"));
}

TEST(ConditionRule, FindsConditionalCompilation) {
  const Tree tree = {{"src/files/save.cpp", "int a;\n#ifdef _WIN32\n#endif\n"},
                     {"src/qt/texts.h", "# if defined(x)\n#endif\n"},
                     {"src/base/text.h", "#include <ifdef>\n#pragma once\n"}};

  EXPECT_THAT(ConditionsOutside(tree),
              ElementsAre("src/files/save.cpp:2: #ifdef _WIN32", "src/qt/texts.h:1: # if defined(x)"));
}

TEST(ConditionRule, AllowsItWhereTheMachineIsKnown) {
  const Tree tree = {
      {"src/windows/a.cpp", "#ifdef a\n"}, {"src/posix/a.cpp", "#if b\n"}, {"src/apps/orby/main.cpp", "#if c\n"}};

  EXPECT_THAT(ConditionsOutside(tree), IsEmpty());
}

TEST(TestFolderRule, AllowsARoomWithTestsOfItsName) {
  const Tree tree = {{"src/base/text.h", ""}, {"tests/base/text_test.cpp", ""}};

  EXPECT_THAT(UnmirroredRooms(tree), IsEmpty());
}

TEST(TestFolderRule, FindsARoomWithoutTests) {
  const Tree tree = {{"src/base/text.h", ""}, {"src/cellar/wine.h", ""}, {"tests/base/text_test.cpp", ""}};

  EXPECT_THAT(UnmirroredRooms(tree), ElementsAre("src/cellar: has no tests in tests/cellar"));
}

TEST(TestFolderRule, RequiresATestInAFolderOfTests) {
  const Tree tree = {{"src/base/text.h", ""}, {"tests/base/CMakeLists.txt", ""}, {"tests/base/text_bench.h", ""}};

  EXPECT_THAT(UnmirroredRooms(tree), ElementsAre("src/base: has no tests in tests/base"));
}

TEST(TestFolderRule, FindsTestsOfAMissingRoom) {
  const Tree tree = {{"tests/cellar/wine_test.cpp", ""}, {"tests/attic/CMakeLists.txt", ""}};

  EXPECT_THAT(UnmirroredRooms(tree),
              ElementsAre("tests/attic: there is no room src/attic", "tests/cellar: there is no room src/cellar"));
}

TEST(TestFolderRule, RequiresTestsOfToolkitAndProgramsUnderOtherNames) {
  const Tree tested = {{"src/qt/window.h", ""},
                       {"src/apps/orby/main.cpp", ""},
                       {"tests/gui/window_test.cpp", ""},
                       {"tests/e2e/examples_test.cpp", ""}};
  const Tree untested = {{"src/qt/window.h", ""}, {"src/apps/orby/main.cpp", ""}};

  EXPECT_THAT(UnmirroredRooms(tested), IsEmpty());
  EXPECT_THAT(UnmirroredRooms(untested),
              ElementsAre("src/apps: has no tests in tests/e2e", "src/qt: has no tests in tests/gui"));
}

TEST(TestFolderRule, AllowsSharedHelpersAndTestsOfTheWholeWithoutARoom) {
  const Tree tree = {{"tests/CMakeLists.txt", ""},
                     {"tests/support/test_data.h", ""},
                     {"tests/data/projects/panel.ORB", ""},
                     {"tests/architecture/rules_test.cpp", ""},
                     {"tests/monkey/main.cpp", ""}};

  EXPECT_THAT(UnmirroredRooms(tree), IsEmpty());
}

TEST(WordRule, FindsAMarkOfOpenWorkWithItsLine) {
  const Tree tree = {{"src/core/units.cpp",
                      "// Feet.\n// TO"
                      "DO: metres\n"}};

  EXPECT_THAT(StrayWords(tree), ElementsAre("src/core/units.cpp:2: TO"
                                            "DO"));
}

TEST(WordRule, FindsADisabledTest) {
  const Tree tree = {{"tests/core/units_test.cpp",
                      "TEST(Units, DISABLED"
                      "_Feet) {}\n"}};

  EXPECT_THAT(StrayWords(tree), ElementsAre("tests/core/units_test.cpp:1: DISABLED"
                                            "_"));
}

TEST(WordRule, IgnoresCase) {
  const Tree tree = {{"docs/architecture.md",
                      "Metres are Not Imple"
                      "mented.\n"}};

  EXPECT_THAT(StrayWords(tree), ElementsAre("docs/architecture.md:1: not imple"
                                            "mented"));
}

TEST(WordRule, AllowsTheWordsInsideLongerOnes) {
  const Tree tree = {{"src/core/units.cpp", "// mastodon, stodoxy, prefixmeter\n"}};

  EXPECT_THAT(StrayWords(tree), IsEmpty());
}

TEST(LengthRule, AllowsFourHundredLinesAndNoMore) {
  const Tree tree = {{"src/core/long.cpp", std::string(400, '\n')}, {"src/core/longer.cpp", std::string(401, '\n')}};

  EXPECT_THAT(LongFiles(tree), ElementsAre("src/core/longer.cpp: 401 lines"));
}

TEST(LengthRule, AllowsLongTablesOfTests) {
  const Tree tree = {{"tests/data/vectors/format.tsv", std::string(5000, '\n')}};

  EXPECT_THAT(LongFiles(tree), IsEmpty());
}

}  // namespace
}  // namespace orby::test
