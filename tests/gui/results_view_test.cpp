// The results window as its user sees it.
#include <QCheckBox>
#include <QClipboard>
#include <QFontInfo>
#include <QFontMetrics>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>
#include <map>

#include "gui/contrast_bench.h"
#include "gui/readers_bench.h"
#include "gui/report_bench.h"

namespace orby::test {
namespace {

using testing::Eq;
using testing::HasSubstr;
using testing::IsNull;
using testing::NotNull;
using testing::StartsWith;

class ResultsView : public ReportTest {
 protected:
  ResultsView() : ReportTest({.clipboard = &clipboard}) {}

  static bool CanPress(const QDialog& window, std::string_view button) {
    return Find<QPushButton>(window, button).isEnabled();
  }
  // Moves to the list of curves by the keyboard.
  static void GoToCurves(const QDialog& window) {
    PressLetterOf(window, "cmdGraph");
    for (int i = 0; i < 20 && FocusName() != "lstGraphs"; ++i) Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "lstGraphs") << window.windowTitle().toStdString();
  }

  QtClipboard clipboard;
};

TEST_F(ResultsView, TurnsPagesByTheirLetters) {
  UseResults([&](QDialog& window) {
    const std::string first = TextOn(window, "RichTextBox1");
    PressLetterOf(window, "Command4");
    const std::string second = TextOn(window, "RichTextBox1");
    PressLetterOf(window, "Command5");

    EXPECT_THAT(first, StartsWith("ORBY module build: 201030\n"));
    EXPECT_THAT(second, StartsWith("[ORBY CALCULATIONS]\n"));
    EXPECT_THAT(TextOn(window, "RichTextBox1"), Eq(first));
    Press(Qt::Key_Escape);
  });
}

TEST_F(ResultsView, OpensOnItsFirstPageUnlessItIsAskedToOpenWhereItWasLeft) {
  UseResults([&](QDialog& window) {
    EXPECT_FALSE(Find<QCheckBox>(window, "chkWhereLeft").isChecked());
    PressLetterOf(window, "Command4");
    Press(Qt::Key_Escape);
  });
  UseResults([&](QDialog& window) {
    EXPECT_EQ(TextOn(window, "lblPage"), "Page 1 of 2");
    PressLetterOf(window, "chkWhereLeft");
    PressLetterOf(window, "Command4");
    Press(Qt::Key_Escape);
  });
  UseResults([&](QDialog& window) {
    EXPECT_TRUE(Find<QCheckBox>(window, "chkWhereLeft").isChecked());
    EXPECT_EQ(TextOn(window, "lblPage"), "Page 2 of 2");
    Press(Qt::Key_Escape);
  });
}

TEST_F(ResultsView, OffersOnlyExistingPages) {
  UseResults([&](QDialog& window) {
    EXPECT_FALSE(CanPress(window, "Command5"));
    EXPECT_TRUE(CanPress(window, "Command4"));

    Click(window, "Command4");

    EXPECT_TRUE(CanPress(window, "Command5"));
    EXPECT_FALSE(CanPress(window, "Command4"));
    Press(Qt::Key_Escape);
  });
}

TEST_F(ResultsView, ShowsTheReportInAMonospacedFont) {
  UseResults([&](QDialog& window) {
    const QFont font = Find<QPlainTextEdit>(window, "RichTextBox1").font();
    const QFontMetrics metrics(font);

    EXPECT_TRUE(QFontInfo(font).fixedPitch());
    EXPECT_EQ(metrics.horizontalAdvance("iiii"), metrics.horizontalAdvance("WWWW"));
    Press(Qt::Key_Escape);
  });
}

TEST_F(ResultsView, ShowsEachPageFromItsTop) {
  UseResults([&](QDialog& window) {
    auto& report = Find<QPlainTextEdit>(window, "RichTextBox1");
    report.setFocus();
    Press(Qt::Key_PageDown);
    const int below = report.verticalScrollBar()->value();

    Click(window, "Command4");
    Click(window, "Command5");

    EXPECT_GT(below, 0);
    EXPECT_EQ(report.verticalScrollBar()->value(), 0);
    EXPECT_EQ(report.horizontalScrollBar()->value(), 0);
    Press(Qt::Key_Escape);
  });
}

TEST_F(ResultsView, ShowsThePageFromItsTopAfterPrinting) {
  for (const char* command : {"Command3", "Command6"}) {
    UseResults([&](QDialog& window) {
      auto& report = Find<QPlainTextEdit>(window, "RichTextBox1");
      report.setFocus();
      Press(Qt::Key_PageDown);
      EXPECT_GT(report.verticalScrollBar()->value(), 0);

      Click(window, command);

      EXPECT_EQ(report.verticalScrollBar()->value(), 0) << command;
      Press(Qt::Key_Escape);
    });
  }
}

TEST_F(ResultsView, CopiesTheShownPage) {
  UseResults([&](QDialog& window) {
    PressLetterOf(window, "Command4");
    PressLetterOf(window, "Command2");
    Press(Qt::Key_Escape);
  });

  EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(), Eq(program.session.OutBuf[1]));
  EXPECT_THAT(program.session.history.Text, HasSubstr("Page 1 copied to clipboard"));
}

