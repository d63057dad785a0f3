#include "shell/main_window.h"

#include "main_window_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

struct Menus : MainWindowTest {
  static std::vector<std::string> Captions(const ActionArray& menu) {
    std::vector<std::string> captions;
    captions.reserve(static_cast<std::size_t>(menu.Count()));
    for (int i = 0; i < menu.Count(); ++i) captions.push_back(menu.Caption(i));
    return captions;
  }
};

TEST_F(Menus, HaveTheirEntriesInOrder) {
  EXPECT_THAT(Captions(window.mnuFileItem),
              ElementsAre("&New", "&Open...", "&Save ", "Save &As...", "-", "Printer Set&up...", "&Print",
                          "Print Pre&view...", "-", "&View Source Files...", "-", "E&xit"));
  EXPECT_THAT(Captions(window.mnuEditItem),
              ElementsAre("Project &Description...", "Project &Parameters...", "&Cost Parameters..."));
  EXPECT_THAT(Captions(window.mnuUtilItem),
              ElementsAre("&Settings...", "&Options...", "&Unit Conversions...", "&File Conversion...", "-",
                          "&Clear History Window", "Close History &Window", "Co&py History &Window"));
  EXPECT_THAT(Captions(window.mnuHelpItem),
              ElementsAre("Help &Contents...", "Help &Index...", "Help in &PDF format...", "-", "&Resource Files...",
                          "-", "&Disclaimer...", "-", "Program Updates...", "-", "&About the Program..."));
  EXPECT_THAT(Captions(window.Toolbar1),
              ElementsAre("", "Open", "Save", "Print", "Project Description", "Project Parameters"));
}

TEST_F(Menus, AreNamedInTheMenuBar) {
  EXPECT_EQ(window.mnuFile.Caption(), "&File");
  EXPECT_EQ(window.mnuEdit.Caption(), "&Input");
  EXPECT_EQ(window.mnuUtil.Caption(), "&Utilities");
  EXPECT_EQ(window.mnuHelp.Caption(), "&Help");
  EXPECT_EQ(window.lblver.Caption(), "Version: 1.0.00");
}

TEST_F(Menus, OfferNothingThatTheProgramHasNot) {
  std::vector<std::string> disabled;
  for (const ActionArray* menu :
       {&window.mnuFileItem, &window.mnuEditItem, &window.mnuUtilItem, &window.mnuHelpItem, &window.Toolbar1}) {
    for (int i = 0; i < menu->Count(); ++i) {
      if (!menu->ItemEnabled(i)) disabled.push_back(menu->Caption(i));
    }
  }

  EXPECT_THAT(disabled, ElementsAre("&View Source Files...", "&Settings...", "&Options...", "&Unit Conversions...",
                                    "&File Conversion...", "&Resource Files...", "&Disclaimer...", "Program Updates...",
                                    "&About the Program..."));
}

TEST_F(Menus, OpenTheHelpAndTheManual) {
  platform.files.files["/program/ORBY.CHM"] = "help";
  platform.files.files["/program/ORBY.PDF"] = "manual";

  for (const Integer item : {help_item::Contents, help_item::Index, help_item::Manual}) {
    window.mnuHelpItem.ClickItem(item);
  }

  EXPECT_THAT(platform.help.shown, ElementsAre("contents /program/ORBY.CHM", "index /program/ORBY.CHM"));
  EXPECT_THAT(platform.documents.opened, ElementsAre("/program/ORBY.PDF"));
}

TEST_F(Menus, TellThatTheManualIsMissing) {
  window.mnuHelpItem.ClickItem(help_item::Manual);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Help file (/program/ORBY.PDF) not available"));
}

// ---- the opening window ---------------------------------------------------------------------------------------------

struct OpeningWindow : testing::Test {
  RecordingPlatform platform;
  Program program = StartedProgram(platform);
};

TEST_F(OpeningWindow, TakesOverTheHistoryOfTheStart) {
  MainWindow window(program);

  window.Open();

  EXPECT_EQ(window.txtMain.Text(), "1. File initialized. Use Edit-Project Parameters to enter data\r\n");
  EXPECT_EQ(window.txtMain.SelectionStart(), 64U);
  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: Untitled");
  EXPECT_EQ(platform.windows.centered, 1);
}

TEST_F(OpeningWindow, ShowsTheHistoryInTheUsersFont) {
  program.settings.DisplayFontName = "Courier New";
  program.settings.DisplayFontSize = 12;
  program.settings.DisplayFontBold = -1;
  MainWindow window(program);

  window.Open();

  EXPECT_EQ(window.txtMain.Font(), (FontChoice{"Courier New", 12, true, false}));
}

