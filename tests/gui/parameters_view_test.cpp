// The parameters dialog as its user sees it.
#include "dialogs/parameters_dialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QWheelEvent>
#include <map>

#include "gui/gui_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ParametersView : public GuiTest {
 protected:
  // Shows the dialog. Cancels it after the script if it is still open.
  void Work(const ModalScripts::Script& script) { GuiTest::Work(dialog, script); }

  ParametersDialog dialog{program};
};

std::vector<std::string> Suggestions(const QWidget& window) {
  return {TextOn(window, "txtSugSumDiagonals"), TextOn(window, "txtSuggestBoltLength"), TextOn(window, "txtSugPSUP")};
}

// Opens the page of an analysis.
void OpenPage(const QWidget& window, std::string_view box, int tab) {
  if (!Find<QAbstractButton>(window, box).isChecked()) PressLetterOf(window, box);
  PressLetterOfTab(window, "SSTab1", tab);
}

constexpr int PrimaryTab = 1;
constexpr int EntriesTab = 2;

// ---- typing --------------------------------------------------------------------------------------------------------

TEST_F(ParametersView, ShowsTheNewResultsWhenTheKeyIsPressed) {
  Work([](QDialog& window) {
    OpenPage(window, "chkPrimSupport", PrimaryTab);
    PressLetterOf(window, "txtRowSpacingPrimary");
    Settle();
    QLineEdit& field = Find<QLineEdit>(window, "txtRowSpacingPrimary");
    EXPECT_EQ(TextOn(window, "txtActualPSUP"), "5.1");

    QTest::keyPress(&field, Qt::Key_4);
    EXPECT_EQ(TextOn(window, "txtActualPSUP"), "5.1");
    QTest::keyRelease(&field, Qt::Key_4);
    QTest::keyClick(&field, Qt::Key_Period);
    QTest::keyPress(&field, Qt::Key_5);

    EXPECT_EQ(field.text(), "4.5");
    EXPECT_EQ(TextOn(window, "txtActualPSUP"), "4.5");
    QTest::keyRelease(&field, Qt::Key_5);
  });
}

TEST_F(ParametersView, RefreshesTheSuggestionsWhileTheUserTypes) {
  Work([](QDialog& window) {
    PressLetterOf(window, "chkCMRRManual");
    PressLetterOf(window, "txtCMRR");
    Type("55");
    PressLetterOf(window, "txtDepthofCover");
    Type("900");

    EXPECT_THAT(Suggestions(window), ElementsAre("67.0", "4.1", "5.2"));
  });
}

TEST_F(ParametersView, ShowsItsWarningsInTheirBoxWithoutMovingAnything) {
  Work([](QDialog& window) {
    EXPECT_FALSE(Find(window, "txtMessage").isVisible());
    const QRect before = Find(window, "Command2").geometry();

    TypeInto(window, "txtActualSpanDiagonals", "66");

    EXPECT_TRUE(Find(window, "txtMessage").isVisible());
    EXPECT_EQ(TextOn(window, "txtMessage"), "WARNINGS:\nActual sum of diagonals exceeds suggested sum of diagonals.\n");
    EXPECT_EQ(Find(window, "Command2").geometry(), before);
  });
}

TEST_F(ParametersView, RefusesALetterInANumber) {
  Work([](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "4a5O0x");
    EXPECT_EQ(TextOn(window, "txtDepthofCover"), "450");
  });
}

TEST_F(ParametersView, AcceptsASecondPoint) {
  Work([](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "4.5.");
    EXPECT_EQ(TextOn(window, "txtDepthofCover"), "4.5.");
  });
}

TEST_F(ParametersView, AcceptsTheEditingKeysInANumber) {
  Work([](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "4505");
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Home);
    Press(Qt::Key_Delete);
    EXPECT_EQ(TextOn(window, "txtDepthofCover"), "50");
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(TextOn(window, "txtDepthofCover"), "400");  // all that was typed since the field has the focus
    TypeInto(window, "txtUnitWeight", "158");
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(TextOn(window, "txtUnitWeight"), "");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(TextOn(window, "txtUnitWeight"), "158");
  });
}

