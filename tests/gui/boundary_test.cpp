// The outermost handler of run-time errors, and the notification after each action of the user.
#include "qt/boundary.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <new>
#include <stdexcept>

#include "dialogs/cost_dialog.h"
#include "dialogs/parameters_dialog.h"
#include "gui/gui_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Boundary : public GuiTest {
 protected:
  // Enters a design that passes the checks and whose report fails.
  void MakeReportFail() {
    program.project.WorkParms.Primary.Analysed = 1;
    program.project.WorkParms.Primary.StabilityFactor = 1E38F;
  }

  ParametersDialog dialog{program};
};

TEST_F(Boundary, ReturnsWhetherAnActionCompleted) {
  EXPECT_TRUE(RunGuarded([] {}));
  EXPECT_FALSE(RunGuarded([] { throw RuntimeError(error_number::Overflow); }));
  EXPECT_THAT(TakeErrors(), ElementsAre(6));
}

TEST_F(Boundary, TreatsAShortageOfMemoryAsARunTimeError) {
  EXPECT_FALSE(RunGuarded([] { throw std::bad_alloc(); }));
  EXPECT_THAT(TakeErrors(), ElementsAre(7));
}

TEST_F(Boundary, DoesNotCatchAProgrammersMistake) {
  EXPECT_THROW(RunGuarded([] { throw std::logic_error("no widget"); }), std::logic_error);
}

TEST_F(Boundary, CatchesTheErrorOfAReportThatCannotBeComputed) {
  MakeReportFail();
  Use(dialog, [this](QDialog& window) {
    PressLetterOf(window, "cmdresults");
    EXPECT_THAT(TakeErrors(), ElementsAre(6));
    Press(Qt::Key_Escape);
  });
}

TEST_F(Boundary, IsNotReachedByAnyTextInAField) {
  Use(dialog, [this](QDialog& window) {
    for (const char* text : {"", "0.9", "-"}) {
      TypeInto(window, "txtDepthofCover", text);
      EXPECT_EQ(TextOn(window, "txtDepthofCover"), text);
    }
    // An exponent can only be pasted, because a typed letter is refused.
    for (const char* text : {"1E40", "1E400"}) {
      QGuiApplication::clipboard()->setText(text);
      Press(Qt::Key_A, Qt::ControlModifier);
      Press(Qt::Key_V, Qt::ControlModifier);
      EXPECT_EQ(TextOn(window, "txtDepthofCover"), text);
    }
    EXPECT_THAT(TakeErrors(), IsEmpty());
    Press(Qt::Key_Escape);
  });
}

TEST_F(Boundary, NotifiesTheFormAfterEachAction) {
  int acts = 0;
  dialog.Acted = [&] { ++acts; };
  Use(dialog, [&](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "725");
    EXPECT_EQ(acts, 3);
    PressLetterOf(window, "chkPrimSupport");
    EXPECT_EQ(acts, 4);
    Press(Qt::Key_Escape);
  });

  EXPECT_EQ(acts, 4);
}

TEST_F(Boundary, DoesNotNotifyTheFormAfterAFailedAction) {
  int acts = 0;
  MakeReportFail();
  dialog.Acted = [&] { ++acts; };
  Use(dialog, [&](QDialog& window) {
    PressLetterOf(window, "cmdresults");
    EXPECT_EQ(acts, 0);
    EXPECT_THAT(TakeErrors(), ElementsAre(6));
    Press(Qt::Key_Escape);
  });
}

TEST_F(Boundary, CatchesTheErrorOfAButton) {
  CostDialog cost(program);
  int acts = 0;
  cost.Acted = [&] { ++acts; };
  cost.Command5.Click = [] { throw RuntimeError(error_number::Subscript); };
  Use(cost, [&](QDialog& window) {
    PressLetterOf(window, "Command5");
    EXPECT_THAT(TakeErrors(), ElementsAre(9));
    EXPECT_EQ(acts, 0);
    EXPECT_TRUE(window.isVisible());
    Press(Qt::Key_Escape);
  });
}

TEST_F(Boundary, RunsAButtonsActionAfterItsClick) {
  CostDialog cost(program);
  bool acted = false;
  cost.Command5.Click = [&] { acted = true; };
  Use(cost, [&](QDialog& window) {
    Find<QAbstractButton>(window, "Command5").click();
    EXPECT_FALSE(acted);
    Settle();
    EXPECT_TRUE(acted);
    Press(Qt::Key_Escape);
  });
}

}  // namespace
}  // namespace orby::test
