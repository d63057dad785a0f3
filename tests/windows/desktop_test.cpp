#include "machine/desktop.h"

#include <gmock/gmock.h>

#include <string>

#include "machine/disk_files.h"
#include "windows/system.h"
#include "windows/wide_text.h"

namespace orby::test {
namespace {

constexpr DWORD BetweenLooks = 20;  // milliseconds
constexpr int MostLooks = 1000;

void SetClass(const std::string& key, const std::string& value) {
  const std::wstring path = WideText(key);
  const std::wstring text = WideText(value);
  RegSetKeyValueW(HKEY_CLASSES_ROOT, path.c_str(), nullptr, REG_SZ, text.c_str(),
                  static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

// A type of file, and a file of this type.
struct TypeOfFile : testing::Test {
  ~TypeOfFile() override {
    for (const wchar_t* key : {L".orbt", L".xlsx", L"Orbt"}) {
      RegDeleteTreeW(HKEY_CLASSES_ROOT, key);
    }
    for (const std::string& name : {file, opened}) DeleteFileW(WidePath(name).c_str());
  }

  // Gives the extension a program, which copies the file that it opens.
  static void AddProgram(const std::string& extension) {
    SetClass(extension, "Orbt");
    SetClass("Orbt\\shell\\open\\command", "cmd.exe /c copy \"%1\" \"%1.opened\"");
  }

  bool IsOpened() {
    for (int look = 0; look < MostLooks && files.Find(opened) != Found::File; ++look) Sleep(BetweenLooks);
    return files.Find(opened) == Found::File;
  }

  DiskFiles files{"C:\\Mine Tools"};
  std::string file = files.TemporaryFolder() + "\\north \xC3\xA4 section.orbt";
  std::string opened = file + ".opened";
};

TEST_F(TypeOfFile, AFileIsOpenedByTheProgramOfItsType) {
  AddProgram(".orbt");
  files.ReplaceFile(file, "plan");

  EXPECT_TRUE(OpenOnDesktop(file));
  EXPECT_TRUE(IsOpened());
}

TEST_F(TypeOfFile, AFileWithoutAProgramIsNotOpened) {
  files.ReplaceFile(file, "plan");

  EXPECT_FALSE(OpenOnDesktop(file));
}

TEST_F(TypeOfFile, AMissingFileIsNotOpened) { EXPECT_FALSE(OpenOnDesktop("C:\\none\\missing.orbt")); }

TEST_F(TypeOfFile, ASpreadsheetNeedsAProgram) {
  EXPECT_FALSE(OpensSpreadsheets());

  AddProgram(".xlsx");

  EXPECT_TRUE(OpensSpreadsheets());
}

}  // namespace
}  // namespace orby::test