TEST_F(ParametersView, SelectsANumberWhenItGetsTheFocus) {
  Work([](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "612");
    Find(window, "txtUnitWeight").setFocus(Qt::TabFocusReason);
    Settle();
    Find(window, "txtDepthofCover").setFocus(Qt::BacktabFocusReason);
    Settle();
    EXPECT_EQ(Find<QLineEdit>(window, "txtDepthofCover").selectedText(), "612");
  });
}

TEST_F(ParametersView, KeepsTheCursorOfANumberAfterItsMenu) {
  Work([](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "61");
    auto& field = Find<QLineEdit>(window, "txtDepthofCover");
    for (const QEvent::Type type : {QEvent::FocusOut, QEvent::FocusIn}) {
      QFocusEvent event(type, Qt::PopupFocusReason);
      QApplication::sendEvent(&field, &event);
    }
    Settle();
    EXPECT_FALSE(field.hasSelectedText());
    QTest::keyClicks(&field, "2");
    EXPECT_EQ(TextOn(window, "txtDepthofCover"), "612");
  });
}

TEST_F(ParametersView, SelectsANumberReachedByTabAfterAMessageMovedTheFocus) {
  Work([](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "612");
    auto& field = Find<QLineEdit>(window, "txtDepthofCover");
    QFocusEvent toTheMessage(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&field, &toTheMessage);
    QFocusEvent byTab(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(&field, &byTab);
    Settle();
    EXPECT_EQ(field.selectedText(), "612");
  });
}

TEST_F(ParametersView, CopiesANumberFromFieldToField) {
  Work([this](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "612.5");
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_C, Qt::ControlModifier);
    Find(window, "txtUnitWeight").setFocus(Qt::TabFocusReason);
    Settle();
    Press(Qt::Key_V, Qt::ControlModifier);

    EXPECT_EQ(TextOn(window, "txtUnitWeight"), "612.5");
    EXPECT_EQ(dialog.txtUnitWeight.Text(), "612.5");
  });
}

TEST_F(ParametersView, AcceptsAPastedTextUnchanged) {
  Work([this](QDialog& window) {
    QGuiApplication::clipboard()->setText("850 ft");
    Find(window, "txtDepthofCover").setFocus(Qt::TabFocusReason);
    Settle();
    Press(Qt::Key_V, Qt::ControlModifier);

    EXPECT_EQ(TextOn(window, "txtDepthofCover"), "850 ft");
    EXPECT_EQ(dialog.txtDepthofCover.Text(), "850 ft");
  });
}

// ---- going from field to field -------------------------------------------------------------------------------------

TEST_F(ParametersView, SelectsTheWholeTextOfAFieldReachedByTheTabKey) {
  Work([](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "750");
    Press(Qt::Key_Tab);

    EXPECT_EQ(FocusName(), "txtUnitWeight");
    EXPECT_EQ(Find<QLineEdit>(window, "txtUnitWeight").selectedText(), "162");
    Press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(FocusName(), "txtDepthofCover");
    EXPECT_EQ(Find<QLineEdit>(window, "txtDepthofCover").selectedText(), "750");
  });
}

TEST_F(ParametersView, SelectsTheWholeTextOfAFieldThatIsClicked) {
  Work([](QDialog& window) {
    Click(window, "txtUnitWeight");

    EXPECT_EQ(FocusName(), "txtUnitWeight");
    EXPECT_EQ(Find<QLineEdit>(window, "txtUnitWeight").selectedText(), "162");
  });
}

TEST_F(ParametersView, MovesTheCursorToAClickInAFieldInUse) {
  Work([](QDialog& window) {
    Click(window, "txtUnitWeight");
    Click(window, "txtUnitWeight");

    EXPECT_EQ(Find<QLineEdit>(window, "txtUnitWeight").selectedText(), "");
  });
}

