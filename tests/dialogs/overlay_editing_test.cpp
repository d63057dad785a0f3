#include "dialogs/overlay_editing.h"

#include <gmock/gmock.h>

namespace orby::test {
namespace {

using testing::Pair;

class CableForm : public Form {
 public:
  CableForm() : Form("frmCables", "Cables") {}

  Grid cables{*this, "cables"};
  TextBox cell{*this, "cell"};

 protected:
  void OnOpen() override {}
  void OnClose() override {}
};

// Two cables with diameter and capacity.
struct OverlayEdit : testing::Test {
  OverlayEdit() { editing.Fill({"(in)", "(tons)"}, {{"0.6", "26.4"}, {"0.7", "35.7"}}); }

  std::pair<int, int> Selected() const { return {form.cables.Row(), form.cables.Column()}; }

  CableForm form;
  OverlayEditing editing{form.cables, form.cell, {TextKind::Free, TextKind::Number}};
};

TEST_F(OverlayEdit, BeginsOverTheFirstCellAfterTheNumber) {
  EXPECT_EQ(form.cables.Overlay(), &form.cell);
  EXPECT_THAT(Selected(), Pair(1, 1));
  EXPECT_EQ(form.cell.Text(), "0.6");
  EXPECT_TRUE(form.cell.Visible());
}

TEST_F(OverlayEdit, BeginsAfterTheNamesOfNamedRows) {
  editing.FillNamed({"Bolt", "4 ft", "5 ft"}, {{"#6", "7.5", ""}, {"#7", "9", "10"}});

  EXPECT_THAT(Selected(), Pair(1, 1));
  EXPECT_EQ(form.cell.Text(), "7.5");
  EXPECT_EQ(form.cables.Cell(2, 0), "#7");
  EXPECT_EQ(editing.Text(1, 1), "10");
  EXPECT_EQ(form.cell.Kind(), TextKind::Number);
}

TEST_F(OverlayEdit, ShowsTheSelectedCell) {
  form.cables.SelectCell(2, 2);

  EXPECT_EQ(form.cell.Text(), "35.7");
}

TEST_F(OverlayEdit, MovesTheTextToItsCellWhenAnotherIsSelected) {
  form.cell.SetText("0.62");
  EXPECT_EQ(form.cables.Cell(1, 1), "0.6");

  form.cables.SelectCell(2, 1);

  EXPECT_EQ(form.cables.Cell(1, 1), "0.62");
  EXPECT_EQ(form.cables.Cell(2, 1), "0.7");
}

TEST_F(OverlayEdit, MovesTheTextToItsCellOnAClickOnTheSameCell) {
  form.cell.SetText("0.62");

  form.cables.ClickCell(1, 1);

  EXPECT_EQ(form.cables.Cell(1, 1), "0.62");
  EXPECT_EQ(form.cell.Text(), "0.62");
}

TEST_F(OverlayEdit, MovesTheTextToItsCellOnFlush) {
  form.cables.SelectCell(2, 2);
  form.cell.SetText("36");

  editing.Flush();

  EXPECT_EQ(form.cables.Cell(2, 2), "36");
}

TEST_F(OverlayEdit, IsNeverOverTheNumberOfARow) {
  form.cables.SelectCell(2, 0);
  form.cell.SetText("9");

  form.cables.SelectCell(1, 1);

  EXPECT_EQ(form.cables.Cell(2, 0), "2");
}

TEST_F(OverlayEdit, AcceptsTheKeysOfTheColumn) {
  EXPECT_EQ(form.cell.KeyPress('x'), 'x');

  form.cables.SelectCell(1, 2);

  EXPECT_EQ(form.cell.KeyPress('x'), 0);
}

TEST_F(OverlayEdit, MovesToTheAddedRow) {
  form.cell.SetText("0.62");

  editing.AddEntry();

  EXPECT_EQ(form.cables.Cell(1, 1), "0.62");
  EXPECT_EQ(form.cables.Cell(3, 0), "3");
  EXPECT_THAT(Selected(), Pair(3, 1));
  EXPECT_EQ(form.cell.Text(), "");
  EXPECT_EQ(form.FocusRequest(), &form.cell);
}

TEST_F(OverlayEdit, DiscardsItsTextWithTheDeletedRow) {
  form.cell.SetText("0.62");

  const int removed = editing.RemoveEntry();

  EXPECT_EQ(removed, 0);
  EXPECT_EQ(editing.Entries(), 1);
  EXPECT_EQ(editing.Text(0, 0), "0.7");
  EXPECT_EQ(form.cables.Cell(1, 0), "1");
  EXPECT_EQ(form.cell.Text(), "0.7");
}

TEST_F(OverlayEdit, IsHiddenOverAGridWithoutRows) {
  editing.RemoveEntry();
  editing.RemoveEntry();

  EXPECT_EQ(editing.RemoveEntry(), -1);
  EXPECT_FALSE(form.cell.Visible());
  EXPECT_EQ(form.cell.Text(), "");
  EXPECT_EQ(form.cables.Cell(0, 1), "(in)");
}

TEST_F(OverlayEdit, ReappearsWithTheFirstRow) {
  editing.RemoveEntry();
  editing.RemoveEntry();

  editing.AddEntry();
  form.cell.SetText("0.9");
  editing.Flush();

  EXPECT_TRUE(form.cell.Visible());
  EXPECT_EQ(editing.Text(0, 0), "0.9");
}

TEST_F(OverlayEdit, DiscardsItsTextWhenTheGridIsRefilled) {
  form.cell.SetText("0.62");

  editing.Fill({"(in)", "(tons)"}, {{"0.8", "50"}});

  EXPECT_EQ(editing.Text(0, 0), "0.8");
  EXPECT_EQ(form.cell.Text(), "0.8");
}

}  // namespace
}  // namespace orby::test
