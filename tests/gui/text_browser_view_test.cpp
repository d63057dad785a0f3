// The text file browser as its user sees it.
#include <QAccessible>
#include <QClipboard>
#include <QListWidget>
#include <QProgressBar>
#include <QScrollBar>

#include "gui/gui_bench.h"
#include "qt/lines_view.h"
#include "shell/text_browser.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BrowserView : public GuiTest {
 protected:
  BrowserView() {
    platform.files.drives = {"/", "/media/stick"};
    platform.files.folders = {"", "/designs", "/designs/east", "/designs/west", "/designs/west/deep", "/media/stick"};
    platform.files.files["/designs/panel3.orb"] = "cover\r\n400\tft\r\n45\xB0 dip\r\n";
    platform.files.files["/designs/panel4.orb"] = "cover\n980\n";
    platform.files.files["/designs/notes.txt"] = "one\n";
    platform.files.files["/media/stick/stick.orb"] = "stick\n";
    program.settings.DataPath = "/designs/";
    program.settings.ExternalEditor = "/usr/bin/viewer";
    program.folders.ProgramTemporary = "/tmp/";
    program.IniFilePath = "/designs/ORBY.INI";
  }

  void Browse(ModalScripts::Script script) {
    TextBrowser browser(program);
    Use(browser, [script = std::move(script)](QDialog& window) {
      script(window);
      Click(window, "Command1");
    });
  }

  // A click on an item of a list, on its text.
  static void ClickItem(const QDialog& window, std::string_view list, const QString& text, int times = 1) {
    auto& widget = Find<QListWidget>(window, list);
    const auto found = widget.findItems(text, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << text.toStdString();
    widget.scrollToItem(found.front());
    const QPoint at = widget.visualItemRect(found.front()).center();
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, Qt::NoModifier, at);
    Settle();
    if (times > 1) QTest::mouseDClick(widget.viewport(), Qt::LeftButton, Qt::NoModifier, at);
    Settle();
  }
  // Lets a file come in.
  void Wait() {
    while (!platform.clock.waiting.empty()) platform.clock.Pass();
    Settle();
  }
  void OpenFile(const QDialog& window, const QString& name) {
    ClickItem(window, "File1", name);
    Wait();
  }

  static std::vector<std::string> ItemsOn(const QDialog& window, std::string_view list) {
    std::vector<std::string> items;
    const auto& widget = Find<QListWidget>(window, list);
    for (int i = 0; i < widget.count(); ++i) items.push_back(widget.item(i)->text().toStdString());
    return items;
  }
  static LinesView& Pane(const QDialog& window) { return Find<LinesView>(window, "RichTextBox1"); }
  static std::vector<std::string> LinesOn(const QDialog& window) {
    std::vector<std::string> lines;
    const auto& model = *Pane(window).model();
    for (int i = 0; i < model.rowCount(); ++i) lines.push_back(model.index(i, 0).data().toString().toStdString());
    return lines;
  }
};

TEST_F(BrowserView, ShowsTheLinesOfAFile) {
  Browse([this](QDialog& window) {
    EXPECT_EQ(window.windowTitle(), "View Source Files");
    OpenFile(window, "panel3.orb");

    EXPECT_THAT(LinesOn(window), ElementsAre("cover", "400     ft", "45\u00B0 dip"));
    EXPECT_EQ(TextOn(window, "Label1"), "/designs/panel3.orb");
  });
}

TEST_F(BrowserView, ShowsTheNextFileInPlaceOfTheLast) {
  Browse([this](QDialog& window) {
    OpenFile(window, "panel3.orb");
    OpenFile(window, "panel4.orb");

    EXPECT_THAT(LinesOn(window), ElementsAre("cover", "980"));
  });
}

TEST_F(BrowserView, OpensAFileByTheKeyboard) {
  Browse([this](QDialog& window) {
    Find(window, "File1").setFocus();
    Press(Qt::Key_Home);
    Press(Qt::Key_Enter);
    Wait();

    EXPECT_THAT(LinesOn(window), ElementsAre("cover", "400     ft", "45\u00B0 dip"));
  });
}

TEST_F(BrowserView, ShowsHowFarALongFileIs) {
  platform.files.files["/designs/long.orb"] = std::string(TextBrowser::PieceBytes * 4, '\n');
  Browse([this](QDialog& window) {
    const auto& bar = Find<QProgressBar>(window, "prgLoading");
    EXPECT_FALSE(bar.isVisible());

    ClickItem(window, "File1", "long.orb");
    platform.clock.Pass();

    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.value(), 25);
    EXPECT_EQ(Pane(window).model()->rowCount(), static_cast<int>(TextBrowser::PieceBytes));
    Wait();
    EXPECT_FALSE(bar.isVisible());
    EXPECT_EQ(Pane(window).model()->rowCount(), static_cast<int>(TextBrowser::PieceBytes * 4));
  });
}