TEST_F(ParametersView, OpensWithTheFocusOnItsFirstUsableField) {
  Work([](QDialog& window) {
    EXPECT_EQ(FocusName(), "SSTab1");
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "chkCMRRManual");
    EXPECT_FALSE(Find(window, "txtCMRR").isEnabled());
  });
}

// ---- tabs ----------------------------------------------------------------------------------------------------------

TEST_F(ParametersView, OpensThePagesOfTheChosenAnalyses) {
  Work([](QDialog& window) {
    auto& tabs = Find<QTabWidget>(window, "SSTab1");
    const auto enabled = [&] {
      return std::vector<bool>{tabs.isTabEnabled(1), tabs.isTabEnabled(2), tabs.isTabEnabled(3)};
    };
    EXPECT_THAT(enabled(), ElementsAre(true, true, true));

    PressLetterOf(window, "chkSecondSupEntries");
    EXPECT_THAT(enabled(), ElementsAre(true, false, true));
    PressLetterOf(window, "chkPrimSupport");
    EXPECT_THAT(enabled(), ElementsAre(false, false, true));
    PressLetterOf(window, "chkSecondSupEntries");
    EXPECT_THAT(enabled(), ElementsAre(false, true, true));
  });
}

TEST_F(ParametersView, StaysOnItsPageWhenADisabledTabIsClicked) {
  Work([this](QDialog& window) {
    PressLetterOf(window, "chkSecondSupEntries");
    PressLetterOfTab(window, "SSTab1", EntriesTab);

    EXPECT_EQ(Find<QTabWidget>(window, "SSTab1").currentIndex(), 0);
    EXPECT_EQ(dialog.SSTab1.Tab(), 0);
  });
}

TEST_F(ParametersView, TurnsItsPagesByTheKeyboard) {
  Work([this](QDialog& window) {
    PressLetterOf(window, "chkPrimSupport");
    Press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(dialog.SSTab1.Tab(), EntriesTab);
    EXPECT_TRUE(Find(window, "txtRockLoadHeight").isVisible());
    Press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(dialog.SSTab1.Tab(), 0);
  });
}

// ---- frames, lists and options -------------------------------------------------------------------------------------

// Returns the rectangles of everything visible in the window.
std::map<std::string, QRect> Places(const QWidget& window) {
  std::map<std::string, QRect> places;
  for (const auto* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->objectName().isEmpty() || widget->objectName().startsWith("qt_")) continue;
    places[widget->objectName().toStdString()] = QRect(widget->mapTo(&window, QPoint(0, 0)), widget->size());
  }
  return places;
}

// Returns the names of widgets that were visible both times and have moved.
std::vector<std::string> Moved(const std::map<std::string, QRect>& before, const std::map<std::string, QRect>& after) {
  std::vector<std::string> moved;
  for (const auto& [name, place] : before) {
    const auto found = after.find(name);
    if (found != after.end() && found->second != place) moved.push_back(name);
  }
  return moved;
}

TEST_F(ParametersView, ShowsTheManualBoltInPlaceOfTheTableWithoutMovingAnything) {
  Work([](QDialog& window) {
    OpenPage(window, "chkPrimSupport", PrimaryTab);
    const QSize size = window.size();
    const auto before = Places(window);
    EXPECT_TRUE(before.contains("fraBoltOptionsPrimary1"));

    PressLetterOf(window, "optBoltOptionsPrimary_1");
    const auto manual = Places(window);
    EXPECT_FALSE(manual.contains("fraBoltOptionsPrimary1"));
    EXPECT_TRUE(manual.contains("fraBoltOptionsPrimary0"));
    EXPECT_THAT(Moved(before, manual), IsEmpty());

    PressLetterOf(window, "optBoltDiameterPrimary_1");
    const auto typed = Places(window);
    EXPECT_FALSE(typed.contains("cmbBoltDiameterPrimary"));
    EXPECT_TRUE(typed.contains("txtBoltDiameterPrimary"));
    EXPECT_EQ(typed.at("txtBoltDiameterPrimary").left(), manual.at("cmbBoltDiameterPrimary").left());
    EXPECT_THAT(Moved(manual, typed), IsEmpty());
    EXPECT_EQ(window.size(), size);
  });
}

