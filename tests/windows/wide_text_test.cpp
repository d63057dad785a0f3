#include "windows/wide_text.h"

#include <gmock/gmock.h>

#include <string>

#include "base/runtime_error.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

int ErrorOf(const std::string& path) {
  return ErrorNumberOf([&] { static_cast<void>(WidePath(path)); });
}

TEST(WideText, LettersOfEveryScriptComeBack) {
  const std::string text = "Stollen \xC3\xA4 \xD0\x96 \xE4\xB8\xAD \xF0\x9F\x98\x80";

  EXPECT_EQ(WideText("\xC3\xA4\xD0\x96"), L"\u00E4\u0416");
  EXPECT_EQ(Utf8Text(WideText(text)), text);
}

TEST(WidePath, ShortPathsStayAsTheyAre) {
  EXPECT_EQ(WidePath("C:\\Mine\\North Section.ORB"), L"C:\\Mine\\North Section.ORB");
  EXPECT_EQ(WidePath("panel.ORB"), L"panel.ORB");
}

TEST(WidePath, LongPathsGetThePrefixThatLiftsTheLimit) {
  const std::string path = std::string(150, 'f') + "\\" + std::string(150, 'n');

  EXPECT_EQ(WidePath("C:\\Mine\\..\\" + path), L"\\\\?\\C:\\" + WideText(path));
  EXPECT_EQ(WidePath("\\\\server\\plans\\" + path), L"\\\\?\\UNC\\server\\plans\\" + WideText(path));
}

TEST(WidePath, NamesOfDevicesAreBadFileNames) {
  for (const char* path : {"NUL", "C:\\Mine\\nul.orb", "COM1", "lpt9.ORB", "Mine/con", "aux .txt", "C:nul",
                           "LPT\xC2\xB2.txt", "NUL:", "\\\\.\\C:", "//./pipe/plans"}) {
    EXPECT_EQ(ErrorOf(path), error_number::BadFileName) << path;
  }
}

TEST(WidePath, NamesThatOnlyResembleDevicesAreAccepted) {
  for (const char* path : {"NULL.orb", "COM10", "C:\\CON2\\panel.orb", "LPT", "COM1a"})
    EXPECT_EQ(ErrorOf(path), 0) << path;
}

TEST(WidePath, NamesThatWindowsWouldChangeAreBadFileNames) {
  EXPECT_EQ(ErrorOf("panel.orb."), error_number::BadFileName);
  EXPECT_EQ(ErrorOf("panel.orb "), error_number::BadFileName);
  EXPECT_EQ(ErrorOf(".."), 0);
}

TEST(WidePath, NamesWithAColonAreBadFileNames) {
  EXPECT_EQ(ErrorOf("C:\\Mine\\panel.orb:old"), error_number::BadFileName);
  EXPECT_EQ(ErrorOf("panel:3.orb"), error_number::BadFileName);
  EXPECT_EQ(ErrorOf("C:panel.orb"), 0);
  EXPECT_EQ(ErrorOf("C:"), 0);
  EXPECT_EQ(ErrorOf("C:\\"), 0);
}

TEST(WidePath, AFileHasANameBelowItsFolderOrDrive) {
  EXPECT_EQ(WithoutFolder("C:\\Mine\\panel.orb"), "panel.orb");
  EXPECT_EQ(FolderOf("C:\\Mine\\panel.orb"), "C:\\Mine\\");
  EXPECT_EQ(WithoutFolder("C:panel.orb"), "panel.orb");
  EXPECT_EQ(FolderOf("C:panel.orb"), "C:");
  EXPECT_EQ(WithoutFolder("panel.orb"), "panel.orb");
  EXPECT_EQ(FolderOf("panel.orb"), "");
}

TEST(WidePath, NamesOfMoreThan255CharactersAreBadFileNames) {
  const std::string longest = "C:\\" + std::string(254, 'x') + "\xC3\xA4";

  EXPECT_EQ(ErrorOf(longest), 0);
  EXPECT_EQ(ErrorOf(longest + "x"), error_number::BadFileName);
}

TEST(WidePath, EmptyNamesAndNamesWithANulAreBadFileNames) {
  EXPECT_EQ(ErrorOf(""), error_number::BadFileName);
  EXPECT_EQ(ErrorOf(std::string("a\0b", 3)), error_number::BadFileName);
}

}  // namespace
}  // namespace orby::test
