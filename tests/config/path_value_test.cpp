// Recent files and folders whose names are not UTF-8 or would not read back unchanged.
#include "config/path_value.h"

#include <gmock/gmock.h>

#include "config/settings_sections.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::HasSubstr;

TEST(PathValue, IsAnOrdinaryPathUnchanged) {
  for (const char* path : {"", "/designs/north mains.ORB", "/designs/\xC3\xBC\xE2\x82\xAC.ORB", "panel.ORB",
                           "/100% coal;=[x].ORB", "/quote\"d.ORB", "C:\\Mine\\panel.ORB"}) {
    EXPECT_EQ(ValueFromPath(path), path);
    EXPECT_EQ(PathFromValue(path), path);
  }
}

TEST(PathValue, EscapesBytesThatAreNotUtf8) {
  EXPECT_EQ(ValueFromPath("/fl\xF6z/\xC3\xBC 5%.ORB"), "file:/fl%F6z/\xC3\xBC%205%25.ORB");
  EXPECT_EQ(ValueFromPath("\xC3"), "file:%C3");
  EXPECT_EQ(ValueFromPath("\xE2\x82x"), "file:%E2%82x");
}

TEST(PathValue, EscapesBlanksAndQuotesAtTheEndsAndAPrefixOfItsOwn) {
  EXPECT_EQ(ValueFromPath("/panel.ORB "), "file:/panel.ORB%20");
  EXPECT_EQ(ValueFromPath("'panel'"), "file:%27panel%27");
  EXPECT_EQ(ValueFromPath("/two\nlines"), "file:/two%0Alines");
  EXPECT_EQ(ValueFromPath("file:x"), "file:file:x");
}

TEST(PathValue, ReadsBackAsTheSamePath) {
  std::string every = "/";
  for (int byte = 1; byte < 256; ++byte) every.push_back(static_cast<char>(byte));
  for (const std::string& path : {every, std::string("file:"), std::string("file:%41"), std::string("%41"),
                                  std::string("\xFF%"), std::string(" "), std::string("\t/x")}) {
    EXPECT_EQ(PathFromValue(ValueFromPath(path)), path);
  }
}

TEST(PathValue, ReadsAnInvalidEscapeAsText) {
  EXPECT_EQ(PathFromValue("file:/5%"), "/5%");
  EXPECT_EQ(PathFromValue("file:/5%G1%2"), "/5%G1%2");
  EXPECT_EQ(PathFromValue("file:/5%-1x"), "/5%-1x");
}

struct RecentFilesOfTheConfiguration : testing::Test {
  RecentFilesOfTheConfiguration() { program.session.IniFilePath = "/data/ORBY.INI"; }

  void Enter(Integer place, const std::string& path) {
    program.session.recentFiles.MaxLastFiles = static_cast<Integer>(place + 1);
    program.session.recentFiles.Entries[static_cast<std::size_t>(place)] = {path, 0, path};
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
};

TEST_F(RecentFilesOfTheConfiguration, KeepTheirAccentsBesideANameThatIsNotUtf8) {
  Enter(0, "/designs/fl\xF6z.ORB");
  Enter(1,
        "/designs/\xC3\xBC"
        "berbau.ORB");
  Enter(2, "/designs/\xE2\x82\xAC.ORB");
  Program next(platform.AsPlatform());

  WriteDefaults(program, StoredSettings::FileMenu);
  ReadSettings(next, ReadIniFile(program, program.session.IniFilePath), StoredSettings::FileMenu);

  EXPECT_EQ(next.session.recentFiles.Entries[0].LastFileLong, "/designs/fl\xF6z.ORB");
  EXPECT_EQ(next.session.recentFiles.Entries[0].LastFile, "/designs/fl\xF6z.ORB");
  EXPECT_EQ(next.session.recentFiles.Entries[1].LastFileLong,
            "/designs/\xC3\xBC"
            "berbau.ORB");
  EXPECT_EQ(next.session.recentFiles.Entries[2].LastFileLong, "/designs/\xE2\x82\xAC.ORB");
}

TEST_F(RecentFilesOfTheConfiguration, AreWrittenInAReadableForm) {
  Enter(0, "/designs/fl\xF6z.ORB");
  Enter(1, "/designs/panel.ORB");

  WriteDefaults(program, StoredSettings::FileMenu);

  EXPECT_THAT(platform.files.files["/data/ORBY.INI"],
              HasSubstr("LastFile1=file:/designs/fl%F6z.ORB\r\nLastFileMode1=0\r\n"
                        "LastFileLong1=file:/designs/fl%F6z.ORB\r\nLastFile2=/designs/panel.ORB\r\n"));
}

TEST_F(RecentFilesOfTheConfiguration, ReadBackWithADataPathThatIsNotUtf8) {
  program.session.settings.DataPath = "/fl\xF6z/";
  platform.files.folders.insert("/fl\xF6z");
  platform.files.files["/fl\xF6z/"] = {};
  program.session.settings.ExternalEditor = "/opt/\xC3\xBC";
  Program next(platform.AsPlatform());

  WriteDefaults(program, StoredSettings::Settings);
  ReadSettings(next, ReadIniFile(program, program.session.IniFilePath), StoredSettings::Settings);

  EXPECT_EQ(next.session.settings.DataPath, "/fl\xF6z/");
  EXPECT_EQ(next.session.settings.ExternalEditor, "/opt/\xC3\xBC");
}

}  // namespace
}  // namespace orby::test
