#include "dialogs/text_browser.h"

#include <gmock/gmock.h>

#include "core/messages.h"
#include "support/acting_boxes.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using Step = MemoryFiles::Step;

std::vector<std::string> ItemsOf(const List& list) {
  std::vector<std::string> items;
  for (const ComboItem& item : list.Items()) items.push_back(item.text);
  return items;
}

// A machine with two disks, and designs in the user's documents folder.
struct ABrowser : testing::Test {
  ABrowser() {
    platform.files.drives = {"/", "/media/stick"};
    platform.files.folders = {
        "",     "/home",  "/home/user",   "/home/user/Documents", "/home/user/Documents/Mines", "/etc",
        "/tmp", "/media", "/media/stick", "/media/stick/old",     "/home/user/Documents/Scans"};
    platform.files.files["/home/user/Documents/panel3.ORB"] = "cover\r\n400\r\n";
    platform.files.files["/home/user/Documents/panel4.orb"] = "cover\r\n980\r\n";
    platform.files.files["/home/user/Documents/notes.txt"] = "one\ntwo";
    platform.files.files["/home/user/Documents/Mines/list"] = "North\n";
    platform.files.files["/home/user/Documents/Mines/east.orb"] = "east\n";
    platform.files.files["/root.orb"] = "root\n";
    platform.files.files["/media/stick/stick.orb"] = "stick\n";
    program.session.settings.DataPath = "/home/user/Documents/";
    program.session.settings.ExternalEditor = "/usr/bin/viewer";
    program.session.folders.ProgramTemporary = "/tmp/";
    program.session.IniFilePath = "/home/user/ORBY.INI";
    program.session.textBrowse.BrowseFontName = "Courier New";
  }

  void Open() {
    browser.Open();
    program.session.history.Text.clear();
  }

  int ItemOf(const List& list, const std::string& text) {
    const auto items = ItemsOf(list);
    return static_cast<int>(std::ranges::find(items, text) - items.begin());
  }
  void ClickFolder(const std::string& text) { browser.Dir1.ClickItem(ItemOf(browser.Dir1, text)); }
  void ClickFile(const std::string& name) { browser.File1.ClickItem(ItemOf(browser.File1, name)); }

  // Returns a program with the same settings on another platform.
  Program ProgramOn(const Platform& doors) {
    Program other(doors);
    other.session.settings = program.session.settings;
    other.session.folders = program.session.folders;
    return other;
  }

