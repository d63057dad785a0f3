#include "dialogs/settings_dialog.h"

#include <gmock/gmock.h>

#include "dialogs/font_dialog.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const std::string IniPath = "/home/user/Documents/Orby/ORBY.INI";

// Settings that differ from the built-in ones.
struct SettingsTest : testing::Test {
  SettingsTest() {
    platform.fonts.screen = {"Arial", "Courier New"};
    platform.files.folders.insert("/home/user/Documents/Orby");
    platform.files.folders.insert("/designs");
    program.session.IniFilePath = IniPath;
    Settings& settings = program.session.settings;
    settings.UnitsDefault = Metric;
    settings.MaxDisplaySize = 4096;
    settings.DisplayFontName = "Courier New";
    settings.DisplayFontSize = 12;
    settings.DisplayFontBold = -1;
    settings.DataPath = "/home/user/Documents/Orby/";
    settings.ExternalEditor = "/usr/bin/xedit";
  }

  // Opens the dialog and clears the recorded messages and history lines.
  void Open() {
    dialog.Open();
    program.session.history.Text.clear();
  }

  std::string Written() { return platform.files.files[IniPath]; }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  int modified = 0;
  SettingsDialog dialog{program, [this] { ++modified; }};
};

TEST_F(SettingsTest, HaveTheirCaptions) {
  EXPECT_EQ(dialog.Name(), "frmSet");
  EXPECT_EQ(dialog.Caption(), "Settings");
  EXPECT_EQ(dialog.optUnits.Caption(0), "feet, psi, pcf");
  EXPECT_EQ(dialog.optUnits.Caption(1), "meters, MPa, kN/m3");
  EXPECT_EQ(dialog.lblExtension.Caption(), "Default extension for data files:");
  EXPECT_EQ(dialog.lblPath.Caption(), "Path:");
  EXPECT_EQ(dialog.cmdSetPath.Caption(), "Set / Change Path");
  EXPECT_EQ(dialog.chkCopyExamples.Caption(), "Copy example files");
  EXPECT_EQ(dialog.chkLoadLastInputFile.Caption(), "Load last input file");
  EXPECT_EQ(dialog.chkUpdate.Caption(), "Check for updates");
  EXPECT_EQ(dialog.chkShortNames.Caption(), "Short names in  file list");
  EXPECT_EQ(dialog.chkEnableTB.Caption(), "Enable toolbar");
  EXPECT_EQ(dialog.chkMaxMenu.Caption(), "Maximize main menu at start-up");
  EXPECT_EQ(dialog.chkDispHist.Caption(), "Display command history window");
  EXPECT_EQ(dialog.chkKeepRecentFL.Caption(), "Keep recent filelist");
  EXPECT_EQ(dialog.chkShowDiscl.Caption(), "Show disclaimer at start-up");
  EXPECT_EQ(dialog.lblHistorySize.Caption(), "Size of command history window (chars)");
  EXPECT_EQ(dialog.Command5.Caption(), "&History Font");
  EXPECT_EQ(dialog.lblViewer.Caption(), "Viewer spec:");
  EXPECT_EQ(dialog.cmdSelect.Caption(), "&Select");
  EXPECT_EQ(dialog.cmdSetDefault.Caption(), "Reset Default");
}

TEST_F(SettingsTest, AreRecordedWhenTheyOpenAndTitleTheirMessages) {
  dialog.Open();

  EXPECT_EQ(program.session.history.Text, "1. Editing Settings\r\n");
  EXPECT_EQ(program.windows.titles.ErrorTitle, "Settings: Error");
  EXPECT_EQ(program.windows.titles.RangeErrorTitle, "Settings: Range Error");
  EXPECT_FALSE(platform.windows.waitCursor);
}

TEST_F(SettingsTest, ShowThePresentValues) {
  program.session.settings.FileExtension = "OR2";

  dialog.Open();

  EXPECT_TRUE(dialog.optUnits.Value(1));
  EXPECT_EQ(dialog.Text1.Text(), "OR2");
  EXPECT_EQ(dialog.Text2.Text(), "/home/user/Documents/Orby/");
  EXPECT_EQ(dialog.Text3.Text(), "4096");
  EXPECT_EQ(dialog.Text4.Text(), "/usr/bin/xedit");
}

struct Flag {
  CheckBox SettingsDialog::*box;
  Integer Settings::*value;
  std::string_view key;
};

