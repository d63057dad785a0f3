// The rules of the house, tried on the house itself.
#include <gmock/gmock.h>

#include <filesystem>

#include "architecture/rules.h"

namespace orby::test {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class House : public testing::Test {
 protected:
  static void SetUpTestSuite() { tree = new Tree(ReadHouse(HOUSE_DIR)); }
  static void TearDownTestSuite() { delete tree; }

  static const Tree* tree;
};

const Tree* House::tree = nullptr;

TEST_F(House, SourcesAndTestsAreSeen) {
  const auto isNumberText = [](const TreeFile& file) { return file.path == "src/base/number_text.h"; };
  const auto isThisTest = [](const TreeFile& file) { return file.path == "tests/architecture/house_test.cpp"; };

  EXPECT_EQ(std::ranges::count_if(*tree, isNumberText), 1);
  EXPECT_EQ(std::ranges::count_if(*tree, isThisTest), 1);
}

TEST_F(House, ArrowsRunDownwards) { EXPECT_THAT(WrongArrows(*tree), IsEmpty()); }

TEST_F(House, NoFileIncludesItselfByWayOfOthers) { EXPECT_THAT(Circles(*tree), IsEmpty()); }

TEST_F(House, OnlyTheToolkitsRoomAndTheProgramsKnowTheToolkit) { EXPECT_THAT(ToolkitOutside(*tree), IsEmpty()); }

TEST_F(House, TestsMirrorTheRooms) { EXPECT_THAT(UnmirroredRooms(*tree), IsEmpty()); }

TEST_F(House, NoWorkIsLeftOpenAndNoTestSwitchedOff) { EXPECT_THAT(StrayWords(*tree), IsEmpty()); }

TEST_F(House, FilesKeepToOneSubject) { EXPECT_THAT(LongFiles(*tree), IsEmpty()); }

TEST_F(House, CommandsCanBeRun) {
  using std::filesystem::perms;
  for (const auto* command : {"orby", "check", "bench", ".ci/run", "help/build", "scripts/take-pictures"}) {
    const auto status = std::filesystem::status(std::filesystem::path(HOUSE_DIR) / command);

    EXPECT_TRUE(std::filesystem::is_regular_file(status)) << command;
    EXPECT_NE(status.permissions() & perms::owner_exec, perms::none) << command;
  }
}

}  // namespace
}  // namespace orby::test
