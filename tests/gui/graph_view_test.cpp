// The graph window as its user sees it.
#include <QAction>
#include <QClipboard>
#include <QGroupBox>
#include <QImage>

#include "gui/contrast_bench.h"
#include "gui/report_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsNull;

class GraphView : public GraphViewTest {
 protected:
  GraphView() : GraphViewTest({.clipboard = &clipboard}) {}

  void ShowPointID() {
    Press(Qt::Key_O, Qt::AltModifier);
    PressInMenu(Qt::Key_Return);
  }
  // Moves the pointer to this distance in pixels beside a point.
  void PointAt(int point, int beside) { MoveOver(View(), Drawn().PlaceOf(0, point).toPoint() + QPoint(beside, 0)); }
  std::vector<std::string> ReadOut() {
    return {TextOn(View(), "lblX"), TextOn(View(), "lblSF"), TextOn(View(), "lblCurve")};
  }

  QtClipboard clipboard;
};

TEST_F(GraphView, DrawsThePointsOfTheCurve) {
  const auto data = Plot().graph(0)->data();
  std::vector<std::pair<double, double>> points;
  for (const QCPGraphData& point : *data) points.emplace_back(point.key, point.value);

  EXPECT_EQ(Plot().graphCount(), 1);
  EXPECT_THAT(points, ElementsAre(std::pair(200.0, 3.25), std::pair(240.0, 4.5), std::pair(300.0, 5.75)));
  EXPECT_EQ(Plot().xAxis->label(), "Depth of Cover (ft)");
  EXPECT_EQ(Plot().yAxis->label(), "Suggested PSUP");
  EXPECT_EQ(Plot().graph(0)->name(), "Sug.PSUP");
}

TEST_F(GraphView, KeepsEveryPointInsideThePlot) {
  const QRect plot = Plot().axisRect()->rect();

  for (int point = 0; point < 3; ++point) {
    EXPECT_TRUE(plot.contains(Plot().mapFrom(&Drawn(), Drawn().PlaceOf(0, point).toPoint()))) << point;
  }
}

TEST_F(GraphView, KeepsTheLegendAwayFromTheCurve) {
  const QRect legend = Plot().legend->rect();

  ASSERT_TRUE(Plot().legend->visible());
  for (int point = 0; point < 3; ++point) {
    EXPECT_FALSE(legend.contains(Plot().mapFrom(&Drawn(), Drawn().PlaceOf(0, point).toPoint()))) << point;
  }
}

TEST_F(GraphView, ReadsOutAPointWithinFourPixels) {
  ShowPointID();

  PointAt(1, 3);

  EXPECT_THAT(ReadOut(), ElementsAre("240.00", "4.50", "Sug.PSUP"));
}

TEST_F(GraphView, DoesNotReadOutAPointFartherAway) {
  ShowPointID();

  PointAt(1, 5);

  EXPECT_THAT(ReadOut(), ElementsAre("", "", ""));
}

TEST_F(GraphView, KeepsTheReadOutFarFromEveryPointInsideThePlot) {
  ShowPointID();
  PointAt(2, 0);

  PointAt(2, -40);

  EXPECT_THAT(ReadOut(), ElementsAre("300.00", "5.75", "Sug.PSUP"));
}

TEST_F(GraphView, ClearsTheReadOutOutsideThePlot) {
  ShowPointID();
  PointAt(2, 0);

  MoveOver(View(), QPoint(2, 2));

  EXPECT_THAT(ReadOut(), ElementsAre("", "", ""));
}

TEST_F(GraphView, ShowsTheReadOutOnlyIfItIsOn) {
  const auto& frame = Find<QGroupBox>(View(), "Frame1");
  const auto* entry = View().findChild<QAction*>("GraphOptionsItem_0");
  EXPECT_FALSE(frame.isVisible());

  ShowPointID();
  EXPECT_TRUE(frame.isVisible());
  EXPECT_TRUE(entry->isChecked());

  ShowPointID();
  EXPECT_FALSE(frame.isVisible());
  EXPECT_FALSE(entry->isChecked());
}

TEST_F(GraphView, CopiesThePictureInTheColoursOfPaper) {
  Press(Qt::Key_E, Qt::AltModifier);
  PressInMenu(Qt::Key_Return);

  const QImage picture = QGuiApplication::clipboard()->image();
  EXPECT_EQ(picture.size(), Drawn().size() * Drawn().devicePixelRatio());
  EXPECT_EQ(picture.pixelColor(1, 1), QColor(Qt::white));
}

