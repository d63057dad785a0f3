// Fields and the keyboard: what they accept and refuse, and when they scroll into view and are selected.
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableWidget>

#include "dialogs/description_dialog.h"
#include "dialogs/parameters_dialog.h"
#include "gui/gui_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int BoltsTab = 1;
constexpr int SupportTab = 2;

class Fields : public GuiTest {
 protected:
  // Shows the parameters with primary support enabled. Cancels them after the script.
  void Work(const ModalScripts::Script& script) {
    program.project.WorkParms.Primary.Analysed = 1;
    Use(dialog, [&](QDialog& window) {
      script(window);
      Settle();
      window.close();
    });
  }

  ParametersDialog dialog{program};
};

// ---- a field that a check has refused ------------------------------------------------------------------------------

TEST_F(Fields, SelectARefusedNumberThatAlreadyHasTheFocus) {
  Work([this](QDialog& window) {
    dialog.SSTab1.SetTab(BoltsTab);
    TypeInto(window, "txtRowSpacingPrimary", "0");

    Press(Qt::Key_Enter);

    EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid roof bolt row spacing"));
    EXPECT_EQ(FocusName(), "txtRowSpacingPrimary");
    EXPECT_EQ(Find<QLineEdit>(window, "txtRowSpacingPrimary").selectedText(), "0");
  });
}

TEST_F(Fields, SelectARefusedListThatAlreadyHasTheFocus) {
  Work([this](QDialog& window) {
    dialog.SSTab1.SetTab(BoltsTab);
    dialog.PrimaryBoltControls.Options.SetValue(1, true);
    TypeInto(window, "cmbBoltDiameterPrimary", "0.80");

    Press(Qt::Key_Enter);

    EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Roof bolt diameter NOT selected from available options"));
    EXPECT_EQ(FocusName(), "cmbBoltDiameterPrimary");
    EXPECT_EQ(Find<QComboBox>(window, "cmbBoltDiameterPrimary").lineEdit()->selectedText(), "0.80");
  });
}

TEST_F(Fields, UseTheChosenItemOfTwoWithOneName) {
  program.session.catalogs.StandSupports.DefaultStandSupportType[1] = "Steel Prop";
  program.session.catalogs.StandSupports.DefaultStandSupportType[2] = "Steel Prop";
  program.session.catalogs.StandSupports.DefaultStandSupportCap[1] = {60, 534};
  program.session.catalogs.StandSupports.DefaultStandSupportCap[2] = {85, 756};
  program.project.WorkParms.Entries.Analysed = 1;
  program.project.WorkParms.Entries.Standing.Use = 1;
  Work([this](QDialog& window) {
    dialog.SSTab1.SetTab(SupportTab);
    dialog.SSTab2.SetTab(3);
    auto& list = Find<QComboBox>(window, "cmbSupportTypeSecEntry");
    list.setFocus();
    ASSERT_EQ(list.currentIndex(), 0);

    list.showPopup();
    list.view()->setCurrentIndex(list.model()->index(2, 0));
    QTest::keyClick(list.view(), Qt::Key_Return);

    EXPECT_EQ(list.currentIndex(), 2);
    EXPECT_EQ(TextOn(window, "txtSupportCapSecEntry"), "85");
    QTest::keyClick(&list, Qt::Key_Up);
    EXPECT_EQ(TextOn(window, "txtSupportCapSecEntry"), "60");
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(TextOn(window, "txtSupportCapSecEntry"), "85");
  });
}

bool IsWhollyOnView(const QWidget& widget) { return widget.visibleRegion().boundingRect() == widget.rect(); }

// Makes the window too small for the dialog.
void Shrink(QDialog& window) {
  window.resize(window.minimumSizeHint().width(), 260);
  Settle();
}