  // Waits until the file is read completely.
  void Wait() {
    while (!platform.clock.waiting.empty()) platform.clock.Pass();
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  TextBrowser browser{program};
};

// ---- opening and closing -------------------------------------------------------------------------------------------

TEST_F(ABrowser, StartsInTheDataFolder) {
  Open();

  EXPECT_EQ(browser.Drive1.Text(), "/");
  EXPECT_THAT(ItemsOf(browser.Dir1),
              ElementsAre("/", "  home", "    user", "      Documents", "        Mines", "        Scans"));
  EXPECT_EQ(browser.Dir1.ListIndex(), 3);
  EXPECT_THAT(ItemsOf(browser.File1), ElementsAre("panel3.ORB", "panel4.orb"));
  EXPECT_EQ(browser.File1.ListIndex(), -1);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(ABrowser, TitlesItsMessagesWithoutItsOwnName) {
  Open();

  EXPECT_EQ(program.windows.titles.ErrorTitle, "Error");
}

TEST_F(ABrowser, StartsInTheLastFolderOfTheRun) {
  program.session.textBrowse.LastFolder = "/media/stick/old";

  Open();

  EXPECT_EQ(browser.Drive1.Text(), "/media/stick");
  EXPECT_THAT(ItemsOf(browser.Dir1), ElementsAre("/media/stick", "  old"));
  EXPECT_EQ(browser.Dir1.ListIndex(), 1);
}

TEST_F(ABrowser, StartsInTheParentOfAMissingLastFolder) {
  program.session.textBrowse.LastFolder = "/home/user/Documents/Gone/Deep";

  Open();

  EXPECT_EQ(ItemsOf(browser.Dir1)[3], "      Documents");
  EXPECT_EQ(browser.Dir1.ListIndex(), 3);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(ABrowser, IsEmptyOnAMachineThatCannotBeRead) {
  platform.files.Fail(Step::ListFolders, 70);

  Open();

  EXPECT_THAT(browser.Dir1.Items(), IsEmpty());
  EXPECT_THAT(browser.File1.Items(), IsEmpty());
}

TEST_F(ABrowser, OffersTheFilesOfTheProgramUnlessAFilterIsStored) {
  program.session.settings.FileExtension = "ORB";
  Open();

  EXPECT_EQ(browser.Text2.Text(), "*.ORB");
}

TEST_F(ABrowser, UsesTheStoredFilterFontAndViewer) {
  program.session.textBrowse = {"Terminal", 14, -1, 0, "*.txt", 1, {}};

  Open();

  EXPECT_EQ(browser.Text2.Text(), "*.txt");
  EXPECT_THAT(ItemsOf(browser.File1), ElementsAre("notes.txt"));
  EXPECT_EQ(browser.RichTextBox1.Font(), (FontChoice{"Terminal", 14, true, false}));
  EXPECT_TRUE(browser.Check1.Checked());
}

TEST_F(ABrowser, StoresTheUsersChoices) {
  Open();
  ClickFolder("        Mines");
  browser.Text2.SetText("*.txt");
  browser.Check1.SetValue(1);
  browser.RichTextBox1.SetFont({"Terminal", 14, true, true});

  browser.Command1.Press();

  EXPECT_FALSE(browser.IsOpen());
  EXPECT_EQ(program.session.textBrowse.LastFolder, "/home/user/Documents/Mines");
  EXPECT_EQ(platform.files.files.at("/home/user/ORBY.INI"),
            "[TextBrowse]\r\nBrowseFontName=Terminal\r\nBrowseFontSize=14\r\nBrowseFontBold=-1\r\n"
            "BrowseFontItalic=-1\r\nBrowseDefaultFilter=*.txt\r\nBrowseUseNotepad=1\r\n");
}

// ---- drives and folders --------------------------------------------------------------------------------------------

TEST_F(ABrowser, ListsTheDrives) {
  Open();

  ASSERT_EQ(browser.Drive1.Items().size(), 2U);
  EXPECT_EQ(browser.Drive1.Items()[0].text, "/");
  EXPECT_EQ(browser.Drive1.Items()[1].text, "/media/stick");
}

TEST_F(ABrowser, OpensTheTopFolderOfAnotherDrive) {
  Open();

  browser.Drive1.SetListIndex(1);

  EXPECT_THAT(ItemsOf(browser.Dir1), ElementsAre("/media/stick", "  old"));
  EXPECT_EQ(browser.Dir1.ListIndex(), 0);
  EXPECT_THAT(ItemsOf(browser.File1), ElementsAre("stick.orb"));
}

TEST_F(ABrowser, ReturnsToTheLastDriveIfAnotherCannotBeRead) {
  Open();
  platform.files.folders.erase("/media/stick");

  browser.Drive1.SetListIndex(1);

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Windows is unable to read selected drive. Make sure the door is closed and the disk is "
                          "formatted and free of errors"));
  EXPECT_EQ(browser.Drive1.Text(), "/");
  EXPECT_EQ(browser.Drive1.ListIndex(), 0);
  EXPECT_EQ(browser.Dir1.ListIndex(), 3);
  EXPECT_THAT(ItemsOf(browser.File1), ElementsAre("panel3.ORB", "panel4.orb"));
}

TEST_F(ABrowser, ReportsADriveThatDoesNotExist) {
  Open();

  browser.Drive1.SetText("C:");

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre(HasSubstr("unable to read selected drive")));
  EXPECT_EQ(browser.Drive1.Text(), "/");
}

TEST_F(ABrowser, OpensASubfolder) {
  Open();

  ClickFolder("        Mines");

  EXPECT_THAT(ItemsOf(browser.Dir1), ElementsAre("/", "  home", "    user", "      Documents", "        Mines"));
  EXPECT_EQ(browser.Dir1.ListIndex(), 4);
  EXPECT_THAT(ItemsOf(browser.File1), ElementsAre("east.orb"));
}

