// The disclaimer as its user sees it.
#include <QPlainTextEdit>

#include "dialogs/disclaimer.h"
#include "gui/gui_bench.h"

namespace orby::test {
namespace {

using testing::IsEmpty;
using testing::Not;

class DisclaimerView : public GuiTest {
 protected:
  DisclaimerView() { program.session.IniFilePath = "/home/user/Documents/Orby/ORBY.INI"; }

  Disclaimer disclaimer{program};
};

TEST_F(DisclaimerView, WrapsItsReadOnlyText) {
  Use(disclaimer, [](QDialog& window) {
    const auto& text = Find<QPlainTextEdit>(window, "txtDisclaimer");
    EXPECT_TRUE(text.isReadOnly());
    EXPECT_EQ(text.lineWrapMode(), QPlainTextEdit::WidgetWidth);
    EXPECT_EQ(text.accessibleName(), "Disclaimer of Liability Clause");
    Click(window, "Command1");
  });
}

TEST_F(DisclaimerView, CannotBeSkippedByEscapeOrTheCloseButton) {
  Use(disclaimer, [](QDialog& window) {
    Press(Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    window.close();
    Settle();
    EXPECT_TRUE(window.isVisible());
    Click(window, "Command1");
  });
}

TEST_F(DisclaimerView, IsAcceptedByTheKeyboard) {
  Use(disclaimer, [](QDialog& window) {
    PressLetterOf(window, "chkShow");
    PressLetterOf(window, "Command1");
  });

  EXPECT_EQ(program.session.settings.ShowDisclaim, 0);
  EXPECT_THAT(platform.files.created, Not(IsEmpty()));
}

TEST_F(DisclaimerView, EndsTheProgramIfItIsRefused) {
  int ended = 0;
  program.EndAtOnce = [&] { ++ended; };

  Use(disclaimer, [](QDialog& window) {
    Click(window, "chkShow");
    Click(window, "cmdNoAccept");
  });

  EXPECT_EQ(ended, 1);
  EXPECT_EQ(program.session.settings.ShowDisclaim, 1);
  EXPECT_THAT(platform.files.created, IsEmpty());
}

}  // namespace
}  // namespace orby::test