constexpr Flag Flags[] = {
    {&SettingsDialog::chkCopyExamples, &Settings::CopyExampleFiles, "CopyExampleFiles"},
    {&SettingsDialog::chkLoadLastInputFile, &Settings::LoadLastInputFile, "LoadLastInputFile"},
    {&SettingsDialog::chkUpdate, &Settings::RemindAnnualUpdates, "RemindAnnualUpdates"},
    {&SettingsDialog::chkShortNames, &Settings::ShortRecentFiles, "ShortRecentFiles"},
    {&SettingsDialog::chkEnableTB, &Settings::EnableMainMenuToolbar, "EnableMainMenuToolbar"},
    {&SettingsDialog::chkMaxMenu, &Settings::MaxMainMenu, "MaxMainMenu"},
    {&SettingsDialog::chkDispHist, &Settings::DisplayHistoryWin, "DisplayHistoryWin"},
    {&SettingsDialog::chkKeepRecentFL, &Settings::KeepFileNames, "KeepFileNames"},
    {&SettingsDialog::chkShowDiscl, &Settings::ShowDisclaim, "ShowDisclaim"},
};

TEST_F(SettingsTest, ShowAndStoreEachFlagByItsCheckBox) {
  for (const Flag& flag : Flags) {
    for (const auto& other : Flags) program.session.settings.*(other.value) = 0;
    program.session.settings.*(flag.value) = 1;
    SettingsDialog asked(program, nullptr);
    asked.Open();

    for (const auto& other : Flags) EXPECT_EQ((asked.*(other.box)).Checked(), &other == &flag) << other.key;
    (asked.*(flag.box)).SetValue(0);
    asked.cmdOK.Press();

    EXPECT_EQ(program.session.settings.*(flag.value), 0) << flag.key;
    EXPECT_THAT(Written(), HasSubstr(std::string(flag.key) + "=0\r\n"));
  }
}

TEST_F(SettingsTest, StoreEveryFieldOnOk) {
  Open();
  dialog.optUnits.SetValue(0, true);
  dialog.Text1.SetText("rs7");
  dialog.Text2.SetText("/designs");
  dialog.Text3.SetText("16384");
  dialog.Text4.SetText("/usr/bin/less");

  dialog.cmdOK.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.session.settings.UnitsDefault, English);
  EXPECT_EQ(program.session.settings.FileExtension, "rs7");
  EXPECT_EQ(program.session.settings.DataPath, "/designs/");
  EXPECT_EQ(program.session.settings.MaxDisplaySize, 16384);
  EXPECT_EQ(program.session.settings.ExternalEditor, "/usr/bin/less");
  EXPECT_THAT(Written(), HasSubstr("DefaultUnits=0\r\n"));
  EXPECT_THAT(Written(), HasSubstr("DataPath=/designs/\r\n"));
}

TEST_F(SettingsTest, AreRecordedAppliedAndWrittenIfTheyDiffer) {
  Open();
  dialog.chkEnableTB.SetValue(0);

  dialog.cmdOK.Press();

  EXPECT_EQ(program.session.history.Text,
            "2. Settings Modified\r\n3. Saving default settings to file: /home/user/Documents/Orby/ORBY.INI\r\n");
  EXPECT_EQ(modified, 1);
  EXPECT_THAT(Written(), HasSubstr("[Settings]\r\n"));
  EXPECT_THAT(Written(), Not(HasSubstr("[FileMenu]")));
}

TEST_F(SettingsTest, AreInEffectWhenTheMainWindowIsRefreshed) {
  Integer seen = -1;
  SettingsDialog other(program, [&] { seen = program.session.settings.EnableMainMenuToolbar; });
  other.Open();
  other.chkEnableTB.SetValue(0);

  other.cmdOK.Press();

  EXPECT_EQ(seen, 0);
}

TEST_F(SettingsTest, AreNeitherAppliedNorWrittenIfNothingDiffers) {
  Open();
  dialog.chkEnableTB.SetValue(0);
  dialog.chkEnableTB.SetValue(1);

  dialog.cmdOK.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.session.history.Text, "2. Settings Not Modified\r\n");
  EXPECT_EQ(modified, 0);
  EXPECT_THAT(platform.files.created, IsEmpty());
}

TEST_F(SettingsTest, DoNotChangeAfterCancel) {
  Open();
  dialog.Text1.SetText("XYZ");
  dialog.chkEnableTB.SetValue(0);

  dialog.cmdCancel.Press();

  EXPECT_EQ(program.session.history.Text, "2. Settings Not Modified\r\n");
  EXPECT_EQ(program.session.settings.FileExtension, "ORB");
  EXPECT_EQ(program.session.settings.EnableMainMenuToolbar, 1);
  EXPECT_EQ(modified, 0);
  EXPECT_THAT(platform.files.created, IsEmpty());
}

TEST_F(SettingsTest, AreNotAcceptedBecauseOfAnEarlierOk) {
  Open();
  dialog.cmdOK.Press();
  dialog.Open();
  dialog.chkEnableTB.SetValue(0);

  dialog.cmdCancel.Press();

  EXPECT_EQ(program.session.settings.EnableMainMenuToolbar, 1);
}

// ---- messages of a click -------------------------------------------------------------------------------------------

