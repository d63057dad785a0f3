// The judgements under the tabs of the parameters dialog, on the screen.
#include <QLabel>
#include <QListWidget>

#include "dialogs/parameters_dialog.h"
#include "gui/gui_bench.h"

namespace orby::test {
namespace {

using testing::HasSubstr;

class VerdictsOnView : public GuiTest {
 protected:
  ParametersDialog dialog{program};
};

TEST_F(VerdictsOnView, HaveTheirMarksAndFollowEachKey) {
  Work(dialog, [](QDialog& window) {
    auto& list = Find<QListWidget>(window, "lstVerdicts");
    PressLetterOf(window, "txtEntryWidth");
    Press(Qt::Key_Delete);

    const auto found = list.findItems("Cannot be computed: Sum of diagonals", Qt::MatchStartsWith);
    ASSERT_FALSE(found.isEmpty());
    EXPECT_FALSE(found.constFirst()->icon().isNull());
    EXPECT_THAT(Find<QLabel>(window, "lblVerdicts").text().toStdString(), HasSubstr("not computed"));
  });
}

TEST_F(VerdictsOnView, LeadToTheirFieldByTheEnterKey) {
  Work(dialog, [](QDialog& window) {
    PressLetterOf(window, "txtEntryWidth");
    Press(Qt::Key_Delete);
    auto& list = Find<QListWidget>(window, "lstVerdicts");
    list.setFocus();
    while (!list.currentItem() || !list.currentItem()->text().contains("Sum of diagonals")) Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    Settle();

    EXPECT_EQ(FocusName(), "txtActualSpanDiagonals");
  });
}

}  // namespace
}  // namespace orby::test
