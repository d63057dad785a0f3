// The preview as its user sees it.
#include "dialogs/preview_window.h"

#include <QClipboard>
#include <QFontInfo>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

#include "gui/report_bench.h"

namespace orby::test {
namespace {

using testing::Eq;
using testing::HasSubstr;
using testing::StartsWith;

class PreviewView : public ReportTest {
 protected:
  PreviewView() : ReportTest({.clipboard = &clipboard}) {}

  void UsePreview(ModalScripts::Script script) {
    scripts.Add(std::move(script));
    ShowPreview(program);
    Settle();
  }

  QtClipboard clipboard;
};

TEST_F(PreviewView, TurnsPagesAndOffersOnlyExistingOnes) {
  UsePreview([&](QDialog& window) {
    EXPECT_THAT(TextOn(window, "RichTextBox1"), StartsWith("ORBY module build: 201030\n"));
    EXPECT_FALSE(Find<QPushButton>(window, "Command5").isEnabled());

    PressLetterOf(window, "Command4");

    EXPECT_THAT(TextOn(window, "RichTextBox1"), StartsWith("[ORBY CALCULATIONS]\n"));
    EXPECT_FALSE(Find<QPushButton>(window, "Command4").isEnabled());
    EXPECT_TRUE(Find<QPushButton>(window, "Command5").isEnabled());
    Press(Qt::Key_Escape);
  });
}

TEST_F(PreviewView, ShowsAPageFromItsTopInAMonospacedFont) {
  UsePreview([&](QDialog& window) {
    auto& report = Find<QPlainTextEdit>(window, "RichTextBox1");
    report.setFocus();
    Press(Qt::Key_PageDown);
    const int below = report.verticalScrollBar()->value();

    PressLetterOf(window, "Command4");
    PressLetterOf(window, "Command5");

    EXPECT_GT(below, 0);
    EXPECT_EQ(report.verticalScrollBar()->value(), 0);
    EXPECT_TRUE(QFontInfo(report.font()).fixedPitch());
    Press(Qt::Key_Escape);
  });
}

TEST_F(PreviewView, CopiesTheShownPage) {
  UsePreview([&](QDialog& window) {
    PressLetterOf(window, "Command2");
    Press(Qt::Key_Escape);
  });

  EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(), Eq(program.session.OutBuf[0]));
  EXPECT_THAT(program.session.history.Text, HasSubstr("Page 0 copied to clipboard"));
}

TEST_F(PreviewView, SaysWhichPageItShowsAndFindsATextInIt) {
  UsePreview([&](QDialog& window) {
    EXPECT_EQ(TextOn(window, "lblPage"), "Page 1 of 2");

    Press(Qt::Key_F, Qt::ControlModifier);
    Type("units");
    Press(Qt::Key_Return);

    EXPECT_EQ(Find<QPlainTextEdit>(window, "RichTextBox1").textCursor().selectedText().toLower(), "units");
    Press(Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    Press(Qt::Key_Escape);
  });
}

TEST_F(PreviewView, ClosesByItsButton) {
  UsePreview([&](QDialog& window) {
    Click(window, "Command1");

    EXPECT_FALSE(window.isVisible());
  });
}

}  // namespace
}  // namespace orby::test