TEST_F(BrowserView, OpensAFolderByOneClick) {
  Browse([](QDialog& window) {
    ClickItem(window, "Dir1", "    west");

    EXPECT_THAT(ItemsOn(window, "Dir1"), ElementsAre("/", "  designs", "    west", "      deep"));
    EXPECT_EQ(Find<QListWidget>(window, "Dir1").currentRow(), 2);
    EXPECT_THAT(ItemsOn(window, "File1"), IsEmpty());
  });
}

TEST_F(BrowserView, OpensNoFurtherFolderByTheSecondClickOfTwo) {
  Browse([](QDialog& window) {
    ClickItem(window, "Dir1", "    west", 2);

    EXPECT_THAT(ItemsOn(window, "Dir1"), ElementsAre("/", "  designs", "    west", "      deep"));
    EXPECT_EQ(Find<QListWidget>(window, "Dir1").currentRow(), 2);
  });
}

// As when the window has not answered for a while.
TEST_F(BrowserView, ForgetsAClickOnAFolderThatAClickBeforeItTookOffTheList) {
  Browse([this](QDialog& window) {
    auto& folders = Find<QListWidget>(window, "Dir1");
    const auto clickRow = [&folders](int row) {
      const QPoint at = folders.visualItemRect(folders.item(row)).center();
      QTest::mouseClick(folders.viewport(), Qt::LeftButton, Qt::NoModifier, at);
    };
    ASSERT_THAT(ItemsOn(window, "Dir1"), ElementsAre("/", "  designs", "    east", "    west"));

    clickRow(2);
    clickRow(3);
    Settle();

    EXPECT_THAT(ItemsOn(window, "Dir1"), ElementsAre("/", "  designs", "    east"));
    EXPECT_THAT(platform.boxes.shown, IsEmpty());
  });
}

TEST_F(BrowserView, OpensAFolderByTheKeyboard) {
  Browse([](QDialog& window) {
    Find(window, "Dir1").setFocus();
    Press(Qt::Key_Down);
    EXPECT_EQ(ItemsOn(window, "File1").size(), 2U);
    Press(Qt::Key_Enter);

    EXPECT_EQ(Find<QListWidget>(window, "Dir1").currentRow(), 2);
    EXPECT_EQ(ItemsOn(window, "Dir1")[2], "    east");
    EXPECT_THAT(ItemsOn(window, "File1"), IsEmpty());
  });
}

TEST_F(BrowserView, FiltersAsThePatternIsTyped) {
  Browse([](QDialog& window) {
    TypeInto(window, "Text2", "*4.orb;*.txt");

    EXPECT_THAT(ItemsOn(window, "File1"), ElementsAre("notes.txt", "panel4.orb"));
  });
}

TEST_F(BrowserView, ChoosesADrive) {
  Browse([](QDialog& window) {
    Find(window, "Drive1").setFocus();
    Press(Qt::Key_Down);

    EXPECT_EQ(TextOn(window, "Drive1"), "/media/stick");
    EXPECT_THAT(ItemsOn(window, "File1"), ElementsAre("stick.orb"));
  });
}

TEST_F(BrowserView, HidesThePaneForTheExternalViewer) {
  Browse([this](QDialog& window) {
    Click(window, "Check1");

    EXPECT_FALSE(Pane(window).isVisible());
    EXPECT_FALSE(Find(window, "cmdSetFont").isEnabled());
    ClickItem(window, "File1", "panel4.orb");
    EXPECT_FALSE(Pane(window).isVisible());
    EXPECT_THAT(platform.documents.started, ElementsAre(ElementsAre("/usr/bin/viewer", "/tmp/~tmpbr.tmp")));
  });
}

TEST_F(BrowserView, TakesTheFont) {
  program.textBrowse.BrowseFontName = "Courier New";
  program.textBrowse.BrowseFontSize = 16;
  program.textBrowse.BrowseFontBold = -1;
  Browse([](QDialog& window) {
    EXPECT_EQ(Pane(window).font().family(), "Courier New");
    EXPECT_EQ(Pane(window).font().pointSize(), 16);
    EXPECT_TRUE(Pane(window).font().bold());
  });
}

