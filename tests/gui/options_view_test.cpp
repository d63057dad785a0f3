// The options dialog as its user sees it.
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>
#include <QTableWidget>

#include "dialogs/options_dialog.h"
#include "gui/gui_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int EnglishPage = 1;
constexpr int MetricPage = 2;
constexpr int StandsPage = 3;

class OptionsView : public GuiTest {
 protected:
  // Shows the dialog with one of its pages.
  void UsePage(int page, const std::function<void(QDialog& window)>& act) {
    program.windows.OptionsTab = static_cast<Integer>(page);
    Use(dialog, [&](QDialog& window) {
      act(window);
      if (window.isVisible()) window.close();
    });
  }

  static std::string CellOn(const QWidget& window, std::string_view grid, int row, int column) {
    return Find<QTableWidget>(window, grid).item(row, column)->text().toStdString();
  }

  static void ClickCell(const QWidget& window, std::string_view grid, int row, int column) {
    auto& table = Find<QTableWidget>(window, grid);
    table.scrollTo(table.model()->index(row, column));
    Settle();
    const QRect cell = table.visualRect(table.model()->index(row, column));
    QWidget* under = table.viewport()->childAt(cell.center());
    const QPoint place = cell.center() - (under != nullptr ? under->pos() : QPoint());
    QTest::mouseClick(under != nullptr ? under : table.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    Settle();
  }

  static void ExpectOverCell(const QWidget& window, std::string_view grid, std::string_view box, int row, int column) {
    const auto& table = Find<QTableWidget>(window, grid);
    const auto& edit = Find<QLineEdit>(window, box);
    EXPECT_EQ(edit.parentWidget(), table.viewport());
    EXPECT_EQ(edit.geometry(), table.visualRect(table.model()->index(row, column)));
  }

  OptionsDialog dialog{program};
};

// ---- fields and lists ----------------------------------------------------------------------------------------------

TEST_F(OptionsView, ChangesAPreferenceAndADefaultByTheKeyboard) {
  Use(dialog, [](QDialog& window) {
    PressLetterOf(window, "Check1");
    PressLetterOfTab(window, "SSTab1", EnglishPage);
    PressLetterOf(window, "txtDepthofCover_0");
    Type("655");
    Press(Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
  });

  EXPECT_EQ(program.session.options.ShowInputScreenOnLoad, 0);
  EXPECT_EQ(program.session.defaults.DefaultENGDepthofCover, 655);
}

TEST_F(OptionsView, MovesTheFocusToARefusedDefault) {
  Use(dialog, [this](QDialog& window) {
    dialog.txtBoltGrade[PlaceOf(Metric)].SetText("0");

    Click(window, "cmdOK");

    EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid bolt grade"));
    EXPECT_EQ(Find<QTabWidget>(window, "SSTab1").currentIndex(), MetricPage);
    EXPECT_EQ(FocusName(), "txtBoltGrade_1");
    Press(Qt::Key_Escape);
  });
}

TEST_F(OptionsView, RefusesALetterInADefault) {
  UsePage(EnglishPage, [](QDialog& window) {
    TypeInto(window, "txtCMRR_0", "5x2");
    EXPECT_EQ(TextOn(window, "txtCMRR_0"), "52");
  });
}

TEST_F(OptionsView, AddsToTheListThatTheOptionSelects) {
  UsePage(EnglishPage, [](QDialog& window) {
    Click(window, "optBoltEng_2");
    TypeInto(window, "txtItem_0", "1.125");
    Click(window, "cmdAddBolt_0");

    auto& list = Find<QListWidget>(window, "lstBoltDiam_0");
    EXPECT_EQ(list.count(), 6);
    EXPECT_EQ(list.currentItem()->text(), "1.125");
    Click(window, "cmdOK");
  });

  EXPECT_EQ(program.session.catalogs.DefaultBoltDiamArrayENG.HighestIndex, 5);
}

TEST_F(OptionsView, DeletesTheEntryChosenByTheArrowKeys) {
  UsePage(MetricPage, [](QDialog& window) {
    auto& list = Find<QListWidget>(window, "lstBoltGrade_1");
    list.setFocus(Qt::TabFocusReason);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    const QString chosen = list.currentItem()->text();

    Click(window, "cmdDeleteBolt_1");

    EXPECT_TRUE(list.findItems(chosen, Qt::MatchExactly).isEmpty());
    EXPECT_EQ(list.count(), 5);
  });
}

TEST_F(OptionsView, DeletesTheEntryChosenByTheMouse) {
  UsePage(MetricPage, [this](QDialog& window) {
    auto& list = Find<QListWidget>(window, "lstBoltUTS_2");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, list.visualItemRect(list.item(1)).center());
    Settle();

    Click(window, "cmdDeleteBolt_2");

    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(list.item(0)->text(), "840");
    EXPECT_THAT(platform.boxes.shown, IsEmpty());
  });
}

TEST_F(OptionsView, DeletesFromTheListThatWasClickedLast) {
  UsePage(MetricPage, [](QDialog& window) {
    const auto click = [&](const char* name, int row) {
      auto& list = Find<QListWidget>(window, name);
      QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, list.visualItemRect(list.item(row)).center());
      Settle();
    };
    click("lstBoltUTS_1", 2);
    click("lstBoltDiam_1", 1);
    click("lstBoltUTS_1", 2);  // selected by the first click

    Click(window, "cmdDeleteBolt_1");

    EXPECT_EQ(Find<QListWidget>(window, "lstBoltUTS_1").count(), 5);
    EXPECT_EQ(Find<QListWidget>(window, "lstBoltDiam_1").count(), 5);
  });
}

