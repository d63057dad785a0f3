#include <gmock/gmock.h>

#include <string>

#include "machine/disk_files.h"
#include "machine/file_types.h"
#include "support/recording_platform.h"
#include "windows/system.h"
#include "windows/wide_text.h"

namespace orby::test {
namespace {

// Returns the default value of a key below the classes of the user, or "none".
std::string DefaultOf(const std::string& key) {
  wchar_t text[512];
  DWORD size = sizeof text;
  const std::wstring path = WideText("Software\\Classes\\" + key);
  const bool isThere = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text, &size) == 0;
  return isThere ? Utf8Text(text) : "none";
}

struct Registry : testing::Test {
  ~Registry() override {
    for (const wchar_t* key : {L"Software\\Classes\\.Orbt", L"Software\\Classes\\ORBT_File"}) {
      RegDeleteTreeW(HKEY_CURRENT_USER, key);
    }
  }

  RecordingPlatform platform;
  DiskFiles files{"C:\\Mine Tools\\\xC3\xA4"};
  std::unique_ptr<FileTypes> types = MakeFileTypes(files, platform.userFolders, platform.documents);
};

TEST_F(Registry, AnExtensionLeadsToItsTypeUnderTheNameAsTyped) {
  types->Associate("Orbt", "Orby");

  EXPECT_EQ(DefaultOf(".Orbt"), "ORBT_File");
  EXPECT_EQ(DefaultOf("ORBT_File"), "ORBT_File");
}

TEST_F(Registry, ATypeIsOpenedByTheProgramInCapitalsWithTheFileInQuotes) {
  types->Associate("Orbt", "Orby");

  EXPECT_EQ(DefaultOf("ORBT_File\\shell\\open\\command"), "C:\\MINE TOOLS\\\xC3\xA4\\ORBY.EXE \"%1\"");
  EXPECT_EQ(DefaultOf("ORBT_File\\DefaultIcon"), "C:\\MINE TOOLS\\\xC3\xA4\\ORBY.EXE");
}

TEST_F(Registry, NothingIsAssociatedBeforeTheUserAsks) { EXPECT_EQ(DefaultOf(".Orbt"), "none"); }

}  // namespace
}  // namespace orby::test
