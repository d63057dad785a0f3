// Project files on a real disk that are overwritten.
#include "files/overwritten_file.h"

#include <gmock/gmock.h>
#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "machine/disk_files.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"

namespace orby::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

// A disk that reports that it is full only when something is written.
class DiskThatFills : public DiskFiles {
 public:
  using DiskFiles::DiskFiles;

  std::unique_ptr<OutputFile> OpenInPlace(const std::string& path, std::uint64_t length) override {
    return std::make_unique<FullFile>(DiskFiles::OpenInPlace(path, length), isFull);
  }

  bool isFull = false;

 private:
  class FullFile : public OutputFile {
   public:
    FullFile(std::unique_ptr<OutputFile> file, bool isFull) : file_(std::move(file)), isFull_(isFull) {}
    void Write(std::string_view bytes) override {
      file_->Write(isFull_ ? bytes.substr(0, bytes.size() / 2) : bytes);
      if (isFull_) throw RuntimeError(error_number::DiskFull);
    }
    void Close() override { file_->Close(); }

   private:
    std::unique_ptr<OutputFile> file_;
    bool isFull_;
  };
};

struct OverwrittenOnDisk : testing::Test {
  OverwrittenOnDisk() { program.session.folders.ProgramData = folder.At("data/"); }

  int ErrorOfSaving(const std::string& name) {
    const SaveOutcome save = OverwrittenFile(program, folder.At(name)).Overwrite("the new design");
    remarks = save.Remarks;
    return save.Failure ? save.Failure->number() : 0;
  }
  mode_t ModeOf(const std::string& name) const {
    struct stat facts {};
    stat(folder.At(name).c_str(), &facts);
    return facts.st_mode & 07777;
  }

  TemporaryFolder folder;
  RecordingPlatform platform;
  DiskThatFills disk{folder.Path()};
  Program program{platform.AsPlatformWith(disk)};
  const std::string longDesign = std::string(11 * 1024 * 1024, 'x');
  std::vector<std::string> remarks;
};

TEST_F(OverwrittenOnDisk, AFailedSaveRemovesTheNewTargetOfALinkAndKeepsTheLink) {
  fs::create_symlink("far.orb", folder.At("panel3.orb"));
  disk.isFull = true;

  EXPECT_EQ(ErrorOfSaving("panel3.orb"), 61);

  EXPECT_TRUE(fs::is_symlink(folder.At("panel3.orb")));
  EXPECT_THAT(folder.Names(), ElementsAre("panel3.orb"));
  EXPECT_THAT(remarks, IsEmpty());
}

TEST_F(OverwrittenOnDisk, ALongFileThatMayNotBeWrittenIsNotRenamed) {
  folder.Store("panel3.orb", longDesign);
  chmod(folder.At("panel3.orb").c_str(), 0444);
  chmod(folder.Path().c_str(), 0777);

  setfsuid(65534);  // the administrator may write anywhere
  const int error = ErrorOfSaving("panel3.orb");
  setfsuid(geteuid());

  EXPECT_EQ(error, 70);
  EXPECT_THAT(folder.Names(), ElementsAre("panel3.orb"));
  EXPECT_TRUE(folder.Read("panel3.orb") == longDesign);
}

TEST_F(OverwrittenOnDisk, TheLongTargetOfALinkIsRenamedAndTheLinkLeadsToTheNewFile) {
  fs::create_directory(folder.At("far"));
  folder.Store("far/design.orb", longDesign);
  fs::create_symlink("far/design.orb", folder.At("panel3.orb"));

  EXPECT_EQ(ErrorOfSaving("panel3.orb"), 0);

  EXPECT_TRUE(fs::is_symlink(folder.At("panel3.orb")));
  EXPECT_EQ(folder.Read("far/design.orb"), "the new design");
  EXPECT_TRUE(folder.Read("far/design.orb.old") == longDesign);
  EXPECT_THAT(folder.Names(), ElementsAre("far", "panel3.orb"));
}

TEST_F(OverwrittenOnDisk, TheLongTargetOfALinkGetsItsNameBackAfterAFailedSave) {
  folder.Store("design.orb", longDesign);
  fs::create_symlink("design.orb", folder.At("panel3.orb"));
  disk.isFull = true;

  EXPECT_EQ(ErrorOfSaving("panel3.orb"), 61);

  EXPECT_TRUE(fs::is_symlink(folder.At("panel3.orb")));
  EXPECT_TRUE(folder.Read("design.orb") == longDesign);
  EXPECT_THAT(folder.Names(), ElementsAre("design.orb", "panel3.orb"));
}

TEST_F(OverwrittenOnDisk, TheNewFileHasThePermissionsOfALongOldFile) {
  for (const mode_t mode : {0600U, 0640U, 0666U}) {
    folder.Store("panel3.orb", longDesign);
    chmod(folder.At("panel3.orb").c_str(), mode);

    EXPECT_EQ(ErrorOfSaving("panel3.orb"), 0);

    EXPECT_EQ(folder.Read("panel3.orb"), "the new design");
    EXPECT_EQ(ModeOf("panel3.orb"), mode);
  }
}

TEST_F(OverwrittenOnDisk, TheBackupCanBeReadOnlyByTheUser) {
  folder.Store("panel3.orb", "the old design");

  EXPECT_EQ(ErrorOfSaving("panel3.orb"), 0);

  EXPECT_EQ(ModeOf("data/Backups"), 0700U);
}

// A pipe has no length, and a read waits for another program.
class Pipe : public MemoryFiles {
 public:
  std::uint64_t FileLength(const std::string&) override { return 0; }
  std::string ReadFile(const std::string&) override {
    ++reads;
    return {};
  }

  int reads = 0;
};

TEST(OverwrittenPipe, IsNotReadBeforeItIsWrittenTo) {
  RecordingPlatform platform;
  Pipe pipe;
  Program program(platform.AsPlatformWith(pipe));

  const OverwrittenFile file(program, "/designs/pipe");

  EXPECT_EQ(pipe.reads, 0);
}

}  // namespace
}  // namespace orby::test
