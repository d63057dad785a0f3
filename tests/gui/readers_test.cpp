// Actions of a screen reader, or of another client of the accessibility interfaces, reach the model like those of the
// keyboard.
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QListWidget>
#include <QSlider>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolBar>

#include "gui/forms.h"
#include "gui/readers_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// ---- texts ---------------------------------------------------------------------------------------------------------

TEST_F(Readers, SetTheTextOfAField) {
  SetText(Widget("txtName"), "East Mains");

  EXPECT_THAT(form.happened, ElementsAre("name East Mains"));
}

TEST_F(Readers, SetTheValueOfAField) {
  ReaderOf(Widget("txtName")).setText(QAccessible::Value, "East Mains");

  EXPECT_THAT(form.happened, ElementsAre("name East Mains"));
}

TEST_F(Readers, InsertAndDeleteInAField) {
  SetText(Widget("txtName"), "East");
  EditableText(Widget("txtName")).insertText(4, " Mains");
  EditableText(Widget("txtName")).deleteText(0, 5);

  EXPECT_THAT(form.happened, ElementsAre("name East", "name East Mains", "name Mains"));
}

TEST_F(Readers, SetATextOfSeveralLines) {
  SetText(Widget("txtNotes"), "Belt entry\nto the overcast");

  EXPECT_EQ(form.txtNotes.Text(), "Belt entry\r\nto the overcast");
}

TEST_F(Readers, SetTheTextOfAList) {
  SetText(LineOf("cmbHeight"), "2.7");
  EXPECT_EQ(form.cmbHeight.ListIndex(), 1);

  SetText(LineOf("cmbHeight"), "2.55");

  EXPECT_THAT(form.happened, ElementsAre("height 2.7", "height 2.55"));
  EXPECT_FALSE(form.cmbHeight.HasSelection());
}

TEST_F(Readers, SetTheTextOfAListThatAcceptsOnlyItsItems) {
  SetText(LineOf("cmbSeam"), "Middle");

  EXPECT_THAT(form.happened, ElementsAre("seam Middle"));
  EXPECT_EQ(form.cmbSeam.ListIndex(), 1);
}

TEST_F(Readers, DoNotDisturbTypingInAListThatAcceptsOnlyItsItems) {
  LineOf("cmbSeam").setFocus();
  QTest::keyClicks(&LineOf("cmbSeam"), "Lo");

  EXPECT_THAT(form.happened, IsEmpty());
}

TEST_F(Readers, CannotWriteInReadOnlyFields) {
  form.txtReport.SetText("Suggested PSUP 7.2");
  form.cmbHeight.SetEnabled(false);
  form.cmbSeam.SetEnabled(false);
  form.txtNotes.SetEnabled(false);
  form.txtName.SetVisible(false);

  for (const char* name : {"txtLocked", "txtResult", "txtReport", "txtNotes", "txtName"}) {
    SetText(Widget(name), "9.9");
    EditableText(Widget(name)).insertText(0, "9");
  }
  for (const char* name : {"cmbHeight", "cmbSeam"}) SetText(LineOf(name), "2.4");

  EXPECT_THAT(form.happened, IsEmpty());
  for (const char* name : {"txtLocked", "txtResult", "txtNotes", "txtName", "cmbHeight", "cmbSeam"}) {
    EXPECT_EQ(TextOn(window, name), "") << name;
  }
  EXPECT_EQ(TextOn(window, "txtReport"), "Suggested PSUP 7.2");
}

// ---- rows ----------------------------------------------------------------------------------------------------------

TEST_F(Readers, SelectARowOfATable) {
  SelectRow(Widget("grdBolts"), 2);

  EXPECT_THAT(form.happened, ElementsAre("bolt 3"));
  EXPECT_EQ(Find<QTableWidget>(window, "grdBolts").currentRow(), 2);
}

TEST_F(Readers, SelectARowOfATableByACell) {
  Do(*ReaderOf(Widget("grdBolts")).tableInterface()->cellAt(1, 1), QAccessibleActionInterface::toggleAction());

  EXPECT_THAT(form.happened, ElementsAre("bolt 2"));
}

