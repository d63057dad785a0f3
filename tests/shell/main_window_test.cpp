#include "shell/main_window.h"

#include "dialogs/convert_dialog.h"
#include "dialogs/settings_dialog.h"
#include "main_window_fixture.h"
#include "support/acting_boxes.h"

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
  EXPECT_THAT(
      Captions(window.mnuUtilItem),
      ElementsAre("&Settings...", "&Options...", "&Unit Conversions...", "&File Conversion...", "-",
                  "&Clear History Window", "Close History &Window", "Co&py History &Window", "-", "&Backups..."));
  EXPECT_THAT(Captions(window.mnuStudyItem),
              ElementsAre("&What Would Hold...", "&Calculation Sheet...", "&Signed Report...", "What &Matters...",
                          "&How Sure...", "Designs in a &Folder...", "Side &by Side...", "&Design Chart..."));
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
  EXPECT_EQ(window.mnuStudy.Caption(), "&Study");
  EXPECT_EQ(window.mnuHelp.Caption(), "&Help");
  EXPECT_EQ(window.lblver.Caption(), "Version: 1.0.00");
}

TEST(MainWindowStart, ShowsTheDisclaimerBeforeItTouchesTheUsersFiles) {
  RecordingPlatform platform;
  Program program = StartedProgram(platform);
  program.session.settings.ShowDisclaim = 1;
  program.session.settings.DataPath = "/designs/";
  platform.files.files["/program/examples/weak-roof.ORB"] = "ORBY_105";
  std::vector<std::string> shown;
  bool copied = true;
  platform.windows.onModal = [&](Form& form) {
    shown.emplace_back(form.Name());
    copied = platform.files.files.contains("/designs/weak-roof.ORB");
  };
  MainWindow window(program);

  window.Open();

  EXPECT_THAT(shown, ElementsAre("frmDisclaimer"));
  EXPECT_FALSE(copied);
  EXPECT_TRUE(platform.files.files.contains("/designs/weak-roof.ORB"));
}

TEST_F(Menus, OfferAllOfTheirEntries) {
  const ActionArray* const menus[] = {&window.mnuFileItem,  &window.mnuEditItem, &window.mnuUtilItem,
                                      &window.mnuStudyItem, &window.mnuHelpItem, &window.Toolbar1};
  for (const ActionArray* menu : menus) {
    for (int i = 0; i < menu->Count(); ++i) EXPECT_TRUE(menu->ItemEnabled(i)) << menu->Caption(i);
  }
}

// Returns the names of the forms that the menu items show, one after the other.
template <class Item>
std::vector<std::string> FormsShownBy(RecordingPlatform& platform, const Actions<Item>& menu,
                                      std::initializer_list<Item> items) {
  std::vector<std::string> shown;
  platform.windows.onModal = [&shown](Form& form) { shown.emplace_back(form.Name()); };
  for (const Item item : items) menu.ClickItem(item);
  return shown;
}

TEST_F(Menus, ShowTheDialogsOfTheUtilities) {
  EXPECT_THAT(
      FormsShownBy(platform, window.mnuUtilItem,
                   {UtilityItem::Settings, UtilityItem::Options, UtilityItem::UnitConversions, UtilityItem::Backups}),
      ElementsAre("frmSet", "frmTULKOpts", "frmUnits", "frmBackups"));
}

TEST_F(Menus, ShowTheDialogsOfTheHelp) {
  EXPECT_THAT(
      FormsShownBy(platform, window.mnuHelpItem, {HelpItem::ResourceFiles, HelpItem::Disclaimer, HelpItem::Updates}),
      ElementsAre("frmResource", "frmDisclaimer", "frmUpdate"));
}

TEST_F(Menus, ShowTheBrowserOfTextFiles) {
  EXPECT_THAT(FormsShownBy(platform, window.mnuFileItem, {FileItem::ViewSourceFiles}), ElementsAre("frmTextBrow"));
}

TEST_F(Menus, ShowTheAboutMessage) {
  window.mnuHelpItem.ClickItem(HelpItem::About);

  ASSERT_THAT(platform.boxes.shown, testing::SizeIs(1));
  EXPECT_EQ(platform.boxes.shown.front().title, "About the Orby Roof Support Workbench Program");
}