TEST_F(OptionsView, ShowsTheChosenItemWhateverIsClicked) {
  UsePage(MetricPage, [](QDialog& window) {
    auto& list = Find<QListWidget>(window, "lstBoltUTS_1");
    const QPoint second = list.visualItemRect(list.item(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, second);
    Settle();

    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, second);
    Settle();

    ASSERT_EQ(list.selectedItems().size(), 1);
    EXPECT_EQ(list.row(list.selectedItems().front()), 1);
  });
}

TEST_F(OptionsView, RefreshesTheListsAfterAReset) {
  program.session.catalogs.DefaultBoltGradeArrayENG.Set(0, 44);
  UsePage(EnglishPage, [](QDialog& window) {
    const auto& list = Find<QListWidget>(window, "lstBoltGrade_0");
    EXPECT_EQ(list.item(0)->text(), "44");

    Click(window, "cmdSetDefaultBolt_0");

    EXPECT_EQ(list.item(0)->text(), "40");
  });
}

// ---- the cells of a grid -------------------------------------------------------------------------------------------

TEST_F(OptionsView, EditsTheClickedCell) {
  UsePage(EnglishPage, [](QDialog& window) {
    ClickCell(window, "VSFlexGridEng", 1, 2);

    EXPECT_EQ(FocusName(), "txtCableEng");
    EXPECT_EQ(Find<QLineEdit>(window, "txtCableEng").selectedText(), "35.7");
    ExpectOverCell(window, "VSFlexGridEng", "txtCableEng", 1, 2);
    QTest::keyClicks(QApplication::focusWidget(), "36");
    ClickCell(window, "VSFlexGridEng", 0, 1);
    EXPECT_EQ(CellOn(window, "VSFlexGridEng", 1, 2), "36");
    EXPECT_EQ(TextOn(window, "txtCableEng"), "0.6");
    Click(window, "cmdOK");
  });

  EXPECT_EQ(program.session.catalogs.DefaultCableCapArrayENG[1], 36);
}

TEST_F(OptionsView, EditsTheFirstCellOfARowWhoseNumberIsClicked) {
  UsePage(StandsPage, [](QDialog& window) {
    ClickCell(window, "VSFlexGridStand", 3, 0);

    EXPECT_EQ(FocusName(), "txtStand");
    ExpectOverCell(window, "VSFlexGridStand", "txtStand", 3, 1);
  });
}

