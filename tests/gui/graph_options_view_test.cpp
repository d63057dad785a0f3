// The graph options as their user sees them.
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QSlider>

#include "gui/report_bench.h"

namespace orby::test {
namespace {

using testing::Eq;

class GraphOptionsView : public GraphViewTest {
 protected:
  // Opens the options from the menu and selects the user-defined format.
  void ChooseOptions(ModalScripts::Script script) {
    scripts.Add([script = std::move(script)](QDialog& window) {
      Click(window, "Option1_1");
      script(window);
    });
    OpenOptions();
  }
  static void PressIn(const QDialog& window, std::string_view field, Qt::Key key, int times = 1) {
    Find(window, field).setFocus(Qt::TabFocusReason);
    for (int i = 0; i < times; ++i) Press(key);
  }
};

TEST_F(GraphOptionsView, ChangesTheTitlesOfTheChart) {
  ChooseOptions([](QDialog& window) {
    TypeInto(window, "Text1", "Panel 3");
    TypeInto(window, "Text2_1", "Cover");
    TypeInto(window, "Text3_0", "Support");
    Press(Qt::Key_Enter);
  });

  const auto* heading = qobject_cast<QCPTextElement*>(Plot().plotLayout()->element(0, 0));
  ASSERT_NE(heading, nullptr);
  EXPECT_EQ(heading->text(), "Panel 3");
  EXPECT_EQ(Plot().xAxis->label(), "Cover");
  EXPECT_EQ(Plot().yAxis->label(), "Support");
}

TEST_F(GraphOptionsView, ShowsOnlyTheTitlesOfTheShownCurve) {
  ChooseOptions([](QDialog& window) {
    EXPECT_TRUE(Find(window, "Text2_1").isVisible());
    EXPECT_FALSE(Find(window, "Text2_0").isVisible());
    EXPECT_TRUE(Find(window, "Text3_0").isVisible());
    EXPECT_FALSE(Find(window, "Text3_1").isVisible());
    Press(Qt::Key_Escape);
  });
}

TEST_F(GraphOptionsView, MovesTheFocusByTheLettersOfTheTitlesToTheVisibleFields) {
  Draw(5);

  ChooseOptions([](QDialog& window) {
    PressLetterOf(window, "Text2_5");
    EXPECT_EQ(FocusName(), "Text2_5");
    PressLetterOf(window, "Text3_1");
    EXPECT_EQ(FocusName(), "Text3_1");
    EXPECT_EQ(Find(window, "Text2_5").accessibleName(), "X-axis Title");
    EXPECT_EQ(Find(window, "Text3_1").accessibleName(), "Y-axis Title");
    Press(Qt::Key_Escape);
  });
}

TEST_F(GraphOptionsView, ChangesGridStyleLegendAndSymbols) {
  ChooseOptions([](QDialog& window) {
    PressIn(window, "Combo1", Qt::Key_Up);  // from both grid lines to the vertical ones
    PressIn(window, "Combo2", Qt::Key_Up);  // from lines and symbols to symbols
    PressIn(window, "Check1", Qt::Key_Space);
    PressIn(window, "HScroll1", Qt::Key_End);
    EXPECT_EQ(TextOn(window, "txtSS"), "20");
    Click(window, "Command2");
  });

  EXPECT_TRUE(Plot().xAxis->grid()->visible());
  EXPECT_FALSE(Plot().yAxis->grid()->visible());
  EXPECT_EQ(Plot().graph(0)->lineStyle(), QCPGraph::lsNone);
  EXPECT_FALSE(Plot().legend->visible());
  EXPECT_EQ(Plot().graph(0)->scatterStyle().size(), 20);
}

TEST_F(GraphOptionsView, DisablesTheSymbolSizeForLinesOnly) {
  ChooseOptions([](QDialog& window) {
    PressIn(window, "Combo2", Qt::Key_Up, 2);

    EXPECT_EQ(TextOn(window, "Combo2"), "Lines Only");
    EXPECT_FALSE(Find(window, "HScroll1").isEnabled());
    EXPECT_FALSE(Find(window, "lblSymbolSize").isEnabled());
    Click(window, "Command2");
  });

  EXPECT_EQ(Plot().graph(0)->scatterStyle().shape(), QCPScatterStyle::ssNone);
}

TEST_F(GraphOptionsView, ChangesNothingIfItIsCancelled) {
  ChooseOptions([](QDialog& window) {
    TypeInto(window, "Text2_1", "Cover");
    PressIn(window, "Combo1", Qt::Key_Up, 3);
    PressIn(window, "Check1", Qt::Key_Space);
    Click(window, "Command1");
  });

  EXPECT_EQ(Plot().xAxis->label(), "Depth of Cover (ft)");
  EXPECT_TRUE(Plot().xAxis->grid()->visible());
  EXPECT_TRUE(Plot().legend->visible());
}

TEST_F(GraphOptionsView, NumbersTheLegendOfARockLoadAfterItIsFormatted) {
  Draw(5);
  const QString before = Plot().graph(0)->name();

  ChooseOptions([](QDialog& window) { Click(window, "Command2"); });

  EXPECT_EQ(before, "Rock Load Straights");
  EXPECT_EQ(Plot().graph(0)->name(), "RockLoad1");
}

TEST_F(GraphOptionsView, LocksTheFieldsUnderTheDefaultFormat) {
  scripts.Add([](QDialog& window) {
    EXPECT_TRUE(Find<QRadioButton>(window, "Option1_0").isChecked());
    for (const char* field : {"Text1", "Text2_1", "Text3_0", "Combo1", "Combo2", "Check1", "HScroll1"}) {
      EXPECT_FALSE(Find(window, field).isEnabled()) << field;
    }
    Press(Qt::Key_Escape);
  });

  OpenOptions();
}

}  // namespace
}  // namespace orby::test