TEST_F(ABrowser, OpensAParentFolder) {
  Open();

  ClickFolder("/");

  EXPECT_THAT(ItemsOf(browser.Dir1), ElementsAre("/", "  etc", "  home", "  media", "  tmp"));
  EXPECT_EQ(browser.Dir1.ListIndex(), 0);
  EXPECT_THAT(ItemsOf(browser.File1), ElementsAre("root.orb"));
}

TEST_F(ABrowser, SelectsTheDriveOfAnOpenedFolder) {
  Open();
  ClickFolder("/");
  ClickFolder("  media");

  ClickFolder("    stick");

  EXPECT_EQ(browser.Drive1.Text(), "/media/stick");
  EXPECT_EQ(browser.Drive1.ListIndex(), 1);
  EXPECT_THAT(ItemsOf(browser.Dir1), ElementsAre("/media/stick", "  old"));
}

TEST_F(ABrowser, KeepsItsFolderIfAnotherCannotBeRead) {
  Open();
  platform.files.Fail(Step::ListFolders, 70);
  platform.boxes.answers.push_back(BoxResult::Cancel);

  ClickFolder("        Mines");

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Error occurred: Permission denied (70)"));
  EXPECT_EQ(browser.Dir1.ListIndex(), 3);
  EXPECT_THAT(ItemsOf(browser.File1), ElementsAre("panel3.ORB", "panel4.orb"));
}

TEST_F(ABrowser, KeepsItsFolderIfAnotherIsMissing) {
  Open();
  platform.files.folders.erase("/home/user/Documents/Mines");

  ClickFolder("        Mines");

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Error occurred: Path not found (76). Procedure Terminated"));
  EXPECT_EQ(browser.Dir1.ListIndex(), 3);
}

TEST_F(ABrowser, FiltersTheFilesAsThePatternIsTyped) {
  Open();

  browser.Text2.SetText("*.t");
  EXPECT_THAT(browser.File1.Items(), IsEmpty());
  browser.Text2.SetText("*.txt;*3.orb");
  EXPECT_THAT(ItemsOf(browser.File1), ElementsAre("notes.txt", "panel3.ORB"));
  browser.Text2.SetText("");
  EXPECT_THAT(ItemsOf(browser.File1), ElementsAre("notes.txt", "panel3.ORB", "panel4.orb"));
  browser.Text2.SetText("*.*");
  EXPECT_THAT(ItemsOf(browser.File1), ElementsAre("notes.txt", "panel3.ORB", "panel4.orb"));
}

// ---- in the pane ---------------------------------------------------------------------------------------------------

TEST_F(ABrowser, ShowsAFile) {
  Open();

  ClickFile("panel3.ORB");
  Wait();

  EXPECT_EQ(browser.Label1.Text(), "/home/user/Documents/panel3.ORB");
  EXPECT_EQ(browser.RichTextBox1.Bytes(), "cover\r\n400\r\n");
  EXPECT_FALSE(browser.prgLoading.Visible());
}

TEST_F(ABrowser, AddsNoSecondSeparatorAtTheTopOfADrive) {
  Open();
  ClickFolder("/");

  ClickFile("root.orb");
  Wait();

  EXPECT_EQ(browser.Label1.Text(), "/root.orb");
  EXPECT_EQ(browser.RichTextBox1.Bytes(), "root\n");
}

TEST_F(ABrowser, ShowsALongFilePieceByPieceWithItsProgress) {
  const std::string bytes(TextBrowser::PieceBytes * 2, 'x');
  platform.files.files["/home/user/Documents/long.orb"] = bytes;
  Open();

  ClickFile("long.orb");

  EXPECT_TRUE(browser.prgLoading.Visible());
  EXPECT_EQ(browser.prgLoading.Value(), 0);
  EXPECT_EQ(browser.RichTextBox1.Bytes().size(), 0U);
  platform.clock.Pass();
  EXPECT_EQ(browser.prgLoading.Value(), 50);
  EXPECT_EQ(browser.RichTextBox1.Bytes().size(), TextBrowser::PieceBytes);
  platform.clock.Pass();
  EXPECT_EQ(browser.prgLoading.Value(), 100);
  EXPECT_TRUE(browser.prgLoading.Visible());
  Wait();
  EXPECT_FALSE(browser.prgLoading.Visible());
  EXPECT_EQ(browser.RichTextBox1.Bytes(), bytes);
}

