// What the file systems of all machines do alike, but that of the other tests, which is in memory, does not.
#include "machine/disk_files.h"

#include <gmock/gmock.h>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <string>

#include "base/paths.h"
#include "base/runtime_error.h"
#include "core/dates.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint64_t MoreThanAnyDisk = std::uint64_t{1} << 61U;

class ThisMachine : public testing::Test {
 protected:
  std::string At(const std::string& name) const { return own.At(name); }

  void Store(const std::string& path, std::string_view bytes) {
    const auto file = files.CreateFile(path);
    file->Write(bytes);
    file->Close();
  }

  int ErrorOfFinding(const std::string& path) {
    return ErrorNumberOf([&] { static_cast<void>(files.Finds(path)); });
  }
  int ErrorOfReading(const std::string& path) {
    return ErrorNumberOf([&] { static_cast<void>(files.ReadFile(path)); });
  }
  int ErrorOfOpening(const std::string& path) {
    return ErrorNumberOf([&] { static_cast<void>(files.OpenFile(path)); });
  }
  int ErrorOfMeasuring(const std::string& path) {
    return ErrorNumberOf([&] { static_cast<void>(files.FileLength(path)); });
  }
  int ErrorOfCreating(const std::string& path) {
    return ErrorNumberOf([&] { static_cast<void>(files.CreateFile(path)); });
  }
  int ErrorOfOverwriting(const std::string& path, std::uint64_t length = 1) {
    return ErrorNumberOf([&] { static_cast<void>(files.OpenInPlace(path, length)); });
  }
  int ErrorOfReplacing(const std::string& path) {
    return ErrorNumberOf([&] { files.ReplaceFile(path, "new"); });
  }
  int ErrorOfRemoving(const std::string& path) {
    return ErrorNumberOf([&] { files.RemoveFile(path); });
  }
  int ErrorOfRenaming(const std::string& path, const std::string& newPath) {
    return ErrorNumberOf([&] { files.RenameFile(path, newPath); });
  }
  int ErrorOfMaking(const std::string& path) {
    return ErrorNumberOf([&] { files.MakeFolder(path); });
  }
  int ErrorOfEntering(const std::string& path) {
    return ErrorNumberOf([&] { files.SetWorkingFolder(path); });
  }

  TemporaryFolder own;
  std::string folder = own.Path();
  DiskFiles files{"/opt/orby"};
};

TEST_F(ThisMachine, ReadsAllOfALargeFile) {
  const std::string bytes(1'000'003, 'x');
  Store(At("large.txt"), bytes);

  EXPECT_EQ(files.ReadFile(At("large.txt")), bytes);
}

TEST_F(ThisMachine, FindsNothingBelowAFile) {
  Store(At("panel.ORB"), "x");

  EXPECT_FALSE(files.Finds(At("panel.ORB/missing.ORB")));
  EXPECT_FALSE(files.Finds(At("panel.ORB/")));
}

TEST_F(ThisMachine, ReportsAMissingFile) {
  EXPECT_EQ(ErrorOfReading("surely-missing-in-the-working-folder.ORB"), 53);
  EXPECT_EQ(ErrorOfOpening(At("log.txt")), 53);
  EXPECT_EQ(ErrorOfMeasuring(At("log.txt")), 53);
  EXPECT_EQ(ErrorOfRenaming(At("missing.tmp"), At("panel.ORB")), 53);
  EXPECT_EQ(ErrorNumberOf([&] { files.MakeFileLike(At("new.ORB"), At("missing.ORB")); }), 53);
}

TEST_F(ThisMachine, ReportsAMissingFolderOfAFile) {
  Store(At("panel.tmp"), "new");

  EXPECT_EQ(ErrorOfReading(At("nowhere/panel.ORB")), 76);
  EXPECT_EQ(ErrorOfCreating(At("nowhere/panel.ORB")), 76);
  EXPECT_EQ(ErrorOfOverwriting(At("nowhere/panel.ORB")), 76);
  EXPECT_EQ(ErrorOfReplacing(At("nowhere/panel.ORB")), 76);
  EXPECT_EQ(ErrorOfRemoving(At("nowhere/panel.ORB")), 76);
  EXPECT_EQ(ErrorOfRenaming(At("panel.tmp"), At("nowhere/panel.ORB")), 76);
}

