// The unit calculator as its user sees it.
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>

#include "dialogs/unit_calculator_window.h"
#include "gui/gui_bench.h"

namespace orby::test {
namespace {

class CalculatorView : public GuiTest {
 protected:
  void Calculate(ModalScripts::Script script) {
    UnitCalculator calculator(program);
    Use(calculator, [script = std::move(script)](QDialog& window) {
      script(window);
      Click(window, "Command1");
    });
  }
};

TEST_F(CalculatorView, ConvertsTheTypedNumber) {
  Calculate([](QDialog& window) {
    EXPECT_EQ(FocusName(), "txtLength");
    Type("1");
    Click(window, "Option2_1");

    EXPECT_EQ(TextOn(window, "Text7"), "12");
    EXPECT_EQ(TextOn(window, "Text8"), "1");
    EXPECT_EQ(TextOn(window, "Text9"), "30.48");
    EXPECT_EQ(TextOn(window, "Text10"), "0.3048");
  });
}

TEST_F(CalculatorView, RefusesLetters) {
  Calculate([](QDialog& window) {
    Type("2x7");

    EXPECT_EQ(TextOn(window, "txtLength"), "27");
    EXPECT_EQ(TextOn(window, "Text7"), "27");
  });
}

TEST_F(CalculatorView, MovesTheFocusToTheInputOfATab) {
  Calculate([](QDialog& window) {
    auto& tabs = *Find<QTabWidget>(window, "SSTab1").tabBar();
    QTest::mouseClick(&tabs, Qt::LeftButton, Qt::NoModifier, tabs.tabRect(3).center());
    Settle();

    EXPECT_EQ(FocusName(), "txtStress");
    EXPECT_TRUE(Find(window, "txtStress").isVisible());
    Type("145");
    EXPECT_EQ(TextOn(window, "Text4"), "20880");
  });
}

TEST_F(CalculatorView, KeepsTheResultsOfTheOtherTabs) {
  Calculate([](QDialog& window) {
    Type("6");
    PressLetterOfTab(window, "SSTab1", 1);
    EXPECT_EQ(FocusName(), "txtLoad");
    Type("27");
    PressLetterOfTab(window, "SSTab1", 0);

    EXPECT_EQ(TextOn(window, "txtLength"), "6");
    EXPECT_EQ(TextOn(window, "Text8"), "0.5");
    EXPECT_EQ(Find<QLineEdit>(window, "txtLength").selectedText(), "6");
  });
}

TEST_F(CalculatorView, ShowsTheUnitOfEachResult) {
  Calculate([](QDialog& window) {
    const std::pair<const char*, const char*> units[] = {
        {"Text7", "in"},       {"Text10", "m"},  {"Text22", "tonsF (short)"}, {"Text25", "kips"},
        {"Text18", "lbsF/ft"}, {"Text6", "MPa"}, {"Text15", "MPa/m"}};
    for (const auto& [field, unit] : units) {
      EXPECT_EQ(Find(window, field).accessibleName().toStdString(), unit);
      EXPECT_EQ(CaptionOn(window, "lbl" + std::string(field)), unit);
    }
  });
}

TEST_F(CalculatorView, ShowsReadOnlyResults) {
  Calculate([](QDialog& window) {
    Type("6");
    Find(window, "Text7").setFocus();
    Press(Qt::Key_9);

    EXPECT_EQ(TextOn(window, "Text7"), "6");
    EXPECT_TRUE(Find<QLineEdit>(window, "Text7").isReadOnly());
  });
}

}  // namespace
}  // namespace orby::test