TEST_F(Fields, ScrollIntoViewIfACheckRefusesThemInASmallWindow) {
  Work([this](QDialog& window) {
    dialog.PrimaryBoltControls.Options.SetValue(1, true);
    dialog.PrimaryBoltControls.GradeMode.SetValue(1, true);
    dialog.PrimaryBoltControls.GradeManual.SetText("0");
    Shrink(window);
    Find(window, "txtDepthofCover").setFocus(Qt::TabFocusReason);

    Press(Qt::Key_Enter);

    EXPECT_EQ(FocusName(), "txtBoltGradePrimary");
    EXPECT_TRUE(IsWhollyOnView(Find(window, "txtBoltGradePrimary")));
  });
}

TEST_F(Fields, ScrollBackIntoViewIfTheyAlreadyHadTheFocus) {
  Work([this](QDialog& window) {
    dialog.SSTab1.SetTab(BoltsTab);
    Shrink(window);
    TypeInto(window, "txtRowSpacingPrimary", "0");
    auto& bar = *Find<QScrollArea>(window, "viewScroll").verticalScrollBar();
    bar.setValue(bar.maximum());
    ASSERT_FALSE(IsWhollyOnView(Find(window, "txtRowSpacingPrimary")));

    Press(Qt::Key_Enter);

    EXPECT_TRUE(IsWhollyOnView(Find(window, "txtRowSpacingPrimary")));
  });
}

// ---- losing and regaining the focus --------------------------------------------------------------------------------

// Sends focus events: the focus leaves the field for the first reason and returns for the second one.
void LeaveAndReturn(QLineEdit& field, Qt::FocusReason leaving, Qt::FocusReason returning) {
  QFocusEvent out(QEvent::FocusOut, leaving);
  QFocusEvent in(QEvent::FocusIn, returning);
  QApplication::sendEvent(&field, &out);
  QApplication::sendEvent(&field, &in);
  Settle();
}

TEST_F(Fields, KeepTheirSelectionWhileAMenuOrAnotherWindowHasTheFocus) {
  Work([](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "725");
    auto& field = Find<QLineEdit>(window, "txtDepthofCover");
    for (const auto reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
      field.setSelection(1, 2);

      LeaveAndReturn(field, reason, reason);

      EXPECT_EQ(field.selectedText(), "25");
    }
  });
}

TEST_F(Fields, AreSelectedWhenTheFocusComesByOtherMeans) {
  Work([](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "725");
    auto& field = Find<QLineEdit>(window, "txtDepthofCover");
    field.setSelection(1, 2);
    LeaveAndReturn(field, Qt::ActiveWindowFocusReason, Qt::OtherFocusReason);
    EXPECT_EQ(field.selectedText(), "725");

    field.setSelection(1, 2);
    LeaveAndReturn(field, Qt::OtherFocusReason, Qt::ActiveWindowFocusReason);
    EXPECT_EQ(field.selectedText(), "725");
  });
}

// ---- queued actions ------------------------------------------------------------------------------------------------

TEST_F(Fields, AreNotCheckedByAnOkQueuedAfterACancel) {
  Work([this](QDialog& window) {
    dialog.SSTab1.SetTab(BoltsTab);
    TypeInto(window, "txtRowSpacingPrimary", "0");

    Find<QPushButton>(window, "Command1").click();
    Find<QPushButton>(window, "Command2").click();
    Settle();

    EXPECT_THAT(platform.boxes.shown, IsEmpty());
  });
}

// ---- characters that an input method composes ----------------------------------------------------------------------

// Sends an input method event with final and preliminary text to the field with the focus.
void Compose(const QString& settled, const QString& open = {}) {
  QInputMethodEvent event(open, {});
  event.setCommitString(settled);
  QApplication::sendEvent(QApplication::focusWidget(), &event);
  Settle();
}

TEST_F(Fields, RefuseAComposedLetterInANumber) {
  Work([this](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "72");

    Compose(QString(QChar(0xE9)));

    EXPECT_EQ(TextOn(window, "txtDepthofCover"), "72");
    EXPECT_EQ(dialog.txtDepthofCover.Text(), "72");
  });
}

