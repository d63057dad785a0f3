// Reading and editing the text of a configuration file.
#include <gmock/gmock.h>
#include <rapidcheck.h>

#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "config/ini_file.h"

namespace orby::test {
namespace {

using std::string_literals::operator""s;

std::string Edited(const std::string& bytes, std::string_view section, std::string_view key, std::string_view value) {
  IniText ini = IniText::FromFileBytes(bytes);
  ini.Write(section, key, value);
  return ini.FileBytes();
}

IniText WithValue(const std::string& value) { return IniText("[Settings]\r\nKey=" + value + "\r\n"); }

TEST(IniText, ATextThatIsNotEditedKeepsEveryByte) {
  const std::string untidy = "x\r\n\r\n [ A ] ;note\n\ta = \"1\" \r\rb\n;c=3\n[A]\na=2";
  const IniText ini = IniText::FromFileBytes(untidy);

  EXPECT_FALSE(ini.IsChanged());
  EXPECT_EQ(ini.FileBytes(), untidy);
}

TEST(IniText, AWriteChangesOnlyTheLineOfTheKey) {
  const std::string before = "; mine\n\n[Settings]\n  DefaultUnits = 0 \n\n# note\nMaxMainMenu=1\n[Other]\nx = 1";

  EXPECT_EQ(Edited(before, "Settings", "DefaultUnits", "1"),
            "; mine\n\n[Settings]\nDefaultUnits=1\r\n\n# note\nMaxMainMenu=1\n[Other]\nx = 1");
}

TEST(IniText, ANewKeyFollowsTheLastKeyOfItsSectionBeforeCommentsAndBlankLines) {
  const std::string before = "[A]\r\na=1\r\n; about b\r\nb=2\r\n\r\n; about B\r\n[B]\r\nc=3\r\n";

  EXPECT_EQ(Edited(before, "A", "new", "4"),
            "[A]\r\na=1\r\n; about b\r\nb=2\r\nnew=4\r\n\r\n; about B\r\n[B]\r\nc=3\r\n");
}

TEST(IniText, ANewKeyOfASectionWithoutKeysFollowsTheSectionLine) {
  EXPECT_EQ(Edited("[A]\r\n; nothing yet\r\n", "A", "a", "1"), "[A]\r\na=1\r\n; nothing yet\r\n");
}

TEST(IniText, ANewSectionIsTheLastAlsoAfterCommentsAndBlankLines) {
  EXPECT_EQ(Edited("[A]\r\na=1\r\n\r\n; end", "B", "b", "2"), "[A]\r\na=1\r\n\r\n; end\r\n[B]\r\nb=2\r\n");
}

TEST(IniText, SeveralEditsOfOneTextAllTakeEffect) {
  IniText ini("[A]\r\na=1");

  ini.Write("B", "b", "2");
  ini.Write("A", "c", "3");
  ini.Write("A", "a", "4");
  ini.Write("b", "B", "5");
  ini.Write("A", "d", "6");

  EXPECT_EQ(ini.Text(), "[A]\r\na=4\r\nc=3\r\nd=6\r\n[B]\r\nb=5\r\n");
  EXPECT_EQ(ini.Find("A", "c"), "3");
  EXPECT_EQ(ini.Find("B", "b"), "5");
}

TEST(IniText, AMovedTextCanBeReadAndEdited) {
  IniText first("[A]\r\na=1\r\n");

  IniText second(std::move(first));
  second.Write("A", "b", "2");

  EXPECT_EQ(second.Find("A", "a"), "1");
  EXPECT_EQ(second.Text(), "[A]\r\na=1\r\nb=2\r\n");
}

TEST(IniText, TheFirstOfTwoEqualKeysIsReadAndWritten) {
  IniText ini("[A]\r\nk=1\r\nK=2\r\n");

  ini.Write("A", "k", "9");

  EXPECT_EQ(ini.Find("A", "K"), "9");
  EXPECT_EQ(ini.Text(), "[A]\r\nk=9\r\nK=2\r\n");
}

TEST(IniText, ASecondSectionOfTheSameNameIsNeitherReadNorWritten) {
  IniText ini("[A]\r\na=1\r\n[B]\r\n[a]\r\nc=2\r\n");

  const auto before = ini.Find("A", "c");
  ini.Write("A", "c", "3");

  EXPECT_EQ(before, std::nullopt);
  EXPECT_EQ(ini.Text(), "[A]\r\na=1\r\nc=3\r\n[B]\r\n[a]\r\nc=2\r\n");
}

TEST(IniText, AKeyIsFoundByANameWithBlanksAroundIt) {
  const IniText ini("[Graph]\r\nSymbolSize=6\r\n");

  EXPECT_EQ(ini.Find("Graph", "SymbolSize "), "6");
  EXPECT_EQ(ini.Find(" graph\t", " SYMBOLSIZE\t"), "6");
  EXPECT_EQ(ini.Find("Graph", "Symbol Size"), std::nullopt);
}

TEST(IniText, ANameIsWrittenWithoutTheBlanksAroundIt) {
  EXPECT_EQ(Edited("", " Graph ", "SymbolSize ", "6"), "[Graph]\r\nSymbolSize=6\r\n");
}

TEST(IniText, ACommentIsNotAKey) {
  const IniText ini("[A]\r\n;a=1\r\n  ; b=2\r\n");

  EXPECT_EQ(ini.Find("A", "a"), std::nullopt);
  EXPECT_EQ(ini.Find("A", ";a"), std::nullopt);
  EXPECT_EQ(ini.Find("A", "b"), std::nullopt);
}

TEST(IniText, LinesBeforeTheFirstSectionBelongToTheEmptySection) {
  EXPECT_EQ(IniText("a=0\r\n[A]\r\nb=1\r\n").Find("A", "a"), std::nullopt);
  EXPECT_EQ(Edited("; top\r\n[A]\r\n", "", "a", "0"), "a=0\r\n; top\r\n[A]\r\n");
}

TEST(IniText, AByteOrderMarkHidesNoSectionAndStaysFirst) {
  const std::string before = "\xEF\xBB\xBF[A]\r\na=1\r\n";

  EXPECT_EQ(IniText::FromFileBytes(before).Find("A", "a"), "1");
  EXPECT_EQ(Edited(before, "A", "a", "2"), "\xEF\xBB\xBF[A]\r\na=2\r\n");
}

TEST(IniText, AFileInWindows1252StaysInWindows1252) {
  IniText ini = IniText::FromFileBytes("[Graph]\r\nGraphTitle=Caf\xE9\r\n");

  const std::string title = ReadIniValue(ini, "Graph", "GraphTitle");
  ini.Write("Graph", "XAxisTitle0", "Slope (\xC2\xB0)");

  EXPECT_EQ(title, "Caf\xC3\xA9");
  EXPECT_EQ(ini.FileBytes(), "[Graph]\r\nGraphTitle=Caf\xE9\r\nXAxisTitle0=Slope (\xB0)\r\n");
}

TEST(IniText, AValueOutsideWindows1252ConvertsTheFileToUtf8) {
  IniText ini = IniText::FromFileBytes("[Graph]\r\nGraphTitle=Caf\xE9\r\n");

  ini.Write("Graph", "XAxisTitle0", "\xCE\xA3");

  EXPECT_EQ(ini.FileBytes(), "[Graph]\r\nGraphTitle=Caf\xC3\xA9\r\nXAxisTitle0=\xCE\xA3\r\n");
  EXPECT_EQ(ReadIniValue(IniText::FromFileBytes(ini.FileBytes()), "Graph", "GraphTitle"), "Caf\xC3\xA9");
}

TEST(IniText, AnEqualValueDoesNotChangeTheText) {
  IniText ini("[A]\r\n  a = 1 \r\n");

  ini.Write("A", "a", "1");

  EXPECT_FALSE(ini.IsChanged());
  EXPECT_EQ(ini.Text(), "[A]\r\n  a = 1 \r\n");
}

TEST(IniText, AValueEndsAtItsFirstLineEnd) {
  EXPECT_EQ(Edited("[A]\r\na=1\r\n", "A", "a", "2\r\n[B]\r\nb=3"), "[A]\r\na=2\r\n");
}

TEST(IniValues, ATextIsCutAfter254CharactersNotBytes) {
  std::string degrees;
  for (int i = 0; i < 300; ++i) degrees += "\xC2\xB0";
  const IniText ini = WithValue("\"" + degrees + "\"");

  const std::string value = ReadIniValue(ini, "Settings", "Key");

  EXPECT_EQ(value.size(), 508U);
  EXPECT_EQ(value, degrees.substr(0, 508));
}

TEST(IniValues, TheDefaultReplacesAMissingOrEmptyValue) {
  EXPECT_EQ(ReadIniValue(WithValue("on"), "Settings", "Key", "1"), "on");
  EXPECT_EQ(ReadIniValue(WithValue("on"), "Settings", "CopyExampleFiles", "1"), "1");
  EXPECT_EQ(ReadIniValue(WithValue("  "), "Settings", "Key", "1"), "1");
  EXPECT_EQ(ReadIniValue(WithValue("\"\""), "Settings", "Key", "1"), "1");
  EXPECT_EQ(ReadIniValue(WithValue(""), "Settings", "Key"), "");
  EXPECT_EQ(ReadIniInteger(WithValue(""), "Settings", "CopyExampleFiles", IniRange{0, 1}, "1"), 1);
}

TEST(IniValues, AnIntegerWithoutARangeRoundsTiesToEvenAndIsZeroBeyond16Bits) {
  const auto read = [](const std::string& value) { return ReadIniInteger(WithValue(value), "Settings", "Key"); };

  EXPECT_EQ(read("7"), 7);
  EXPECT_EQ(read("2.5"), 2);
  EXPECT_EQ(read("3.5"), 4);
  EXPECT_EQ(read("-1"), -1);
  EXPECT_EQ(read("12 bolts"), 12);
  EXPECT_EQ(read("bolts"), 0);
  EXPECT_EQ(read("32767.4"), 32767);
  EXPECT_EQ(read("32767.5"), 0);
  EXPECT_EQ(read("-32768.5"), -32768);
  EXPECT_EQ(read("-32769"), 0);
  EXPECT_EQ(read("1E300"), 0);
  EXPECT_EQ(read("1E999"), 0);
}

TEST(IniValues, AnIntegerOutsideItsRangeIsTheMinimum) {
  const auto read = [](const std::string& value, IniRange range) {
    return ReadIniInteger(WithValue(value), "Settings", "Key", range);
  };
  const IniRange fontSize{7, 24};
  const IniRange flag{-1, 0};

  EXPECT_EQ(read("10.5", fontSize), 10);
  EXPECT_EQ(read("24.5", fontSize), 24);
  EXPECT_EQ(read("100", fontSize), 7);
  EXPECT_EQ(read("40000", fontSize), 7);
  EXPECT_EQ(read("-1E300", fontSize), 7);
  EXPECT_EQ(read("", fontSize), 7);
  EXPECT_EQ(read("-1", flag), -1);
  EXPECT_EQ(read("1", flag), -1);
  EXPECT_EQ(read("99999", flag), -1);
  EXPECT_EQ(read("1E999", flag), -1);
  EXPECT_EQ(read("-1E999", flag), -1);
  EXPECT_EQ(read("1E999", fontSize), 7);
}

TEST(IniValues, ASingleBeyondItsRangeIsZero) {
  const auto read = [](const std::string& value) { return ReadIniSingle(WithValue(value), "Settings", "Key"); };

  EXPECT_EQ(read("6.2"), 6.2F);
  EXPECT_EQ(read(".75"), 0.75F);
  EXPECT_EQ(read("1E39"), 0);
  EXPECT_EQ(read("1E999"), 0);
  EXPECT_EQ(read("-1E999"), 0);
  EXPECT_EQ(read("none"), 0);
}

TEST(IniValues, AValueOfEachTypeIsWrittenAsItsText) {
  IniText ini;

  WriteIniValue(ini, "A", "text", "C:\\Mine");
  WriteIniValue(ini, "A", "string", "B"s);
  WriteIniValue(ini, "A", "whole", 201030);
  WriteIniValue(ini, "A", "integer", Integer{-12});
  WriteIniValue(ini, "A", "single", Single{0.1F});
  WriteIniValue(ini, "A", "small", Single{1.0F / 30.0F});
  WriteIniValue(ini, "A", "yes", true);
  WriteIniValue(ini, "A", "no", false);

  EXPECT_EQ(ini.Text(),
            "[A]\r\ntext=C:\\Mine\r\nstring=B\r\nwhole=201030\r\ninteger=-12\r\nsingle=0.1\r\n"
            "small=3.333334E-02\r\nyes=-1\r\nno=0\r\n");
}

TEST(IniText, ALongLineIsOneValue) {
  const std::string line(4'000'000, 'x');
  const IniText ini("[A]\r\na=" + line + "\r\nb=1\r\n");

  EXPECT_EQ(ini.Find("A", "a"), line);
  EXPECT_EQ(ReadIniValue(ini, "A", "a"), std::string(254, 'x'));
  EXPECT_EQ(ini.Find("A", "b"), "1");
}

// This test takes minutes if a look-up or an edit reads all lines.
TEST(IniText, ManyKeysAreReadAndWrittenQuickly) {
  constexpr int Count = 100'000;
  std::string bytes = "[A]\r\n";
  for (int i = 0; i < Count; ++i) bytes += "key" + std::to_string(i) + "=" + std::to_string(i) + "\r\n";
  IniText ini(bytes + "[B]\r\n");

  int found = 0;
  for (int i = 0; i < Count; ++i) {
    const std::string key = "KEY" + std::to_string(i);
    if (ini.Find("a", key) == std::to_string(i)) ++found;
    ini.Write("B", key, "1");
    ini.Write("A", key, "2");
  }

  EXPECT_EQ(found, Count);
  EXPECT_EQ(ini.Find("A", "key99999"), "2");
  EXPECT_EQ(ini.Text().substr(0, 13), "[A]\r\nkey0=2\r\n");
  EXPECT_NE(ini.Text().find("key99999=2\r\n[B]\r\nKEY0=1\r\nKEY1=1\r\n"), std::string::npos);
}

TEST(IniText, AWrittenValueReadsBackInAnyFile) {
  EXPECT_TRUE(rc::check([](const std::string& bytes) {
    IniText ini = IniText::FromFileBytes(bytes);

    ini.Write("Settings", "DataPath", "C:\\Mine");

    const IniText reread(ini.Text());
    RC_ASSERT(reread.Find("SETTINGS", "datapath") == "C:\\Mine");
    RC_ASSERT(reread.Text() == ini.Text());
  }));
}

TEST(IniKeys, AreThoseOfTheSection) {
  IniText ini("[Windows]\nfrmMain=1\n[Other]\nfrmSet=2\n[windows]\nfrmFont=3\n");
  ini.Write("Windows", "frmGraph", "4");

  EXPECT_THAT(ini.Keys("WINDOWS"), testing::UnorderedElementsAre("frmMain", "frmGraph"));
  EXPECT_THAT(ini.Keys("Missing"), testing::IsEmpty());
}

}  // namespace
}  // namespace orby::test