TEST_F(ABrowser, ClearsThePaneBeforeTheNextFile) {
  Open();
  ClickFile("panel3.ORB");
  Wait();
  ASSERT_EQ(browser.prgLoading.Value(), 100);

  ClickFile("panel4.orb");

  EXPECT_TRUE(browser.prgLoading.Visible());
  EXPECT_EQ(browser.prgLoading.Value(), 0);
}

TEST_F(ABrowser, StopsReadingAFileWhenAnotherIsChosen) {
  platform.files.files["/home/user/Documents/long.orb"] = std::string(TextBrowser::PieceBytes * 3, 'x');
  Open();
  ClickFile("long.orb");
  platform.clock.Pass();

  ClickFile("panel4.orb");
  Wait();

  EXPECT_EQ(browser.RichTextBox1.Bytes(), "cover\r\n980\r\n");
  EXPECT_EQ(browser.Label1.Text(), "/home/user/Documents/panel4.orb");
}

TEST_F(ABrowser, StopsReadingWhenItIsClosed) {
  platform.files.files["/home/user/Documents/long.orb"] = std::string(TextBrowser::PieceBytes * 3, 'x');
  Open();
  ClickFile("long.orb");
  platform.clock.Pass();

  browser.Close();
  Wait();

  EXPECT_EQ(browser.RichTextBox1.Bytes().size(), TextBrowser::PieceBytes);
}

