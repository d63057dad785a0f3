// Files on the disk that are overwritten in place.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <string>

#include "machine/disk_files.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"

namespace orby::test {
namespace {

namespace fs = std::filesystem;

class InPlace : public testing::Test {
 protected:
  void Store(const std::string& path, std::string_view bytes) {
    const auto file = files.CreateFile(path);
    file->Write(bytes);
    file->Close();
  }

  void WriteOver(const std::string& path, std::string_view bytes) {
    const auto file = files.OpenInPlace(path, bytes.size());
    file->Write(bytes);
    file->Close();
  }

  int ErrorOfOpening(const std::string& path) {
    return ErrorNumberOf([&] { static_cast<void>(files.OpenInPlace(path, 1)); });
  }

  std::string At(const std::string& name) const { return folder.At(name); }

  TemporaryFolder folder;
  DiskFiles files{"/opt/orby"};
};

TEST_F(InPlace, AnOldFileIsUntouchedUntilNewBytesAreWritten) {
  Store(At("panel.ORB"), "the design of last week");

  const auto file = files.OpenInPlace(At("panel.ORB"), 1'000'000);

  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "the design of last week");
}

TEST_F(InPlace, AShorterTextReplacesAllOfTheOldOne) {
  Store(At("panel.ORB"), "the design of last week");

  WriteOver(At("panel.ORB"), "today's");

  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "today's");
}

TEST_F(InPlace, ALongerTextIsWrittenWhole) {
  Store(At("panel.ORB"), "old");
  const std::string bytes(300'007, 'x');

  WriteOver(At("panel.ORB"), bytes);

  EXPECT_EQ(files.ReadFile(At("panel.ORB")), bytes);
}

TEST_F(InPlace, AMissingFileIsMade) {
  WriteOver(At("panel.ORB"), "new");

  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "new");
}

TEST_F(InPlace, AFileThatIsNotClosedKeepsItsOldEnd) {
  Store(At("panel.ORB"), "the design");

  { files.OpenInPlace(At("panel.ORB"), 3)->Write("new"); }

  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "new design");
}

TEST_F(InPlace, AFileKeepsItsMode) {
  Store(At("panel.ORB"), "old");
  ASSERT_EQ(chmod(At("panel.ORB").c_str(), 0640), 0);

  WriteOver(At("panel.ORB"), "new");

  EXPECT_EQ(fs::status(At("panel.ORB")).permissions(), fs::perms(0640));
}

TEST_F(InPlace, ALinkStaysALinkAndItsTargetIsWritten) {
  Store(At("panel.ORB"), "old");
  fs::create_symlink("panel.ORB", At("link.ORB"));

  WriteOver(At("link.ORB"), "new");

  EXPECT_TRUE(fs::is_symlink(At("link.ORB")));
  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "new");
}

TEST_F(InPlace, ALinkToAMissingFileMakesTheFile) {
  fs::create_symlink("panel.ORB", At("link.ORB"));

  WriteOver(At("link.ORB"), "new");

  EXPECT_TRUE(fs::is_symlink(At("link.ORB")));
  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "new");
}

TEST_F(InPlace, EveryHardLinkOfAFileHasTheNewText) {
  Store(At("panel.ORB"), "old");
  fs::create_hard_link(At("panel.ORB"), At("same.ORB"));

  WriteOver(At("panel.ORB"), "new");

  EXPECT_EQ(files.ReadFile(At("same.ORB")), "new");
}

TEST_F(InPlace, AFullDiskIsReportedByTheWrite) {
  const auto file = files.OpenInPlace("/dev/full", 10);

  EXPECT_EQ(ErrorNumberOf([&] { file->Write("ORBY_105\r\n"); }), 61);
}

TEST_F(InPlace, TooLittleRoomIsReportedBeforeTheOldBytesAreChanged) {
  Store(At("panel.ORB"), "the design of last week");
  constexpr std::uint64_t MoreThanAnyDisk = std::uint64_t{1} << 61U;

  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(files.OpenInPlace(At("panel.ORB"), MoreThanAnyDisk)); }), 61);

  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "the design of last week");
}

TEST_F(InPlace, TooLittleRoomLeavesNoNewFile) {
  constexpr std::uint64_t MoreThanAnyDisk = std::uint64_t{1} << 61U;

  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(files.OpenInPlace(At("panel.ORB"), MoreThanAnyDisk)); }), 61);

  EXPECT_FALSE(files.Finds(At("panel.ORB")));
}

TEST_F(InPlace, ALimitOnTheSizeOfFilesIsReportedAsAFullDiskBeforeTheWrite) {
  Store(At("panel.ORB"), "the design of last week");
  const pid_t child = fork();
  if (child == 0) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{100, 100};
    setrlimit(RLIMIT_FSIZE, &limit);
    _exit(ErrorNumberOf([&] { static_cast<void>(files.OpenInPlace(At("panel.ORB"), 1000)); }));
  }

  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);

  EXPECT_EQ(WEXITSTATUS(status), 61);
  EXPECT_EQ(files.ReadFile(At("panel.ORB")), "the design of last week");
}

TEST_F(InPlace, APathThatCannotBeWrittenIsRefused) {
  EXPECT_EQ(ErrorOfOpening("/proc/sys/kernel/ostype"), 70);
  EXPECT_EQ(ErrorOfOpening(At("nowhere/panel.ORB")), 76);
  EXPECT_EQ(ErrorOfOpening(folder.Path()), 75);
  EXPECT_EQ(ErrorOfOpening(""), 52);
  EXPECT_EQ(ErrorOfOpening(At("panel.ORB") + std::string(1, '\0')), 52);
  EXPECT_EQ(ErrorOfOpening(At(std::string(300, 'x'))), 52);
}

}  // namespace
}  // namespace orby::test