TEST_F(Menus, RefuseToConvertAnEmptyProject) {
  window.mnuUtilItem.ClickItem(UtilityItem::FileConversion);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Current file is empty"));
  EXPECT_EQ(platform.windows.modalForms, 0);
}

TEST_F(Menus, RefuseToConvertAnUnsavedProject) {
  EditPanel3();

  window.mnuUtilItem.ClickItem(UtilityItem::FileConversion);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Save Current File before accessing this option"));
  EXPECT_EQ(platform.windows.modalForms, 0);
}

TEST_F(Menus, ConvertASavedProjectUnderANewName) {
  OpenByDialog(Panel3);
  platform.windows.onModal = [](Form& form) { dynamic_cast<ConvertDialog&>(form).Command2.Press(); };

  window.mnuUtilItem.ClickItem(UtilityItem::FileConversion);

  EXPECT_EQ(program.project.WorkParms.Units, Metric);
  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: Metric_panel3.orb*");
}

TEST_F(Menus, ShowTheConvertedProjectWhileTheMessageOfCompletionIsOpen) {
  ActingBoxes boxes;
  Program behind = StartedProgram(platform.AsPlatformWith(boxes));
  MainWindow windowBehind(behind);
  windowBehind.Open();
  windowBehind.Dropped(Panel3);
  std::string caption;
  bool isKept = false;
  boxes.meanwhile = [&] {
    caption = windowBehind.Caption();
    isKept = Exists(TemporaryPath + "~recover2.tmp");  // the window of the fixture holds the first slot
  };
  platform.windows.onModal = [](Form& form) { dynamic_cast<ConvertDialog&>(form).Command2.Press(); };

  windowBehind.mnuUtilItem.ClickItem(UtilityItem::FileConversion);

  EXPECT_THAT(boxes.Texts(), ElementsAre("Conversion Completed: The conversion form will be closed"));
  EXPECT_EQ(caption, "Orby Roof Support Workbench: Metric_panel3.orb*");
  EXPECT_TRUE(isKept);
}

TEST_F(Menus, SettingsActOnTheWindowAtOnce) {
  platform.windows.onModal = [](Form& form) {
    auto& settings = dynamic_cast<SettingsDialog&>(form);
    settings.chkEnableTB.SetValue(0);
    settings.chkDispHist.SetValue(0);
    settings.Text2.SetText("/tmp");
    settings.Text3.SetText("4096");
    settings.cmdOK.Press();
  };

  window.mnuUtilItem.ClickItem(UtilityItem::Settings);

  EXPECT_FALSE(window.Toolbar1.Visible());
  EXPECT_FALSE(window.txtMain.Visible());
}

TEST_F(Menus, OpenTheHelpAndTheManual) {
  platform.files.files["/program/ORBY.CHM"] = "help";
  platform.files.files["/program/ORBY.PDF"] = "manual";

  for (const HelpItem item : {HelpItem::Contents, HelpItem::Index, HelpItem::Manual}) {
    window.mnuHelpItem.ClickItem(item);
  }

  EXPECT_THAT(platform.help.shown, ElementsAre("contents /program/ORBY.CHM", "index /program/ORBY.CHM"));
  EXPECT_THAT(platform.documents.opened, ElementsAre("/program/ORBY.PDF"));
}

TEST_F(Menus, ReportAMissingManual) {
  window.mnuHelpItem.ClickItem(HelpItem::Manual);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Help file (/program/ORBY.PDF) not available"));
}

// ---- opening the window ---------------------------------------------------------------------------------------------

struct OpeningWindow : testing::Test {
  RecordingPlatform platform;
  Program program = StartedProgram(platform);
};

TEST_F(OpeningWindow, ShowsTheHistoryOfTheStart) {
  MainWindow window(program);

  window.Open();

  EXPECT_EQ(window.txtMain.Text(), "1. File initialized. Use Edit-Project Parameters to enter data\r\n");
  EXPECT_EQ(window.txtMain.SelectionStart(), 64U);
  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: Untitled");
  EXPECT_EQ(platform.windows.centered, 1);
}

