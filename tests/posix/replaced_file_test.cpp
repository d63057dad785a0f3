// Files on the disk that are replaced in one step.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <sys/fsuid.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <deque>
#include <filesystem>
#include <string>
#include <vector>

#include "machine/disk_files.h"
#include "machine/program.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"

namespace {

// The files that were flushed to the disk, by the names that they had at that time.
std::vector<std::string>& Flushed() {
  static std::vector<std::string> names;
  return names;
}

// Errors that the next calls of each function report. A call with 0, or without an entry, reaches the system.
struct {
  std::deque<int> ofFlush;
  std::deque<int> ofReserve;
  std::deque<int> ofOwner;
  std::deque<int> ofMode;
} Errors;

bool Fails(std::deque<int>& errors) {
  if (errors.empty()) return false;
  errno = errors.front();
  errors.pop_front();
  return errno != 0;
}

}  // namespace

// These replace the functions of the C library.
extern "C" int fallocate(int file, int mode, off_t offset, off_t length) {
  return Fails(Errors.ofReserve) ? -1 : static_cast<int>(syscall(SYS_fallocate, file, mode, offset, length));
}

extern "C" int fchown(int file, uid_t owner, gid_t group) {
  return Fails(Errors.ofOwner) ? -1 : static_cast<int>(syscall(SYS_fchown, file, owner, group));
}

extern "C" int fchmod(int file, mode_t mode) {
  return Fails(Errors.ofMode) ? -1 : static_cast<int>(syscall(SYS_fchmod, file, mode));
}

extern "C" int fsync(int file) {
  if (Fails(Errors.ofFlush)) return -1;
  const std::string number = "/proc/self/fd/" + std::to_string(file);
  Flushed().push_back(std::filesystem::read_symlink(number).filename().string());
  return static_cast<int>(syscall(SYS_fsync, file));
}

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

struct ReplacedFile : testing::Test {
  ~ReplacedFile() override { Errors = {}; }

  int ErrorOfReplacing(const std::string& path, std::string_view bytes = "new") {
    return ErrorNumberOf([&] { files.ReplaceFile(path, bytes); });
  }
  mode_t ModeOf(const std::string& name) const {
    struct stat facts {};
    stat(folder.At(name).c_str(), &facts);
    return facts.st_mode & 07777;
  }

  TemporaryFolder folder;
  DiskFiles files{"/opt/orby"};
};

TEST_F(ReplacedFile, IsFlushedToTheDiskBeforeItIsRenamed) {
  Flushed().clear();

  files.ReplaceFile(folder.At("ORBY.INI"), "new");

  EXPECT_THAT(Flushed(), ElementsAre(StartsWith(".orby-"), std::filesystem::path(folder.Path()).filename().string()));
}

TEST_F(ReplacedFile, KeepsItsPermissions) {
  for (const mode_t mode : {0600U, 0640U, 0664U, 0755U}) {
    folder.Store("ORBY.INI", "old");
    chmod(folder.At("ORBY.INI").c_str(), mode);

    files.ReplaceFile(folder.At("ORBY.INI"), "new");

    EXPECT_EQ(ModeOf("ORBY.INI"), mode);
    EXPECT_EQ(folder.Read("ORBY.INI"), "new");
  }
}

TEST_F(ReplacedFile, HasTheUsualPermissionsWhenItIsNew) {
  const mode_t before = umask(027);

  files.ReplaceFile(folder.At("ORBY.INI"), "new");

  umask(before);
  EXPECT_EQ(ModeOf("ORBY.INI"), 0640U);
}

TEST_F(ReplacedFile, IsTheTargetOfALinkAndTheLinkStays) {
  std::filesystem::create_directory(folder.At("real"));
  folder.Store("real/settings.ini", "old");
  std::filesystem::create_symlink("real/settings.ini", folder.At("second"));
  std::filesystem::create_symlink("second", folder.At("ORBY.INI"));

  files.ReplaceFile(folder.At("ORBY.INI"), "new");

  EXPECT_TRUE(std::filesystem::is_symlink(folder.At("ORBY.INI")));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.At("second")));
  EXPECT_EQ(folder.Read("real/settings.ini"), "new");
  EXPECT_FALSE(std::filesystem::is_symlink(folder.At("real/settings.ini")));
}

TEST_F(ReplacedFile, IsMadeAtTheTargetOfABrokenLink) {
  std::filesystem::create_symlink("settings.ini", folder.At("ORBY.INI"));

  files.ReplaceFile(folder.At("ORBY.INI"), "new");

  EXPECT_TRUE(std::filesystem::is_symlink(folder.At("ORBY.INI")));
  EXPECT_EQ(folder.Read("settings.ini"), "new");
}

TEST_F(ReplacedFile, IsFoundThroughARelativeLinkInALinkedFolder) {
  std::filesystem::create_directories(folder.At("far/away"));
  std::filesystem::create_symlink("far/away", folder.At("near"));
  std::filesystem::create_symlink("../settings.ini", folder.At("far/away/ORBY.INI"));

  files.ReplaceFile(folder.At("near/ORBY.INI"), "new");

  EXPECT_EQ(folder.Read("far/settings.ini"), "new");
}

