// The view of a long text by lines.
#include "qt/lines_view.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include "gui/gui_bench.h"

namespace orby::test {
namespace {

class PaneOfLines : public testing::Test {
 protected:
  void Show(std::string bytes) {
    text = std::move(bytes);
    pane.ShowText(text);
    pane.resize(400, 300);
    pane.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&pane));
    pane.setFocus();
    Settle();
  }
  int TopRow() const { return pane.indexAt({5, 1}).row(); }
  void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&pane, key, modifiers);
    Settle();
  }
  static QPoint LeftOf(const QRect& character) { return {character.left(), character.center().y()}; }
  // Drags the mouse from the left edge of one character to the left edge of another.
  void Drag(const QRect& from, const QRect& to) {
    QTest::mousePress(pane.viewport(), Qt::LeftButton, Qt::NoModifier, LeftOf(from));
    const QPointF end = LeftOf(to);
    QMouseEvent move(QEvent::MouseMove, end, pane.viewport()->mapToGlobal(end), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(pane.viewport(), &move);
    QTest::mouseRelease(pane.viewport(), Qt::LeftButton, Qt::NoModifier, LeftOf(to));
    Settle();
  }
  static std::string Copied() { return QGuiApplication::clipboard()->text().toStdString(); }
  static std::string Numbered(int lines) {
    std::string numbered;
    for (int i = 0; i < lines; ++i) numbered += "line " + std::to_string(i) + "\r\n";
    return numbered;
  }

  std::string text;
  LinesView pane;
};