TEST_F(OptionsView, GoesToOtherRowsByEnterAndArrowKeys) {
  UsePage(MetricPage, [](QDialog& window) {
    Find(window, "txtCableMet").setFocus(Qt::TabFocusReason);
    Settle();

    Type("15.5");
    Press(Qt::Key_Return);
    EXPECT_EQ(CellOn(window, "VSFlexGridMet", 0, 1), "15.5");
    EXPECT_EQ(Find<QLineEdit>(window, "txtCableMet").selectedText(), "21.8");
    Press(Qt::Key_Down);
    EXPECT_EQ(TextOn(window, "txtCableMet"), "31");
    ExpectOverCell(window, "VSFlexGridMet", "txtCableMet", 2, 1);
    Press(Qt::Key_Up);
    EXPECT_EQ(TextOn(window, "txtCableMet"), "21.8");
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    ExpectOverCell(window, "VSFlexGridMet", "txtCableMet", 0, 1);
    EXPECT_TRUE(window.isVisible());
  });
}

TEST_F(OptionsView, GoesFromAGridToTheNextPageByControlAndTab) {
  UsePage(EnglishPage, [](QDialog& window) {
    ClickCell(window, "VSFlexGridEng", 0, 1);

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    Settle();

    EXPECT_EQ(Find<QTabWidget>(window, "SSTab1").currentIndex(), MetricPage);
    EXPECT_EQ(TextOn(window, "txtCableEng"), "0.6");
  });
}

TEST_F(OptionsView, StaysInTheLastRowOnEnter) {
  UsePage(EnglishPage, [](QDialog& window) {
    ClickCell(window, "VSFlexGridEng", 1, 1);

    Press(Qt::Key_Return);

    EXPECT_TRUE(window.isVisible());
    ExpectOverCell(window, "VSFlexGridEng", "txtCableEng", 1, 1);
  });
}

TEST_F(OptionsView, MovesThroughTheCellsByTheTabKeyAndLeavesAfterTheLastOne) {
  UsePage(EnglishPage, [](QDialog& window) {
    ClickCell(window, "VSFlexGridEng", 0, 1);

    Press(Qt::Key_Tab);
    ExpectOverCell(window, "VSFlexGridEng", "txtCableEng", 0, 2);
    Press(Qt::Key_Tab);
    ExpectOverCell(window, "VSFlexGridEng", "txtCableEng", 1, 1);
    Press(Qt::Key_Tab);
    ExpectOverCell(window, "VSFlexGridEng", "txtCableEng", 1, 2);
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "cmdAddCable_0");
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(FocusName(), "txtCableEng");
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    ExpectOverCell(window, "VSFlexGridEng", "txtCableEng", 0, 1);
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(FocusName(), "cmdSetDefaultBolt_0");
  });
}

