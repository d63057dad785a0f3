// The window "How Sure" on the screen: worked by keys, and alive while the study runs.
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

#include "dialogs/how_sure_window.h"
#include "gui_bench.h"
#include "qt/drawing_view.h"
#include "qt/texts.h"

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct HowSureOnView : GuiTest {
  HowSureOnView() {
    Design& design = program.project.WorkParms;
    design.Place.CMRR = 45;
    design.Entries.Analysed = 0;
    design.Intersections.Analysed = 0;
  }

  static std::string Cell(const QWidget& view, std::string_view grid, int row, int column) {
    const QTableWidgetItem* item = Find<QTableWidget>(view, grid).item(row, column);
    return item == nullptr ? std::string() : item->text().toStdString();
  }
  static void AddMeasuredRating(const QWidget& view) {
    Find<QComboBox>(view, "cmbLaw").setFocus();
    Type("measured values");
    Press(Qt::Key_Tab);
    auto& values = Find<QPlainTextEdit>(view, "txtValues");
    values.setFocus();
    QTest::keyClicks(&values, "38 41 42");
    QTest::keyClick(&values, Qt::Key_Return);
    QTest::keyClicks(&values, "45 61");
    PressLetterOf(view, "cmdAdd");
    Settle();
  }
  // Lets the study run until it ends, with the events of the window.
  void RunToEnd(const QWidget& view) {
    PressLetterOf(view, "cmdRun");
    Settle();
    while (Find<QPushButton>(view, "cmdStop").isEnabled()) {
      platform.clock.Pass();
      Settle();
    }
  }

  UnsavedStudy unsaved;
  HowSureWindow window{program, unsaved};
};

TEST_F(HowSureOnView, ShowsResultsOfMeasuredValuesByKeys) {
  Work(window, [this](QDialog& view) {
    AddMeasuredRating(view);
    EXPECT_EQ(Cell(view, "grdInputs", 0, 0), "roof rating");
    EXPECT_EQ(Cell(view, "grdInputs", 0, 3), "5 values, mean 45.4, from 38 to 61");

    RunToEnd(view);

    EXPECT_EQ(Find<QTabWidget>(view, "tabSure").currentIndex(), sure_page::Results);
    EXPECT_EQ(Find<QProgressBar>(view, "prgRun").value(), 100);
    EXPECT_THAT(Find<QLabel>(view, "lblDone").text().toStdString(), StartsWith("100,000 samples, seed 1."));
    EXPECT_GT(Find<QTableWidget>(view, "grdJudgements").rowCount(), 0);
  });
}

TEST_F(HowSureOnView, PaintsTheChartOfTheRowUnderTheArrowKeys) {
  Work(window, [this](QDialog& view) {
    AddMeasuredRating(view);
    RunToEnd(view);
    Find(view, "grdFigures").setFocus();
    Press(Qt::Key_Home);
    Press(Qt::Key_Down);
    Settle();

    EXPECT_THAT(Find<DrawingView>(view, "picChart").Words().toStdString(),
                StartsWith("Histogram of " + Cell(view, "grdFigures", 1, 0)));
  });
}

TEST_F(HowSureOnView, ShowsOnlyTheFieldsOfTheDistribution) {
  Work(window, [](QDialog& view) {
    EXPECT_TRUE(Find(view, "txtSecond").isVisible());
    EXPECT_FALSE(Find(view, "txtThird").isVisible());
    EXPECT_FALSE(Find(view, "txtValues").isEnabled());

    Find<QComboBox>(view, "cmbLaw").setFocus();
    Type("beta");
    Press(Qt::Key_Tab);
    Settle();

    EXPECT_TRUE(Find(view, "txtFourth").isVisible());
    EXPECT_EQ(Find<QLabel>(view, "lblFourth").text().remove('&'), "Greatest");
  });
}

TEST_F(HowSureOnView, StopsAtTheButton) {
  Work(window, [this](QDialog& view) {
    AddMeasuredRating(view);
    window.txtSamples.SetText("10000000");
    PressLetterOf(view, "cmdRun");
    Settle();
    EXPECT_FALSE(Find<QPushButton>(view, "cmdRun").isEnabled());

    PressLetterOf(view, "cmdStop");
    Settle();
    while (Find<QPushButton>(view, "cmdStop").isEnabled()) {
      platform.clock.Pass();
      Settle();
    }

    EXPECT_THAT(Find<QLabel>(view, "lblDone").text().toStdString(), HasSubstr("Stopped before the end."));
    EXPECT_LT(Find<QProgressBar>(view, "prgRun").value(), 100);
  });
}

}  // namespace
}  // namespace orby::test