// ---- the pane ------------------------------------------------------------------------------------------------------

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

  PressKey(Qt::Key_End);
  EXPECT_EQ(pane.currentIndex().row(), 99'999);
  EXPECT_TRUE(pane.viewport()->rect().contains(pane.visualRect(pane.currentIndex()).center()));

  PressKey(Qt::Key_Home);
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

TEST_F(PaneOfLines, CopiesTheLinesThatAreSelected) {
  Show(Numbered(1000));
  PressKey(Qt::Key_Home);
  PressKey(Qt::Key_Down);
  PressKey(Qt::Key_Down, Qt::ShiftModifier);
  PressKey(Qt::Key_Down, Qt::ShiftModifier);

  PressKey(Qt::Key_C, Qt::ControlModifier);

  EXPECT_EQ(Copied(), "line 1\nline 2\nline 3\n");
}

TEST_F(PaneOfLines, SelectsByTheMouse) {
  Show(Numbered(1000));
  const auto middleOf = [this](int row) { return pane.visualRect(pane.model()->index(row, 0)).center(); };

  QTest::mouseClick(pane.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(2));
  QTest::mouseClick(pane.viewport(), Qt::LeftButton, Qt::ShiftModifier, middleOf(4));
  QTest::mouseClick(pane.viewport(), Qt::LeftButton, Qt::ControlModifier, middleOf(7));
  PressKey(Qt::Key_C, Qt::ControlModifier);

  EXPECT_EQ(Copied(), "line 2\nline 3\nline 4\nline 7\n");
}

TEST_F(PaneOfLines, CopiesAllOfIt) {
  Show("one\r\ntwo\rthree");

  PressKey(Qt::Key_A, Qt::ControlModifier);
  PressKey(Qt::Key_C, Qt::ControlModifier);

  EXPECT_EQ(Copied(), "one\ntwo\nthree\n");
}

TEST_F(PaneOfLines, CopiesALongLineWholeThoughItShowsItCut) {
  const std::string line = "a\t" + std::string(9000, 'x') + "\xB0";
  Show(line);

  PressKey(Qt::Key_A, Qt::ControlModifier);
  PressKey(Qt::Key_C, Qt::ControlModifier);

  EXPECT_EQ(Copied(), "a\t" + std::string(9000, 'x') + "\u00B0\n");
  EXPECT_EQ(pane.model()->index(0, 0).data().toString().size(), 4001);
}

TEST_F(PaneOfLines, LeavesTheClipboardAloneWhenNothingIsSelected) {
  QGuiApplication::clipboard()->setText("before");
  Show(Numbered(10));

  PressKey(Qt::Key_C, Qt::ControlModifier);

  EXPECT_EQ(Copied(), "before");
}

TEST_F(PaneOfLines, ScrollsAcrossAsFarAsItsWidestLineNeeds) {
  Show("short\n");
  EXPECT_EQ(pane.horizontalScrollBar()->maximum(), 0);

  text += std::string(300, 'W') + "\n";
  pane.ShowText(text);
  pane.viewport()->repaint();
  Settle();

  const int width = pane.fontMetrics().horizontalAdvance(QString(300, 'W'));
  EXPECT_GE(pane.horizontalScrollBar()->maximum(), width - pane.viewport()->width());
  PressKey(Qt::Key_Right);
  EXPECT_GT(pane.horizontalScrollBar()->value(), 0);
}

TEST_F(PaneOfLines, GrowsWithoutMovingWhatIsOnView) {
  Show(Numbered(1000));
  pane.verticalScrollBar()->setValue(500);

  text += "the last line\n";
  pane.ShowText(text);
  Settle();

  EXPECT_EQ(TopRow(), 500);
  EXPECT_EQ(pane.model()->rowCount(), 1001);
  EXPECT_EQ(pane.model()->index(1000, 0).data().toString(), "the last line");
}

TEST_F(PaneOfLines, BeginsAnewAtTheTop) {
  Show(Numbered(1000));
  pane.verticalScrollBar()->setValue(500);

  text.clear();
  pane.ShowText(text);
  text = "alone";
  pane.ShowText(text);
  Settle();

  EXPECT_EQ(pane.model()->rowCount(), 1);
  EXPECT_EQ(TopRow(), 0);
  EXPECT_FALSE(pane.selectionModel()->hasSelection());
}

TEST_F(PaneOfLines, ReadsItsLinesToAScreenReader) {
  Show("cover\n400 ft\n");
  QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&pane);
  ASSERT_NE(reader, nullptr);

  EXPECT_EQ(reader->role(), QAccessible::List);
  ASSERT_EQ(reader->childCount(), 2);
  EXPECT_EQ(reader->child(1)->text(QAccessible::Name), "400 ft");
}

}  // namespace
}  // namespace orby::test