TEST_F(OptionsView, RestoresTheOldTextOnEscapeAndClosesOnTheNext) {
  UsePage(EnglishPage, [](QDialog& window) {
    ClickCell(window, "VSFlexGridEng", 0, 2);
    Type("99");

    Press(Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(TextOn(window, "txtCableEng"), "26.4");

    Press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
  });

  EXPECT_EQ(program.session.catalogs.DefaultCableCapArrayENG[0], 26.4F);
}

TEST_F(OptionsView, AcceptsLettersOnlyInNames) {
  UsePage(StandsPage, [](QDialog& window) {
    ClickCell(window, "VSFlexGridStand", 0, 1);
    Type("Crib 9");
    EXPECT_EQ(TextOn(window, "txtStand"), "Crib 9");

    ClickCell(window, "VSFlexGridStand", 0, 2);
    Type("9t5");
    EXPECT_EQ(TextOn(window, "txtStand"), "95");
  });
}

TEST_F(OptionsView, NamesTheEditedCellForScreenReaders) {
  UsePage(StandsPage, [](QDialog& window) {
    ClickCell(window, "VSFlexGridStand", 2, 1);
    EXPECT_EQ(Find(window, "txtStand").accessibleName(), "Support Type 3");

    Press(Qt::Key_Tab);
    EXPECT_EQ(Find(window, "txtStand").accessibleName(), "Capacity (tons) 3");
  });
}

// Adds so many rows that the grid scrolls.
void AddManyStands(const QDialog& window) {
  for (int row = 0; row < 30; ++row) {
    Click(window, "cmdAddStandSupport");
    Settle();
  }
}

TEST_F(OptionsView, KeepsTheFieldOverItsCellWhateverMoves) {
  UsePage(StandsPage, [](QDialog& window) {
    AddManyStands(window);
    auto& table = Find<QTableWidget>(window, "VSFlexGridStand");
    ClickCell(window, "VSFlexGridStand", 0, 2);

    window.resize(window.width() + 200, 320);
    Settle();
    ExpectOverCell(window, "VSFlexGridStand", "txtStand", 0, 2);
    table.horizontalHeader()->resizeSection(2, 180);
    Settle();
    ExpectOverCell(window, "VSFlexGridStand", "txtStand", 0, 2);
    table.scrollToBottom();
    Settle();
    ExpectOverCell(window, "VSFlexGridStand", "txtStand", 0, 2);
    EXPECT_LT(Find(window, "txtStand").geometry().bottom(), 0);
  });
}

TEST_F(OptionsView, ScrollsTheEditedCellIntoView) {
  UsePage(StandsPage, [](QDialog& window) {
    AddManyStands(window);
    window.resize(window.width(), 320);
    Settle();
    Find<QTableWidget>(window, "VSFlexGridStand").scrollToBottom();

    Find(window, "txtStand").setFocus(Qt::TabFocusReason);
    Settle();

    EXPECT_GE(Find(window, "txtStand").geometry().top(), 0);
  });
}

TEST_F(OptionsView, AddsARowAndMovesTheFocusToIt) {
  UsePage(StandsPage, [](QDialog& window) {
    Click(window, "cmdAddStandSupport");

    EXPECT_EQ(FocusName(), "txtStand");
    ExpectOverCell(window, "VSFlexGridStand", "txtStand", 16, 1);
    EXPECT_EQ(CellOn(window, "VSFlexGridStand", 16, 0), "17");
    Type("Steel Set");
    Press(Qt::Key_Tab);
    Type("90");
    Click(window, "cmdOK");
  });

  EXPECT_EQ(program.session.catalogs.StandSupports.HighestIndex, 16);
  EXPECT_EQ(program.session.catalogs.StandSupports.DefaultStandSupportType[16], "Steel Set");
}

TEST_F(OptionsView, DeletesTheEditedRow) {
  UsePage(EnglishPage, [](QDialog& window) {
    ClickCell(window, "VSFlexGridEng", 0, 2);
    Type("99");

    Click(window, "cmdDeleteCable_0");

    EXPECT_EQ(Find<QTableWidget>(window, "VSFlexGridEng").rowCount(), 1);
    EXPECT_EQ(CellOn(window, "VSFlexGridEng", 0, 2), "35.7");
    ExpectOverCell(window, "VSFlexGridEng", "txtCableEng", 0, 2);
  });
}

TEST_F(OptionsView, HidesTheFieldOfAGridWithoutRows) {
  UsePage(EnglishPage, [](QDialog& window) {
    Click(window, "cmdDeleteCable_0");
    Click(window, "cmdDeleteCable_0");

    EXPECT_FALSE(Find(window, "txtCableEng").isVisible());
    Click(window, "cmdAddCable_0");
    EXPECT_TRUE(Find(window, "txtCableEng").isVisible());
    EXPECT_EQ(FocusName(), "txtCableEng");
  });
}

}  // namespace
}  // namespace orby::test