TEST_F(ReplacedFile, IsRefusedAtAnImpossiblePath) {
  std::filesystem::create_directory(folder.At("folder"));
  std::filesystem::create_symlink("round", folder.At("round"));
  folder.Store("file", "x");

  EXPECT_EQ(ErrorOfReplacing(folder.At("missing/ORBY.INI")), 76);
  EXPECT_EQ(ErrorOfReplacing(folder.At("file/ORBY.INI")), 76);
  EXPECT_EQ(ErrorOfReplacing(folder.At("folder")), 75);
  EXPECT_EQ(ErrorOfReplacing(folder.At("round")), 75);
  EXPECT_EQ(ErrorOfReplacing(""), 52);
  EXPECT_EQ(ErrorOfReplacing(folder.At(std::string("file\0.INI", 9))), 52);
  EXPECT_EQ(ErrorOfReplacing("/proc/sys/kernel/ostype"), 70);
  EXPECT_EQ(folder.Read("file"), "x");
  EXPECT_THAT(folder.Names(), ElementsAre("file", "folder", "round"));
}

TEST_F(ReplacedFile, IsUnchangedInAFolderThatMayNotBeWrittenTo) {
  folder.Store("ORBY.INI", "old");
  chmod(folder.At("ORBY.INI").c_str(), 0666);
  chmod(folder.Path().c_str(), 0555);
  int error = 0;

  setfsuid(65534);  // the administrator may write anywhere
  error = ErrorOfReplacing(folder.At("ORBY.INI"));
  setfsuid(geteuid());
  chmod(folder.Path().c_str(), 0755);

  EXPECT_EQ(error, 70);
  EXPECT_EQ(folder.Read("ORBY.INI"), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("ORBY.INI"));
}

TEST_F(ReplacedFile, IsUnchangedWhenTheNewBytesExceedTheFileSizeLimit) {
  folder.Store("ORBY.INI", "old");
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit small{1000, before.rlim_max};
  PrepareProgram();

  setrlimit(RLIMIT_FSIZE, &small);
  const int error = ErrorOfReplacing(folder.At("ORBY.INI"), std::string(5000, 'x'));
  setrlimit(RLIMIT_FSIZE, &before);
  signal(SIGXFSZ, SIG_DFL);

  EXPECT_EQ(error, 61);
  EXPECT_EQ(folder.Read("ORBY.INI"), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("ORBY.INI"));
}

TEST_F(ReplacedFile, KeepsAnotherFileThatHasTheNameOfItsTemporaryFile) {
  const std::string foreign = ".orby-" + std::to_string(getpid()) + "-0";
  folder.Store(foreign, "foreign");

  files.ReplaceFile(folder.At("ORBY.INI"), "new");

  EXPECT_EQ(folder.Read(foreign), "foreign");
  EXPECT_EQ(folder.Read("ORBY.INI"), "new");
}

TEST_F(ReplacedFile, LeavesNoTemporaryFileWhenItsPermissionsCannotBeSet) {
  folder.Store("ORBY.INI", "old");
  Errors.ofMode = {EPERM};

  EXPECT_EQ(ErrorOfReplacing(folder.At("ORBY.INI")), 70);

  EXPECT_EQ(folder.Read("ORBY.INI"), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("ORBY.INI"));
}

TEST_F(ReplacedFile, GivesAnotherGroupOnlyThePermissionsOfEverybody) {
  folder.Store("ORBY.INI", "old");
  chmod(folder.At("ORBY.INI").c_str(), 0664);
  Errors.ofOwner = {EPERM, EPERM};

  files.ReplaceFile(folder.At("ORBY.INI"), "new");

  EXPECT_EQ(ModeOf("ORBY.INI"), 0644U);
}

TEST_F(ReplacedFile, KeepsThePermissionsOfItsGroupWhenOnlyTheOwnerChanges) {
  folder.Store("ORBY.INI", "old");
  chmod(folder.At("ORBY.INI").c_str(), 0660);
  Errors.ofOwner = {EPERM};

  files.ReplaceFile(folder.At("ORBY.INI"), "new");

  EXPECT_EQ(ModeOf("ORBY.INI"), 0660U);
}

TEST_F(ReplacedFile, IsFlushedAgainAfterAnInterruptingSignal) {
  Errors.ofFlush = {EINTR, EINTR};

  EXPECT_EQ(ErrorOfReplacing(folder.At("ORBY.INI")), 0);

  EXPECT_EQ(folder.Read("ORBY.INI"), "new");
}

TEST_F(ReplacedFile, CanBeOnADiskThatCannotBeFlushed) {
  for (const int systemError : {EINVAL, ENOTSUP}) {
    Errors.ofFlush = {systemError};

    EXPECT_EQ(ErrorOfReplacing(folder.At("ORBY.INI")), 0);
  }
}

TEST_F(ReplacedFile, IsUnchangedWhenTheNewBytesDoNotReachTheDisk) {
  folder.Store("ORBY.INI", "old");
  Errors.ofFlush = {EIO};

  EXPECT_EQ(ErrorOfReplacing(folder.At("ORBY.INI")), 75);

  EXPECT_EQ(folder.Read("ORBY.INI"), "old");
}

TEST_F(ReplacedFile, ReservesItsRoomAgainAfterAnInterruptingSignal) {
  Errors.ofReserve = {EINTR};

  const int error = ErrorNumberOf([&] { files.OpenInPlace(folder.At("panel.ORB"), 100)->Close(); });

  EXPECT_EQ(error, 0);
}

TEST_F(ReplacedFile, IsWrittenDirectlyWhenItIsAPipe) {
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);

  files.ReplaceFile("/proc/self/fd/" + std::to_string(ends[1]), "new");

  char bytes[8];
  EXPECT_EQ(read(ends[0], bytes, sizeof bytes), 3);
  close(ends[0]);
  close(ends[1]);
}

TEST_F(ReplacedFile, IsWrittenDirectlyWhenItIsADevice) {
  files.ReplaceFile("/dev/null", "new");

  EXPECT_EQ(ErrorOfReplacing("/dev/full"), 61);
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

}  // namespace
}  // namespace orby::test