TEST_F(ResultsView, CopiesAllPagesWithNothingBetweenThem) {
  UseResults([&](QDialog& window) {
    PressLetterOf(window, "Command7");
    Press(Qt::Key_Escape);
  });

  EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(),
              Eq(program.session.OutBuf[0] + program.session.OutBuf[1]));
}

TEST_F(ResultsView, ShowsReadOnlyText) {
  UseResults([&](QDialog& window) {
    const std::string before = TextOn(window, "RichTextBox1");
    Find(window, "RichTextBox1").setFocus();
    Type("overwritten");

    EXPECT_THAT(TextOn(window, "RichTextBox1"), Eq(before));
    Press(Qt::Key_Escape);
  });
}

TEST_F(ResultsView, ReturnsToTheDialogThatRequestedTheReport) {
  std::vector<InputDialog> reopened;
  program.windows.ReportCaller = InputDialog::Cost;
  program.windows.OpenInputDialog = [&](InputDialog caller) { reopened.push_back(caller); };

  UseResults([&](QDialog& window) { PressLetterOf(window, "cmdChangeInput"); });

  EXPECT_THAT(reopened, testing::ElementsAre(InputDialog::Cost));
}

// ---- the look of a page ---------------------------------------------------------------------------------------------

// A line as it is drawn.
struct DrawnLine {
  bool isBold = false;
  QColor colour;
};

// Returns how the line that begins with this text is drawn.
DrawnLine LineOn(const QDialog& window, const QString& start) {
  const auto& report = Find<QPlainTextEdit>(window, "RichTextBox1");
  for (QTextBlock line = report.document()->begin(); line.isValid(); line = line.next()) {
    if (!line.text().startsWith(start)) continue;
    const auto formats = line.layout()->formats();
    if (formats.isEmpty()) return {false, report.palette().color(QPalette::Text)};
    EXPECT_EQ(formats.front().length, line.text().size());
    return {formats.front().format.fontWeight() == QFont::Bold, formats.front().format.foreground().color()};
  }
  throw std::logic_error("no line " + start.toStdString());
}

