// A start of the program with a configuration file that is a link.
#include <gmock/gmock.h>

#include <filesystem>

#include "core/program.h"
#include "machine/disk_files.h"
#include "shell/start_up.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"

namespace orby::test {
namespace {

using testing::IsEmpty;
using testing::StartsWith;

TEST(StartOnADisk, KeepsTheLinkToAConfigurationFileOfAnotherVersion) {
  const TemporaryFolder home;
  DiskFiles files(home.Path());
  RecordingPlatform platform;
  platform.userFolders.documents = home.Path();
  std::filesystem::create_directories(home.At("MyStrataDesk/ORBY"));
  home.Store("settings.ini", "[Version]\r\nINIFileVersion=201029\r\n");
  std::filesystem::create_symlink("../../settings.ini", home.At("MyStrataDesk/ORBY/ORBY.INI"));
  Program program(platform.AsPlatformWith(files));
  const auto workingFolder = std::filesystem::current_path();

  StartProgram(program);

  std::filesystem::current_path(workingFolder);
  EXPECT_TRUE(std::filesystem::is_symlink(home.At("MyStrataDesk/ORBY/ORBY.INI")));
  EXPECT_THAT(home.Read("settings.ini"), StartsWith("[Version]\r\nINIFileVersion=201030\r\n[Settings]\r\n"));
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

}  // namespace
}  // namespace orby::test
