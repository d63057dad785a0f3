#include <gmock/gmock.h>

#include "base/runtime_error.h"
#include "controls/controls.h"
#include "controls/grid.h"
#include "controls/plain_form.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

// A header and three rows of bolts.
struct AGrid : testing::Test {
  AGrid() {
    grid.SetSize(4, 2, 1);
    grid.SetCell(1, 0, "#5 grade 60");
    grid.SetCell(2, 0, "#6 grade 60");
    grid.SetCell(3, 1, "0.875");
    grid.Change = [this] { ++changes; };
  }

  PlainForm form;
  Grid grid{form, "grdBolts"};
  int changes = 0;
};

TEST_F(AGrid, NotifiesTheViewOnceWhenAllRowsAreReplaced) {
  grid.SetRow(3);
  RecordingView view(form);

  grid.SetRows({{"Bolt", "Dia."}, {"#7", "0.875"}, {"#8", "1"}}, 1);

  EXPECT_THAT(view.told, ElementsAre("grdBolts"));
  EXPECT_EQ(grid.Rows(), 3);
  EXPECT_EQ(grid.Columns(), 2);
  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(grid.Cell(1, 1), "0.875");
  EXPECT_EQ(grid.Cell(2, 0), "#8");
}

TEST_F(AGrid, WithoutAnyRowHasNoSelection) {
  grid.SetRows({}, 0);

  EXPECT_EQ(grid.Rows(), 0);
  EXPECT_EQ(grid.Row(), -1);
}

TEST_F(AGrid, SelectsTheFirstRowBelowItsHeader) {
  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(grid.Rows(), 4);
  EXPECT_EQ(grid.Columns(), 2);
  EXPECT_EQ(grid.FixedRows(), 1);
}

TEST_F(AGrid, WithOnlyAHeaderSelectsTheHeader) {
  grid.SetSize(1, 2, 1);

  EXPECT_EQ(grid.Row(), 0);
}

TEST_F(AGrid, IsClearedWithoutAnEventWhenItsSizeIsSet) {
  grid.SetRow(3);
  changes = 0;

  grid.SetSize(3, 3, 1);

  EXPECT_EQ(grid.Cell(1, 0), "");
  EXPECT_EQ(grid.Cell(2, 2), "");
  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(changes, 0);
}

TEST_F(AGrid, FiresNothingWhenCodeFillsACell) {
  grid.SetCell(2, 1, "0.75");

  EXPECT_EQ(grid.Cell(2, 1), "0.75");
  EXPECT_EQ(changes, 0);
}

TEST_F(AGrid, StoresATextForEachCell) {
  EXPECT_EQ(grid.Cell(1, 0), "#5 grade 60");
  EXPECT_EQ(grid.Cell(1, 1), "");
  EXPECT_EQ(grid.Cell(2, 0), "#6 grade 60");
  EXPECT_EQ(grid.Cell(3, 1), "0.875");
}

TEST_F(AGrid, FiresChangeWhenAnotherRowIsSelected) {
  grid.SetRow(3);

  EXPECT_EQ(grid.Row(), 3);
  EXPECT_EQ(changes, 1);
}

TEST_F(AGrid, FiresNothingWhenTheSameRowIsSelectedAgain) {
  grid.SetRow(1);

  EXPECT_EQ(changes, 0);
}

TEST_F(AGrid, FiresChangeWhenTheUserEditsACell) {
  grid.EditCell(3, 1, "1.0");

  EXPECT_EQ(grid.Cell(3, 1), "1.0");
  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(changes, 1);
}

TEST_F(AGrid, FiresNothingForAnEditThatKeepsTheText) {
  grid.EditCell(3, 1, "0.875");

  EXPECT_EQ(changes, 0);
}

TEST_F(AGrid, RefusesACellOutsideItsBounds) {
  EXPECT_EQ(ErrorNumberOf([this] { static_cast<void>(grid.Cell(4, 0)); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { static_cast<void>(grid.Cell(0, 2)); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { static_cast<void>(grid.Cell(-1, 0)); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { grid.SetCell(4, 0, "x"); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { grid.EditCell(1, -1, "x"); }), 9);
  EXPECT_EQ(changes, 0);
}

TEST_F(AGrid, KeepsItsRowAfterItRefusedAnother) {
  EXPECT_EQ(ErrorNumberOf([this] { grid.SetRow(4); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { grid.SetRow(-1); }), 9);

  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(changes, 0);
}

TEST_F(AGrid, WithoutRowsRefusesToSelectOne) {
  grid.SetSize(0, 2, 0);

  EXPECT_EQ(grid.Row(), -1);
  EXPECT_EQ(ErrorNumberOf([this] { grid.SetRow(0); }), 9);
}

TEST_F(AGrid, HasTheWidthsThatWereSet) {
  grid.SetColumnWidths({180, 60});
  grid.SetWidth(240);

  EXPECT_THAT(grid.ColumnWidths(), ElementsAre(180, 60));
  EXPECT_EQ(grid.Width(), 240);
}

TEST_F(AGrid, KeepsItsSelectionWhenARowIsAppended) {
  grid.SelectCell(2, 1);
  changes = 0;

  grid.AddRow();

  EXPECT_EQ(grid.Rows(), 5);
  EXPECT_EQ(grid.Cell(4, 0), "");
  EXPECT_EQ(grid.Cell(3, 1), "0.875");
  EXPECT_EQ(grid.Row(), 2);
  EXPECT_EQ(grid.Column(), 1);
  EXPECT_EQ(changes, 0);
}

TEST_F(AGrid, SelectsTheFirstRowThatIsAppended) {
  grid.SetSize(1, 2, 1);

  grid.AddRow();

  EXPECT_EQ(grid.Row(), 1);
}

TEST_F(AGrid, MovesTheRowsBelowARemovedRowUp) {
  grid.SetRow(2);

  grid.RemoveRow(1);

  EXPECT_EQ(grid.Rows(), 3);
  EXPECT_EQ(grid.Cell(1, 0), "#6 grade 60");
  EXPECT_EQ(grid.Cell(2, 1), "0.875");
  EXPECT_EQ(grid.Row(), 2);
}

TEST_F(AGrid, SelectsTheNewLastRowAfterTheLastRowIsRemoved) {
  grid.SetRow(3);

  grid.RemoveRow(3);

  EXPECT_EQ(grid.Row(), 2);
  EXPECT_EQ(ErrorNumberOf([this] { grid.RemoveRow(3); }), 9);
}

TEST_F(AGrid, FiresChangeOnceForAnotherCellInTheSameRow) {
  grid.ClickCell(1, 1);
  grid.ClickCell(1, 1);

  EXPECT_EQ(grid.Column(), 1);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(ErrorNumberOf([this] { grid.SelectCell(1, 2); }), 9);
}

TEST_F(AGrid, SelectsTheFirstCellAfterItsFixedColumns) {
  grid.SetFixedColumns(1);

  grid.SetSize(4, 2, 1);

  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(grid.Column(), 1);
}

TEST_F(AGrid, IsTextForASpreadsheet) {
  grid.SetRows({{"Length", "6 ft"}, {"Grade", ""}}, 1);

  EXPECT_EQ(grid.AsText(), "Length\t6 ft\r\nGrade\t\r\n");
}

TEST_F(AGrid, WithoutAHandlerStillChangesItsRowAndText) {
  grid.Change = nullptr;

  grid.SetRow(2);
  grid.EditCell(2, 1, "0.75");

  EXPECT_EQ(grid.Row(), 2);
  EXPECT_EQ(grid.Cell(2, 1), "0.75");
}

}  // namespace
}  // namespace orby::test
