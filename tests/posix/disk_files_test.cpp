#include "machine/disk_files.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <stdlib.h>
#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/runtime_error.h"
#include "core/dates.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"

namespace orby::test {
namespace {

class Disk : public testing::Test {
 public:
  std::string At(const std::string& name) const { return own.At(name); }

  void Store(const std::string& path, std::string_view bytes) {
    const auto file = files.CreateFile(path);
    file->Write(bytes);
    file->Close();
  }

  int ErrorOfReading(const std::string& path) {
    return ErrorNumberOf([&] { static_cast<void>(files.ReadFile(path)); });
  }
  int ErrorOfCreating(const std::string& path) {
    return ErrorNumberOf([&] { static_cast<void>(files.CreateFile(path)); });
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
  int ErrorOfSearching(const std::string& path) {
    return ErrorNumberOf([&] { static_cast<void>(files.Finds(path)); });
  }

  TemporaryFolder own;
  std::string folder = own.Path();
  DiskFiles files{"/opt/orby"};
};

TEST_F(Disk, ReadsTheBytesThatWereWritten) {
  const std::string bytes("Title\r\n\0\x80\xFF\x1A end\n", 17);

  Store(At("panel.ORB"), bytes);

  EXPECT_EQ(files.ReadFile(At("panel.ORB")), bytes);
}

TEST_F(Disk, JoinsTheBytesOfSeveralWrites) {
  const auto file = files.CreateFile(At("panel.ORB"));

  file->Write("ORBY_105");
  file->Write("");
  file->Write("\r\n");
  file->Close();

  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "ORBY_105\r\n");
}

TEST_F(Disk, ReadsAllOfALargeFile) {
  const std::string bytes(1'000'003, 'x');
  Store(At("large.txt"), bytes);

  EXPECT_EQ(files.ReadFile(At("large.txt")), bytes);
}

TEST_F(Disk, ReadsAnEmptyFileAsNothing) {
  Store(At("empty.ORB"), "");

  EXPECT_EQ(files.ReadFile(At("empty.ORB")), "");
}

TEST_F(Disk, ReadsAFileOfUnknownSize) { EXPECT_EQ(files.ReadFile("/proc/sys/kernel/ostype"), "Linux\n"); }

TEST_F(Disk, EmptiesAnExistingFileAsSoonAsItIsOpenedForWriting) {
  Store(At("panel.ORB"), "a longer text");

  const auto file = files.CreateFile(At("panel.ORB"));

  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "");
}

TEST_F(Disk, KeepsTheBytesOfAFileThatWasNotClosed) {
  {
    const auto file = files.CreateFile(At("panel.ORB"));
    file->Write("half");
  }

  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "half");
}

TEST_F(Disk, ReportsAMissingFile) {
  EXPECT_EQ(ErrorOfReading(At("missing.ORB")), 53);
  EXPECT_EQ(ErrorOfReading("surely-missing-in-the-working-folder.ORB"), 53);
  EXPECT_EQ(ErrorOfRemoving(At("missing.ORB")), 53);
}

TEST_F(Disk, ReportsAMissingFolder) {
  EXPECT_EQ(ErrorOfReading(At("nowhere/panel.ORB")), 76);
  EXPECT_EQ(ErrorOfCreating(At("nowhere/panel.ORB")), 76);
  EXPECT_EQ(ErrorOfRemoving(At("nowhere/panel.ORB")), 76);
}

TEST_F(Disk, ReportsAPathThatUsesAFileAsAFolder) {
  Store(At("panel.ORB"), "x");

  EXPECT_EQ(ErrorOfReading(At("panel.ORB/other.ORB")), 76);
  EXPECT_EQ(ErrorOfCreating(At("panel.ORB/other.ORB")), 76);
}

TEST_F(Disk, RefusesToReadWriteOrRemoveAFolderAsAFile) {
  EXPECT_EQ(ErrorOfReading(folder), 75);
  EXPECT_EQ(ErrorOfCreating(folder), 75);
  EXPECT_EQ(ErrorOfRemoving(folder), 75);

  EXPECT_TRUE(std::filesystem::is_directory(folder));
}

TEST_F(Disk, RefusesToCreateAFileWithoutPermission) { EXPECT_EQ(ErrorOfCreating("/proc/sys/kernel/ostype"), 70); }