TEST_F(ThisMachine, ReportsAPathThatUsesAFileAsAFolder) {
  Store(At("panel.ORB"), "x");

  EXPECT_EQ(ErrorOfReading(At("panel.ORB/other.ORB")), 76);
  EXPECT_EQ(ErrorOfCreating(At("panel.ORB/other.ORB")), 76);
  EXPECT_EQ(ErrorOfReplacing(At("panel.ORB/other.ORB")), 76);
  EXPECT_EQ(ErrorOfRenaming(At("panel.ORB"), At("panel.ORB/other.ORB")), 76);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(files.FoldersIn(At("panel.ORB"))); }), 76);
  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "x");
}

TEST_F(ThisMachine, RefusesToUseAFolderAsAFile) {
  Store(At("panel.tmp"), "new");

  EXPECT_EQ(ErrorOfReading(folder), 75);
  EXPECT_EQ(ErrorOfOpening(folder), 75);
  EXPECT_EQ(ErrorOfCreating(folder), 75);
  EXPECT_EQ(ErrorOfOverwriting(folder), 75);
  EXPECT_EQ(ErrorOfReplacing(folder), 75);
  EXPECT_EQ(ErrorOfRemoving(folder), 75);
  EXPECT_EQ(ErrorOfRenaming(At("panel.tmp"), folder), 75);
  EXPECT_EQ(files.FileLength(folder), 0U);
  EXPECT_EQ(files.ReadFile(At("panel.tmp")), "new");
}

TEST_F(ThisMachine, RefusesNamesThatAreEmptyTooLongOrContainANul) {
  Store(At("panel.ORB"), "x");
  const std::string nul = At("panel.ORB") + std::string(1, '\0') + "old";
  const std::string tooLong = At(std::string(300, 'x'));

  EXPECT_EQ(ErrorOfFinding(nul), 52);
  EXPECT_EQ(ErrorOfFinding(tooLong), 52);
  for (const std::string& path : {std::string(), nul, tooLong}) {
    const std::size_t length = path.size();
    EXPECT_EQ(ErrorOfReading(path), 52) << length;
    EXPECT_EQ(ErrorOfMeasuring(path), 52) << length;
    EXPECT_EQ(ErrorOfCreating(path), 52) << length;
    EXPECT_EQ(ErrorOfOverwriting(path), 52) << length;
    EXPECT_EQ(ErrorOfReplacing(path), 52) << length;
    EXPECT_EQ(ErrorOfRemoving(path), 52) << length;
    EXPECT_EQ(ErrorOfRenaming(At("panel.ORB"), path), 52) << length;
    EXPECT_EQ(ErrorOfRenaming(path, At("panel.ORB")), 52) << length;
    EXPECT_EQ(ErrorOfMaking(path), 52) << length;
    EXPECT_EQ(ErrorOfEntering(path), 52) << length;
    EXPECT_FALSE(files.CanWriteTo(path)) << length;
    EXPECT_THAT(files.FilesIn(path), IsEmpty()) << length;
    EXPECT_EQ(files.TryMark(path), nullptr) << length;
  }
  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "x");
}

TEST_F(ThisMachine, RefusesToMakeAFolderWhereAFileIs) {
  Store(At("panel.ORB"), "x");

  EXPECT_EQ(ErrorOfMaking(At("panel.ORB")), 76);
  EXPECT_EQ(ErrorOfMaking(At("panel.ORB/Temp")), 76);
  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "x");
}

TEST_F(ThisMachine, RefusesToMakeAFileLikeAnotherOneWhereAFileIs) {
  Store(At("panel.ORB"), "x");
  Store(At("model.ORB"), "y");

  EXPECT_EQ(ErrorNumberOf([&] { files.MakeFileLike(At("panel.ORB"), At("model.ORB")); }), 75);

  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "x");
}

TEST_F(ThisMachine, ReportsTooLittleRoomBeforeTheOldBytesAreChanged) {
  Store(At("panel.ORB"), "the design of last week");

  EXPECT_EQ(ErrorOfOverwriting(At("panel.ORB"), MoreThanAnyDisk), 61);

  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "the design of last week");
}

TEST_F(ThisMachine, LeavesNoNewFileWhenThereIsTooLittleRoom) {
  EXPECT_EQ(ErrorOfOverwriting(At("panel.ORB"), MoreThanAnyDisk), 61);

  EXPECT_FALSE(files.Finds(At("panel.ORB")));
}

TEST_F(ThisMachine, WritesEveryHardLinkOfAFileThatIsOverwrittenInItsPlace) {
  Store(At("panel.ORB"), "old");
  std::filesystem::create_hard_link(At("panel.ORB"), At("same.ORB"));

  const auto file = files.OpenInPlace(At("panel.ORB"), 3);
  file->Write("new");
  file->Close();

  EXPECT_EQ(files.ReadFile(At("same.ORB")), "new");
}

