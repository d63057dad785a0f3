// The results window as its user sees it.
#include <QClipboard>
#include <QFontInfo>
#include <QFontMetrics>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

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
