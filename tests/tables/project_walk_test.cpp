// Project files in real folders.
#include "tables/project_walk.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

#include "machine/disk_files.h"
#include "support/temporary_folder.h"
#include "tables/design_table.h"
#include "tables/rows.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct ProjectWalk : testing::Test {
  void Store(const std::string& name) {
    files.MakeFolder(std::filesystem::path(folder.At(name)).parent_path().string());
    folder.Store(name, "ORBY_105\r\n");
  }

  // Returns the path without the test's folder, with the same separators on every machine.
  std::string Short(const FoundProject& project) const {
    std::string path = project.Path.substr(folder.Path().size() + 1) + project.Reason;
    std::ranges::replace(path, '\\', '/');
    return path;
  }

  std::vector<std::string> Found() {
    std::vector<std::string> paths;
    for (const FoundProject& project : ProjectsBelow(files, folder.Path())) paths.push_back(Short(project));
    return paths;
  }

  const TemporaryFolder folder;
  DiskFiles files{"/opt/orby"};
};

TEST_F(ProjectWalk, FindsProjectsInAllFoldersSortedByPath) {
  for (const char* name :
       {"south/b.ORB", "north/deep/er/a.orb", "c.Orb", "north/z.ORB", "south/notes.txt", "ORB", "south/e.ORB.bak"}) {
    Store(name);
  }

  EXPECT_THAT(Found(), ElementsAre("c.Orb", "north/deep/er/a.orb", "north/z.ORB", "south/b.ORB"));
}

TEST_F(ProjectWalk, FindsNothingInAnEmptyFolder) { EXPECT_THAT(Found(), IsEmpty()); }

TEST_F(ProjectWalk, KeepsFilesOfTheCommandLineAndTheirOrder) {
  Store("north/b.ORB");
  Store("north/a.ORB");
  const std::vector<FoundProject> found =
      ProjectsOf(files, {folder.At("z.txt"), folder.At("north"), folder.At("north/b.ORB")});

  std::vector<std::string> paths;
  for (const FoundProject& project : found) paths.push_back(Short(project));
  EXPECT_THAT(paths, ElementsAre("z.txt", "north/a.ORB", "north/b.ORB", "north/b.ORB"));
}

TEST(ProjectRows, ReadByManyThreadsAreThoseOfOne) {
  const TableRun run;
  const TemporaryFolder folder;
  DiskFiles files{"/opt/orby"};
  for (int i = 0; i < 100; ++i) {
    for (const char* name : {"weak-roof", "australian-grade-metric", "belt-entry-trusses"}) {
      std::filesystem::copy_file(std::string(EXAMPLES_DIR) + "/" + name + ".ORB",
                                 folder.At(std::to_string(i) + name + ".ORB"));
    }
  }
  folder.Store("notes.ORB", "Dear diary\r\n");
  const std::vector<FoundProject> projects = ProjectsBelow(files, folder.Path());
  const RowMaker maker(run.program);
  std::string unknown;
  DesignTable one;
  for (const FoundProject& project : projects) one.Rows.push_back(maker.RowOfFile(files, project.Path));
  DesignTable many;
  many.Rows = ReadRows(maker, files, projects);
  one.Shown = many.Shown = ChosenColumns("all", unknown).value();

  ASSERT_THAT(projects, SizeIs(301));
  EXPECT_EQ(TableAsCsv(many), TableAsCsv(one));
  many.Units = one.Units = Metric;
  EXPECT_EQ(FilesAsCsv(maker, files, projects, one.Shown, Metric).Text, TableAsCsv(one));
}

// The systems of the examples: one is Metric, the others are English.
TEST(ProjectRows, AsCsvHaveTheUnitsThatAllTheirDesignsShare) {
  const TableRun run;
  DiskFiles files{"/opt/orby"};
  const RowMaker maker(run.program);
  std::string unknown;
  const Columns columns = ChosenColumns("depth-of-cover", unknown).value();
  const auto csv = [&](const std::vector<std::string>& names) {
    std::vector<FoundProject> projects;
    for (const std::string& name : names) projects.push_back({std::string(EXAMPLES_DIR) + "/" + name + ".ORB", {}});
    const CsvOfFiles made = FilesAsCsv(maker, files, projects, columns, std::nullopt);
    return (made.AllAreRead ? "" : "some are not read: ") + made.Text;
  };

  EXPECT_EQ(csv({"australian-grade-metric"}), "Depth of Cover (m)\r\n240\r\n");
  EXPECT_EQ(csv({"missing", "australian-grade-metric"}), "some are not read: Depth of Cover (m)\r\n\r\n240\r\n");
  EXPECT_EQ(csv({"australian-grade-metric", "weak-roof"}), "Depth of Cover (ft)\r\n787.4016\r\n1200\r\n");
  EXPECT_EQ(csv({"weak-roof", "australian-grade-metric"}), "Depth of Cover (ft)\r\n1200\r\n787.4016\r\n");
  EXPECT_EQ(csv({"missing"}), "some are not read: Depth of Cover (ft)\r\n\r\n");
}

TEST(AFolderThatCannotBeRead, IsARowWithItsReason) {
  TableRun run;
  run.platform.files.Fail(MemoryFiles::Step::ListFolders, error_number::PathFileAccess);

  const std::vector<FoundProject> found = ProjectsBelow(run.platform.files, "/mine/north");

  ASSERT_THAT(found, SizeIs(1));
  EXPECT_EQ(found[0].Reason, "Path/File access error");
  const std::vector<TableRow> rows = ReadRows(RowMaker(run.program), run.platform.files, found);
  EXPECT_EQ(rows.at(0).File, "/mine/north");
  EXPECT_EQ(rows.at(0).Reason, "Path/File access error");
}

}  // namespace
}  // namespace orby::test
