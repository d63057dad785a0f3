// The window "Designs in a Folder": what it reads, shows, sorts, filters, copies, saves and opens.
#include "dialogs/designs_window.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "dialogs/designs_fixture.h"
#include "dialogs/side_by_side_window.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

TEST_F(ADesignsWindow, ShowsTheProjectsOfTheDataFolderSortedByFile) {
  Open();

  EXPECT_THAT(Files(), ElementsAre("Crosscut.ORB", "north/gate.ORB", "notes.ORB", "weak.ORB"));
  EXPECT_EQ(window->lblShown.Caption(), "3 designs, 1 file that cannot be read. Rows shown: 4, marked: 1.");
  EXPECT_EQ(window->lblDone.Caption(), "Read 4 files");
  EXPECT_EQ(window->prgDone.Value(), 100);
  EXPECT_FALSE(window->cmdStop.Enabled());
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(ADesignsWindow, ShowsTheOverviewOfADesignAsTheProgramShowsIt) {
  Open();

  EXPECT_THAT(window->tblDesigns.Heads(), SizeIs(13));
  EXPECT_EQ(window->tblDesigns.Heads()[3], "Depth of Cover (ft)");
  EXPECT_THAT(CellsIn(window->tblDesigns, 3),
              ElementsAre("weak.ORB", "English", "25", "1200", "38", "4", "44.9", "0.4", "15", "0", "2", "3", ""));
}

TEST_F(ADesignsWindow, SaysWhyAFileCannotBeRead) {
  Open();

  const auto cells = CellsIn(window->tblDesigns, 2);
  EXPECT_EQ(cells.front(), "notes.ORB");
  EXPECT_EQ(cells[2], "");
  EXPECT_THAT(cells.back(), Not(IsEmpty()));
}

TEST_F(ADesignsWindow, SortsByAHeadAndTurnsTheOrderAroundAtTheNextClick) {
  Open();
  window->tblDesigns.ClickHead(2);
  Wait();
  EXPECT_THAT(Column(2), ElementsAre("25", "48", "55", ""));
  EXPECT_EQ(window->cmbSort.Text(), "CMRR");

  window->tblDesigns.ClickHead(2);
  Wait();
  EXPECT_THAT(Column(2), ElementsAre("55", "48", "25", ""));
  EXPECT_TRUE(window->chkDescending.Checked());

  window->tblDesigns.ClickHead(0);
  Wait();
  EXPECT_FALSE(window->chkDescending.Checked());
  EXPECT_THAT(Files(), ElementsAre("Crosscut.ORB", "north/gate.ORB", "notes.ORB", "weak.ORB"));
}

TEST_F(ADesignsWindow, SortsByTheListWithoutAMouse) {
  Open();
  window->cmbSort.SetText("Depth of Cover");
  window->chkDescending.SetValue(1);
  Wait();

  EXPECT_THAT(Column(3), ElementsAre("1200", "1017.06", "900", ""));
  EXPECT_EQ(window->tblDesigns.SortedColumn(), 3);
  EXPECT_TRUE(window->tblDesigns.IsDescending());
}

TEST_F(ADesignsWindow, ShowsRowsThatContainATextInAnyCell) {
  Open();
  window->txtContaining.SetText("CROSS");
  Wait();
  EXPECT_THAT(Files(), ElementsAre("Crosscut.ORB"));
  EXPECT_THAT(window->lblShown.Caption(), HasSubstr("Rows shown: 1, marked: 1."));

  window->txtContaining.SetText("44.9");
  Wait();
  EXPECT_THAT(Files(), ElementsAre("weak.ORB"));

  // The folder itself is no part of a cell.
  window->txtContaining.SetText(std::filesystem::path(mine.Path()).filename().string());
  Wait();
  EXPECT_THAT(Files(), IsEmpty());
  EXPECT_FALSE(window->cmdOpen.Enabled());
  EXPECT_FALSE(window->cmdSaveAs.Enabled());

  window->txtContaining.SetText("");
  Wait();
  EXPECT_THAT(Files(), SizeIs(4));
}

TEST_F(ADesignsWindow, ShowsRowsByTheirJudgements) {
  Open();
  const auto filesIn = [&](const std::string& state) {
    window->cmbState.SetText(state);
    Wait();
    return Files();
  };

  EXPECT_THAT(filesIn("Falls short"), ElementsAre("weak.ORB"));
  EXPECT_THAT(filesIn("Cannot be computed"), IsEmpty());
  EXPECT_THAT(filesIn("To check"), ElementsAre("north/gate.ORB", "weak.ORB"));
  EXPECT_THAT(filesIn("All of it holds"), ElementsAre("Crosscut.ORB"));
  EXPECT_THAT(filesIn("File cannot be read"), ElementsAre("notes.ORB"));
  EXPECT_THAT(filesIn("All designs"), SizeIs(4));
}

TEST_F(ADesignsWindow, HasTheUnitsThatAllDesignsShareUnlessOthersAreChosen) {
  Open();
  EXPECT_EQ(window->tblDesigns.Heads()[3], "Depth of Cover (ft)");
  window->cmbUnits.SetText("Metric");
  Wait();
  EXPECT_EQ(window->tblDesigns.Heads()[3], "Depth of Cover (m)");
  EXPECT_THAT(Column(3), ElementsAre("274.32", "310", "", "365.76"));
  Leave();

  for (const char* file : {"weak.ORB", "Crosscut.ORB"}) std::filesystem::remove(mine.At(file));
  Open();
  EXPECT_THAT(Column(3), ElementsAre("310", ""));
  EXPECT_EQ(window->tblDesigns.Heads()[3], "Depth of Cover (m)");
  window->cmbUnits.SetText("English");
  Wait();
  EXPECT_THAT(Column(3), ElementsAre("1017.06", ""));
}

TEST_F(ADesignsWindow, ShowsTheColumnsOfTheChosenGroupsOnce) {
  Open();
  window->chkCost.SetValue(1);
  Wait();
  const std::vector<std::string> heads = window->tblDesigns.Heads();
  EXPECT_EQ(heads.front(), "File");
  EXPECT_GT(heads.size(), 13U);

  window->chkOverview.SetValue(0);
  window->chkCost.SetValue(0);
  Wait();
  EXPECT_THAT(window->tblDesigns.Heads(), ElementsAre("File"));
  window->chkOverview.SetValue(1);
  window->chkInputs.SetValue(1);
  Wait();
  EXPECT_EQ(std::ranges::count(window->tblDesigns.Heads(), "CMRR"), 1);
}

TEST_F(ADesignsWindow, SortsByTheFileWhenTheSortedColumnIsGone) {
  Open();
  window->tblDesigns.ClickHead(2);
  Wait();
  EXPECT_EQ(Files().front(), "weak.ORB");
  window->chkOverview.SetValue(0);
  Wait();

  EXPECT_EQ(window->cmbSort.Text(), "File");
  EXPECT_EQ(Files().front(), "Crosscut.ORB");
}

TEST_F(ADesignsWindow, KeepsTheMarkedRowsWhenTheyAreSortedAndFiltered) {
  Open();
  window->tblDesigns.Mark({0, 3}, 3);
  EXPECT_THAT(window->SelectedFiles(), SizeIs(2));
  window->tblDesigns.ClickHead(2);
  Wait();
  EXPECT_THAT(window->tblDesigns.Marked(), ElementsAre(0, 2));
  EXPECT_EQ(window->tblDesigns.Current(), 0);

  window->cmbState.SetText("All of it holds");
  Wait();
  ASSERT_THAT(window->SelectedFiles(), SizeIs(1));
  EXPECT_THAT(window->SelectedFiles().front(), testing::EndsWith("Crosscut.ORB"));
}

TEST_F(ADesignsWindow, MarksTheFirstRowUntilTheUserMarksOthers) {
  Open();
  EXPECT_THAT(window->tblDesigns.Marked(), ElementsAre(0));
  window->tblDesigns.ClickHead(2);
  Wait();

  EXPECT_THAT(window->tblDesigns.Marked(), ElementsAre(0));
  EXPECT_EQ(window->tblDesigns.Current(), 0);
  EXPECT_THAT(window->SelectedFiles().front(), testing::EndsWith("weak.ORB"));
}

TEST_F(ADesignsWindow, ListsOnlyDesignsAmongTheMarkedFiles) {
  Open();
  window->tblDesigns.Mark({2, 3}, 2);

  ASSERT_THAT(window->SelectedFiles(), SizeIs(1));
  EXPECT_THAT(window->SelectedFiles().front(), testing::EndsWith("weak.ORB"));
}

TEST_F(ADesignsWindow, ComparesTheMarkedDesignsSideBySide) {
  Open();
  EXPECT_FALSE(window->cmdCompare.Enabled()) << "one design is marked";
  std::vector<std::string> compared;
  platform.windows.onModal = [&](Form& form) {
    for (const ComboItem& item : dynamic_cast<SideBySideWindow&>(form).lstDesigns.Items())
      compared.push_back(item.text);
  };

  window->tblDesigns.Mark({0, 1, 2, 3}, 0);
  ASSERT_TRUE(window->cmdCompare.Enabled());
  window->cmdCompare.Press();

  EXPECT_THAT(compared,
              ElementsAre(testing::HasSubstr("Crosscut"), testing::HasSubstr("gate"), testing::HasSubstr("weak")));
  EXPECT_EQ(window->tblDesigns.Rows(), 4) << "it stays open";
}

TEST_F(ADesignsWindow, ClosesWithTheDesignToOpen) {
  Open();
  window->tblDesigns.OpenRow(3);

  EXPECT_FALSE(window->IsOpen());
  ASSERT_TRUE(window->Chosen);
  EXPECT_TRUE(std::filesystem::equivalent(*window->Chosen, mine.At("weak.ORB")));
}

TEST_F(ADesignsWindow, StaysOpenAtAFileThatCannotBeRead) {
  Open();
  window->tblDesigns.OpenRow(2);

  EXPECT_TRUE(window->IsOpen());
  EXPECT_FALSE(window->Chosen);
  ASSERT_THAT(platform.boxes.shown, SizeIs(1));
  EXPECT_THAT(platform.boxes.shown.front().text, HasSubstr("notes.ORB cannot be opened. "));
}

TEST_F(ADesignsWindow, CopiesTheMarkedRowsBelowTheirHeads) {
  Open();
  window->tblDesigns.Mark({2, 3}, 3);
  window->cmdCopy.Press();
  Wait();

  const std::string& text = platform.clipboard.text;
  EXPECT_THAT(text, StartsWith("File\tUnits\tCMRR\tDepth of Cover (ft)\tEntry Width (ft)\t"));
  EXPECT_THAT(text, HasSubstr("weak.ORB\tEnglish\t25\t1200\t38\t4\t44.9\t0.4\t15\t0\t2\t3\t\r\n"));
  EXPECT_THAT(text, HasSubstr("notes.ORB\t\t\t"));
  EXPECT_EQ(std::ranges::count(text, '\n'), 3);
  EXPECT_EQ(window->lblDone.Caption(), "Copied 2 rows");
}

TEST_F(ADesignsWindow, SavesTheRowsOnViewAsCsv) {
  Open();
  window->cmbState.SetText("Falls short");
  Wait();
  platform.fileDialogs.answers.push_back(folder.At("short.csv"));
  window->cmdSaveAs.Press();
  Wait();

  const std::string csv = folder.Read("short.csv");
  EXPECT_THAT(csv, StartsWith("File,Units,CMRR,Depth of Cover (ft),"));
  EXPECT_THAT(csv, HasSubstr("weak.ORB,English,25,1200,38,4,44.9,0.4,15,0,2,3,\r\n"));
  EXPECT_EQ(std::ranges::count(csv, '\n'), 2);
  EXPECT_EQ(window->lblDone.Caption(), "Saved 1 row");
}

TEST_F(ADesignsWindow, SavesASpreadsheet) {
  Open();
  platform.fileDialogs.answers.push_back(folder.At("mine.xlsx"));
  window->cmdSaveAs.Press();
  Wait();

  EXPECT_THAT(folder.Read("mine.xlsx"), StartsWith("PK"));
  EXPECT_EQ(window->lblDone.Caption(), "Saved 4 rows");
  EXPECT_THAT(platform.fileDialogs.asked.front().filters, SizeIs(2));
}

TEST_F(ADesignsWindow, SaysThatATableCannotBeSaved) {
  Open();
  platform.fileDialogs.answers.push_back(folder.At("no such folder/mine.xlsx"));
  window->cmdSaveAs.Press();
  Wait();

  EXPECT_THAT(platform.boxes.shown, Not(IsEmpty()));
  EXPECT_EQ(window->lblDone.Caption(), "Nothing was saved");
  EXPECT_THAT(Files(), SizeIs(4));
}

TEST_F(ADesignsWindow, SaysWhetherAStoppedTableWasSaved) {
  for (int i = 0; i < 300; ++i) StoreExample(mine, "development-entry", "panel" + std::to_string(i) + ".ORB");
  for (const std::string name : {"mine.csv", "mine.xlsx"}) {
    Open();
    platform.fileDialogs.answers.push_back(folder.At(name));
    window->cmdSaveAs.Press();
    window->cmdStop.Press();
    Wait();

    EXPECT_EQ(window->lblDone.Caption() == "Saved 304 rows", std::filesystem::exists(folder.At(name))) << name;
    Leave();
  }
}

TEST_F(ADesignsWindow, RemembersTheFolder) {
  const TemporaryFolder other;
  StoreExample(other, "weak-roof", "a.ORB");
  Open();
  platform.fileDialogs.answers.push_back(other.Path());
  window->cmdBrowse.Press();
  Wait();
  EXPECT_THAT(Files(), ElementsAre("a.ORB"));
  EXPECT_THAT(folder.Read("orby.ini"), Not(HasSubstr("ORBYDesigns")));
  Leave();

  EXPECT_THAT(folder.Read("orby.ini"), HasSubstr("[ORBYDesigns]\r\nFolder="));
  Open();
  EXPECT_THAT(Files(), ElementsAre("a.ORB"));
}

TEST_F(ADesignsWindow, KeepsTheRowsWhenAFolderDoesNotExist) {
  Open();
  window->txtFolder.SetText(mine.At("south"));
  window->cmdRead.Press();

  ASSERT_THAT(platform.boxes.shown, SizeIs(1));
  EXPECT_EQ(platform.boxes.shown.front().text, "There is no folder " + mine.At("south") + ".");
  EXPECT_EQ(window->FocusRequest(), &window->txtFolder);
  EXPECT_THAT(Files(), SizeIs(4));
}

TEST_F(ADesignsWindow, AsksForAFolderIfThereIsNone) {
  program.session.settings.DataPath = "";
  Open();
  EXPECT_EQ(window->lblDone.Caption(), "Choose a folder with projects.");
  EXPECT_EQ(window->lblShown.Caption(), "0 designs. Rows shown: 0, marked: 0.");
  window->cmdRead.Press();

  EXPECT_EQ(platform.boxes.shown.front().text, "Choose a folder first.");
}

TEST_F(ADesignsWindow, ReadsChangedFilesAgain) {
  Open();
  StoreExample(mine, "weak-roof", "another.ORB");
  window->cmdRead.Press();
  Wait();

  EXPECT_THAT(Files(), ElementsAre("another.ORB", "Crosscut.ORB", "north/gate.ORB", "notes.ORB", "weak.ORB"));
}

TEST_F(ADesignsWindow, StopsReadingAndShowsWhatIsRead) {
  for (int i = 0; i < 400; ++i) StoreExample(mine, "weak-roof", "panel" + std::to_string(i) + ".ORB");
  window.emplace(program);
  window->Open();
  EXPECT_TRUE(window->cmdStop.Enabled());
  window->cmdStop.Press();
  Wait();

  EXPECT_THAT(window->lblDone.Caption(), StartsWith("Stopped after "));
  EXPECT_LT(window->tblDesigns.Rows(), 404);
  EXPECT_FALSE(window->cmdStop.Enabled());
}

TEST_F(ADesignsWindow, ClosesWhileItReads) {
  for (int i = 0; i < 200; ++i) StoreExample(mine, "weak-roof", "panel" + std::to_string(i) + ".ORB");
  window.emplace(program);
  window->Open();
  Leave();
  platform.clock.Pass();

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(ADesignsWindow, ShowsEachFileOfALargeFolderOnce) {
  for (int i = 0; i < 300; ++i) StoreExample(mine, "development-entry", "panel" + std::to_string(1000 + i) + ".ORB");
  Open();

  std::vector<std::string> files = Files();
  EXPECT_THAT(files, SizeIs(304));
  std::ranges::sort(files);
  EXPECT_EQ(std::ranges::adjacent_find(files), files.end());
}

}  // namespace
}  // namespace orby::test