TEST_F(ResultsView, SetsHeadingsAndWarningsOffInReadableColours) {
  program.project.WorkParms.Place.DepthofCover = 1200;
  program.project.WorkParms.Primary.RowSpacing = 5;
  BuildResults(program, program.project.WorkParms);
  const QPalette light = QApplication::palette();
  for (const QColor& ground : {QColor(0xf0, 0xf0, 0xf0), QColor(0x30, 0x30, 0x30)}) {
    QApplication::setPalette(QPalette(ground));
    UseResults([&](QDialog& window) {
      Click(window, "Command4");
      const DrawnLine heading = LineOn(window, "[ORBY DESIGN]");
      const DrawnLine value = LineOn(window, "Actual PSUP");
      const DrawnLine warning = LineOn(window, "The actual PSUP for this design is less");

      EXPECT_TRUE(heading.isBold);
      EXPECT_TRUE(warning.isBold);
      EXPECT_FALSE(value.isBold);
      EXPECT_NE(heading.colour, warning.colour);
      EXPECT_GE(ContrastOf(heading.colour, ground), 4.5) << ground.name().toStdString();
      EXPECT_GE(ContrastOf(warning.colour, ground), 4.5) << ground.name().toStdString();
      Press(Qt::Key_Escape);
    });
  }
  QApplication::setPalette(light);
  Settle();
}

TEST_F(ResultsView, FollowsAThemeThatChangesWhileItIsOpen) {
  const QPalette light = QApplication::palette();
  UseResults([&](QDialog& window) {
    Click(window, "Command4");
    QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30)));
    Settle();

    EXPECT_GE(ContrastOf(LineOn(window, "[ORBY DESIGN]").colour, QColor(0x30, 0x30, 0x30)), 4.5);
    Press(Qt::Key_Escape);
  });
  QApplication::setPalette(light);
  Settle();
}

TEST_F(ResultsView, CopiesASelectionAsPlainText) {
  UseResults([&](QDialog& window) {
    Click(window, "Command4");
    Find(window, "RichTextBox1").setFocus();
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_C, Qt::ControlModifier);
    Press(Qt::Key_Escape);
  });

  const QMimeData& copy = *QGuiApplication::clipboard()->mimeData();
  EXPECT_THAT(copy.text().replace("\n", "\r\n").toStdString(), Eq(program.session.OutBuf[1]));
  EXPECT_FALSE(copy.hasHtml());
}

TEST_F(ResultsView, SaysWhichPageItShows) {
  UseResults([&](QDialog& window) {
    EXPECT_EQ(TextOn(window, "lblPage"), "Page 1 of 2");

    PressLetterOf(window, "Command4");

    EXPECT_EQ(TextOn(window, "lblPage"), "Page 2 of 2");
    Press(Qt::Key_Escape);
  });
}