TEST_F(ABrowser, CanBeDestroyedWhileItReadsAFile) {
  platform.files.files["/home/user/Documents/long.orb"] = std::string(TextBrowser::PieceBytes * 3, 'x');
  {
    TextBrowser other(program);
    other.Open();
    other.File1.ClickItem(0);
    ASSERT_THAT(platform.clock.waiting, Not(IsEmpty()));
  }

  Wait();

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(ABrowser, ReportsAFileThatCannotBeOpened) {
  Open();
  platform.files.files.erase("/home/user/Documents/panel3.ORB");
  platform.boxes.answers.push_back(BoxResult::Cancel);

  ClickFile("panel3.ORB");
  Wait();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Error occurred: File not found (53)"));
  EXPECT_EQ(platform.boxes.shown[0].style, BoxButtons::RetryCancel);
  EXPECT_EQ(browser.RichTextBox1.Bytes(), "");
  EXPECT_FALSE(browser.prgLoading.Visible());
}

// While the question is open, the user corrects the problem and then asks for a retry.
struct AnotherTry : ABrowser {
  AnotherTry() {
    boxes.answers = {BoxResult::Retry};
    again.Open();
  }

  ActingBoxes boxes;
  Program mended = ProgramOn(platform.AsPlatformWith(boxes));
  TextBrowser again{mended};
};

TEST_F(AnotherTry, OpensAFolderThatCanThenBeRead) {
  constexpr int Never = 1'000'000;
  platform.files.Fail(Step::ListFolders, 70);
  boxes.meanwhile = [this] { platform.files.Fail(Step::ListFolders, 70, Never); };

  again.Dir1.ClickItem(ItemOf(again.Dir1, "        Mines"));

  EXPECT_THAT(boxes.Texts(), ElementsAre("Error occurred: Permission denied (70)"));
  EXPECT_EQ(again.Dir1.ListIndex(), 4);
  EXPECT_THAT(ItemsOf(again.File1), ElementsAre("east.orb"));
}

TEST_F(AnotherTry, ShowsAFileThatThenExists) {
  platform.files.files.erase("/home/user/Documents/panel3.ORB");
  boxes.meanwhile = [this] { platform.files.files["/home/user/Documents/panel3.ORB"] = "cover\r\n725\r\n"; };

  again.File1.ClickItem(0);
  Wait();

  EXPECT_THAT(boxes.Texts(), ElementsAre("Error occurred: File not found (53)"));
  EXPECT_EQ(again.RichTextBox1.Bytes(), "cover\r\n725\r\n");
}

TEST_F(ABrowser, KeepsTheBeginningOfAFileThatCannotBeReadToItsEnd) {
  platform.files.files["/home/user/Documents/long.orb"] = std::string(TextBrowser::PieceBytes * 3, 'x');
  Open();
  ClickFile("long.orb");
  platform.clock.Pass();
  platform.files.Fail(Step::Read, 75);

  Wait();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Error occurred: Path/File access error (75). Procedure Terminated"));
  EXPECT_EQ(browser.RichTextBox1.Bytes().size(), TextBrowser::PieceBytes);
  EXPECT_FALSE(browser.prgLoading.Visible());
}

TEST_F(AnotherTry, ShowsAFileThatIsChosenWhileAnErrorIsShown) {
  constexpr int Never = 1'000'000;
  platform.files.files["/home/user/Documents/long.orb"] = std::string(TextBrowser::PieceBytes * 3, 'x');
  again.Text2.SetText("*.orb;*.ORB");
  again.File1.ClickItem(ItemOf(again.File1, "long.orb"));
  platform.clock.Pass();
  platform.files.Fail(Step::Read, 75);
  boxes.meanwhile = [this] {
    platform.files.Fail(Step::Read, 75, Never);
    again.File1.ClickItem(ItemOf(again.File1, "panel4.orb"));
  };

  Wait();

  EXPECT_THAT(boxes.Texts(), ElementsAre("Error occurred: Path/File access error (75). Procedure Terminated"));
  EXPECT_EQ(again.Label1.Text(), "/home/user/Documents/panel4.orb");
  EXPECT_EQ(again.RichTextBox1.Bytes(), "cover\r\n980\r\n");
}

// A file system with one long file, most of which is never read.
struct LongFiles : MemoryFiles {
  std::uint64_t FileLength(const std::string& path) override {
    return path == "/home/user/Documents/panel3.ORB" ? length : MemoryFiles::FileLength(path);
  }
  std::uint64_t length = 0;
};

struct ALongFile : ABrowser {
  ALongFile() {
    files.files = platform.files.files;
    files.folders = platform.files.folders;
  }

  LongFiles files;
  Program longProgram = ProgramOn(platform.AsPlatformWith(files));
  TextBrowser longBrowser{longProgram};
};

TEST_F(ALongFile, IsRefusedWithAMessage) {
  files.length = TextBrowser::MostBytes + 1;
  longBrowser.Open();

  longBrowser.File1.ClickItem(0);
  Wait();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("The file is too long to be viewed here, it has more than 1 GB: "
                                                  "/home/user/Documents/panel3.ORB"));
  EXPECT_EQ(longBrowser.RichTextBox1.Bytes(), "");
}

TEST_F(ALongFile, IsRefusedForTheExternalViewerToo) {
  files.length = TextBrowser::MostBytes + 1;
  longProgram.session.textBrowse.BrowseUseNotepad = 1;
  longBrowser.Open();

  longBrowser.File1.ClickItem(0);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre(HasSubstr("more than 1 GB")));
  EXPECT_THAT(platform.documents.started, IsEmpty());
}

TEST_F(ALongFile, OfExactlyOneGigabyteIsViewed) {
  files.length = std::uint64_t{1024} * 1024 * 1024;
  longProgram.session.textBrowse.BrowseUseNotepad = 1;
  longBrowser.Open();

  longBrowser.File1.ClickItem(0);

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_THAT(platform.documents.started, SizeIs(1));
}

// ---- in the external viewer ----------------------------------------------------------------------------------------