TEST_F(Disk, RefusesACircleOfLinks) {
  std::filesystem::create_symlink(At("b"), At("a"));
  std::filesystem::create_symlink(At("a"), At("b"));

  EXPECT_EQ(ErrorOfReading(At("a")), 75);
  EXPECT_EQ(ErrorOfSearching(At("a")), 75);
}

TEST_F(Disk, ReportsAFileThatCannotBeRead) { EXPECT_EQ(ErrorOfReading("/proc/self/mem"), 75); }

TEST_F(Disk, RefusesEmptyAndTooLongNames) {
  const std::string tooLong = At(std::string(300, 'x'));

  EXPECT_EQ(ErrorOfReading(""), 52);
  EXPECT_EQ(ErrorOfCreating(""), 52);
  EXPECT_EQ(ErrorOfRemoving(""), 52);
  EXPECT_EQ(ErrorOfReading(tooLong), 52);
  EXPECT_EQ(ErrorOfCreating(tooLong), 52);
  EXPECT_EQ(ErrorOfRemoving(tooLong), 52);
  EXPECT_EQ(ErrorOfSearching(tooLong), 52);
}

TEST_F(Disk, RefusesANameWithANulAndLeavesTheFileNamedBeforeTheNul) {
  Store(At("panel.ORB"), "x");
  const std::string name = At("panel.ORB") + std::string(1, '\0') + "old";

  EXPECT_EQ(ErrorOfReading(name), 52);
  EXPECT_EQ(ErrorOfCreating(name), 52);
  EXPECT_EQ(ErrorOfRemoving(name), 52);
  EXPECT_EQ(ErrorOfSearching(name), 52);

  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "x");
}

TEST_F(Disk, ReportsAFullDiskWhenAShortFileIsClosed) {
  const auto file = files.CreateFile("/dev/full");
  file->Write("ORBY_105\r\n");

  EXPECT_EQ(ErrorNumberOf([&] { file->Close(); }), 61);
}

TEST_F(Disk, ReportsAFullDiskWhenALongFileIsWritten) {
  const auto file = files.CreateFile("/dev/full");

  EXPECT_EQ(ErrorNumberOf([&] { file->Write(std::string(1'000'000, 'x')); }), 61);
}

TEST_F(Disk, RemovesAFile) {
  Store(At("panel.ORB"), "x");

  files.RemoveFile(At("panel.ORB"));

  EXPECT_FALSE(files.Finds(At("panel.ORB")));
}

TEST_F(Disk, FindsFoldersOnlyOnRequest) {
  Store(At("panel.ORB"), "x");

  EXPECT_TRUE(files.FindsFile(At("panel.ORB")));
  EXPECT_TRUE(files.Finds(At("panel.ORB")));
  EXPECT_FALSE(files.FindsFile(folder));
  EXPECT_TRUE(files.Finds(folder));
  EXPECT_TRUE(files.Finds(folder + "/"));
}

TEST_F(Disk, FindsNoMissingFile) {
  Store(At("panel.ORB"), "x");
  std::filesystem::create_symlink(At("gone"), At("link"));

  EXPECT_FALSE(files.Finds(At("missing.ORB")));
  EXPECT_FALSE(files.Finds(At("nowhere/missing.ORB")));
  EXPECT_FALSE(files.Finds(At("panel.ORB/missing.ORB")));
  EXPECT_FALSE(files.Finds(At("link")));
  EXPECT_FALSE(files.Finds(""));
}

// Accesses files as a user without permissions during its lifetime. The administrator may enter any folder, so a test
// that runs as one needs it.
class UserWithoutRights {
 public:
  UserWithoutRights() { setfsuid(Nobody); }
  ~UserWithoutRights() { setfsuid(geteuid()); }
  UserWithoutRights(const UserWithoutRights&) = delete;
  UserWithoutRights& operator=(const UserWithoutRights&) = delete;

 private:
  static constexpr uid_t Nobody = 65534;
};

TEST_F(Disk, ReportsASearchInAFolderThatMayNotBeEntered) {
  files.MakeFolder(At("locked"));
  Store(At("locked/panel.ORB"), "x");
  std::filesystem::permissions(At("locked"), std::filesystem::perms::none);
  int errorOfAFile = 0;
  int errorOfNothing = 0;

  {
    const UserWithoutRights user;
    errorOfAFile = ErrorOfSearching(At("locked/panel.ORB"));
    errorOfNothing = ErrorOfSearching(At("locked/missing.ORB"));
  }

  EXPECT_EQ(errorOfAFile, 75);
  EXPECT_EQ(errorOfNothing, 75);
  std::filesystem::permissions(At("locked"), std::filesystem::perms::owner_all);
}