TEST_F(ResultsView, ChangesTheSizeOfTheTextByTheKeyboard) {
  UseResults([&](QDialog& window) {
    const auto size = [&] { return Find(window, "RichTextBox1").font().pointSize(); };
    EXPECT_EQ(size(), 10);

    Press(Qt::Key_Plus, Qt::ControlModifier);
    Press(Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(size(), 12);

    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(size(), 11);

    for (int i = 0; i < 50; ++i) Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(size(), 6);

    Press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(size(), 10);
    Press(Qt::Key_Escape);
  });
}

TEST_F(ResultsView, ChangesTheSizeOfTheTextByTheWheelWithCtrl) {
  UseResults([&](QDialog& window) {
    auto& report = Find<QPlainTextEdit>(window, "RichTextBox1");
    const auto turn = [&](int angle, Qt::KeyboardModifiers modifiers) {
      const QPointF middle = report.viewport()->rect().center();
      QWheelEvent wheel(middle, report.viewport()->mapToGlobal(middle), {}, {0, angle}, Qt::NoButton, modifiers,
                        Qt::NoScrollPhase, false);
      QApplication::sendEvent(report.viewport(), &wheel);
    };
    turn(120, Qt::ControlModifier);
    turn(120, Qt::ControlModifier);
    turn(-120, Qt::ControlModifier);
    turn(120, Qt::NoModifier);

    EXPECT_EQ(report.font().pointSize(), 11);
    Press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(report.font().pointSize(), 10);
    Press(Qt::Key_Escape);
  });
}

TEST_F(ResultsView, PrintsThePageByCtrlP) {
  UseResults([&](QDialog& window) {
    PressLetterOf(window, "Command4");
    Press(Qt::Key_P, Qt::ControlModifier);
    Press(Qt::Key_Escape);
  });

  ASSERT_THAT(platform.printer.pages, testing::SizeIs(1));
  EXPECT_THAT(platform.printer.pages.front(), HasSubstr("[ORBY CALCULATIONS]"));
  EXPECT_THAT(program.session.history.Text, HasSubstr("Current page printed"));
}

// ---- finding --------------------------------------------------------------------------------------------------------

std::string SelectedOn(const QDialog& window) {
  return Find<QPlainTextEdit>(window, "RichTextBox1").textCursor().selectedText().toStdString();
}

int LineOfSelection(const QDialog& window) {
  return Find<QPlainTextEdit>(window, "RichTextBox1").textCursor().blockNumber();
}

TEST_F(ResultsView, FindsATextByTheKeyboard) {
  UseResults([&](QDialog& window) {
    Press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(FocusName(), "viewFindText");
    Type("BOLT");
    Press(Qt::Key_Return);
    const int first = LineOfSelection(window);
    EXPECT_THAT(SelectedOn(window), testing::StrCaseEq("bolt"));

    Press(Qt::Key_F3);
    const int second = LineOfSelection(window);
    Press(Qt::Key_F3, Qt::ShiftModifier);

    EXPECT_GT(second, first);
    EXPECT_EQ(LineOfSelection(window), first);
    window.close();
  });
}

TEST_F(ResultsView, ContinuesAtTheOtherEndAndSaysSo) {
  UseResults([&](QDialog& window) {
    Press(Qt::Key_F, Qt::ControlModifier);
    Type("module build");
    Press(Qt::Key_Return);
    EXPECT_EQ(TextOn(window, "viewFindResult"), "");

    Press(Qt::Key_Return);
    EXPECT_EQ(TextOn(window, "viewFindResult"), "Continued from the other end");
    EXPECT_EQ(SelectedOn(window), "module build");
    window.close();
  });
}

TEST_F(ResultsView, SaysThatATextIsMissingAndKeepsTheSelection) {
  UseResults([&](QDialog& window) {
    Press(Qt::Key_F, Qt::ControlModifier);
    Type("units");
    Press(Qt::Key_Return);
    const std::string before = SelectedOn(window);

    Type("no such words");
    Press(Qt::Key_Return);

    EXPECT_EQ(TextOn(window, "viewFindResult"), "Not found");
    EXPECT_EQ(SelectedOn(window), before);
    window.close();
  });
}

TEST_F(ResultsView, ClosesTheFindBarBeforeTheWindowWhereverTheKeyboardIs) {
  for (const char* focus : {"viewFindText", "RichTextBox1", "Command1"}) {
    UseResults([&](QDialog& window) {
      Press(Qt::Key_F, Qt::ControlModifier);
      Find(window, focus).setFocus();

      Press(Qt::Key_Escape);
      EXPECT_FALSE(Find(window, "viewFindText").isVisible()) << focus;
      EXPECT_TRUE(window.isVisible()) << focus;

      Press(Qt::Key_Escape);
      EXPECT_FALSE(window.isVisible()) << focus;
    });
  }
}

TEST_F(ResultsView, GivesTheFindBarLettersOfItsOwn) {
  UseResults([&](QDialog& window) {
    Press(Qt::Key_F, Qt::ControlModifier);

    std::map<QString, int> letters;
    for (const auto* button : window.findChildren<QPushButton*>()) {
      ++letters[QKeySequence::mnemonic(button->text()).toString()];
    }
    EXPECT_EQ(letters.count(QString()), 0U);
    for (const auto& [letter, count] : letters) EXPECT_EQ(count, 1) << letter.toStdString();
    window.close();
  });
}

// ---- curves ---------------------------------------------------------------------------------------------------------

TEST_F(ResultsView, ListsItsTenCurvesOnlyOnDemand) {
  UseResults([&](QDialog& window) {
    const auto& list = Find<QListWidget>(window, "lstGraphs");
    EXPECT_FALSE(list.isVisible());

    PressLetterOf(window, "cmdGraph");
    EXPECT_TRUE(list.isVisible());
    EXPECT_EQ(list.count(), 10);

    PressLetterOf(window, "cmdGraph");
    EXPECT_FALSE(list.isVisible());
    Press(Qt::Key_Escape);
  });
}

TEST_F(ResultsView, DrawsTheCurveChosenByTheKeyboard) {
  UseResults([&](QDialog& window) {
    GoToCurves(window);
    Press(Qt::Key_Home);
    Press(Qt::Key_Down);
    Press(Qt::Key_Enter);

    EXPECT_EQ(program.windows.curve.CurveIndex, 1);
    EXPECT_THAT(WindowOnView("frmGraph"), NotNull());
    EXPECT_FALSE(Find(window, "lstGraphs").isVisible());
    window.close();
  });
}

TEST_F(ResultsView, DrawsTheClickedCurve) {
  UseResults([&](QDialog& window) {
    Click(window, "cmdGraph");
    auto& list = Find<QListWidget>(window, "lstGraphs");
    const QRect place = list.visualItemRect(list.item(5));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    Settle();

    EXPECT_EQ(program.windows.curve.CurveIndex, 5);
    EXPECT_FALSE(list.isVisible());
    window.close();
  });
}

TEST_F(ResultsView, ClosesTheGraphWhenItCloses) {
  UseResults([&](QDialog& window) {
    GoToCurves(window);
    Press(Qt::Key_Enter);
    EXPECT_THAT(WindowOnView("frmGraph"), NotNull());
    window.close();
  });

  EXPECT_THAT(WindowOnView("frmGraph"), IsNull());
  EXPECT_TRUE(program.windows.curve.GraphClosed);
}

TEST_F(ResultsView, CanBeUsedTogetherWithTheGraph) {
  UseResults([&](QDialog& window) {
    GoToCurves(window);
    Press(Qt::Key_Home);
    Press(Qt::Key_Enter);
    QWidget& graph = GraphOnView();
    graph.findChild<QAction*>("GraphOptionsItem_0")->trigger();
    Settle();

    MoveOver(graph, Find<ChartView>(graph, "graph1").PlaceOf(0, 2).toPoint());

    EXPECT_EQ(TextOn(graph, "lblCurve"), "Sug.PSUP");
    window.close();
  });
}

// A screen reader chooses a curve while the help has the focus.
TEST_F(ResultsView, KeepsTheGraphWhenAnotherWindowInUseCloses) {
  UseResults([&](QDialog& window) {
    PressLetterOf(window, "cmdGraph");
    auto* beside = new QWidget(&window, Qt::Window);
    beside->setAttribute(Qt::WA_DeleteOnClose);
    beside->show();
    beside->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == beside; }));
    SelectRow(Find(window, "lstGraphs"), 2);

    beside->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Settle();

    EXPECT_THAT(WindowOnView("frmGraph"), NotNull());
    window.close();
  });

  EXPECT_TRUE(program.windows.curve.GraphClosed);
}

TEST_F(ResultsView, DrawsAgainAfterTheGraphWasClosed) {
  UseResults([&](QDialog& window) {
    GoToCurves(window);
    Press(Qt::Key_Enter);
    GraphOnView().close();
    Settle();
    EXPECT_THAT(WindowOnView("frmGraph"), IsNull());
    window.activateWindow();
    Settle();

    GoToCurves(window);
    Press(Qt::Key_Enter);

    EXPECT_THAT(WindowOnView("frmGraph"), NotNull());
    window.close();
  });
}

}  // namespace
}  // namespace orby::test
