// Curves that are kept for comparison, and curves that are saved, as the user of the graph window sees it.
#include <QLabel>
#include <QPushButton>

#include "gui/contrast_bench.h"
#include "gui/report_bench.h"

namespace orby::test {
namespace {

using testing::HasSubstr;

class KeptCurvesView : public GraphViewTest {
 protected:
  KeptCurvesView() {
    program.windows.curve.Own = CurvePoint{240, 4.5F};
    Draw(1);
  }
  // Keeps the curve by its key and shows that of a changed design.
  void KeepAndChange() {
    PressLetterOf(View(), "cmdKeep");
    Settle();
    program.windows.curve.CurvePoints[1] = {8, 9.5F, 12};
    program.windows.curve.Own = CurvePoint{240, 9.5F};
    Draw(1);
  }
};

TEST_F(KeptCurvesView, DrawsTheKeptCurveDashedAndFitsTheAxesToBoth) {
  KeepAndChange();

  ASSERT_EQ(Plot().graphCount(), 2);
  EXPECT_EQ(Plot().graph(0)->pen().style(), Qt::SolidLine);
  EXPECT_EQ(Plot().graph(1)->pen().style(), Qt::DashLine);
  EXPECT_TRUE(Plot().yAxis->range().contains(3.25));
  EXPECT_TRUE(Plot().yAxis->range().contains(12));
  EXPECT_EQ(TextOn(View(), "lblKept"), "1 kept curve drawn");
}

TEST_F(KeptCurvesView, NamesTheKeptCurveInTheLegendEvenIfThatIsOff) {
  program.session.graph.CurveLegend = 0;
  KeepAndChange();

  EXPECT_TRUE(Plot().legend->visible());
  EXPECT_EQ(Plot().graph(1)->name(), "Kept 1: Suggested PSUP 4.5 at Depth of Cover 240.0");
  EXPECT_EQ(program.session.graph.CurveLegend, 0);

  PressLetterOf(View(), "cmdForget");
  Settle();
  EXPECT_FALSE(Plot().legend->visible());
  EXPECT_EQ(Plot().graphCount(), 1);
}

TEST_F(KeptCurvesView, HasTheLegendBelowThePlotWhileACurveIsKept) {
  Plot().replot();
  EXPECT_TRUE(Plot().axisRect()->rect().contains(Plot().legend->rect()));

  KeepAndChange();
  Plot().replot();
  EXPECT_GT(Plot().legend->rect().top(), Plot().axisRect()->rect().bottom());
  EXPECT_GT(Plot().axisRect()->height(), Plot().height() / 2);
  EXPECT_TRUE(Plot().rect().contains(Plot().legend->outerRect()));

  PressLetterOf(View(), "cmdForget");
  Plot().replot();
  EXPECT_TRUE(Plot().axisRect()->rect().contains(Plot().legend->rect()));
}

TEST_F(KeptCurvesView, ReadsTheNamesOfKeptCurvesOutToScreenReaders) {
  KeepAndChange();

  EXPECT_THAT(FromQt(Drawn().accessibleName()), HasSubstr("Kept 1: Suggested PSUP 4.5 at Depth of Cover 240.0"));
}

TEST_F(KeptCurvesView, DrawsKeptCurvesReadablyInTheDark) {
  for (int i = 0; i < 3; ++i) graph.cmdKeep.Press();
  const QPalette light = QApplication::palette();
  for (const QColor& ground : {QColor(0xff, 0xff, 0xff), QColor(0x30, 0x30, 0x30)}) {
    QPalette palette(ground);
    palette.setColor(QPalette::Base, ground);
    QApplication::setPalette(palette);
    Settle();
    for (int i = 0; i < 4; ++i) EXPECT_GE(ContrastOf(Plot().graph(i)->pen().color(), ground), 4.5) << i;
  }
  QApplication::setPalette(light);
  Settle();
}

TEST_F(KeptCurvesView, IsReachedFromTheChartByTab) {
  Press(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "cmdSaveAs");
  Press(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "cmdKeep");

  Press(Qt::Key_Space);
  Settle();
  Press(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "cmdForget");
}

TEST_F(KeptCurvesView, SavesTheCurveByItsKey) {
  platform.fileDialogs.answers = {"/home/user/psup.csv"};

  PressLetterOf(View(), "cmdSaveAs");
  Settle();

  EXPECT_EQ(platform.files.ReadFile("/home/user/psup.csv"),
            "Depth of Cover (ft),Suggested PSUP\r\n200,3.25\r\n240,4.5\r\n300,5.75\r\n");
}

}  // namespace
}  // namespace orby::test