TEST_F(Disk, DistinguishesTheCaseOfNamesAndAcceptsAccentedLetters) {
  Store(At("Panel \xC3\xA9.ORB"), "upper");
  Store(At("panel \xC3\xA9.ORB"), "lower");

  EXPECT_EQ(files.ReadFile(At("Panel \xC3\xA9.ORB")), "upper");
  EXPECT_EQ(files.ReadFile(At("panel \xC3\xA9.ORB")), "lower");
}

// Sets the variable that names the temporary folder. The destructor restores it.
class TemporaryFolderVariable {
 public:
  explicit TemporaryFolderVariable(const std::string& value) {
    if (const char* before = getenv("TMPDIR")) before_ = before;
    setenv("TMPDIR", value.c_str(), 1);
  }
  ~TemporaryFolderVariable() {
    if (before_) {
      setenv("TMPDIR", before_->c_str(), 1);
    } else {
      unsetenv("TMPDIR");
    }
  }
  TemporaryFolderVariable(const TemporaryFolderVariable&) = delete;
  TemporaryFolderVariable& operator=(const TemporaryFolderVariable&) = delete;

 private:
  std::optional<std::string> before_;
};

TEST_F(Disk, UsesTheTemporaryFolderThatTheUserNamed) {
  const TemporaryFolderVariable variable(folder);

  EXPECT_EQ(files.TemporaryFolder(), folder);
}

TEST_F(Disk, ReportsATemporaryFolderThatIsNotAFolder) {
  Store(At("panel.ORB"), "x");
  {
    const TemporaryFolderVariable variable(At("nowhere"));
    EXPECT_EQ(ErrorNumberOf([this] { static_cast<void>(files.TemporaryFolder()); }), 76);
  }
  {
    const TemporaryFolderVariable variable(At("panel.ORB"));
    EXPECT_EQ(ErrorNumberOf([this] { static_cast<void>(files.TemporaryFolder()); }), 76);
  }
}

TEST_F(Disk, RenamesAFileOverAnother) {
  Store(At("panel.tmp"), "new");
  Store(At("panel.ORB"), "old");

  files.RenameFile(At("panel.tmp"), At("panel.ORB"));

  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "new");
  EXPECT_FALSE(files.Finds(At("panel.tmp")));
}

TEST_F(Disk, RenamesAFileToANameThatIsFree) {
  Store(At("panel.tmp"), "new");

  files.RenameFile(At("panel.tmp"), At("panel.ORB"));

  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "new");
}

TEST_F(Disk, RefusesToRenameAMissingFileOrToAnImpossiblePath) {
  Store(At("panel.tmp"), "new");
  std::filesystem::create_directory(At("folder"));

  EXPECT_EQ(ErrorOfRenaming(At("missing.tmp"), At("panel.ORB")), 53);
  EXPECT_EQ(ErrorOfRenaming(At("panel.tmp"), At("nowhere/panel.ORB")), 76);
  EXPECT_EQ(ErrorOfRenaming(At("panel.tmp"), At("panel.tmp/panel.ORB")), 76);
  EXPECT_EQ(ErrorOfRenaming(At("panel.tmp"), At("folder")), 75);
  EXPECT_EQ(ErrorOfRenaming(At("panel.tmp"), ""), 52);
  EXPECT_EQ(ErrorOfRenaming("", At("panel.ORB")), 52);

  EXPECT_EQ(files.ReadFile(At("panel.tmp")), "new");
}

TEST_F(Disk, DoesNotRenameOverAFileThatMayNotBeWritten) {
  Store(At("panel.tmp"), "new");

  EXPECT_EQ(ErrorOfRenaming(At("panel.tmp"), "/proc/sys/kernel/ostype"), 70);
}

TEST_F(Disk, MakesAFolderAndThoseAboveIt) {
  files.MakeFolder(At("MyStrataDesk/ORBY/Temp/"));

  EXPECT_TRUE(std::filesystem::is_directory(At("MyStrataDesk/ORBY/Temp")));
}

TEST_F(Disk, KeepsAnExistingFolderAndItsFiles) {
  files.MakeFolder(At("MyStrataDesk"));
  Store(At("MyStrataDesk/panel.ORB"), "x");

  files.MakeFolder(At("MyStrataDesk/"));

  EXPECT_EQ(files.ReadFile(At("MyStrataDesk/panel.ORB")), "x");
}

