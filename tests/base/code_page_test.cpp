#include "base/code_page.h"

#include <gtest/gtest.h>

#include <string>

#include "base/text.h"

namespace orby {
namespace {

std::string AllBytes() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
  return bytes;
}

TEST(CodePage, EveryByteBecomesOneCharacterAndConvertsBack) {
  const std::string text = TextFromFileBytes(AllBytes());

  EXPECT_TRUE(IsValidUtf8(text));
  EXPECT_EQ(CharacterCount(text), 256U);
  EXPECT_EQ(FileBytesFromText(text), AllBytes());
}

TEST(CodePage, TheUpperBytesStandForTheirCharacters) {
  EXPECT_EQ(TextFromCodePage("\x80"), "€");
  EXPECT_EQ(TextFromCodePage("\x96\x97"), "–—");
  EXPECT_EQ(TextFromCodePage("\x9F"), "Ÿ");
  EXPECT_EQ(TextFromCodePage("\xA0"), "\xC2\xA0");
  EXPECT_EQ(TextFromCodePage("\xE4\xF6\xFC\xDF\xFF"), "äöüßÿ");
}

TEST(CodePage, TheFiveUnassignedBytesKeepTheirNumber) {
  EXPECT_EQ(TextFromCodePage("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
  EXPECT_EQ(FileBytesFromText("\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D"), "\x81\x8D\x8F\x90\x9D");
}

TEST(CodePage, AControlCharacterWhoseByteIsAnotherCharacterHasNoByte) {
  EXPECT_EQ(FileBytesFromText("\xC2\x80"), "\xC2\x80");
}

TEST(FileBytes, Utf8StaysAsItIs) {
  EXPECT_EQ(TextFromFileBytes("Förderstrecke 北"), "Förderstrecke 北");
  EXPECT_EQ(TextFromFileBytes(""), "");
}

TEST(FileBytes, BytesThatAreNotUtf8AreReadAsWindows1252) {
  EXPECT_EQ(TextFromFileBytes("F\xF6rderstrecke"), "Förderstrecke");
  EXPECT_EQ(TextFromFileBytes("\xC3\xB6 and \xF6"), "Ã¶ and ö");
}

TEST(FileBytes, UmlautsAreWrittenInOneByte) {
  EXPECT_EQ(FileBytesFromText("Süd €"),
            "S\xFC"
            "d \x80");
}

TEST(FileBytes, ACharacterOutsideTheCodePageMakesTheWholeTextUtf8) { EXPECT_EQ(FileBytesFromText("Süd 北"), "Süd 北"); }

TEST(FileBytes, ATextThatIsNotUtf8IsWrittenUnchanged) { EXPECT_EQ(FileBytesFromText("a\xF6 b"), "a\xF6 b"); }

TEST(Utf8, WellFormedSequencesAreAccepted) {
  for (const char* text : {"", "plain", "0123456789abcdef", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xEF\xBF\xBF",
                           "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF", "sixteen bytes: ä"}) {
    EXPECT_TRUE(IsValidUtf8(text)) << text;
  }
}

TEST(Utf8, OverlongSurrogateCutAndStrayBytesAreRefused) {
  for (const char* text : {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xC2", "\xC2 ", "\xE0\x9F\xBF", "\xE4\xB8",
                           "\xED\xA0\x80", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xFF",
                           "eight by\xE4", "sixteen bytes: \xE4"}) {
    EXPECT_FALSE(IsValidUtf8(text)) << text;
  }
}

}  // namespace
}  // namespace orby
