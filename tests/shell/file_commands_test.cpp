// The commands of the File menu and their effects.

#include <array>

#include "design/field.h"
#include "main_window_fixture.h"
#include "support/acting_boxes.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using Step = MemoryFiles::Step;

struct FileMenu : MainWindowTest {
  void Choose(FileItem item) { window.mnuFileItem.ClickItem(item); }
};

// ---- New ------------------------------------------------------------------------------------------------------------

TEST_F(FileMenu, NewBeginsAnUntitledDesignWithoutAQuestion) {
  EditPanel3();

  Choose(FileItem::New);

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.project.CurrentFile, "Untitled");
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_TRUE(program.project.FileEmpty);
  EXPECT_FALSE(program.project.UnitsLocked);
  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: Untitled");
}

TEST_F(FileMenu, NewLeavesNothingToRecover) {
  EditPanel3();
  window.mnuEditItem.ClickItem(EditItem::Parameters);
  ASSERT_TRUE(Exists(RecoveryPath));

  Choose(FileItem::New);

  EXPECT_FALSE(Exists(RecoveryPath));
}

TEST_F(FileMenu, NewShowsTheParametersIfTheOptionsSaySo) {
  program.session.options.ShowInputScreenOnLoad = 1;

  Choose(FileItem::New);

  EXPECT_EQ(platform.windows.modalForms, 1);
}

// ---- Open -----------------------------------------------------------------------------------------------------------

TEST_F(FileMenu, OpenLoadsTheChosenFile) {
  OpenByDialog(Panel3);

  EXPECT_EQ(program.project.PreviousFile, "Untitled");
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 725);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_FALSE(program.project.FileEmpty);
  EXPECT_TRUE(program.project.UnitsLocked);
  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: /designs/panel3.orb");
  EXPECT_EQ(window.mnuFileArray.Caption(1), Panel3);
  EXPECT_TRUE(window.mnuFileArray.ItemVisible(0));
  EXPECT_TRUE(window.mnuFileArray.ItemVisible(1));
  EXPECT_EQ(platform.windows.modalForms, 0);
}

TEST_F(FileMenu, OpenShowsTheParametersIfTheOptionsSaySo) {
  program.session.options.ShowInputScreenOnLoad = 1;

  OpenByDialog(Panel3);

  EXPECT_EQ(platform.windows.modalForms, 1);
}

TEST_F(FileMenu, OpenWritesTheRecentFilesAtOnce) {
  OpenByDialog(Panel3);

  EXPECT_THAT(FileAt(IniPath), HasSubstr("LastFileLong1=/designs/panel3.orb\r\n"));
}

TEST_F(FileMenu, OpenThatIsCancelledChangesNothing) {
  EditPanel3();

  Choose(FileItem::Open);

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.project.CurrentFile, Panel3);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 800);
  EXPECT_FALSE(program.project.FileSaved);
}

TEST_F(FileMenu, OpenAsksToSaveTheOldProjectFirst) {
  EditPanel3();
  platform.boxes.answers = {BoxResult::Yes};

  OpenByDialog(Panel4);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Save changes to: /designs/panel3.orb?"));
  EXPECT_THAT(FileAt(Panel3), HasSubstr("\r\n800\r\n"));
  EXPECT_EQ(program.project.CurrentFile, Panel4);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 980);
}

TEST_F(FileMenu, OpenIsStoppedIfTheOldProjectCannotBeSaved) {
  OpenByDialog(Panel3);
  platform.windows.onModal = [](Form& form) {
    dynamic_cast<TextBox&>(*form.Find("txtDepthofCover")).SetText("800");
    dynamic_cast<Button&>(*form.Find("Command2")).Press();
  };
  window.mnuEditItem.ClickItem(EditItem::Parameters);
  const std::string kept = FileAt(RecoveryPath);
  platform.boxes.answers = {BoxResult::Yes, BoxResult::Cancel};
  platform.files.Fail(Step::Create, error_number::DiskFull);

  OpenByDialog(Panel4);

  EXPECT_EQ(program.project.CurrentFile, Panel3);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 800);
  EXPECT_FALSE(program.project.FileSaved);
  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: /designs/panel3.orb*");
  EXPECT_EQ(FileAt(RecoveryPath), kept);
  EXPECT_EQ(window.mnuFileArray.Caption(1), Panel3);
}

