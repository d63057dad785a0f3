// The rules of the architecture, applied to this project.
#include <gmock/gmock.h>

#include <filesystem>

#include "architecture/rules.h"

namespace orby::test {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class Project : public testing::Test {
 protected:
  static void SetUpTestSuite() { tree = new Tree(ReadHouse(HOUSE_DIR)); }
  static void TearDownTestSuite() { delete tree; }

  static const Tree* tree;
};

const Tree* Project::tree = nullptr;

TEST_F(Project, HasItsSourcesAndTestsRead) {
  const auto isNumberText = [](const TreeFile& file) { return file.path == "src/base/number_text.h"; };
  const auto isThisTest = [](const TreeFile& file) { return file.path == "tests/architecture/house_test.cpp"; };

  EXPECT_EQ(std::ranges::count_if(*tree, isNumberText), 1);
  EXPECT_EQ(std::ranges::count_if(*tree, isThisTest), 1);
}

TEST_F(Project, IncludesHeadersOfLowerFloorsOnly) { EXPECT_THAT(WrongArrows(*tree), IsEmpty()); }

TEST_F(Project, HasNoCircularIncludes) { EXPECT_THAT(Circles(*tree), IsEmpty()); }

TEST_F(Project, UsesTheToolkitOnlyInItsRoomAndInThePrograms) { EXPECT_THAT(ToolkitOutside(*tree), IsEmpty()); }

TEST_F(Project, KnowsItsMachineOnlyInTheMachinesRoomsAndInThePrograms) {
  EXPECT_THAT(ConditionsOutside(*tree), IsEmpty());
}

TEST_F(Project, HasAFolderOfTestsForEachRoom) { EXPECT_THAT(UnmirroredRooms(*tree), IsEmpty()); }

TEST_F(Project, HasNoMarksOfOpenWorkAndNoDisabledTests) { EXPECT_THAT(StrayWords(*tree), IsEmpty()); }

TEST_F(Project, HasNoSourceFileOfMoreThan400Lines) { EXPECT_THAT(LongFiles(*tree), IsEmpty()); }

TEST_F(Project, HasCommandsThatCanBeRun) {
  using std::filesystem::perms;
  for (const auto* command : {"orby", "check", "bench", ".ci/run", "help/build", "scripts/take-pictures"}) {
    const auto status = std::filesystem::status(std::filesystem::path(HOUSE_DIR) / command);

    EXPECT_TRUE(std::filesystem::is_regular_file(status)) << command;
    EXPECT_NE(status.permissions() & perms::owner_exec, perms::none) << command;
  }
}

}  // namespace
}  // namespace orby::test