TEST_F(SettingsTest, ShowNoMessageWhileTheFieldsAreFilled) {
  program.session.settings.CopyExampleFiles = 1;
  program.session.settings.ShortRecentFiles = 1;

  dialog.Open();
  dialog.Close();
  program.session.settings.CopyExampleFiles = 0;
  program.session.settings.ShortRecentFiles = 0;
  dialog.Open();

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(SettingsTest, ExplainTheCopyOfExamplesOnEachClick) {
  dialog.Open();

  dialog.chkCopyExamples.SetValue(0);
  dialog.chkCopyExamples.SetValue(1);

  const std::string expected =
      "When this option is enabled, every time the program runs, it will try to copy the example files from the "
      "install directory to the /home/user/Documents/Orby/ directory. The modified files will not be overridden, but "
      "missing files will be replaced. ";
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre(expected, expected));
}

TEST_F(SettingsTest, SayThatShortNamesRequireARestart) {
  dialog.Open();

  dialog.chkShortNames.SetValue(1);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Option will take effect upon restarting this program"));
}

TEST_F(SettingsTest, SayHowToGetHelp) {
  dialog.Open();

  dialog.cmdHelp.Press();

  ASSERT_EQ(platform.boxes.shown.size(), 1U);
  EXPECT_EQ(platform.boxes.shown.front().title, "Help");
}

// ---- the checks ----------------------------------------------------------------------------------------------------

TEST_F(SettingsTest, RefuseAPathThatDoesNotExist) {
  Open();
  dialog.Text2.SetText("/nowhere");

  dialog.cmdOK.Press();

  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid Path for Data Files"));
  EXPECT_EQ(platform.boxes.shown.front().title, "Settings: Error");
  EXPECT_EQ(dialog.Text2.Text(), "/nowhere/");
  EXPECT_EQ(dialog.FocusRequest(), &dialog.Text2);
}

TEST_F(SettingsTest, RefuseAPathThatCannotBeCheckedWithOneMessage) {
  Open();
  platform.files.Fail(MemoryFiles::Step::Find, 52);

  dialog.cmdOK.Press();

  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid Path for Data Files"));
}

TEST_F(SettingsTest, TreatAnEmptyPathAsTheRootOfTheFiles) {
  platform.files.folders.insert("");
  Open();
  dialog.Text2.SetText("");

  dialog.cmdOK.Press();

  EXPECT_EQ(program.session.settings.DataPath, "/");
}

TEST_F(SettingsTest, RefuseAHistoryThatIsTooShortOrTooLong) {
  Open();

  for (const char* size : {"4095", "16385", " "}) {
    dialog.Text3.SetText(size);
    dialog.cmdOK.Press();
  }

  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_THAT(
      platform.boxes.Texts(),
      ElementsAre("Size of Command History Window: Value '4095' is outside input range\r\nValid range is: 4096-16384",
                  "Size of Command History Window: Value '16385' is outside input range\r\nValid range is: 4096-16384",
                  "Size of Command History Window: Blank field not allowed"));
  EXPECT_EQ(platform.boxes.shown.front().title, "Settings: Range Error");
  EXPECT_EQ(platform.boxes.shown.front().style, BoxIcon::Critical);
  EXPECT_EQ(dialog.FocusRequest(), &dialog.Text3);
}

TEST_F(SettingsTest, RoundTheLengthOfTheHistory) {
  Open();
  dialog.Text3.SetText("8000.5");

  dialog.cmdOK.Press();

  EXPECT_EQ(program.session.settings.MaxDisplaySize, 8000);
}

TEST_F(SettingsTest, RefuseAnExtensionWithOtherThanLettersAndDigits) {
  Open();

  for (const char* extension : {".ORB", "O B", "OR*", "\xC3\x96RB"}) {
    platform.boxes.shown.clear();
    dialog.Text1.SetText(extension);
    dialog.cmdOK.Press();

    EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid character in file extension")) << extension;
    EXPECT_EQ(platform.boxes.shown.front().title, "Settings: Invalid Character");
  }

  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_EQ(dialog.FocusRequest(), &dialog.Text1);
}

TEST_F(SettingsTest, AreCheckedFromThePathToTheExtensionAndStopAtTheFirstFault) {
  Open();
  dialog.Text2.SetText("/nowhere");
  dialog.Text3.SetText("1");
  dialog.Text1.SetText("?");

  dialog.cmdOK.Press();
  dialog.Text2.SetText("/designs");
  dialog.cmdOK.Press();
  dialog.Text3.SetText("5000");
  dialog.cmdOK.Press();

  EXPECT_THAT(
      platform.boxes.Texts(),
      ElementsAre("Invalid Path for Data Files",
                  "Size of Command History Window: Value '1' is outside input range\r\nValid range is: 4096-16384",
                  "Invalid character in file extension"));
}

