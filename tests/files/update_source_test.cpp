#include "files/update_source.h"

#include "support/update_fixture.h"

namespace orby::test {
namespace {

std::string VersionIn(std::string_view bytes) {
  const auto offered = ReadVersionFile(bytes);
  return offered ? offered->version : "nothing";
}

std::string SumIn(std::string_view bytes) {
  const auto offered = ReadVersionFile(bytes);
  return offered ? offered->sha256 : "nothing";
}

TEST(VersionFile, HoldsTheVersionUpToTheFirstCommaOrLineEnd) {
  EXPECT_EQ(VersionIn("1.0.01"), "1.0.01");
  EXPECT_EQ(VersionIn("1.0.01\r\n"), "1.0.01");
  EXPECT_EQ(VersionIn("1.0.01\n"), "1.0.01");
  EXPECT_EQ(VersionIn("1.0.01\r"), "1.0.01");
  EXPECT_EQ(VersionIn("1.0.01,"), "1.0.01");
  EXPECT_EQ(VersionIn("1.0.01," + SumOfSetup + "\r\nmore"), "1.0.01");
  EXPECT_EQ(VersionIn("2"), "2");
}

TEST(VersionFile, HasTheChecksumOfTheSetupFileInItsSecondField) {
  EXPECT_EQ(SumIn("1.0.01," + SumOfSetup), SumOfSetup);
  EXPECT_EQ(SumIn("1.0.01," + SumOfSetup + "\r\n"), SumOfSetup);
  EXPECT_EQ(SumIn("1.0.01, " + SumOfSetup + " ,05-Jul-2023"), SumOfSetup);
  EXPECT_EQ(SumIn("1.0.01\r\n" + SumOfSetup + "\r\n"), SumOfSetup);
}

TEST(VersionFile, AcceptsAChecksumInAnyCase) {
  const std::string digits = "0123456789abcdef0123456789ABCDEF0123456789abcdef0123456789ABCDEF";

  EXPECT_EQ(SumIn("1.0.01," + digits), digits);
  for (const char neighbour : {'/', ':', '@', 'G', '`', 'g'}) {
    EXPECT_EQ(SumIn("1.0.01," + digits.substr(1) + neighbour), "") << neighbour;
  }
}

TEST(VersionFile, AcceptsAVersionOfLettersDigitsAndFourSigns) {
  EXPECT_EQ(VersionIn("09.azAZ-rc_1+2"), "09.azAZ-rc_1+2");
  for (const char* bytes : {"1/", "1:", "1@", "1[", "1`", "1{"}) EXPECT_EQ(VersionIn(bytes), "nothing") << bytes;
}

TEST(VersionFile, MayLackTheChecksum) {
  EXPECT_EQ(SumIn("1.0.01\r\n"), "");
  EXPECT_EQ(SumIn("1.0.01,\r\n"), "");
}

TEST(VersionFile, MayHaveRemarksAfterTheVersion) {
  EXPECT_EQ(VersionIn("1.0.01\r\nMends the printing of curves, and more.\r\n"), "1.0.01");
  EXPECT_EQ(SumIn("1.0.01\r\nMends the printing of curves, and more.\r\n"), "");
  EXPECT_EQ(SumIn("1.0.01," + SumOfSetup + "\r\nMends the printing of curves.\r\n"), SumOfSetup);
}

TEST(VersionFile, IsInvalidIfItIsEmpty) {
  for (const char* bytes : {"", "\n", "\r\n", ",", ",1.0.01", "\r\n1.0.01"}) EXPECT_EQ(VersionIn(bytes), "nothing");
}

TEST(VersionFile, IsInvalidIfItsVersionIsNotSafeInAFileName) {
  for (const char* bytes : {"../1.0.01", "1/2", "1\\2", "1..2", "..", "1.0.01\x1B", "1.0\t1", "1.0 1", "1\"0", "~",
                            "1:2", "1%2F2", "1?x", "1#x", "<html>", "\"../1\"", "1.0.0\xC3\xA4", "1\xEF\xBB\xBF"}) {
    EXPECT_EQ(VersionIn(bytes), "nothing") << bytes;
  }
  EXPECT_EQ(VersionIn(std::string_view("1.0\0.01", 7)), "nothing");
  EXPECT_EQ(VersionIn(std::string(64, '1')), std::string(64, '1'));
  EXPECT_EQ(VersionIn(std::string(65, '1')), "nothing");
}

TEST(VersionFile, MayHaveSpacesQuotesAndAByteOrderMarkAroundTheVersion) {
  for (const char* bytes : {"1.0.01 ", " 1.0.01\r\n", "\t1.0.01\t,", "\"1.0.01\"", "'1.0.01'\r\n", " \" 1.0.01 \" ",
                            "\xEF\xBB\xBF"
                            "1.0.01\r\n",
                            "\xEF\xBB\xBF \"1.0.01\"\r\n"}) {
    EXPECT_EQ(VersionIn(bytes), "1.0.01") << bytes;
  }
  EXPECT_EQ(SumIn("\xEF\xBB\xBF\"1.0.01\",\"" + SumOfSetup + "\"\r\n"), SumOfSetup);
}

TEST(VersionFile, MayHaveASecondFieldThatIsNoChecksum) {
  for (const std::string& field : {std::string("9f86d0"), SumOfSetup + "0", "g" + SumOfSetup.substr(1)}) {
    const auto offered = ReadVersionFile("1.0.01," + field + "\r\n");

    ASSERT_TRUE(offered);
    EXPECT_EQ(offered->version, "1.0.01");
    EXPECT_EQ(offered->sha256, "");
    EXPECT_TRUE(offered->hasOtherField);
  }
  EXPECT_EQ(SumIn("1.0.01,05-Jul-2024\r\n" + SumOfSetup), SumOfSetup);
  EXPECT_FALSE(ReadVersionFile("1.0.01," + SumOfSetup)->hasOtherField);
  EXPECT_FALSE(ReadVersionFile("1.0.01,\r\nRemarks")->hasOtherField);
}

TEST(OfferedVersions, AreComparedAsTexts) {
  EXPECT_TRUE(IsNewer({"1.0.01", {}, false}));
  EXPECT_TRUE(IsNewer({"1.0.1", {}, false}));
  EXPECT_TRUE(IsNewer({"9", {}, false}));
  EXPECT_TRUE(IsNewer({"1.0.00b", {}, false}));
  EXPECT_TRUE(IsNewer({"v1", {}, false}));
  EXPECT_FALSE(IsNewer({"1.0.00", {}, false}));
  EXPECT_FALSE(IsNewer({"1.0.0", {}, false}));
  EXPECT_FALSE(IsNewer({"0.9.99", {}, false}));
  EXPECT_FALSE(IsNewer({"1", {}, false}));
  EXPECT_FALSE(IsNewer({"1.0.+5", {}, false}));
}

struct UpdatePlaces : UpdateTest {};

TEST_F(UpdatePlaces, AreOnTheServer) {
  EXPECT_TRUE(HasUpdateServer(program.session));
  EXPECT_EQ(VersionFileAddress(program.session),
            "https://updates.example.org/wp-content/uploads/2020/04/orby_version.txt");
  EXPECT_EQ(SetupFileAddress(program.session, "1.0.01"),
            "https://updates.example.org/wp-content/uploads/2020/04/ORBY1.0.01.exe");
  EXPECT_EQ(WebPageAddress(program.session), "https://updates.example.org/roof-support/");
}

TEST_F(UpdatePlaces, AreTheSameWithASlashAfterTheServer) {
  program.session.UpdateServer = "https://updates.example.org/";

  EXPECT_EQ(WebPageAddress(program.session), "https://updates.example.org/roof-support/");
}

TEST_F(UpdatePlaces, AreMissingWithoutAServer) {
  program.session.UpdateServer.clear();

  EXPECT_FALSE(HasUpdateServer(program.session));
}

TEST_F(UpdatePlaces, AreInTheProgramsAndTheUsersFolders) {
  EXPECT_EQ(VersionFilePath(program.session), "/home/user/Documents/MyStrataDesk/ORBY/orby_version.txt");
  EXPECT_EQ(DownloadFolder(program.session), "/home/user/Downloads/");
  EXPECT_EQ(SetupFilePath(program.session, "1.0.01"), "/home/user/Downloads/ORBY1.0.01.exe");
}

}  // namespace
}  // namespace orby::test