TEST_F(PaneOfLines, GoesToItsEndsByTheKeyboard) {
  Show(Numbered(100'000));

  PressKey(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(pane.currentIndex().row(), 99'999);
  EXPECT_TRUE(pane.viewport()->rect().contains(pane.visualRect(pane.currentIndex()).center()));

  PressKey(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(pane.currentIndex().row(), 0);
  EXPECT_EQ(TopRow(), 0);
}

TEST_F(PaneOfLines, GoesByLinesAndPages) {
  Show(Numbered(1000));
  PressKey(Qt::Key_Home);
  const int page = pane.verticalScrollBar()->pageStep();

  PressKey(Qt::Key_Down);
  PressKey(Qt::Key_PageDown);

  EXPECT_EQ(pane.currentIndex().row(), 1 + page);
  PressKey(Qt::Key_Up);
  PressKey(Qt::Key_PageUp);
  EXPECT_EQ(pane.currentIndex().row(), 0);
}

TEST_F(PaneOfLines, FollowsTheWheel) {
  Show(Numbered(1000));

  const QPointF at = pane.viewport()->rect().center();
  QWheelEvent turn(at, pane.viewport()->mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                   false);
  QCoreApplication::sendEvent(pane.viewport(), &turn);

  EXPECT_EQ(TopRow(), QApplication::wheelScrollLines());
}

TEST_F(PaneOfLines, CopiesTheSelectedLines) {
  Show(Numbered(1000));
  PressKey(Qt::Key_Home);
  PressKey(Qt::Key_Down);
  PressKey(Qt::Key_Down, Qt::ShiftModifier);
  PressKey(Qt::Key_Down, Qt::ShiftModifier);

  PressKey(Qt::Key_C, Qt::ControlModifier);

  EXPECT_EQ(Copied(), "line 1\nline 2\n");
}

TEST_F(PaneOfLines, SelectsCharactersByTheKeyboard) {
  Show("cover 400 ft\nspan 60 ft\n");
  for (int i = 0; i < 6; ++i) PressKey(Qt::Key_Right);
  for (int i = 0; i < 4; ++i) PressKey(Qt::Key_Right, Qt::ShiftModifier);
  PressKey(Qt::Key_Left, Qt::ShiftModifier);

  PressKey(Qt::Key_C, Qt::ControlModifier);

  EXPECT_EQ(Copied(), "400");
}

TEST_F(PaneOfLines, MovesTheCaretAcrossLineEnds) {
  Show("ab\r\ncd");
  for (int i = 0; i < 4; ++i) PressKey(Qt::Key_Right);
  EXPECT_EQ(pane.Selection().Caret, 5U);
  EXPECT_EQ(pane.currentIndex().row(), 1);

  for (int i = 0; i < 2; ++i) PressKey(Qt::Key_Left);

  EXPECT_EQ(pane.Selection().Caret, 2U);
}

TEST_F(PaneOfLines, SelectsToTheEndsOfTheLine) {
  Show("cover 400 ft\nspan 60 ft\n");
  PressKey(Qt::Key_Down);
  for (int i = 0; i < 5; ++i) PressKey(Qt::Key_Right);

  PressKey(Qt::Key_End, Qt::ShiftModifier);
  PressKey(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Copied(), "60 ft");

  PressKey(Qt::Key_Home, Qt::ShiftModifier);
  PressKey(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Copied(), "span ");
}

TEST_F(PaneOfLines, KeepsItsColumnUpAndDown) {
  Show("a long line\nab\nanother line");
  PressKey(Qt::Key_End);

  PressKey(Qt::Key_Down);
  EXPECT_EQ(pane.Selection().Caret, 14U);
  PressKey(Qt::Key_Down);

  EXPECT_EQ(pane.Selection().Caret, 26U);
}

TEST_F(PaneOfLines, SelectsCharactersByTheMouse) {
  Show("cover 400 ft\nspan 60 ft\n");

  Drag(pane.CharacterRect(0, 6), pane.CharacterRect(1, 4));
  PressKey(Qt::Key_C, Qt::ControlModifier);

  EXPECT_EQ(Copied(), "400 ft\nspan");
}

TEST_F(PaneOfLines, SelectsUpToAShiftClick) {
  Show("cover 400 ft\nspan 60 ft\n");
  QTest::mouseClick(pane.viewport(), Qt::LeftButton, Qt::NoModifier, LeftOf(pane.CharacterRect(0, 6)));

  QTest::mouseClick(pane.viewport(), Qt::LeftButton, Qt::ShiftModifier, LeftOf(pane.CharacterRect(0, 9)));
  PressKey(Qt::Key_C, Qt::ControlModifier);

  EXPECT_EQ(Copied(), "400");
}

TEST_F(PaneOfLines, SelectsAWordByADoubleClick) {
  Show("cover: 400\tft 45\xB0\n");
  const auto copiedAt = [this](int character) {
    QTest::mouseDClick(pane.viewport(), Qt::LeftButton, Qt::NoModifier, pane.CharacterRect(0, character).center());
    PressKey(Qt::Key_C, Qt::ControlModifier);
    return Copied();
  };

  EXPECT_EQ(copiedAt(2), "cover");
  EXPECT_EQ(copiedAt(8), "400");
  EXPECT_EQ(copiedAt(17), "ft");
}

TEST_F(PaneOfLines, HighlightsTheSelection) {
  Show("cover 400 ft\n");
  Drag(pane.CharacterRect(0, 6), pane.CharacterRect(0, 9));

  const QImage picture = pane.viewport()->grab().toImage();

  const QColor marked = pane.palette().color(QPalette::Highlight);
  EXPECT_EQ(picture.pixelColor(pane.CharacterRect(0, 6).topLeft() + QPoint(1, 1)), marked);
  EXPECT_NE(picture.pixelColor(pane.CharacterRect(0, 4).topLeft() + QPoint(1, 1)), marked);
  EXPECT_NE(picture.pixelColor(pane.CharacterRect(0, 10).topLeft() + QPoint(1, 1)), marked);
}

TEST_F(PaneOfLines, ScrollsHorizontallyToTheCaret) {
  Show("short\n" + std::string(300, 'W') + "\n");
  PressKey(Qt::Key_Down);

  PressKey(Qt::Key_End);
  EXPECT_TRUE(pane.viewport()->rect().contains(pane.CharacterRect(1, 299)));

  PressKey(Qt::Key_Home);
  EXPECT_EQ(pane.horizontalScrollBar()->value(), 0);
}

TEST_F(PaneOfLines, CopiesTheWholeText) {
  Show("one\r\ntwo\rthree");

  PressKey(Qt::Key_A, Qt::ControlModifier);
  PressKey(Qt::Key_C, Qt::ControlModifier);

  EXPECT_EQ(Copied(), "one\ntwo\nthree");
}

TEST_F(PaneOfLines, CopiesALongLineCompletelyEvenIfItIsCutOffOnTheScreen) {
  const std::string line = "a\t" + std::string(9000, 'x') + "\xB0";
  Show(line);

  PressKey(Qt::Key_A, Qt::ControlModifier);
  PressKey(Qt::Key_C, Qt::ControlModifier);

  EXPECT_EQ(Copied(), "a\t" + std::string(9000, 'x') + "\u00B0");
  EXPECT_EQ(pane.model()->index(0, 0).data().toString().size(), 4001);
}

TEST_F(PaneOfLines, KeepsTheClipboardIfNothingIsSelected) {
  QGuiApplication::clipboard()->setText("before");
  Show(Numbered(10));

  PressKey(Qt::Key_C, Qt::ControlModifier);

  EXPECT_EQ(Copied(), "before");
}

TEST_F(PaneOfLines, ScrollsHorizontallyToTheEndOfItsWidestLine) {
  Show("short\n");
  EXPECT_EQ(pane.horizontalScrollBar()->maximum(), 0);

  text += std::string(300, 'W') + "\n";
  pane.ShowText(text);
  pane.viewport()->repaint();
  Settle();

  const int width = pane.fontMetrics().horizontalAdvance(QString(300, 'W'));
  EXPECT_GE(pane.horizontalScrollBar()->maximum(), width - pane.viewport()->width());
}

TEST_F(PaneOfLines, GrowsWithoutMovingTheVisibleLines) {
  Show(Numbered(1000));
  pane.verticalScrollBar()->setValue(500);

  text += "the last line\n";
  pane.ShowText(text);
  Settle();

  EXPECT_EQ(TopRow(), 500);
  EXPECT_EQ(pane.model()->rowCount(), 1001);
  EXPECT_EQ(pane.model()->index(1000, 0).data().toString(), "the last line");
}

TEST_F(PaneOfLines, ShowsAReplacedTextFromItsTop) {
  Show(Numbered(1000));
  pane.verticalScrollBar()->setValue(500);

  text.clear();
  pane.ShowText(text);
  text = "alone";
  pane.ShowText(text);
  Settle();

  EXPECT_EQ(pane.model()->rowCount(), 1);
  EXPECT_EQ(TopRow(), 0);
  EXPECT_TRUE(pane.Selection().IsEmpty());
}

TEST_F(PaneOfLines, GivesItsLinesToAScreenReader) {
  Show("cover\n400 ft\n");
  QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&pane);
  ASSERT_NE(reader, nullptr);

  EXPECT_EQ(reader->role(), QAccessible::List);
  ASSERT_EQ(reader->childCount(), 2);
  EXPECT_EQ(reader->child(1)->text(QAccessible::Name), "400 ft");
}

}  // namespace
}  // namespace orby::test