TEST_F(ParametersView, ShowsATypedCableCapacityInPlaceOfTheListWithoutMovingAnything) {
  Work([](QDialog& window) {
    OpenPage(window, "chkSecondSupEntries", EntriesTab);
    if (!Find<QAbstractButton>(window, "chkSecEntries_0").isChecked()) Click(window, "chkSecEntries_0");
    Click(window, "optCableCapModeSecEntry_1");
    const auto before = Places(window);
    EXPECT_TRUE(before.contains("cmbCableCapacitySecEntry"));

    Click(window, "optCableCapacitySecEntry_1");

    const auto after = Places(window);
    EXPECT_TRUE(after.contains("txtCableCapacitySecEntry"));
    EXPECT_FALSE(after.contains("cmbCableCapacitySecEntry"));
    EXPECT_THAT(Moved(before, after), IsEmpty());
  });
}

// In some desktop styles a list is taller than a field.
TEST_F(ParametersView, KeepsThePlaceOfAListThatIsTallerThanTheFieldThatReplacesIt) {
  program.project.WorkParms.Entries.Analysed = 1;
  program.project.WorkParms.Entries.Cable.Use = 1;
  program.project.WorkParms.Entries.Cable.CapMode = CapacityMode::Given;
  Work([this](QDialog& window) {
    PressLetterOfTab(window, "SSTab1", EntriesTab);
    auto& list = Find<QComboBox>(window, "cmbCableCapacitySecEntry");
    list.setMinimumHeight(2 * list.height());
    Settle();
    const auto before = Places(window);
    EXPECT_TRUE(before.contains("cmbCableCapacitySecEntry"));

    dialog.EntryCableControls.Capacity.SetValue(1, true);
    Settle();

    const auto after = Places(window);
    EXPECT_FALSE(after.contains("cmbCableCapacitySecEntry"));
    EXPECT_THAT(Moved(before, after), IsEmpty());
  });
}

TEST_F(ParametersView, SwitchesOptionsOfOneGroup) {
  Work([this](QDialog& window) {
    OpenPage(window, "chkPrimSupport", PrimaryTab);
    Find(window, "optBoltOptionsPrimary_0").setFocus(Qt::TabFocusReason);
    Press(Qt::Key_Right);

    EXPECT_TRUE(Find<QAbstractButton>(window, "optBoltOptionsPrimary_1").isChecked());
    EXPECT_FALSE(Find<QAbstractButton>(window, "optBoltOptionsPrimary_0").isChecked());
    EXPECT_EQ(GetArrayIndex(dialog.PrimaryBoltControls.Options), 1);
    EXPECT_TRUE(Find<QAbstractButton>(window, "optBoltDiameterPrimary_0").isChecked());
    EXPECT_TRUE(Find<QAbstractButton>(window, "optBoltGradePrimary_0").isChecked());
  });
}

class ManualBolt : public ParametersView {
 protected:
  // Shows the primary page with a bolt chosen by diameter and grade.
  void WorkOnIt(const ModalScripts::Script& script) {
    program.project.WorkParms.Primary.Options = BoltSource::Manual;
    Work([&](QDialog& window) {
      OpenPage(window, "chkPrimSupport", PrimaryTab);
      Find(window, "cmbBoltDiameterPrimary").setFocus(Qt::TabFocusReason);
      Settle();
      script(window);
    });
  }
};

TEST_F(ManualBolt, KeepsATypedDiameterThatIsNotInTheList) {
  WorkOnIt([this](QDialog& window) {
    Type("0.66");

    EXPECT_EQ(TextOn(window, "cmbBoltDiameterPrimary"), "0.66");
    EXPECT_EQ(Find<QComboBox>(window, "cmbBoltDiameterPrimary").currentIndex(), -1);
    EXPECT_EQ(dialog.PrimaryBoltControls.DiameterStd.Text(), "0.66");
    EXPECT_FALSE(dialog.PrimaryBoltControls.DiameterStd.HasSelection());
    Press(Qt::Key_Tab);
    EXPECT_EQ(TextOn(window, "cmbBoltDiameterPrimary"), "0.66");
  });
}

