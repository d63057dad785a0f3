// Paths that only Windows has: drives, servers, and names that name no file.
#include "machine/disk_files.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "base/paths.h"
#include "machine/program.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"
#include "windows/system.h"
#include "windows/wide_text.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

struct WindowsPaths : testing::Test {
  int ErrorOfReading(const std::string& path) {
    return ErrorNumberOf([&] { static_cast<void>(files.ReadFile(path)); });
  }
  int ErrorOfReplacing(const std::string& path) {
    return ErrorNumberOf([&] { files.ReplaceFile(path, "new"); });
  }
  int ErrorOfMaking(const std::string& path) {
    return ErrorNumberOf([&] { files.MakeFolder(path); });
  }

  DiskFiles files{"C:\\Orby"};
};

TEST_F(WindowsPaths, ADriveHasARootFolder) {
  EXPECT_THAT(files.Drives(), Contains("C:\\"));
  EXPECT_EQ(files.Find("C:\\"), Found::Folder);
  EXPECT_THAT(files.FoldersIn("C:\\"), Contains("windows"));
  EXPECT_EQ(files.AbsolutePath("C:\\"), "C:\\");
  EXPECT_TRUE(files.CanWriteTo("C:\\"));
  EXPECT_EQ(ErrorOfMaking("C:\\"), 0);
}

TEST_F(WindowsPaths, ARootFolderIsNoFile) {
  EXPECT_EQ(ErrorOfReading("C:\\"), 75);
  EXPECT_EQ(ErrorOfReplacing("C:\\"), 75);
}

TEST_F(WindowsPaths, AMissingDriveIsAPathThatIsNotFound) {
  EXPECT_EQ(files.Find("Q:\\Mine\\panel.ORB"), Found::Nothing);
  EXPECT_EQ(ErrorOfReading("Q:\\panel.ORB"), 76);
  EXPECT_EQ(ErrorOfReplacing("Q:\\panel.ORB"), 76);
  EXPECT_EQ(ErrorOfMaking("Q:\\Mine\\North"), 76);
  EXPECT_THAT(files.FilesIn("Q:\\"), IsEmpty());
}

TEST_F(WindowsPaths, AMissingServerIsAPathThatIsNotFound) {
  const std::string folder = "\\\\no-such-server\\plans";

  EXPECT_EQ(files.Find(folder + "\\panel.ORB"), Found::Nothing);
  EXPECT_EQ(ErrorOfReading(folder + "\\panel.ORB"), 76);
  EXPECT_EQ(ErrorOfReplacing(folder + "\\panel.ORB"), 76);
  EXPECT_EQ(ErrorOfMaking(folder + "\\North"), 76);
  EXPECT_FALSE(files.CanWriteTo(folder));
  EXPECT_EQ(files.AbsolutePath(folder + "\\old\\..\\panel.ORB"), folder + "\\panel.ORB");
}

// During its lifetime Z: is the current drive, and the folder the working folder of drive C.
class WorkingFolderOfC {
 public:
  explicit WorkingFolderOfC(const std::string& folder) {
    GetCurrentDirectoryW(MAX_PATH, before_);
    SetCurrentDirectoryW(L"Z:\\");
    SetEnvironmentVariableW(L"=C:", WideText(folder).c_str());
  }
  ~WorkingFolderOfC() {
    SetEnvironmentVariableW(L"=C:", nullptr);
    SetCurrentDirectoryW(before_);
  }
  WorkingFolderOfC(const WorkingFolderOfC&) = delete;
  WorkingFolderOfC& operator=(const WorkingFolderOfC&) = delete;

 private:
  wchar_t before_[MAX_PATH]{};
};

// "C:panel.ORB" is in the folder where the user last was on drive C, also while another drive is the current one.
TEST_F(WindowsPaths, ARelativePathOnADriveStartsInTheWorkingFolderOfThatDrive) {
  const TemporaryFolder folder;
  ASSERT_TRUE(folder.Path().starts_with("C:"));
  const WorkingFolderOfC working(folder.Path());

  files.ReplaceFile("C:panel.ORB", "new");
  const auto file = files.OpenInPlace("C:panel.ORB", 5);
  file->Write("newer");
  file->Close();

  EXPECT_EQ(folder.Read("panel.ORB"), "newer");
  EXPECT_THAT(folder.Names(), ElementsAre("panel.ORB"));
  EXPECT_EQ(files.AbsolutePath("C:panel.ORB"), folder.Path() + "\\panel.ORB");
}