TEST_F(FileMenu, ARecentFileIsNotOpenedIfTheSaveOfTheOldProjectIsCancelled) {
  OpenByDialog(Panel4);
  window.mnuFileItem.ClickItem(FileItem::New);
  program.project.WorkParms.Place.DepthofCover = 800;
  program.project.FileSaved = false;
  platform.boxes.answers = {BoxResult::Yes};

  window.mnuFileArray.ClickItem(1);

  EXPECT_EQ(program.project.CurrentFile, "Untitled");
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 800);
  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: Untitled");
}

TEST_F(FileMenu, ARefusedFileLeavesANewDesignUnderItsNameAndTheOldCaption) {
  OpenByDialog(Panel3);
  platform.files.files["/notes.txt"] = "bolts are in stock\r\n";

  OpenByDialog("/notes.txt");

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid ORBY file format. File can not be opened."));
  EXPECT_EQ(program.project.CurrentFile, "/notes.txt");
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_TRUE(program.project.FileEmpty);
  EXPECT_FALSE(program.project.UnitsLocked);
  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: /designs/panel3.orb");
  EXPECT_EQ(program.session.recentFiles.MaxLastFiles, 1);
}

TEST_F(FileMenu, SaveAfterARefusedFileOverwritesItWithoutAQuestion) {
  platform.files.files["/notes.txt"] = "bolts are in stock\r\n";
  OpenByDialog("/notes.txt");
  platform.boxes.shown.clear();

  Choose(FileItem::Save);

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(FileAt("/notes.txt"), DesignAt(400));
}

TEST_F(FileMenu, AFileThatCannotBeReadIsReportedAndNotListedAsRecent) {
  platform.boxes.answers = {BoxResult::Cancel};

  OpenByDialog("/designs/missing.orb");

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Error occurred: File not found (53)"));
  EXPECT_EQ(platform.boxes.shown.front().style, BoxButtons::RetryCancel);
  EXPECT_FALSE(platform.windows.waitCursor);
  EXPECT_EQ(program.session.recentFiles.MaxLastFiles, 0);
}

TEST_F(FileMenu, AMissingFileIsOpenedOnRetryAfterItIsBack) {
  ActingBoxes boxes;
  boxes.answers = {BoxResult::Retry};
  boxes.meanwhile = [this] { platform.files.files["/designs/back.orb"] = DesignAt(610); };
  Program retried = StartedProgram(platform.AsPlatformWith(boxes));
  MainWindow other(retried);
  platform.fileDialogs.answers = {"/designs/back.orb"};

  other.mnuFileItem.ClickItem(FileItem::Open);

  EXPECT_THAT(boxes.Texts(), ElementsAre("Error occurred: File not found (53)"));
  EXPECT_EQ(retried.project.WorkParms.Place.DepthofCover, 610);
  EXPECT_TRUE(retried.project.FileSaved);
  EXPECT_EQ(other.Caption(), "Orby Roof Support Workbench: /designs/back.orb");
  EXPECT_EQ(other.mnuFileArray.Caption(1), "/designs/back.orb");
  EXPECT_FALSE(platform.windows.waitCursor);
}

struct BrokenFile {
  const char* name;
  const char* from;  // the first such text in the file and everything after it
  const char* to;    // is replaced by this text
  const char* message;
  BoxStyle style;
};

class ABrokenFile : public MainWindowTest, public testing::WithParamInterface<BrokenFile> {};

TEST_P(ABrokenFile, IsReportedAndLeavesCaptionAndRecentFilesUnchanged) {
  const BrokenFile& broken = GetParam();
  OpenByDialog(Panel3);
  const std::string whole = FileAt(Panel4);
  ASSERT_NE(whole.find(broken.from), std::string::npos);
  platform.files.files[Panel4] = whole.substr(0, whole.find(broken.from)) + broken.to;
  program.session.options.ShowInputScreenOnLoad = 1;
  platform.boxes.answers = {BoxResult::Cancel};

  OpenByDialog(Panel4);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre(broken.message));
  EXPECT_EQ(platform.boxes.shown.front().style, broken.style);
  EXPECT_FALSE(platform.windows.waitCursor);
  EXPECT_EQ(program.project.CurrentFile, Panel4);
  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: /designs/panel3.orb");
  EXPECT_EQ(program.session.recentFiles.MaxLastFiles, 1);
  EXPECT_EQ(window.mnuFileArray.Caption(1), Panel3);
  EXPECT_EQ(platform.windows.modalForms, 0);
}