TEST_F(OpeningWindow, HidesAHistoryThatIsSwitchedOff) {
  program.settings.DisplayHistoryWin = 0;
  MainWindow window(program);

  window.Open();

  EXPECT_FALSE(window.txtMain.Visible());
  EXPECT_EQ(window.mnuUtilItem.Caption(util_item::ToggleHistory), "Restore History &Window");
}

TEST_F(OpeningWindow, HidesTheToolBarThatIsSwitchedOff) {
  program.settings.EnableMainMenuToolbar = 0;
  MainWindow window(program);

  window.Open();

  EXPECT_FALSE(window.Toolbar1.Visible());
}

TEST_F(OpeningWindow, ShowsTheRecentFilesOfTheConfiguration) {
  program.recentFiles.MaxLastFiles = 2;
  program.recentFiles.Entries[0] = {"panel3.orb", 1, Panel3};
  program.recentFiles.Entries[1] = {"panel4.orb", 1, Panel4};
  MainWindow window(program);

  window.Open();

  EXPECT_TRUE(window.mnuFileArray.ItemVisible(0));
  EXPECT_EQ(window.mnuFileArray.Caption(1), "panel3.orb");
  EXPECT_EQ(window.mnuFileArray.Caption(2), "panel4.orb");
  EXPECT_TRUE(window.mnuFileArray.ItemVisible(2));
  EXPECT_FALSE(window.mnuFileArray.ItemVisible(3));
}

TEST_F(OpeningWindow, CopiesTheExamplesForTheUser) {
  platform.files.files["/program/examples/weak-roof.ORB"] = "a design";
  program.settings.DataPath = "/data/";
  MainWindow window(program);

  window.Open();

  EXPECT_EQ(platform.files.files["/data/weak-roof.ORB"], "a design");
}

// ---- the history ----------------------------------------------------------------------------------------------------

struct HistoryPane : MainWindowTest {};

TEST_F(HistoryPane, ShowsEachLineAndFollowsItsEnd) {
  AddHistoryLine(program, "Results displayed");

  EXPECT_EQ(window.txtMain.Text(), "2. Results displayed\r\n");
  EXPECT_EQ(window.txtMain.SelectionStart(), 22U);
  EXPECT_EQ(window.txtMain.SelectionLength(), 0U);
}

TEST_F(HistoryPane, MovesTheCaretThoughTheHistoryIsSwitchedOff) {
  AddHistoryLine(program, "Results displayed");
  window.txtMain.Select(3, 4);
  program.settings.DisplayHistoryWin = 0;

  AddHistoryLine(program, "Output copied to clipboard");

  EXPECT_EQ(window.txtMain.Text(), "2. Results displayed\r\n");
  EXPECT_EQ(window.txtMain.SelectionStart(), 22U);
  EXPECT_EQ(window.txtMain.SelectionLength(), 0U);
}

TEST_F(HistoryPane, IsEmptyOnceCleared) {
  AddHistoryLine(program, "Results displayed");

  window.mnuUtilItem.ClickItem(util_item::ClearHistory);
  EXPECT_EQ(window.txtMain.Text(), "");

  AddHistoryLine(program, "Results displayed");
  EXPECT_EQ(window.txtMain.Text(), "3. Results displayed\r\n");
}

TEST_F(HistoryPane, GoesAndComesBack) {
  window.mnuUtilItem.ClickItem(util_item::ToggleHistory);
  EXPECT_FALSE(window.txtMain.Visible());
  EXPECT_EQ(window.mnuUtilItem.Caption(util_item::ToggleHistory), "Restore History &Window");
  EXPECT_EQ(program.settings.DisplayHistoryWin, 1);

  AddHistoryLine(program, "Results displayed");
  window.mnuUtilItem.ClickItem(util_item::ToggleHistory);

  EXPECT_TRUE(window.txtMain.Visible());
  EXPECT_EQ(window.mnuUtilItem.Caption(util_item::ToggleHistory), "Close History &Window");
  EXPECT_EQ(window.txtMain.Text(), "2. Results displayed\r\n");
}

TEST_F(HistoryPane, IsCopied) {
  AddHistoryLine(program, "Results displayed");

  window.mnuUtilItem.ClickItem(util_item::CopyHistory);

  EXPECT_EQ(platform.clipboard.text, "2. Results displayed\r\n");
}

TEST_F(HistoryPane, StaysToTheProgramWhenTheWindowIsGone) {
  { MainWindow another(program); }

  EXPECT_NO_THROW(AddHistoryLine(program, "Results displayed"));
  EXPECT_EQ(program.history.Text, "2. Results displayed\r\n");
}

}  // namespace
}  // namespace orby::test