TEST_F(ManualBolt, SelectsATypedItem) {
  WorkOnIt([this](QDialog& window) {
    Type("0.625");

    EXPECT_EQ(TextOn(window, "cmbBoltDiameterPrimary"), "0.625");
    EXPECT_TRUE(dialog.PrimaryBoltControls.DiameterStd.HasSelection());
    EXPECT_EQ(TextOn(window, "txtActualPSUP"), "6.9");
  });
}

TEST_F(ManualBolt, ChoosesAnItemByTheArrowKeys) {
  WorkOnIt([this](QDialog& window) {
    Press(Qt::Key_Up);

    EXPECT_EQ(TextOn(window, "cmbBoltDiameterPrimary"), "0.625");
    EXPECT_EQ(dialog.PrimaryBoltControls.DiameterStd.Text(), "0.625");
    EXPECT_EQ(TextOn(window, "txtActualPSUP"), "6.9");
  });
}

TEST_F(ManualBolt, DoesNotChangeTheListWhenTheWheelTurnsOverIt) {
  WorkOnIt([this](QDialog& window) {
    auto& list = Find<QComboBox>(window, "cmbBoltGradePrimary");
    const std::string before = dialog.PrimaryBoltControls.GradeStd.Text();
    const QPointF at = list.rect().center();
    QWheelEvent wheel(at, list.mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);

    QCoreApplication::sendEvent(&list, &wheel);

    EXPECT_EQ(dialog.PrimaryBoltControls.GradeStd.Text(), before);
  });
}

TEST_F(ParametersView, SurvivesAFineWheelOverADisabledTab) {
  Use(dialog, [&](QDialog& window) {
    dialog.chkSecEntries[0].SetValue(0);
    auto& bar = *Find<QTabWidget>(window, "SSTab2").tabBar();
    const int tab = bar.currentIndex();
    const QPointF at = bar.rect().center();
    QWheelEvent partOfAStep(at, bar.mapToGlobal(at), QPoint(), QPoint(0, -15), Qt::NoButton, Qt::NoModifier,
                            Qt::NoScrollPhase, false);
    EXPECT_FALSE(bar.isTabEnabled(tab));

    QCoreApplication::sendEvent(&bar, &partOfAStep);

    EXPECT_EQ(bar.currentIndex(), tab);
    window.close();
  });
}

TEST_F(ParametersView, ChoosesABoltOfTheTableByTheKeyboard) {
  Work([this](QDialog& window) {
    OpenPage(window, "chkPrimSupport", PrimaryTab);
    Find(window, "VSFlexGridPrimary").setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 6; ++i) Press(Qt::Key_Down);

    EXPECT_EQ(dialog.PrimaryBoltControls.Table.Row(), 7);
    EXPECT_EQ(TextOn(window, "txtActualPSUP"), "9.9");
  });
}

TEST_F(ParametersView, ChoosesABoltOfTheTableByAClick) {
  Work([this](QDialog& window) {
    OpenPage(window, "chkPrimSupport", PrimaryTab);
    auto& table = Find<QTableWidget>(window, "VSFlexGridPrimary");
    table.scrollToItem(table.item(6, 1));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier,
                      table.visualItemRect(table.item(6, 1)).center());
    Settle();

    EXPECT_EQ(dialog.PrimaryBoltControls.Table.Row(), 7);
    EXPECT_EQ(TextOn(window, "txtActualPSUP"), "9.9");
    EXPECT_EQ(table.selectedItems().size(), 4);
  });
}

// ---- OK and Cancel -------------------------------------------------------------------------------------------------

TEST_F(ParametersView, CommitsOnEnter) {
  Use(dialog, [](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "725");
    Press(Qt::Key_Enter);
    EXPECT_FALSE(window.isVisible());
  });

  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 725);
  EXPECT_FALSE(program.project.FileSaved);
}