// ---- dialogs of the buttons ----------------------------------------------------------------------------------------

TEST_F(SettingsTest, AskForThePathStartingAtThePresentOne) {
  Open();
  platform.fileDialogs.answers = {"/designs"};

  dialog.cmdSetPath.Press();

  ASSERT_EQ(platform.fileDialogs.asked.size(), 1U);
  EXPECT_EQ(platform.fileDialogs.asked[0].title, "Set / Change Path");
  EXPECT_EQ(platform.fileDialogs.asked[0].folder, "/home/user/Documents/Orby/");
  EXPECT_EQ(dialog.Text2.Text(), "/designs");
}

TEST_F(SettingsTest, KeepPathAndViewerIfTheirDialogsAreCancelled) {
  Open();

  dialog.cmdSetPath.Press();
  dialog.cmdSelect.Press();

  EXPECT_EQ(platform.fileDialogs.asked.size(), 2U);
  EXPECT_EQ(dialog.Text2.Text(), "/home/user/Documents/Orby/");
  EXPECT_EQ(dialog.Text4.Text(), "/usr/bin/xedit");
}

TEST_F(SettingsTest, AskForTheViewerAmongAllFilesAndPrograms) {
  Open();
  platform.fileDialogs.answers = {"/usr/bin/less"};

  dialog.cmdSelect.Press();

  ASSERT_EQ(platform.fileDialogs.asked.size(), 1U);
  const FileQuestion& asked = platform.fileDialogs.asked[0];
  EXPECT_EQ(asked.title, "Select External Editor");
  EXPECT_EQ(asked.folder, "/usr/bin/");
  EXPECT_EQ(asked.defaultExtension, "EXE");
  ASSERT_EQ(asked.filters.size(), 2U);
  EXPECT_EQ(asked.filters[0].name, "All Files (*.*)");
  EXPECT_EQ(asked.filters[0].pattern, "*");
  EXPECT_EQ(asked.filters[1].name, "Editor Programs (*.EXE)");
  EXPECT_EQ(asked.filters[1].pattern, "*.EXE");
  EXPECT_EQ(dialog.Text4.Text(), "/usr/bin/less");
}

TEST_F(SettingsTest, LeaveOtherFailuresOfADialogToTheProgram) {
  struct BrokenDialogs : ScriptedFileDialogs {
    std::string AskFolder(const std::string&, const std::string&) override {
      throw RuntimeError(error_number::PathNotFound);
    }
  } broken;
  Program other{Platform{platform.boxes, platform.files, broken, platform.windows, platform.fonts, platform.locale,
                         platform.clock, platform.userFolders, platform.clipboard, platform.printer, platform.documents,
                         platform.help, platform.downloads, platform.fileTypes, platform.pictures}};
  SettingsDialog asked(other, nullptr);
  asked.Open();

  EXPECT_EQ(ErrorNumberOf([&] { asked.cmdSetPath.Press(); }), 76);
}

TEST_F(SettingsTest, ResetTheViewer) {
  Open();

  dialog.cmdSetDefault.Press();

  EXPECT_EQ(dialog.Text4.Text(), "Notepad.exe");
}

// Plays the user in the font dialog: chooses italics and another size.
void ChooseItalics(Form& form) {
  auto& font = dynamic_cast<FontDialog&>(form);
  EXPECT_EQ(font.txtSample.Font(), (FontChoice{"Courier New", 12, true, false}));
  EXPECT_EQ(font.lstFont.Items().size(), 2U);
  font.lstFont.ClickItem(0);
  font.txtSize.SetText("9");
  font.chkBold.SetValue(0);
  font.chkItalic.SetValue(1);
  font.cmdOK.Press();
}

TEST_F(SettingsTest, StoreTheFontOfTheHistoryOnOk) {
  Open();
  platform.windows.onModal = ChooseItalics;

  dialog.Command5.Press();
  EXPECT_EQ(program.session.settings.DisplayFontName, "Courier New");
  dialog.cmdOK.Press();

  EXPECT_EQ(program.session.settings.DisplayFontName, "Arial");
  EXPECT_EQ(program.session.settings.DisplayFontSize, 9);
  EXPECT_EQ(program.session.settings.DisplayFontBold, 0);
  EXPECT_EQ(program.session.settings.DisplayFontItalic, -1);
  EXPECT_EQ(modified, 1);
}

TEST_F(SettingsTest, DiscardTheFontOfTheHistoryOnCancel) {
  Open();
  platform.windows.onModal = ChooseItalics;

  dialog.Command5.Press();
  dialog.cmdCancel.Press();

  EXPECT_EQ(program.session.settings.DisplayFontName, "Courier New");
  EXPECT_EQ(modified, 0);
}

}  // namespace
}  // namespace orby::test