TEST_F(GraphView, FollowsADarkDesktop) {
  const QPalette light = QApplication::palette();
  QPalette dark(QColor(0x30, 0x30, 0x30));
  QApplication::setPalette(dark);
  Settle();

  const QColor ground = Drawn().grab().toImage().pixelColor(1, 1);
  const QColor text = Plot().xAxis->labelColor();
  QApplication::setPalette(light);
  Settle();

  EXPECT_LT(ground.lightness(), 80);
  EXPECT_GT(text.lightness(), 180);
  EXPECT_GT(Drawn().grab().toImage().pixelColor(1, 1).lightness(), 180);
}

TEST_F(GraphView, DrawsEveryCurveReadablyOnADarkDesktop) {
  const QPalette light = QApplication::palette();
  program.windows.curve.CurveCount = 6;
  graph.DrawCurve();
  for (const QColor& ground :
       {QColor(0x00, 0x00, 0x00), QColor(0x1e, 0x1e, 0x1e), QColor(0x30, 0x30, 0x30), QColor(0x4d, 0x4d, 0x4d)}) {
    QPalette dark(ground);
    dark.setColor(QPalette::Base, ground);
    QApplication::setPalette(dark);
    Settle();

    for (int series = 0; series < 6; ++series) {
      EXPECT_GE(ContrastOf(Plot().graph(series)->pen().color(), ground), 3)
          << series + 1 << " on " << ground.name().toStdString();
    }
  }
  QApplication::setPalette(light);
  Settle();
}

TEST_F(GraphView, DrawsVisibleSymbolsOnADarkDesktop) {
  const QPalette light = QApplication::palette();
  QPalette dark(QColor(0x30, 0x30, 0x30));
  dark.setColor(QPalette::Base, QColor(0x30, 0x30, 0x30));
  QApplication::setPalette(dark);
  Settle();
  Plot().replot();

  const QImage picture = Drawn().grab().toImage();
  const QPoint point = Drawn().PlaceOf(0, 1).toPoint();
  const QPoint ground = Plot().mapTo(&Drawn(), Plot().axisRect()->rect().bottomRight() - QPoint(12, 12));
  EXPECT_EQ(picture.pixelColor(ground), QColor(0x30, 0x30, 0x30));
  QApplication::setPalette(light);
  Settle();

  EXPECT_GE(ContrastOf(picture.pixelColor(point), picture.pixelColor(ground)), 3);
}

TEST_F(GraphView, ShowsACurveOfOnePointWithItsSurroundings) {
  program.windows.curve.CurvePoints[0] = {0};
  program.windows.curve.CurvePoints[1] = {4};
  program.windows.curve.CurvePointCount = 1;

  Draw(6);

  EXPECT_NEAR(Plot().xAxis->range().lower, -1.08, 0.001);
  EXPECT_NEAR(Plot().xAxis->range().upper, 1.08, 0.001);
  EXPECT_NEAR(Plot().yAxis->range().lower, 2.92, 0.001);
  EXPECT_NEAR(Plot().yAxis->range().upper, 5.08, 0.001);
}

TEST_F(GraphView, ResetsTheRangeForACurveWithoutPoints) {
  program.windows.curve.CurvePointCount = 0;

  Draw(6);

  EXPECT_LT(Plot().xAxis->range().upper, 3);
  EXPECT_GT(Plot().xAxis->range().lower, -1);
  EXPECT_LT(Plot().yAxis->range().upper, 3);
}

TEST_F(GraphView, PrintsTheChart) {
  Press(Qt::Key_F, Qt::AltModifier);
  PressInMenu(Qt::Key_P);

  EXPECT_EQ(platform.printer.printedChart, "graph1");
  EXPECT_EQ(platform.printer.title, "Suggested PSUP vs Depth of Cover");
  EXPECT_EQ(platform.printer.proposedName, "Untitled Suggested PSUP vs Depth of Cover");
}

TEST_F(GraphView, ClosesByItsExitItem) {
  Press(Qt::Key_F, Qt::AltModifier);
  PressInMenu(Qt::Key_X);

  EXPECT_THAT(WindowOnView("frmGraph"), IsNull());
  EXPECT_FALSE(graph.IsOpen());
}

}  // namespace
}  // namespace orby::test
