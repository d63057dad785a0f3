// Undo, redo and "As Saved" by the keys and menus of the real windows.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>

#include "controls/edit_history.h"
#include "dialogs/cost_dialog.h"
#include "dialogs/parameters_dialog.h"
#include "gui/gui_bench.h"

namespace orby::test {
namespace {

class UndoOnView : public GuiTest {};

void PressUndo() { Press(Qt::Key_Z, Qt::ControlModifier); }
void PressRedo() { Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

// Opens the menu of a widget and chooses the entry of this text, if it is enabled.
bool Choose(QWidget& widget, const QString& text) {
  QContextMenuEvent ask(QContextMenuEvent::Keyboard, QPoint(2, 2), widget.mapToGlobal(QPoint(2, 2)));
  QCoreApplication::sendEvent(&widget, &ask);
  auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
  if (menu == nullptr) throw std::logic_error("no menu");
  bool isChosen = false;
  for (QAction* action : menu->actions()) {
    if (action->text() != text || !action->isEnabled()) continue;
    action->trigger();
    isChosen = true;
  }
  menu->close();
  Settle();
  return isChosen;
}

TEST_F(UndoOnView, TakesBackFieldAfterFieldByTheKeyboard) {
  ParametersDialog dialog(program);
  Work(dialog, [](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "800");
    TypeInto(window, "txtEntryWidth", "22");

    PressUndo();
    EXPECT_EQ(TextOn(window, "txtEntryWidth"), "20");
    EXPECT_EQ(FocusName(), "txtEntryWidth");
    PressUndo();
    EXPECT_EQ(TextOn(window, "txtDepthofCover"), "400");
    EXPECT_EQ(FocusName(), "txtDepthofCover");
    PressUndo();
    EXPECT_EQ(TextOn(window, "txtDepthofCover"), "400");

    PressRedo();
    EXPECT_EQ(TextOn(window, "txtDepthofCover"), "800");
    PressRedo();
    EXPECT_EQ(TextOn(window, "txtEntryWidth"), "22");
  });
}

TEST_F(UndoOnView, TakesBackABoxAndAListAsWell) {
  program.project.WorkParms.Primary.Analysed = 1;
  program.project.WorkParms.Primary.Options = BoltSource::Manual;
  ParametersDialog dialog(program);
  Work(dialog, [](QDialog& window) {
    PressLetterOfTab(window, "SSTab1", 1);
    const std::string diameter = TextOn(window, "cmbBoltDiameterPrimary");
    TypeInto(window, "cmbBoltDiameterPrimary", "0.8");
    PressLetterOfTab(window, "SSTab1", 0);
    Click(window, "chkSecondSupInter");
    const bool wasChecked = Find<QCheckBox>(window, "chkSecondSupInter").isChecked();

    PressUndo();
    EXPECT_NE(Find<QCheckBox>(window, "chkSecondSupInter").isChecked(), wasChecked);
    PressUndo();
    EXPECT_EQ(TextOn(window, "cmbBoltDiameterPrimary"), diameter);
    EXPECT_EQ(FocusName(), "cmbBoltDiameterPrimary");
  });
}

TEST_F(UndoOnView, IsTheUndoOfTheMenuOfAField) {
  ParametersDialog dialog(program);
  Work(dialog, [](QDialog& window) {
    auto& depth = Find<QLineEdit>(window, "txtDepthofCover");
    TypeInto(window, "txtEntryWidth", "22");

    EXPECT_TRUE(Choose(depth, "&Undo"));
    EXPECT_EQ(TextOn(window, "txtEntryWidth"), "20");
    EXPECT_FALSE(Choose(depth, "&Undo"));
    EXPECT_TRUE(Choose(depth, "&Redo"));
    EXPECT_EQ(TextOn(window, "txtEntryWidth"), "22");
  });
}

TEST_F(UndoOnView, BringsOneFieldBackAsSaved) {
  CostDialog dialog(program);
  Work(dialog, [](QDialog& window) {
    const std::string saved = TextOn(window, "txtBoltCost");
    auto& field = Find<QLineEdit>(window, "txtBoltCost");
    TypeInto(window, "txtBoltCost", "9.5");
    TypeInto(window, "txtPlateCost", "2.5");

    EXPECT_TRUE(Choose(field, "As &Saved"));

    EXPECT_EQ(TextOn(window, "txtBoltCost"), saved);
    EXPECT_EQ(TextOn(window, "txtPlateCost"), "2.5");
    EXPECT_FALSE(Choose(field, "As &Saved"));
  });
}

TEST_F(UndoOnView, BringsABoxBackAsSaved) {
  ParametersDialog dialog(program);
  Work(dialog, [](QDialog& window) {
    auto& box = Find<QCheckBox>(window, "chkPrimSupport");
    const bool saved = box.isChecked();
    Click(window, "chkPrimSupport");

    EXPECT_TRUE(Choose(box, "As &Saved"));

    EXPECT_EQ(box.isChecked(), saved);
  });
}

}  // namespace
}  // namespace orby::test