TEST_F(ParametersView, DiscardsTheTypedValuesOnEscape) {
  const Single depth = program.project.WorkParms.Place.DepthofCover;

  Use(dialog, [](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "725");
    Press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
  });

  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, depth);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_EQ(program.session.history.Text, "1. Editing Project Parameters\r\n2. Project Parameters Not Modified\r\n");
}

TEST_F(ParametersView, MovesTheFocusToTheInvalidField) {
  Work([this](QDialog& window) {
    OpenPage(window, "chkPrimSupport", PrimaryTab);
    TypeInto(window, "txtRowSpacingPrimary", "0");
    PressLetterOfTab(window, "SSTab1", 0);
    TypeInto(window, "txtDepthofCover", "725");

    Press(Qt::Key_Enter);

    EXPECT_TRUE(window.isVisible());
    EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid roof bolt row spacing"));
    EXPECT_EQ(Find<QTabWidget>(window, "SSTab1").currentIndex(), PrimaryTab);
    EXPECT_EQ(FocusName(), "txtRowSpacingPrimary");
    EXPECT_EQ(Find<QLineEdit>(window, "txtRowSpacingPrimary").selectedText(), "0");
  });
}

TEST_F(ParametersView, ShowsTheInnerPageOfTheInvalidField) {
  Work([this](QDialog& window) {
    OpenPage(window, "chkSecondSupEntries", EntriesTab);
    Click(window, "chkSecEntries_1");
    PressLetterOfTab(window, "SSTab2", 1);
    TypeInto(window, "txtTrussCapacitySecEntry", "0");
    PressLetterOfTab(window, "SSTab1", 0);

    Press(Qt::Key_Enter);

    EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid truss capacity"));
    EXPECT_EQ(Find<QTabWidget>(window, "SSTab1").currentIndex(), EntriesTab);
    EXPECT_EQ(Find<QTabWidget>(window, "SSTab2").currentIndex(), 1);
    EXPECT_EQ(FocusName(), "txtTrussCapacitySecEntry");
  });
}

// ---- units and results ---------------------------------------------------------------------------------------------

TEST_F(ParametersView, LabelsAMetricDesignInMetricUnits) {
  StartDesign(Metric);

  Work([](QDialog& window) {
    EXPECT_EQ(CaptionOn(window, "lblDepthofCover"), "Depth of Cover (m)");
    EXPECT_EQ(CaptionOn(window, "lblUnitWeight"), "Unit Weight of Rock (kN/m3)");
    EXPECT_EQ(CaptionOn(window, "fraBoltDiameterPrimary"), "Roof Bolt Diameter (mm)");
    EXPECT_EQ(CaptionOn(window, "fraBoltGradePrimary"), "Roof Bolt Yield Grade (MPa)");
    EXPECT_EQ(CaptionOn(window, "lblRockLoadEntry1"), "Rock Load (kN/m)");
    EXPECT_FALSE(Find(window, "optCableCapModeSecEntry_0").isEnabled());
    EXPECT_EQ(TextOn(window, "txtSugSumDiagonals"), "19.3");
  });
}

TEST_F(ParametersView, LabelsAnEnglishDesignInEnglishUnits) {
  Work([](QDialog& window) {
    EXPECT_EQ(CaptionOn(window, "lblDepthofCover"), "Depth of Cover (ft)");
    EXPECT_EQ(CaptionOn(window, "fraBoltGradePrimary"), "Roof Bolt Yield Grade (ksi)");
    EXPECT_EQ(window.windowTitle().toStdString(), "Parameters - Untitled");
  });
}

TEST_F(ParametersView, OpensTheResultsOverItselfAndReturns) {
  Work([this](QDialog& window) {
    std::string report;
    scripts.Add([&](QDialog& results) {
      report = TextOn(results, "RichTextBox1");
      Press(Qt::Key_Escape);
    });
    TypeInto(window, "txtDepthofCover", "725");

    PressLetterOf(window, "cmdresults");

    EXPECT_THAT(report, testing::HasSubstr("725"));
    EXPECT_TRUE(window.isVisible());
  });
}

}  // namespace
}  // namespace orby::test