TEST_F(Disk, RefusesToMakeAFolderWhereAFileIs) {
  Store(At("panel.ORB"), "x");

  EXPECT_EQ(ErrorOfMaking(At("panel.ORB")), 76);
  EXPECT_EQ(ErrorOfMaking(At("panel.ORB/Temp")), 76);
  EXPECT_EQ(ErrorOfMaking(""), 52);
  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "x");
}

TEST_F(Disk, KnowsWhetherAFolderCanBeWrittenTo) {
  Store(At("panel.ORB"), "x");

  EXPECT_TRUE(files.CanWriteTo(folder));
  EXPECT_TRUE(files.CanWriteTo(folder + "/"));
  EXPECT_FALSE(files.CanWriteTo("/proc/sys/kernel"));
  EXPECT_FALSE(files.CanWriteTo(At("nowhere")));
  EXPECT_FALSE(files.CanWriteTo(At("panel.ORB")));
}

// Restores the working folder in its destructor.
class WorkingFolderKeeper {
 public:
  WorkingFolderKeeper() : before_(std::filesystem::current_path()) {}
  ~WorkingFolderKeeper() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
  }
  WorkingFolderKeeper(const WorkingFolderKeeper&) = delete;
  WorkingFolderKeeper& operator=(const WorkingFolderKeeper&) = delete;

 private:
  std::filesystem::path before_;
};

TEST_F(Disk, FindsRelativePathsFromTheWorkingFolder) {
  const WorkingFolderKeeper keeper;
  Store(At("panel.ORB"), "x");

  files.SetWorkingFolder(folder);

  EXPECT_EQ(files.ReadFile("panel.ORB"), "x");
  EXPECT_EQ(files.AbsolutePath("panel.ORB"), std::filesystem::current_path().string() + "/panel.ORB");
  EXPECT_EQ(std::filesystem::canonical(files.AbsolutePath("panel.ORB")), std::filesystem::canonical(At("panel.ORB")));
}

TEST_F(Disk, KeepsTheWorkingFolderWhenTheNewOneIsNotAFolder) {
  const WorkingFolderKeeper keeper;
  files.SetWorkingFolder(folder);
  const auto before = std::filesystem::current_path();
  Store(At("panel.ORB"), "x");

  EXPECT_EQ(ErrorNumberOf([this] { files.SetWorkingFolder(At("nowhere")); }), 76);
  EXPECT_EQ(ErrorNumberOf([this] { files.SetWorkingFolder(At("panel.ORB")); }), 76);
  EXPECT_EQ(ErrorNumberOf([this] { files.SetWorkingFolder(""); }), 52);

  EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST_F(Disk, RemovesOnlyDotsFromAnAbsolutePath) {
  EXPECT_EQ(files.AbsolutePath("/designs/North Mains.ORB"), "/designs/North Mains.ORB");
  EXPECT_EQ(files.AbsolutePath("/designs/./old/../panel.ORB"), "/designs/panel.ORB");
}

TEST_F(Disk, ResolvesTwoDotsAfterALinkToTheFolderAboveItsTarget) {
  std::filesystem::create_directories(At("archive/2031/north"));
  std::filesystem::create_directory_symlink(At("archive/2031/north"), At("current"));
  Store(At("archive/2031/panel.ORB"), "the one that is meant");
  Store(At("panel.ORB"), "another one");

  const std::string path = files.AbsolutePath(At("current/../panel.ORB"));

  EXPECT_EQ(files.ReadFile(path), "the one that is meant");
  EXPECT_EQ(path, std::filesystem::canonical(At("archive/2031/panel.ORB")));
}

TEST_F(Disk, KeepsTheNameOfALinkInAnAbsolutePath) {
  std::filesystem::create_directory(At("archive"));
  std::filesystem::create_directory_symlink(At("archive"), At("current"));

  EXPECT_EQ(files.AbsolutePath(At("current/./old/../panel.ORB")), At("current/panel.ORB"));
}

TEST_F(Disk, ReportsAPathThatGoesUpFromABrokenLink) {
  std::filesystem::create_directory_symlink(At("gone"), At("current"));

  EXPECT_EQ(ErrorOfReading(files.AbsolutePath(At("current/../panel.ORB"))), 76);
}

TEST_F(Disk, MarksAFileForOneProgramAtATime) {
  auto first = files.TryMark(At("run.lock"));
  const auto second = files.TryMark(At("run.lock"));

  EXPECT_NE(first, nullptr);
  EXPECT_EQ(second, nullptr) << "the first mark still exists";

  first.reset();

  EXPECT_NE(files.TryMark(At("run.lock")), nullptr);
}

TEST_F(Disk, MarksTwoFilesIndependently) {
  const auto first = files.TryMark(At("first.lock"));
  const auto second = files.TryMark(At("second.lock"));

  EXPECT_NE(first, nullptr);
  EXPECT_NE(second, nullptr);
}

TEST_F(Disk, MarksNoFileAtAnImpossiblePath) {
  EXPECT_EQ(files.TryMark(At("nowhere/run.lock")), nullptr);
  EXPECT_EQ(files.TryMark(folder), nullptr);
}

TEST_F(Disk, MarksAFileWithoutChangingIt) {
  Store(At("panel.ORB"), "x");

  const auto mark = files.TryMark(At("panel.ORB"));

  EXPECT_NE(mark, nullptr);
  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "x");
}