TEST_F(OpeningWindow, ShowsTheHistoryInTheUsersFont) {
  program.session.settings.DisplayFontName = "Courier New";
  program.session.settings.DisplayFontSize = 12;
  program.session.settings.DisplayFontBold = -1;
  MainWindow window(program);

  window.Open();

  EXPECT_EQ(window.txtMain.Font(), (FontChoice{"Courier New", 12, true, false}));
}

TEST_F(OpeningWindow, HidesAHistoryThatIsSwitchedOff) {
  program.session.settings.DisplayHistoryWin = 0;
  MainWindow window(program);

  window.Open();

  EXPECT_FALSE(window.txtMain.Visible());
  EXPECT_EQ(window.mnuUtilItem.Caption(UtilityItem::ToggleHistory), "Restore History &Window");
}

TEST_F(OpeningWindow, HidesTheToolBarThatIsSwitchedOff) {
  program.session.settings.EnableMainMenuToolbar = 0;
  MainWindow window(program);

  window.Open();

  EXPECT_FALSE(window.Toolbar1.Visible());
}

TEST_F(OpeningWindow, ShowsTheRecentFilesOfTheConfiguration) {
  program.session.recentFiles.MaxLastFiles = 2;
  program.session.recentFiles.Entries[0] = {"panel3.orb", 1, Panel3};
  program.session.recentFiles.Entries[1] = {"panel4.orb", 1, Panel4};
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
  program.session.settings.DataPath = "/data/";
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

TEST_F(HistoryPane, MovesTheCaretEvenIfTheHistoryIsSwitchedOff) {
  AddHistoryLine(program, "Results displayed");
  window.txtMain.Select(3, 4);
  program.session.settings.DisplayHistoryWin = 0;

  AddHistoryLine(program, "Output copied to clipboard");

  EXPECT_EQ(window.txtMain.Text(), "2. Results displayed\r\n");
  EXPECT_EQ(window.txtMain.SelectionStart(), 22U);
  EXPECT_EQ(window.txtMain.SelectionLength(), 0U);
}

TEST_F(HistoryPane, IsEmptyAfterClearing) {
  AddHistoryLine(program, "Results displayed");

  window.mnuUtilItem.ClickItem(UtilityItem::ClearHistory);
  EXPECT_EQ(window.txtMain.Text(), "");

  AddHistoryLine(program, "Results displayed");
  EXPECT_EQ(window.txtMain.Text(), "3. Results displayed\r\n");
}

TEST_F(HistoryPane, CanBeClosedAndRestored) {
  window.mnuUtilItem.ClickItem(UtilityItem::ToggleHistory);
  EXPECT_FALSE(window.txtMain.Visible());
  EXPECT_EQ(window.mnuUtilItem.Caption(UtilityItem::ToggleHistory), "Restore History &Window");
  EXPECT_EQ(program.session.settings.DisplayHistoryWin, 1);

  AddHistoryLine(program, "Results displayed");
  window.mnuUtilItem.ClickItem(UtilityItem::ToggleHistory);

  EXPECT_TRUE(window.txtMain.Visible());
  EXPECT_EQ(window.mnuUtilItem.Caption(UtilityItem::ToggleHistory), "Close History &Window");
  EXPECT_EQ(window.txtMain.Text(), "2. Results displayed\r\n");
}

TEST_F(HistoryPane, IsCopiedToTheClipboard) {
  AddHistoryLine(program, "Results displayed");

  window.mnuUtilItem.ClickItem(UtilityItem::CopyHistory);

  EXPECT_EQ(platform.clipboard.text, "2. Results displayed\r\n");
}

TEST_F(HistoryPane, IsStillRecordedAfterTheWindowIsDestroyed) {
  { MainWindow another(program); }

  EXPECT_NO_THROW(AddHistoryLine(program, "Results displayed"));
  EXPECT_EQ(program.session.history.Text, "2. Results displayed\r\n");
}

}  // namespace
}  // namespace orby::test