TEST_F(ABrowser, HidesThePaneForTheExternalViewer) {
  Open();
  EXPECT_TRUE(browser.RichTextBox1.Visible());
  EXPECT_TRUE(browser.cmdSetFont.Enabled());

  browser.Check1.SetValue(1);
  EXPECT_FALSE(browser.RichTextBox1.Visible());
  EXPECT_FALSE(browser.lblView.Visible());
  EXPECT_FALSE(browser.cmdSetFont.Enabled());

  browser.Check1.SetValue(0);
  EXPECT_TRUE(browser.RichTextBox1.Visible());
  EXPECT_TRUE(browser.cmdSetFont.Enabled());
}

TEST_F(ABrowser, OpensHiddenForTheExternalViewer) {
  program.session.textBrowse.BrowseUseNotepad = 1;

  Open();

  EXPECT_FALSE(browser.RichTextBox1.Visible());
  EXPECT_FALSE(browser.cmdSetFont.Enabled());
}

struct AnExternalViewer : ABrowser {
  AnExternalViewer() {
    program.session.textBrowse.BrowseUseNotepad = 1;
    program.session.textBrowse.BrowseDefaultFilter = "*.*";
    Open();
  }
};

TEST_F(AnExternalViewer, GetsACopyWithUniformLineEnds) {
  ClickFile("notes.txt");

  EXPECT_THAT(platform.documents.started, ElementsAre(ElementsAre("/usr/bin/viewer", "/tmp/~tmpbr.tmp")));
  EXPECT_EQ(platform.files.files.at("/tmp/~tmpbr.tmp"), "one\r\ntwo\r\n");
  EXPECT_EQ(browser.Label1.Text(), "/home/user/Documents/notes.txt");
  EXPECT_FALSE(browser.RichTextBox1.Visible());
  EXPECT_EQ(browser.RichTextBox1.Bytes(), "");
  EXPECT_FALSE(platform.windows.waitCursor);
}

TEST_F(AnExternalViewer, IsNotStartedForAMissingFile) {
  platform.files.files.erase("/home/user/Documents/notes.txt");

  ClickFile("notes.txt");

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Requested File not found: /home/user/Documents/notes.txt"));
  EXPECT_THAT(platform.documents.started, IsEmpty());
}

TEST_F(AnExternalViewer, IsNamedIfItDoesNotStart) {
  platform.documents.opens = false;

  ClickFile("notes.txt");

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Shell operation failed. Check status of External Viewer: /usr/bin/viewer"));
}

// ---- the font ------------------------------------------------------------------------------------------------------

struct AFontOfTheBrowser : ABrowser {
  AFontOfTheBrowser() {
    platform.fonts.screen = {"Arial", "Courier New", "Symbol"};
    platform.fonts.fixedPitch = {"Courier New"};
    Open();
  }
};

TEST_F(AFontOfTheBrowser, IsTheChosenOne) {
  platform.windows.onModal = [](Form& form) {
    dynamic_cast<List&>(*form.Find("lstFont")).ClickItem(0);
    dynamic_cast<TextBox&>(*form.Find("txtSize")).SetText("12");
    dynamic_cast<Button&>(*form.Find("cmdOK")).Press();
  };

  browser.cmdSetFont.Press();

  EXPECT_EQ(browser.RichTextBox1.Font(), (FontChoice{"Arial", 12, false, false}));
}

TEST_F(AFontOfTheBrowser, DoesNotChangeIfTheDialogIsCancelled) {
  platform.windows.onModal = [](Form& form) {
    dynamic_cast<List&>(*form.Find("lstFont")).ClickItem(0);
    dynamic_cast<Button&>(*form.Find("cmdCancel")).Press();
  };

  browser.cmdSetFont.Press();

  EXPECT_EQ(platform.windows.modalForms, 1);
  EXPECT_EQ(browser.RichTextBox1.Font(), (FontChoice{"Courier New", 10, false, false}));
}

TEST_F(AFontOfTheBrowser, MustExistOnTheMachine) {
  browser.RichTextBox1.SetFont({"Terminal", 10, false, false});
  platform.windows.onModal = [](Form& form) { dynamic_cast<Button&>(*form.Find("cmdOK")).Press(); };

  browser.cmdSetFont.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid font selection"));
  EXPECT_EQ(browser.RichTextBox1.Font().name, "Terminal");
}

}  // namespace
}  // namespace orby::test
