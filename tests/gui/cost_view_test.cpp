// The cost dialog as its user sees it.
#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPixmap>

#include "dialogs/cost_dialog.h"
#include "gui/gui_bench.h"
#include "qt/surroundings.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CostView : public GuiTest {
 protected:
  using GuiTest::GuiTest;

  CostDialog dialog{program};
};

TEST_F(CostView, CalculatesWhileTheUserTypes) {
  Use(dialog, [](QDialog& window) {
    EXPECT_EQ(TextOn(window, "txtAdvanceShiftCalc"), "300");
    PressLetterOf(window, "txtnboltsShift");
    Type("280");
    EXPECT_EQ(TextOn(window, "txtAdvanceShiftCalc"), "280");
    EXPECT_EQ(TextOn(window, "txtCleanProductionCalc"), "1120");

    TypeInto(window, "txtAdvanceRate", "5");
    EXPECT_EQ(TextOn(window, "txtCleanProductionCalc"), "1400");
    Press(Qt::Key_Escape);
  });
}

TEST_F(CostView, CanBeFilledInAndAcceptedByTheKeyboard) {
  Use(dialog, [](QDialog& window) {
    EXPECT_EQ(FocusName(), "txtBoltCost");
    Type("3.25");
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "txtPlateCost");
    Type("1.1");
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "txtResinCost");
    PressLetterOf(window, "txtAdvanceShift");
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "chkAdvance");
    Press(Qt::Key_Space);
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "txtAdvanceRate");
    Type("4.6");
    Press(Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
  });

  const CostInputs& cost = program.project.WorkParms.Cost;
  EXPECT_EQ(cost.BoltCost, 3.25F);
  EXPECT_EQ(cost.PlateCost, 1.1F);
  EXPECT_EQ(cost.Advance, 0);
  EXPECT_EQ(cost.Production, 1);
  EXPECT_EQ(cost.AdvanceRate, 4.6F);
  EXPECT_FALSE(program.project.FileSaved);
}

TEST_F(CostView, DiscardsTheTypedCostsOnEscape) {
  Use(dialog, [](QDialog&) {
    Type("9");
    Press(Qt::Key_Escape);
  });

  EXPECT_EQ(program.project.WorkParms.Cost.BoltCost, 3);
  EXPECT_TRUE(program.project.FileSaved);
}

TEST_F(CostView, DiscardsTheTypedCostsWhenItsWindowIsClosed) {
  Use(dialog, [](QDialog& window) {
    Type("9");
    window.close();
  });

  EXPECT_EQ(program.project.WorkParms.Cost.BoltCost, 3);
  EXPECT_FALSE(dialog.IsOpen());
}

TEST_F(CostView, MovesTheFocusToTheNegativeCost) {
  Use(dialog, [this](QDialog& window) {
    QGuiApplication::clipboard()->setText("-2");
    Find(window, "txtResinCost").setFocus(Qt::TabFocusReason);
    Settle();
    Press(Qt::Key_V, Qt::ControlModifier);
    Find(window, "txtWeeksYear").setFocus(Qt::TabFocusReason);

    Press(Qt::Key_Enter);

    EXPECT_TRUE(window.isVisible());
    EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid cost per resin"));
    EXPECT_EQ(FocusName(), "txtResinCost");
    EXPECT_EQ(Find<QLineEdit>(window, "txtResinCost").selectedText(), "-2");
    Press(Qt::Key_Escape);
  });
}

TEST_F(CostView, RefusesALetterInACost) {
  Use(dialog, [](QDialog& window) {
    Type("1e2,x");
    EXPECT_EQ(TextOn(window, "txtBoltCost"), "12,");
    Press(Qt::Key_Escape);
  });
}

TEST_F(CostView, ShowsItsFiguresInReadOnlyFields) {
  Use(dialog, [](QDialog& window) {
    auto& figure = Find<QLineEdit>(window, "txtAdvanceShiftCalc");
    EXPECT_TRUE(figure.isReadOnly());
    figure.setFocus(Qt::TabFocusReason);
    Settle();
    Type("7");
    EXPECT_EQ(figure.text(), "300");
    Press(Qt::Key_Escape);
  });
}

TEST_F(CostView, LabelsAMetricDesignInMetricUnits) {
  StartDesign(Metric);

  Use(dialog, [](QDialog& window) {
    EXPECT_EQ(CaptionOn(window, "lblRowSpacing"), "Spacing between rows (m)");
    EXPECT_EQ(CaptionOn(window, "lblAdvanceRate"), "Clean production advance rate (MN/m)");
    Press(Qt::Key_Escape);
  });
}

TEST_F(CostView, ShowsTheCostTableOnResults) {
  std::string table;
  Use(dialog, [&](QDialog& window) {
    scripts.Add([&](QDialog& results) {
      PressLetterOf(results, "Command4");
      table = TextOn(results, "RichTextBox1");
      Press(Qt::Key_Escape);
    });
    PressLetterOf(window, "cmdresults");
    EXPECT_TRUE(window.isVisible());
    Press(Qt::Key_Escape);
  });

  EXPECT_THAT(table, testing::HasSubstr("COST"));
}

// ---- the desktop's clipboard ---------------------------------------------------------------------------------------

RealDoors WithRealClipboard() {
  static QtClipboard clipboard;
  RealDoors doors;
  doors.clipboard = &clipboard;
  return doors;
}

class CopyClip : public CostView {
 protected:
  CopyClip() : CostView(WithRealClipboard()) {}
};

TEST_F(CopyClip, CopiesThePictureOfTheDialogToTheClipboard) {
  QGuiApplication::clipboard()->clear();

  QImage expected;
  Use(dialog, [&](QDialog& window) {
    TypeInto(window, "txtBoltCost", "3.25");
    PressLetterOf(window, "Command5");
    expected = window.grab().toImage();
    Press(Qt::Key_Escape);
  });

  const QImage picture = QGuiApplication::clipboard()->image();
  EXPECT_FALSE(picture.isNull());
  EXPECT_EQ(picture.size(), expected.size());
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Screenshot of dialog copied to clipboard"));
}

}  // namespace
}  // namespace orby::test
