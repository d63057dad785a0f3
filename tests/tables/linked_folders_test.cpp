// Links and hidden folders on the way to project files.
#include <gmock/gmock.h>

#include <filesystem>

#include "machine/disk_files.h"
#include "support/temporary_folder.h"
#include "tables/project_walk.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

struct LinkedFolders : testing::Test {
  LinkedFolders() {
    files.MakeFolder(folder.At("north"));
    folder.Store("north/a.ORB", "ORBY_105\r\n");
  }

  std::vector<std::string> Found() {
    std::vector<std::string> paths;
    for (const FoundProject& project : ProjectsBelow(files, folder.Path())) {
      paths.push_back(project.Path.substr(folder.Path().size() + 1) + project.Reason);
    }
    return paths;
  }

  const TemporaryFolder folder;
  DiskFiles files{"/opt/orby"};
};

TEST_F(LinkedFolders, AreNotFollowed) {
  std::filesystem::create_symlink(folder.Path(), folder.At("north/up"));
  std::filesystem::create_symlink(".", folder.At("north/here"));

  EXPECT_THAT(Found(), ElementsAre("north/a.ORB"));
}

TEST_F(LinkedFolders, MayBeNamedThemselves) {
  std::filesystem::create_symlink("north", folder.At("link"));

  const std::vector<FoundProject> found = ProjectsOf(files, {folder.At("link")});

  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].Path, folder.At("link/a.ORB"));
}

TEST_F(LinkedFolders, MayHaveLinksToFiles) {
  std::filesystem::create_symlink("a.ORB", folder.At("north/b.ORB"));

  EXPECT_THAT(Found(), ElementsAre("north/a.ORB", "north/b.ORB"));
}

TEST_F(LinkedFolders, AreNotEnteredWhenTheyAreHidden) {
  files.MakeFolder(folder.At(".trash"));
  folder.Store(".trash/d.ORB", "ORBY_105\r\n");

  EXPECT_THAT(Found(), ElementsAre("north/a.ORB"));
}

}  // namespace
}  // namespace orby::test