TEST_F(Disk, ListsTheFilesOfAFolderSortedAndWithoutTheFoldersInIt) {
  Store(At("weak-roof.ORB"), "x");
  Store(At("belt-entry.ORB"), "x");
  Store(At("North.ORB"), "x");
  std::filesystem::create_directory(At("old"));
  Store(At("old/older.ORB"), "x");

  const std::vector<std::string> expected{At("North.ORB"), At("belt-entry.ORB"), At("weak-roof.ORB")};
  EXPECT_EQ(files.FilesIn(folder), expected);
  EXPECT_EQ(files.FilesIn(folder + "/"), expected);
}

TEST_F(Disk, ListsNoFilesOfAMissingFolderOrOfAFile) {
  Store(At("panel.ORB"), "x");

  EXPECT_TRUE(files.FilesIn(At("nowhere")).empty());
  EXPECT_TRUE(files.FilesIn(At("panel.ORB")).empty());
  EXPECT_TRUE(files.FilesIn("").empty());
}

TEST_F(Disk, ReadsAFileInParts) {
  Store(At("log.txt"), "depth 400");

  const auto file = files.OpenFile(At("log.txt"));

  EXPECT_EQ(files.FileLength(At("log.txt")), 9U);
  EXPECT_EQ(file->Read(6), "depth ");
  EXPECT_EQ(file->Read(6), "400");
  EXPECT_EQ(file->Read(6), "");
}

TEST_F(Disk, RefusesToOpenAFolderOrAMissingFileForReading) {
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(files.OpenFile(folder)); }), error_number::PathFileAccess);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(files.OpenFile(At("log.txt"))); }), error_number::FileNotFound);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(files.FileLength(At("log.txt"))); }), error_number::FileNotFound);
  EXPECT_EQ(files.FileLength(folder), 0U);
}

TEST_F(Disk, ReportsInLocalTimeWhenAFileWasWritten) {
  Store(At("panel.ORB"), "x");
  struct tm local {};
  local.tm_year = 131;
  local.tm_mon = 2;
  local.tm_mday = 9;
  local.tm_hour = 14;
  local.tm_min = 5;
  local.tm_sec = 7;
  local.tm_isdst = -1;
  const struct timespec times[] = {{mktime(&local), 0}, {mktime(&local), 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, At("panel.ORB").c_str(), times, 0), 0);

  const auto written = files.WrittenAt(At("panel.ORB"));

  ASSERT_TRUE(written);
  EXPECT_EQ(MomentText(*written), "2031-03-09 14:05:07");
  EXPECT_EQ(files.WrittenAt(At("nowhere.ORB")), std::nullopt);
}

TEST_F(Disk, ListsTheFoldersOfAFolderWithoutHiddenOnes) {
  files.MakeFolder(At("panel 3"));
  files.MakeFolder(At("belt entry"));
  files.MakeFolder(At(".cache"));
  Store(At("design.ORB"), "");

  EXPECT_THAT(files.FoldersIn(folder), testing::ElementsAre("belt entry", "panel 3"));
}

TEST_F(Disk, ReportsAMissingFolderWhenItsFoldersAreListed) {
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(files.FoldersIn(At("gone"))); }), error_number::PathNotFound);
}

TEST_F(Disk, ListsTheRootAsTheFirstDrive) { EXPECT_EQ(files.Drives().front(), "/"); }

TEST_F(Disk, KnowsTheFolderOfTheProgram) { EXPECT_EQ(files.ProgramFolder(), "/opt/orby"); }

}  // namespace
}  // namespace orby::test
