// What a run-time error meets that nothing has dealt with, and what the view does around an act of the user.
#include "qt/boundary.h"

#include <QAbstractButton>
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
  ParametersDialog dialog{program};
};

TEST_F(Boundary, SaysWhetherAnActCameToItsEnd) {
  EXPECT_TRUE(RunGuarded([] {}));
  EXPECT_FALSE(RunGuarded([] { throw RuntimeError(error_number::Overflow); }));
  EXPECT_THAT(TakeErrors(), ElementsAre(6));
}

TEST_F(Boundary, TakesAShortageOfMemoryForARunTimeError) {
  EXPECT_FALSE(RunGuarded([] { throw std::bad_alloc(); }));
  EXPECT_THAT(TakeErrors(), ElementsAre(7));
}

TEST_F(Boundary, LeavesAProgrammersMistakeAlone) {
  EXPECT_THROW(RunGuarded([] { throw std::logic_error("no widget"); }), std::logic_error);
}

TEST_F(Boundary, MeetsTheErrorOfABlankDepth) {
  Use(dialog, [this](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "");
    EXPECT_THAT(TakeErrors(), ElementsAre(5));
    Press(Qt::Key_Escape);
  });
}

TEST_F(Boundary, TellsOfEachActThatIsDone) {
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

TEST_F(Boundary, DoesNotTellOfAnActThatFails) {
  int acts = 0;
  dialog.Acted = [&] { ++acts; };
  Use(dialog, [&](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "");
    EXPECT_EQ(acts, 0);
    EXPECT_THAT(TakeErrors(), ElementsAre(5));
    Press(Qt::Key_Escape);
  });
}

TEST_F(Boundary, MeetsTheErrorOfAButtonToo) {
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

TEST_F(Boundary, LetsAButtonActAfterItsClickHasEnded) {
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
