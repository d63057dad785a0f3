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

TEST_F(InPlace, AFullDiskIsReportedByTheWrite) {
  const auto file = files.OpenInPlace("/dev/full", 10);

  EXPECT_EQ(ErrorNumberOf([&] { file->Write("ORBY_105\r\n"); }), 61);
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