INSTANTIATE_TEST_SUITE_P(
    By, ABrokenFile,
    testing::Values(BrokenFile{"ARatingThatIsNoInteger", "\r\n45\r\n", "\r\n40000\r\n1\r\n",
                               "Error occurred: Overflow (6). Procedure Terminated", BoxButtons::Ok},
                    BrokenFile{"AnEndInTheMiddle", "\r\n980\r\n", "\r\n980\r\n",
                               "Error occurred: Input past end of file (62)", BoxButtons::RetryCancel}),
    [](const auto& tested) { return tested.param.name; });

TEST_F(FileMenu, OpenOffersTheFilesOfTheProgramAndThenAllFiles) {
  Choose(FileItem::Open);

  ASSERT_EQ(platform.fileDialogs.asked.size(), 1U);
  const std::vector<FileFilter>& filters = platform.fileDialogs.asked[0].filters;
  ASSERT_EQ(filters.size(), 2U);
  EXPECT_EQ(filters[0].name, "Orby Roof Support Workbench (*.ORB)");
  EXPECT_EQ(filters[0].pattern, "*.ORB");
  EXPECT_EQ(filters[1].name, "All Files (*.*)");
  EXPECT_EQ(filters[1].pattern, "*");
}

TEST_F(FileMenu, OpenKeepsTheComputedFiguresOfTheOldProject) {
  constexpr std::array<SingleField, 18> Computed{[](auto& d) { return &d.Entries.RockLoad; },
                                                 [](auto& d) { return &d.Entries.Cable.SupportCap; },
                                                 [](auto& d) { return &d.Entries.Truss.SupportCap; },
                                                 [](auto& d) { return &d.Entries.Bolt.SupportCap; },
                                                 [](auto& d) { return &d.Entries.Standing.SupportCap; },
                                                 [](auto& d) { return &d.Entries.Cable.StabFactor; },
                                                 [](auto& d) { return &d.Entries.Truss.StabFactor; },
                                                 [](auto& d) { return &d.Entries.Bolt.StabFactor; },
                                                 [](auto& d) { return &d.Entries.Standing.StabFactor; },
                                                 [](auto& d) { return &d.Intersections.RockLoad; },
                                                 [](auto& d) { return &d.Intersections.Cable.SupportCap; },
                                                 [](auto& d) { return &d.Intersections.Truss.SupportCap; },
                                                 [](auto& d) { return &d.Intersections.Bolt.SupportCap; },
                                                 [](auto& d) { return &d.Intersections.Standing.SupportCap; },
                                                 [](auto& d) { return &d.Intersections.Cable.StabFactor; },
                                                 [](auto& d) { return &d.Intersections.Truss.StabFactor; },
                                                 [](auto& d) { return &d.Intersections.Bolt.StabFactor; },
                                                 [](auto& d) { return &d.Intersections.Standing.StabFactor; }};
  Single value = 11.5F;
  for (const auto field : Computed) field.In(program.project.WorkParms) = value++;

  OpenByDialog(Panel3);

  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 725);
  value = 11.5F;
  for (const auto field : Computed) EXPECT_EQ(field.In(program.project.WorkParms), value++);
}

TEST_F(FileMenu, OpeningLeavesNothingToRecover) {
  EditPanel3();
  window.mnuEditItem.ClickItem(EditItem::Parameters);
  ASSERT_TRUE(Exists(RecoveryPath));
  platform.boxes.answers = {BoxResult::No};

  OpenByDialog(Panel4);

  EXPECT_FALSE(Exists(RecoveryPath));
}

TEST_F(FileMenu, AFileDroppedOnTheWindowIsOpened) {
  EditPanel3();
  platform.boxes.answers = {BoxResult::No};

  window.Dropped(Panel4);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Save changes to: /designs/panel3.orb?"));
  EXPECT_EQ(program.project.CurrentFile, Panel4);
  EXPECT_EQ(program.project.PreviousFile, Panel3);
  EXPECT_EQ(window.mnuFileArray.Caption(1), Panel4);
}

// ---- recent files ---------------------------------------------------------------------------------------------------

TEST_F(FileMenu, ARecentFileIsOpenedAgain) {
  OpenByDialog(Panel3);
  OpenByDialog(Panel4);

  window.mnuFileArray.ClickItem(2);

  EXPECT_EQ(program.project.PreviousFile, Panel4);
  EXPECT_EQ(program.project.CurrentFile, Panel3);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 725);
  EXPECT_EQ(window.mnuFileArray.Caption(1), Panel3);
  EXPECT_EQ(window.mnuFileArray.Caption(2), Panel4);
}

