// The configuration file on the disk: missing, unreadable or not writable.
#include "config/ini_file.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "base/runtime_error.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using Step = MemoryFiles::Step;

constexpr const char* IniPath = "/data/ORBY.INI";

struct IniFile : testing::Test {
  RecordingPlatform platform;
  Program program{platform.AsPlatform()};

  std::string& Bytes() { return platform.files.files[IniPath]; }
};

TEST_F(IniFile, WritingMakesTheFileAndItsSections) {
  WriteIniValue(program, "Version", "INIFileVersion", "201030", IniPath);
  WriteIniValue(program, "Settings", "MaxMainMenu", true, IniPath);
  WriteIniValue(program, "Version", "Second", 2, IniPath);

  EXPECT_EQ(Bytes(), "[Version]\r\nINIFileVersion=201030\r\nSecond=2\r\n[Settings]\r\nMaxMainMenu=-1\r\n");
  EXPECT_EQ(ReadIniValue(program, "version", "inifileversion", IniPath), "201030");
}

TEST_F(IniFile, AMissingFileReadsAsEmptyAndIsNotMade) {
  EXPECT_EQ(ReadIniValue(program, "Version", "INIFileVersion", IniPath), "");
  EXPECT_EQ(ReadIniValue(program, "Settings", "CopyExampleFiles", IniPath, "1"), "1");
  EXPECT_TRUE(platform.files.files.empty());
}

TEST_F(IniFile, AnUnreadableFileReadsAsEmpty) {
  Bytes() = "[Version]\r\nINIFileVersion=201030\r\n";
  platform.files.Fail(Step::Read, error_number::PermissionDenied);

  EXPECT_EQ(ReadIniValue(program, "Version", "INIFileVersion", IniPath), "");
}

TEST_F(IniFile, AFileThatCannotBeReadIsNotReplacedByAnEmptyOne) {
  Bytes() = "[Version]\r\nINIFileVersion=201030\r\n";
  platform.files.Fail(Step::Read, error_number::PathFileAccess);

  WriteIniValue(program, "Settings", "MaxMainMenu", 1, IniPath);

  EXPECT_EQ(Bytes(), "[Version]\r\nINIFileVersion=201030\r\n");
}

TEST_F(IniFile, AFileThatCannotBeWrittenStaysUnchangedWithoutAMessage) {
  Bytes() = "[Version]\r\nINIFileVersion=201030\r\n";
  platform.files.Fail(Step::Create, error_number::PermissionDenied);

  WriteIniValue(program, "Version", "INIFileVersion", "201031", IniPath);

  EXPECT_EQ(Bytes(), "[Version]\r\nINIFileVersion=201030\r\n");
  EXPECT_TRUE(platform.boxes.shown.empty());
}

TEST_F(IniFile, AMissingFolderIsNotAnError) {
  platform.files.Fail(Step::Read, error_number::PathNotFound);
  platform.files.Fail(Step::Create, error_number::PathNotFound);

  WriteIniValue(program, "Version", "INIFileVersion", "201030", IniPath);

  EXPECT_TRUE(platform.files.files.empty());
}

TEST_F(IniFile, AFileThatCannotBeClosedIsNotAnError) {
  platform.files.Fail(Step::Close, error_number::DiskFull);

  WriteIniValue(program, "Version", "INIFileVersion", "201030", IniPath);

  EXPECT_TRUE(platform.files.files.empty());
  EXPECT_TRUE(platform.boxes.shown.empty());
}

TEST_F(IniFile, AFileThatMayNotBeReplacedStaysUnchanged) {
  Bytes() = "[Version]\r\nINIFileVersion=201030\r\n";
  platform.files.Fail(Step::Rename, error_number::PermissionDenied);

  WriteIniValue(program, "Version", "INIFileVersion", "201031", IniPath);

  EXPECT_THAT(platform.files.files,
              testing::ElementsAre(testing::Pair(IniPath, "[Version]\r\nINIFileVersion=201030\r\n")));
  EXPECT_TRUE(platform.boxes.shown.empty());
}

TEST_F(IniFile, AnInterruptedWriteKeepsTheOldFile) {
  Bytes() = "[Version]\r\nINIFileVersion=201030\r\n";
  platform.files.Fail(Step::Write, error_number::DiskFull);
  platform.files.Fail(Step::Remove, error_number::PermissionDenied);

  WriteIniValue(program, "Version", "INIFileVersion", "201031", IniPath);

  EXPECT_EQ(Bytes(), "[Version]\r\nINIFileVersion=201030\r\n");
  EXPECT_EQ(ReadIniValue(program, "Version", "INIFileVersion", IniPath), "201030");
}

TEST_F(IniFile, AnEditWithoutAChangeDoesNotWriteTheFile) {
  Bytes() = "[Version]\n INIFileVersion = 201030";

  WriteIniValue(program, "Version", "INIFileVersion", "201030", IniPath);

  EXPECT_EQ(Bytes(), "[Version]\n INIFileVersion = 201030");
  EXPECT_TRUE(platform.files.created.empty());
}

TEST_F(IniFile, SeveralKeysAreWrittenAtOnce) {
  EditIniFile(program, IniPath, [](IniText& ini) {
    WriteIniValue(ini, "FileMenu", "MaxLastFiles", 1);
    WriteIniValue(ini, "FileMenu", "LastFile1", "one.ORB");
  });

  EXPECT_EQ(Bytes(), "[FileMenu]\r\nMaxLastFiles=1\r\nLastFile1=one.ORB\r\n");
  EXPECT_THAT(platform.files.created, testing::SizeIs(1));
  EXPECT_THAT(platform.files.files, testing::SizeIs(1)) << "no temporary file is left";
}

// A disk with room for only `room` bytes of the file.
class SmallDisk : public MemoryFiles {
 public:
  explicit SmallDisk(std::size_t room) : room_(room) {}

  std::unique_ptr<OutputFile> CreateFile(const std::string& path) override {
    MemoryFiles::CreateFile(path);
    return std::make_unique<Output>(files[path], room_);
  }

 private:
  class Output : public OutputFile {
   public:
    Output(std::string& bytes, std::size_t room) : bytes_(bytes), room_(room) {}
    void Write(std::string_view bytes) override {
      bytes_ += bytes.substr(0, room_ - bytes_.size());
      if (bytes_.size() == room_) throw RuntimeError(error_number::DiskFull);
    }
    void Close() override {}

   private:
    std::string& bytes_;
    std::size_t room_;
  };

  std::size_t room_;
};

TEST(IniFileOnAFullDisk, KeepsItsOldContents) {
  RecordingPlatform platform;
  SmallDisk disk(40);
  const Platform doors = platform.AsPlatformWith(disk);
  Program program(doors);
  disk.files[IniPath] = "[Version]\r\nINIFileVersion=201030\r\n";

  WriteIniValue(program, "Settings", "ExternalEditor", "Notepad.exe", IniPath);

  EXPECT_THAT(disk.files, testing::ElementsAre(testing::Pair(IniPath, "[Version]\r\nINIFileVersion=201030\r\n")));
}

}  // namespace
}  // namespace orby::test