TEST_F(Fields, AcceptTheDigitsOfAComposedTextInANumber) {
  Work([this](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "72");

    Compose("5ft.5");

    EXPECT_EQ(TextOn(window, "txtDepthofCover"), "725.5");
    EXPECT_EQ(dialog.txtDepthofCover.Text(), "725.5");
  });
}

TEST_F(Fields, KeepTheSelectionOfANumberIfAComposedLetterIsRefused) {
  Work([](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "725");
    Press(Qt::Key_A, Qt::ControlModifier);

    Compose(QString(QChar(0xF1)));

    EXPECT_EQ(Find<QLineEdit>(window, "txtDepthofCover").selectedText(), "725");
  });
}

TEST_F(Fields, AcceptComposedLettersInAText) {
  DescriptionDialog description(program);
  Use(description, [&](QDialog& window) {
    TypeInto(window, "Text1", "Galer");

    Compose(QString(QChar(0xED)) + "a 4");

    EXPECT_EQ(description.Text1.Text(), "Galer\u00EDa 4");
    window.close();
  });
}

TEST_F(Fields, KeepUnfinishedComposedTextFromTheModel) {
  DescriptionDialog description(program);
  Use(description, [&](QDialog& window) {
    TypeInto(window, "Text1", "Main");
    Compose({}, "s");
    EXPECT_EQ(description.Text1.Text(), "Main");
    Compose("s");
    EXPECT_EQ(description.Text1.Text(), "Mains");
    Find<QPlainTextEdit>(window, "Text2").setFocus(Qt::TabFocusReason);
    const std::string before = description.Text2.Text();
    Compose({}, "belt");
    EXPECT_EQ(description.Text2.Text(), before);
    window.close();
  });
}

TEST_F(Fields, RefuseAKeyOfSeveralCharactersIfOneIsNotNumeric) {
  Work([this](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "72");
    QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, "ft", Qt::NoModifier);

    EXPECT_EQ(dialog.txtDepthofCover.Text(), "72");
  });
}

// ---- the row of a table --------------------------------------------------------------------------------------------

void ClickRow(QTableWidget& table, int row, Qt::KeyboardModifiers modifiers) {
  table.scrollToItem(table.item(row, 1));
  QTest::mouseClick(table.viewport(), Qt::LeftButton, modifiers, table.visualItemRect(table.item(row, 1)).center());
  Settle();
}

TEST_F(Fields, KeepABoltSelectedThatIsClickedWithTheControlKey) {
  Work([this](QDialog& window) {
    dialog.SSTab1.SetTab(BoltsTab);
    auto& table = Find<QTableWidget>(window, "VSFlexGridPrimary");
    ClickRow(table, 3, Qt::NoModifier);

    ClickRow(table, 3, Qt::ControlModifier);

    EXPECT_EQ(table.selectedItems().size(), 4);
    EXPECT_EQ(table.currentRow(), 3);
    EXPECT_EQ(dialog.PrimaryBoltControls.Table.Row(), 4);
  });
}

TEST_F(Fields, KeepABoltSelectedWhenTheSpaceBelowTheTableIsClicked) {
  program.project.WorkParms.Entries.Analysed = 1;
  program.project.WorkParms.Entries.Bolt.Use = 1;
  Work([this](QDialog& window) {
    dialog.SSTab1.SetTab(SupportTab);
    dialog.SSTab2.SetTab(2);
    auto& table = Find<QTableWidget>(window, "VSFlexGridEntry");
    ClickRow(table, 1, Qt::NoModifier);
    table.verticalHeader()->setDefaultSectionSize(4);
    Settle();

    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(20, table.viewport()->height() - 2));
    Settle();

    EXPECT_EQ(table.selectedItems().size(), 4);
    EXPECT_EQ(dialog.EntryBoltControls.Table.Row(), 2);
  });
}

}  // namespace
}  // namespace orby::test