TEST_F(ThisMachine, ReplacesAFileWithTheLongestPossibleName) {
  const std::string name(255, 'n');

  files.ReplaceFile(At(name), "new");

  EXPECT_EQ(files.ReadFile(At(name)), "new");
  EXPECT_THAT(own.Names(), ElementsAre(name));
}

TEST_F(ThisMachine, LeavesNoTemporaryFileWhenAFileCannotBeReplaced) {
  std::filesystem::create_directory(At("folder"));

  EXPECT_EQ(ErrorOfReplacing(At("folder")), 75);

  EXPECT_THAT(own.Names(), ElementsAre("folder"));
}

TEST_F(ThisMachine, KnowsWhetherAFolderCanBeWrittenTo) {
  Store(At("panel.ORB"), "x");

  EXPECT_TRUE(files.CanWriteTo(folder));
  EXPECT_TRUE(files.CanWriteTo(WithSeparator(folder)));
  EXPECT_FALSE(files.CanWriteTo(At("nowhere")));
  EXPECT_FALSE(files.CanWriteTo(At("panel.ORB")));
  EXPECT_THAT(own.Names(), ElementsAre("panel.ORB"));
}

// Restores the working folder in its destructor.
class WorkingFolderKeeper {
 public:
  ~WorkingFolderKeeper() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
  }

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
};

TEST_F(ThisMachine, FindsRelativePathsFromTheWorkingFolder) {
  Store(At("panel.ORB"), "x");
  std::string path;

  {
    const WorkingFolderKeeper keeper;
    files.SetWorkingFolder(folder);
    EXPECT_EQ(files.ReadFile("panel.ORB"), "x");
    path = files.AbsolutePath("panel.ORB");
  }

  EXPECT_NE(path, "panel.ORB");
  EXPECT_EQ(files.ReadFile(path), "x");
}

TEST_F(ThisMachine, KeepsTheWorkingFolderWhenTheNewOneIsNotAFolder) {
  const WorkingFolderKeeper keeper;
  files.SetWorkingFolder(folder);
  const auto before = std::filesystem::current_path();
  Store(At("panel.ORB"), "x");

  EXPECT_EQ(ErrorOfEntering(At("nowhere")), 76);
  EXPECT_EQ(ErrorOfEntering(At("panel.ORB")), 76);

  EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST_F(ThisMachine, RemovesOnlyDotsFromAnAbsolutePath) {
  EXPECT_EQ(files.AbsolutePath(At("./old/../North Mains.ORB")), files.AbsolutePath(At("North Mains.ORB")));
  EXPECT_EQ(files.AbsolutePath(""), "");
}

TEST_F(ThisMachine, MarksNoFileAtAnImpossiblePath) {
  EXPECT_EQ(files.TryMark(At("nowhere/run.lock")), nullptr);
  EXPECT_EQ(files.TryMark(folder), nullptr);
}

TEST_F(ThisMachine, ListsNoFilesOfAFile) {
  Store(At("panel.ORB"), "x");

  EXPECT_THAT(files.FilesIn(At("panel.ORB")), IsEmpty());
}

TEST_F(ThisMachine, ListsNoHiddenFolders) {
  files.MakeFolder(At("panel 3"));
  files.MakeFolder(At(".cache"));

  EXPECT_THAT(files.FoldersIn(folder), ElementsAre("panel 3"));
}

TEST_F(ThisMachine, ReportsInLocalTimeWhenAFileWasWritten) {
  Store(At("panel.ORB"), "x");
  struct tm local {};
  local.tm_year = 131;
  local.tm_mon = 2;
  local.tm_mday = 9;
  local.tm_hour = 14;
  local.tm_min = 5;
  local.tm_sec = 7;
  local.tm_isdst = -1;
  const auto moment = std::chrono::system_clock::from_time_t(std::mktime(&local));
  std::filesystem::last_write_time(At("panel.ORB"), std::chrono::file_clock::from_sys(moment));

  const auto written = files.WrittenAt(At("panel.ORB"));

  ASSERT_TRUE(written);
  EXPECT_EQ(MomentText(*written), "2031-03-09 14:05:07");
  EXPECT_EQ(files.WrittenAt(At("nowhere.ORB")), std::nullopt);
}

TEST_F(ThisMachine, HasAFolderForTemporaryFiles) { EXPECT_TRUE(files.Finds(files.TemporaryFolder())); }

TEST_F(ThisMachine, KnowsTheFolderOfTheProgram) { EXPECT_EQ(files.ProgramFolder(), "/opt/orby"); }

}  // namespace
}  // namespace orby::test
