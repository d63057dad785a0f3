#include "machine/disk_files.h"

#include <gmock/gmock.h>
#include <stdlib.h>
#include <sys/fsuid.h>
#include <unistd.h>

#include <filesystem>
#include <optional>
#include <string>

#include "base/runtime_error.h"
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
  int ErrorOfRenaming(const std::string& path, const std::string& newPath) {
    return ErrorNumberOf([&] { files.RenameFile(path, newPath); });
  }
  int ErrorOfSearching(const std::string& path) {
    return ErrorNumberOf([&] { static_cast<void>(files.Finds(path)); });
  }

  TemporaryFolder own;
  std::string folder = own.Path();
  DiskFiles files{"/opt/orby"};
};

TEST_F(Disk, ReadsAFileOfUnknownSize) { EXPECT_EQ(files.ReadFile("/proc/sys/kernel/ostype"), "Linux\n"); }

TEST_F(Disk, RefusesToCreateAFileWithoutPermission) { EXPECT_EQ(ErrorOfCreating("/proc/sys/kernel/ostype"), 70); }

TEST_F(Disk, RefusesACircleOfLinks) {
  std::filesystem::create_symlink(At("b"), At("a"));
  std::filesystem::create_symlink(At("a"), At("b"));

  EXPECT_EQ(ErrorOfReading(At("a")), 75);
  EXPECT_EQ(ErrorOfSearching(At("a")), 75);
}

TEST_F(Disk, ReportsAFileThatCannotBeRead) { EXPECT_EQ(ErrorOfReading("/proc/self/mem"), 75); }

TEST_F(Disk, ReportsAFullDiskWhenAShortFileIsClosed) {
  const auto file = files.CreateFile("/dev/full");
  file->Write("ORBY_105\r\n");

  EXPECT_EQ(ErrorNumberOf([&] { file->Close(); }), 61);
}

TEST_F(Disk, ReportsAFullDiskWhenALongFileIsWritten) {
  const auto file = files.CreateFile("/dev/full");

  EXPECT_EQ(ErrorNumberOf([&] { file->Write(std::string(1'000'000, 'x')); }), 61);
}

TEST_F(Disk, FindsNoFileThroughABrokenLink) {
  std::filesystem::create_symlink(At("gone"), At("link"));

  EXPECT_FALSE(files.Finds(At("link")));
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

TEST_F(Disk, DoesNotRenameOverAFileThatMayNotBeWritten) {
  Store(At("panel.tmp"), "new");

  EXPECT_EQ(ErrorOfRenaming(At("panel.tmp"), "/proc/sys/kernel/ostype"), 70);
}

TEST_F(Disk, KnowsAFolderThatCannotBeWrittenTo) { EXPECT_FALSE(files.CanWriteTo("/proc/sys/kernel")); }

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

TEST_F(Disk, ListsTheRootAsTheFirstDrive) { EXPECT_EQ(files.Drives().front(), "/"); }

}  // namespace
}  // namespace orby::test