TEST_F(WindowsPaths, ANameThatIsNoNameOfAFileIsRefusedByEveryCommand) {
  const TemporaryFolder folder;

  for (const char* name : {"NUL", "com1.ORB", "con.txt", "panel.ORB.", "panel.ORB ", "panel.ORB:old"}) {
    const std::string path = folder.At(name);
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(files.Find(path)); }), 52) << name;
    EXPECT_EQ(ErrorOfReading(path), 52) << name;
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(files.OpenFile(path)); }), 52) << name;
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(files.FileLength(path)); }), 52) << name;
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(files.CreateFile(path)); }), 52) << name;
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(files.OpenInPlace(path, 1)); }), 52) << name;
    EXPECT_EQ(ErrorOfReplacing(path), 52) << name;
    EXPECT_EQ(ErrorNumberOf([&] { files.RemoveFile(path); }), 52) << name;
    EXPECT_EQ(ErrorNumberOf([&] { files.RenameFile(path, folder.At("panel.ORB")); }), 52) << name;
    EXPECT_EQ(ErrorNumberOf([&] { files.RenameFile(folder.At("panel.ORB"), path); }), 52) << name;
    EXPECT_EQ(ErrorOfMaking(path), 52) << name;
    EXPECT_EQ(ErrorNumberOf([&] { files.SetWorkingFolder(path); }), 52) << name;
    EXPECT_FALSE(files.CanWriteTo(path)) << name;
    EXPECT_THAT(files.FilesIn(path), IsEmpty()) << name;
    EXPECT_EQ(files.TryMark(path), nullptr) << name;
  }
  EXPECT_THAT(folder.Names(), IsEmpty());
}

// Otherwise another file than the named one would be opened.
TEST_F(WindowsPaths, ANameThatIsNoNameOfAFileStaysInAnAbsolutePath) {
  EXPECT_EQ(files.AbsolutePath("C:\\Mine\\..\\panel.ORB."), "C:\\panel.ORB.");
  EXPECT_EQ(files.AbsolutePath("C:\\Mine\\nul.ORB"), "C:\\Mine\\nul.ORB");
  EXPECT_EQ(files.AbsolutePath("nul.ORB"), "nul.ORB");
  const WorkingFolderOfC working("C:\\windows");
  EXPECT_EQ(files.AbsolutePath("C:nul.ORB"), "C:\\windows\\nul.ORB");
}

TEST_F(WindowsPaths, ANameWithACharacterThatWindowsReservesIsRefused) {
  const TemporaryFolder folder;

  for (const char* name : {"a|b.ORB", "*.ORB", "what?.ORB", "<panel>.ORB"}) {
    EXPECT_EQ(ErrorOfReplacing(folder.At(name)), 52) << name;
    EXPECT_EQ(ErrorOfReading(folder.At(name)), 52) << name;
  }
}

TEST_F(WindowsPaths, AFolderOnlyForTheUserIsClosedToOthers) {
  const TemporaryFolder folder;
  files.MakePrivateFolder(folder.At("North/private"));

  SECURITY_DESCRIPTOR* facts = nullptr;
  const std::wstring path = WideText(folder.At("North/private"));
  DWORD size = 0;
  GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<std::byte> bytes(size);
  ASSERT_TRUE(GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, bytes.data(), size, &size));
  wchar_t* text = nullptr;
  facts = reinterpret_cast<SECURITY_DESCRIPTOR*>(bytes.data());
  ASSERT_TRUE(ConvertSecurityDescriptorToStringSecurityDescriptorW(facts, SDDL_REVISION_1, DACL_SECURITY_INFORMATION,
                                                                   &text, nullptr));
  const std::string permissions = Utf8Text(text);
  LocalFree(text);

  for (const char* everybody : {";;;WD)", ";;;BU)", ";;;AU)"}) {
    EXPECT_THAT(permissions, testing::Not(testing::HasSubstr(everybody)));
  }
}

// The system would stop the program with a box when a drive has no disk.
TEST(WindowsProgram, GetsAnErrorInsteadOfABoxOfTheSystem) {
  PrepareProgram();

  EXPECT_NE(GetErrorMode() & SEM_FAILCRITICALERRORS, 0U);
}

}  // namespace
}  // namespace orby::test