TEST_F(FileMenu, AMissingRecentFileStaysInTheList) {
  OpenByDialog(Panel3);
  platform.files.files.erase(Panel3);
  platform.boxes.answers = {BoxResult::Cancel};

  window.mnuFileArray.ClickItem(1);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Error occurred: File not found (53)"));
  EXPECT_TRUE(window.mnuFileArray.ItemVisible(1));
}

TEST_F(FileMenu, TheSeparatorOfTheRecentFilesDoesNothing) {
  OpenByDialog(Panel3);

  window.mnuFileArray.ClickItem(0);

  EXPECT_EQ(program.project.PreviousFile, "Untitled");
}

TEST_F(FileMenu, ASwitchedOffListOfRecentFilesStaysEmpty) {
  program.session.settings.KeepFileNames = 0;

  OpenByDialog(Panel3);
  Choose(FileItem::Save);

  EXPECT_FALSE(window.mnuFileArray.ItemVisible(0));
  EXPECT_FALSE(Exists(IniPath));
}

// ---- Save -----------------------------------------------------------------------------------------------------------

TEST_F(FileMenu, SaveWritesTheProjectAndRemovesTheStar) {
  OpenByDialog(Panel3);
  platform.windows.onModal = [](Form& form) {
    dynamic_cast<TextBox&>(*form.Find("txtDepthofCover")).SetText("800");
    dynamic_cast<Button&>(*form.Find("Command2")).Press();
  };
  window.mnuEditItem.ClickItem(EditItem::Parameters);
  ASSERT_EQ(window.Caption(), "Orby Roof Support Workbench: /designs/panel3.orb*");
  ASSERT_TRUE(Exists(RecoveryPath));

  Choose(FileItem::Save);

  EXPECT_THAT(FileAt(Panel3), HasSubstr("\r\n800\r\n"));
  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: /designs/panel3.orb");
  EXPECT_FALSE(Exists(RecoveryPath));
}

TEST_F(FileMenu, SaveAsRenamesTheProject) {
  OpenByDialog(Panel3);
  platform.fileDialogs.answers = {"/designs/copy.orb"};

  Choose(FileItem::SaveAs);

  EXPECT_THAT(FileAt("/designs/copy.orb"), HasSubstr("\r\n725\r\n"));
  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: /designs/copy.orb");
  EXPECT_EQ(window.mnuFileArray.Caption(1), "/designs/copy.orb");
  EXPECT_EQ(window.mnuFileArray.Caption(2), Panel3);
}

TEST_F(FileMenu, SaveAsThatIsCancelledChangesNothing) {
  EditPanel3();

  Choose(FileItem::SaveAs);

  EXPECT_EQ(program.project.CurrentFile, Panel3);
  EXPECT_FALSE(program.project.FileSaved);
  EXPECT_EQ(program.session.recentFiles.MaxLastFiles, 1);
}

struct CaptionPath {
  const char* path;
  const char* shown;
};

class LongPaths : public MainWindowTest, public testing::WithParamInterface<CaptionPath> {};

TEST_P(LongPaths, AreShortenedInTheCaption) {
  platform.fileDialogs.answers = {GetParam().path};

  window.mnuFileItem.ClickItem(FileItem::SaveAs);

  EXPECT_EQ(window.Caption(), std::string("Orby Roof Support Workbench: ") + GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(FiftyAndFiftyOneCharacters, LongPaths,
                         testing::Values(CaptionPath{"/designs/north-mains/2031/panel3/gateroad/last.orb",
                                                     "/designs/north-mains/2031/panel3/gateroad/last.orb"},
                                         CaptionPath{"/designs/north-mains/2031/panel3/gateroad/final.orb",
                                                     "/designs/n...-mains/2031/panel3/gateroad/final.orb"}));

// ---- tool bar -------------------------------------------------------------------------------------------------------

TEST_F(FileMenu, TheToolBarOpensAndSaves) {
  platform.fileDialogs.answers = {Panel3};
  window.Toolbar1.ClickItem(ToolButton::Open);
  program.project.WorkParms.Place.DepthofCover = 800;

  window.Toolbar1.ClickItem(ToolButton::Save);

  EXPECT_EQ(program.project.CurrentFile, Panel3);
  EXPECT_THAT(FileAt(Panel3), HasSubstr("\r\n800\r\n"));
  EXPECT_THAT(FileAt(Panel3), StartsWith("ORBY_105\r\n"));
}

}  // namespace
}  // namespace orby::test
