#include "shell/recent_files.h"

#include <gmock/gmock.h>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

struct MenuForm : Form {
  MenuForm() : Form("frmMenu", "Menu") {}
  void OnOpen() override {}
  void OnClose() override {}

  ActionArray menu{*this, "mnuFileArray", {ActionArray::Separator, "1", "2", "3", "4"}};
};

struct RecentFileList : testing::Test {
  bool Enter(const std::string& path) {
    program.project.CurrentFile = path;
    program.windows.RecentMode = static_cast<Integer>(++mode);
    return EnterRecentFile(program);
  }

  // Returns the entries in use, each as "name|path|mode".
  std::vector<std::string> Entries() const {
    std::vector<std::string> entries;
    for (int i = 0; i < program.session.recentFiles.MaxLastFiles; ++i) {
      const auto& entry = program.session.recentFiles.Entries[static_cast<std::size_t>(i)];
      entries.push_back(entry.LastFile + "|" + entry.LastFileLong + "|" + std::to_string(entry.LastFileMode));
    }
    return entries;
  }

  // Returns the captions that the menu shows.
  std::vector<std::string> Shown() {
    ShowRecentFiles(program.session.recentFiles, form.menu);
    std::vector<std::string> captions;
    for (int i = 0; i < form.menu.Count(); ++i) {
      if (form.menu.ItemVisible(i)) captions.push_back(form.menu.Caption(i));
    }
    return captions;
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  MenuForm form;
  int mode = 0;
};

TEST_F(RecentFileList, IsHiddenWhileItIsEmpty) { EXPECT_THAT(Shown(), ElementsAre()); }

TEST_F(RecentFileList, BeginsWithTheNewestFile) {
  Enter("/a.orb");
  Enter("/b.orb");

  EXPECT_THAT(Entries(), ElementsAre("/b.orb|/b.orb|2", "/a.orb|/a.orb|1"));
  EXPECT_THAT(Shown(), ElementsAre("-", "/b.orb", "/a.orb"));
}

TEST_F(RecentFileList, DropsTheOldestForAFifthFile) {
  for (const char* path : {"/a.orb", "/b.orb", "/c.orb", "/d.orb", "/e.orb"}) Enter(path);

  EXPECT_THAT(Entries(), ElementsAre("/e.orb|/e.orb|5", "/d.orb|/d.orb|4", "/c.orb|/c.orb|3", "/b.orb|/b.orb|2"));
  EXPECT_THAT(Shown(), ElementsAre("-", "/e.orb", "/d.orb", "/c.orb", "/b.orb"));
}

TEST_F(RecentFileList, KeepsItsOrderIfTheFirstFileIsOpenedAgain) {
  for (const char* path : {"/a.orb", "/b.orb", "/b.orb"}) Enter(path);

  EXPECT_THAT(Entries(), ElementsAre("/b.orb|/b.orb|2", "/a.orb|/a.orb|1"));
}

TEST_F(RecentFileList, SwapsAFileOpenedAgainWithTheFirstOne) {
  for (const char* path : {"/a.orb", "/b.orb", "/c.orb", "/d.orb"}) Enter(path);

  Enter("/b.orb");

  EXPECT_THAT(Entries(), ElementsAre("/b.orb|/b.orb|2", "/c.orb|/c.orb|3", "/d.orb|/d.orb|4", "/a.orb|/a.orb|1"));
}

TEST_F(RecentFileList, ShowsShortNamesIfTheSettingsSaySo) {
  program.session.settings.ShortRecentFiles = 1;

  Enter("/north/panel.orb");

  EXPECT_THAT(Entries(), ElementsAre("panel.orb|/north/panel.orb|1"));
  EXPECT_THAT(Shown(), ElementsAre("-", "panel.orb"));
}

TEST_F(RecentFileList, TreatsFilesWithOneShortNameAsTheSame) {
  program.session.settings.ShortRecentFiles = 1;
  Enter("/north/panel.orb");
  Enter("/north/gate.orb");

  Enter("/south/panel.orb");

  EXPECT_THAT(Entries(), ElementsAre("panel.orb|/south/panel.orb|1", "gate.orb|/north/gate.orb|2"));
}

TEST_F(RecentFileList, ListsAFileTwiceIfItsNameIsThenShownShort) {
  Enter("/north/panel.orb");
  program.session.settings.ShortRecentFiles = 1;

  Enter("/north/panel.orb");

  EXPECT_THAT(Entries(), ElementsAre("panel.orb|/north/panel.orb|2", "/north/panel.orb|/north/panel.orb|1"));
}

TEST_F(RecentFileList, DoesNotChangeWhileItIsSwitchedOff) {
  EXPECT_TRUE(Enter("/a.orb"));
  program.session.settings.KeepFileNames = 0;

  EXPECT_FALSE(Enter("/b.orb"));

  EXPECT_THAT(Entries(), ElementsAre("/a.orb|/a.orb|1"));
}

TEST_F(RecentFileList, ReportsANameThatEndsInASeparatorAndAddsIt) {
  program.session.settings.ShortRecentFiles = 1;

  Enter("/north/");

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Error in filename: /north/"));
  EXPECT_THAT(Entries(), ElementsAre("/north/|/north/|1"));
}

TEST_F(RecentFileList, ShowsTheAmpersandOfAName) {
  Enter("/cut & fill.orb");

  EXPECT_THAT(Shown(), ElementsAre("-", "/cut && fill.orb"));
}

TEST_F(RecentFileList, SkipsAnEntryWithoutAName) {
  program.session.recentFiles.MaxLastFiles = 2;
  program.session.recentFiles.Entries[1].LastFile = "/b.orb";

  EXPECT_THAT(Shown(), ElementsAre("-", "/b.orb"));
}

}  // namespace
}  // namespace orby::test