TEST_F(Readers, CannotClearTheSelectionOfATable) {
  SelectRow(Widget("grdBolts"), 2);
  ReaderOf(Widget("grdBolts")).tableInterface()->unselectRow(2);
  Settle();

  EXPECT_EQ(Find<QTableWidget>(window, "grdBolts").selectedItems().size(), 2);
  EXPECT_EQ(form.grdBolts.Row(), 3);
}

TEST_F(Readers, SelectNoRowOfADisabledTable) {
  form.grdBolts.SetEnabled(false);
  SelectRow(Widget("grdBolts"), 2);

  EXPECT_EQ(form.grdBolts.Row(), 1);
  EXPECT_EQ(Find<QTableWidget>(window, "grdBolts").selectionModel()->selectedRows().constFirst().row(), 0);
}

TEST_F(Readers, SelectAChoice) {
  SelectRow(Widget("lstShifts"), 1);
  SelectRow(Widget("lstShifts"), 2);

  EXPECT_THAT(form.happened, ElementsAre("shift 1", "shift 2"));
}

TEST_F(Readers, SelectACommandThatRunsOnce) {
  Widget("lstSheets").setFocus();
  SelectRow(Widget("lstSheets"), 0);
  SelectRow(Widget("lstSheets"), 2);
  SelectRow(Widget("lstSheets"), 2);

  EXPECT_THAT(form.happened, ElementsAre("sheet 0", "sheet 2", "sheet 2"));
}

TEST_F(Readers, DoNotAffectArrowKeysAndMouseInAListOfCommands) {
  Widget("lstSheets").setFocus();
  Press(Qt::Key_Down);
  Press(Qt::Key_Down);
  EXPECT_THAT(form.happened, IsEmpty());

  auto& list = Find<QListWidget>(window, "lstSheets");
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, list.visualItemRect(list.item(0)).center());
  Settle();

  EXPECT_THAT(form.happened, ElementsAre("sheet 0"));
}

TEST_F(Readers, SelectAnItemOfAList) {
  SelectRow(*Find<QComboBox>(window, "cmbHeight").view(), 2);
  SelectRow(*Find<QComboBox>(window, "cmbSeam").view(), 1);

  EXPECT_THAT(form.happened, ElementsAre("height 3.0", "seam Middle"));
  EXPECT_EQ(TextOn(window, "cmbHeight"), "3.0");
}

TEST_F(Readers, SelectAnItemOfAnOpenDropDownList) {
  auto& list = Find<QComboBox>(window, "cmbHeight");
  Do(ReaderOf(list), QAccessibleActionInterface::showMenuAction());
  ASSERT_TRUE(list.view()->isVisible());

  SelectRow(*list.view(), 1);

  EXPECT_THAT(form.happened, ElementsAre("height 2.7"));
  EXPECT_FALSE(list.view()->isVisible());
}

TEST_F(Readers, DoNotAffectTheArrowKeysInAnOpenDropDownList) {
  auto& list = Find<QComboBox>(window, "cmbHeight");
  list.showPopup();
  Settle();
  QTest::keyClick(list.view(), Qt::Key_Down);
  Settle();
  EXPECT_THAT(form.happened, IsEmpty());
  QTest::keyClick(list.view(), Qt::Key_Escape);
  Settle();

  EXPECT_THAT(form.happened, IsEmpty());
}

TEST_F(Readers, SelectNoItemOfADisabledList) {
  form.cmbHeight.SetEnabled(false);
  SelectRow(*Find<QComboBox>(window, "cmbHeight").view(), 2);

  EXPECT_THAT(form.happened, IsEmpty());
}

// ---- actions -------------------------------------------------------------------------------------------------------

TEST_F(Readers, OpenAPage) {
  Do(TabOf(1), QAccessibleActionInterface::pressAction());

  EXPECT_THAT(form.happened, ElementsAre("page 1"));
  EXPECT_EQ(Find<QTabWidget>(window, "stbPages").currentIndex(), 1);
}

TEST_F(Readers, CannotOpenADisabledPage) {
  Do(TabOf(2), QAccessibleActionInterface::pressAction());

  EXPECT_THAT(form.happened, IsEmpty());
  EXPECT_EQ(Find<QTabWidget>(window, "stbPages").currentIndex(), 0);
}

