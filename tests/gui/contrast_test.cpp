// The colours of selected texts.
#include "qt/contrast.h"

#include <QPalette>

#include "gui/contrast_bench.h"
#include "gui/gui_bench.h"

namespace orby::test {
namespace {

const QColor WindowColour(0x2b, 0x2b, 0x2b);

class SelectedTexts : public testing::Test {
 protected:
  ~SelectedTexts() override { QApplication::setPalette(QPalette()); }

  // Shows the program in a theme with this ground of selected texts.
  static void UseTheme(const QColor& ground, const QColor& text) {
    QPalette theme;
    theme.setColor(QPalette::Highlight, ground);
    theme.setColor(QPalette::HighlightedText, text);
    theme.setColor(QPalette::Window, WindowColour);
    QApplication::setPalette(theme);
  }
  static double ContrastNow() {
    const QPalette palette = QApplication::palette();
    return ContrastOf(palette.color(QPalette::Highlight), palette.color(QPalette::HighlightedText));
  }
};

TEST_F(SelectedTexts, CanBeReadInAThemeWhoseGroundIsTooLight) {
  UseTheme(QColor(0x30, 0x8c, 0xc6), Qt::white);
  ASSERT_LT(ContrastNow(), 4.5);

  MakeSelectionReadable();

  EXPECT_GE(ContrastNow(), 4.5);
  EXPECT_EQ(QApplication::palette().color(QPalette::HighlightedText), QColor(Qt::white));
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), WindowColour) << "the rest of the theme stays";
}

TEST_F(SelectedTexts, KeepTheColoursOfAThemeThatCanBeRead) {
  UseTheme(QColor(0x10, 0x40, 0x80), Qt::white);

  MakeSelectionReadable();

  EXPECT_EQ(QApplication::palette().color(QPalette::Highlight), QColor(0x10, 0x40, 0x80));
}

}  // namespace
}  // namespace orby::test