TEST_F(Readers, CheckABoxAndChooseAnOption) {
  Do(ReaderOf(Widget("chkWet")), QAccessibleActionInterface::toggleAction());
  Do(ReaderOf(Widget("optUnits_1")), QAccessibleActionInterface::toggleAction());

  EXPECT_THAT(form.happened, ElementsAre("wet 1", "units 1"));
}

TEST_F(Readers, PressButtonsAndMenuItems) {
  PressButton(Widget("cmdDraw"));
  Do(*ReaderOf(*mnuFile).child(1), QAccessibleActionInterface::pressAction());
  auto& bar = Find<QToolBar>(window, "tlbMain");
  PressButton(*bar.widgetForAction(bar.actions().constFirst()));

  EXPECT_THAT(form.happened, ElementsAre("draw", "file 1", "tool 0"));
}

TEST_F(Readers, CannotUseADisabledControl) {
  form.chkWet.SetEnabled(false);
  form.cmdDraw.SetEnabled(false);
  form.optUnits.SetMemberEnabled(1, false);
  form.mnuFile.SetItemEnabled(1, false);
  form.hsbSize.SetEnabled(false);
  for (const char* name : {"chkWet", "optUnits_1", "cmdDraw"}) {
    auto& actions = *ReaderOf(Widget(name)).actionInterface();
    for (const QString& action : actions.actionNames()) actions.doAction(action);
  }
  Do(*ReaderOf(*mnuFile).child(1), QAccessibleActionInterface::pressAction());
  ReaderOf(Widget("hsbSize")).valueInterface()->setCurrentValue(12);
  Settle();

  EXPECT_THAT(form.happened, IsEmpty());
  EXPECT_EQ(Find<QSlider>(window, "hsbSize").value(), 3);
}

TEST_F(Readers, CannotUseAWindowBehindAModalOne) {
  QDialog box(&window);
  box.setModal(true);
  box.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&box));

  SetText(Widget("txtName"), "East Mains");
  SetText(LineOf("cmbHeight"), "2.7");
  SelectRow(Widget("grdBolts"), 2);
  SelectRow(Widget("lstShifts"), 1);
  SelectRow(Widget("lstSheets"), 1);
  SelectRow(*Find<QComboBox>(window, "cmbSeam").view(), 1);
  Do(TabOf(1), QAccessibleActionInterface::pressAction());
  Do(ReaderOf(Widget("chkWet")), QAccessibleActionInterface::toggleAction());
  Do(ReaderOf(Widget("optUnits_1")), QAccessibleActionInterface::toggleAction());
  PressButton(Widget("cmdDraw"));
  Do(*ReaderOf(*mnuFile).child(1), QAccessibleActionInterface::pressAction());

  EXPECT_THAT(form.happened, IsEmpty());
  EXPECT_EQ(TextOn(window, "txtName"), "");
  EXPECT_FALSE(Find<QCheckBox>(window, "chkWet").isChecked());
  EXPECT_FALSE(Find<QRadioButton>(window, "optUnits_1").isChecked());
}

TEST_F(Readers, MoveASlider) {
  ReaderOf(Widget("hsbSize")).valueInterface()->setCurrentValue(12);

  EXPECT_THAT(form.happened, ElementsAre("size 12"));
}

// ---- frames --------------------------------------------------------------------------------------------------------

class FramesOf : public GuiTest, public testing::WithParamInterface<FormMaker> {};

TEST_P(FramesOf, AreReadByTheirOwnTitles) {
  program.windows.curve.CurvePointCount = 0;
  const auto form = GetParam().make(program);
  form->Open();
  const auto window = MakeWindow(*form, nullptr);
  const BoundForm view(*form, *window);

  for (auto* frame : window->findChildren<QGroupBox*>()) {
    const auto& reader = ReaderOf(*frame);
    EXPECT_EQ(reader.text(QAccessible::Name), frame->title()) << frame->objectName().toStdString();
    for (const auto& [other, relation] : reader.relations(QAccessible::AllRelations)) {
      EXPECT_NE(other->role(), QAccessible::Grouping) << frame->objectName().toStdString();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Forms, FramesOf, testing::ValuesIn(FormMakers),
                         [](const auto& maker) { return std::string(maker.param.name); });

}  // namespace
}  // namespace orby::test
