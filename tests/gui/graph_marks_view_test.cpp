// What the graph shows besides the curve, and how its user moves about in it.
#include <QAction>
#include <QClipboard>
#include <QWheelEvent>

#include "gui/contrast_bench.h"
#include "gui/report_bench.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsNull;
using testing::NotNull;

class GraphMarksView : public GraphViewTest {
 protected:
  GraphMarksView() : GraphViewTest({.clipboard = &clipboard}) {
    program.windows.curve.Own = CurvePoint{240, 4.5F};
    program.windows.curve.References = {{ReferenceKind::ActualPSUP, false, 7}};
    Draw(1);
  }

  // Returns the items of this kind.
  template <class Item>
  std::vector<Item*> Items() {
    std::vector<Item*> items;
    for (int i = 0; i < Plot().itemCount(); ++i) {
      if (auto* item = qobject_cast<Item*>(Plot().item(i))) items.push_back(item);
    }
    return items;
  }
  std::vector<std::string> Labels() {
    std::vector<std::string> labels;
    for (const auto* label : Items<QCPItemText>()) labels.push_back(label->text().toStdString());
    return labels;
  }
  QRectF PlotArea() { return Plot().axisRect()->rect(); }
  std::pair<double, double> Across() { return {Plot().xAxis->range().lower, Plot().xAxis->range().upper}; }
  void Wheel(int angle) {
    const QPointF middle = PlotArea().center();
    QWheelEvent wheel(middle, Plot().mapToGlobal(middle), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Plot(), &wheel);
    Settle();
  }

  QtClipboard clipboard;
};

TEST_F(GraphMarksView, MarksAndNamesTheDesignOnItsCurve) {
  const auto marks = Items<QCPItemTracer>();

  ASSERT_EQ(marks.size(), 1U);
  EXPECT_EQ(marks.front()->position->key(), 240);
  EXPECT_EQ(marks.front()->position->value(), 4.5);
  EXPECT_EQ(marks.front()->style(), QCPItemTracer::tsSquare);
  EXPECT_THAT(Labels(), Contains("This design"));
}

TEST_F(GraphMarksView, DrawsAndNamesTheReferenceInsideThePlot) {
  const auto lines = Items<QCPItemStraightLine>();

  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines.front()->point1->value(), 7);
  EXPECT_EQ(lines.front()->point2->value(), 7);
  EXPECT_TRUE(Plot().yAxis->range().contains(7));
  EXPECT_THAT(Labels(), Contains("Actual PSUP 7.0"));
}

TEST_F(GraphMarksView, KeepsItsNamesAndTheLegendInsideThePlotAndApart) {
  for (const Integer curve : {Integer{1}, Integer{3}, Integer{8}}) {
    program.windows.curve.References.clear();
    if (curve < 8) program.windows.curve.References.push_back({ReferenceKind::ActualPSUP, false, 7});
    if (curve > 1) program.windows.curve.References.push_back({ReferenceKind::SuggestedSpan, true, 265});
    Draw(curve);
    Plot().replot();

    std::vector<QRectF> places{Plot().legend->rect()};
    for (const auto* label : Items<QCPItemText>()) {
      places.emplace_back(label->topLeft->pixelPosition(), label->bottomRight->pixelPosition());
    }
    for (std::size_t i = 0; i < places.size(); ++i) {
      EXPECT_TRUE(PlotArea().contains(places[i])) << curve << " " << i;
      for (std::size_t j = i + 1; j < places.size(); ++j) {
        EXPECT_FALSE(places[i].intersects(places[j])) << curve << " " << i << " " << j;
      }
    }
  }
}

TEST_F(GraphMarksView, OnlyNamesAReferenceThatWouldFlattenTheCurve) {
  program.windows.curve.References = {{ReferenceKind::ActualPSUP, false, 900}};
  Draw(1);

  EXPECT_THAT(Items<QCPItemStraightLine>(), IsEmpty());
  EXPECT_THAT(Labels(), Contains("Actual PSUP 900.0 (above)"));
  EXPECT_LT(Plot().yAxis->range().upper, 7);
}

TEST_F(GraphMarksView, ReadsItsMarksOutToScreenReaders) {
  EXPECT_EQ(Drawn().accessibleName(), "Suggested PSUP - Depth of Cover (ft). This design: 240.0, 4.5. Actual PSUP 7.0");
}

TEST_F(GraphMarksView, DrawsItsMarksReadablyInLightAndDark) {
  const QPalette light = QApplication::palette();
  for (const QColor& ground : {QColor(0xff, 0xff, 0xff), QColor(0xf0, 0xf0, 0xf0), QColor(0x30, 0x30, 0x30)}) {
    QPalette palette(ground);
    palette.setColor(QPalette::Base, ground);
    QApplication::setPalette(palette);
    Settle();

    for (const auto* label : Items<QCPItemText>()) EXPECT_GE(ContrastOf(label->color(), ground), 4.5);
    for (const auto* mark : Items<QCPItemTracer>()) EXPECT_GE(ContrastOf(mark->pen().color(), ground), 4.5);
    for (const auto* line : Items<QCPItemStraightLine>()) EXPECT_GE(ContrastOf(line->pen().color(), ground), 4.5);
  }
  QApplication::setPalette(light);
  Settle();
}

TEST_F(GraphMarksView, MarksThePointThatIsReadOut) {
  graph.GraphOptionsItem.ClickItem(0);
  Settle();
  MoveOver(View(), Drawn().PlaceOf(0, 2).toPoint());

  const auto* mark = Plot().findChild<QCPItemTracer*>("viewReadPoint");
  ASSERT_THAT(mark, NotNull());
  EXPECT_EQ(mark->position->key(), 300);

  MoveOver(View(), QPoint(2, 2));
  EXPECT_THAT(Plot().findChild<QCPItemTracer*>("viewReadPoint"), IsNull());
}

TEST_F(GraphMarksView, ReadsOutPointsByTheKeyboard) {
  graph.GraphOptionsItem.ClickItem(0);
  Settle();

  Press(Qt::Key_PageDown);
  EXPECT_EQ(TextOn(View(), "lblX"), "200.00");
  Press(Qt::Key_PageDown);
  EXPECT_EQ(TextOn(View(), "lblX"), "240.00");
  for (int i = 0; i < 5; ++i) Press(Qt::Key_PageDown);
  EXPECT_EQ(TextOn(View(), "lblX"), "300.00");
  Press(Qt::Key_PageUp);
  EXPECT_EQ(TextOn(View(), "lblSF"), "4.50");
}

// ---- moving about ---------------------------------------------------------------------------------------------------

TEST_F(GraphMarksView, ZoomsByTheWheelAndShowsAllAgainByADoubleClick) {
  const auto whole = Across();

  Wheel(120);
  EXPECT_GT(Across().first, whole.first);
  EXPECT_LT(Across().second, whole.second);

  QTest::mouseDClick(&Plot(), Qt::LeftButton, Qt::NoModifier, PlotArea().center().toPoint());
  Settle();
  EXPECT_EQ(Across(), whole);
}

TEST_F(GraphMarksView, MovesByDragging) {
  const auto whole = Across();
  const QPoint middle = PlotArea().center().toPoint();

  QTest::mousePress(&Plot(), Qt::LeftButton, Qt::NoModifier, middle);
  QTest::mouseMove(&Plot(), middle + QPoint(40, 0));
  QTest::mouseRelease(&Plot(), Qt::LeftButton, Qt::NoModifier, middle + QPoint(40, 0));
  Settle();

  EXPECT_LT(Across().first, whole.first);
  EXPECT_NEAR(Across().second - Across().first, whole.second - whole.first, 1e-6);
}

TEST_F(GraphMarksView, ZoomsAndMovesByTheKeyboard) {
  const auto whole = Across();

  Press(Qt::Key_Plus);
  EXPECT_GT(Across().first, whole.first);
  const auto zoomed = Across();

  Press(Qt::Key_Right);
  EXPECT_GT(Across().first, zoomed.first);
  Press(Qt::Key_Left);
  EXPECT_NEAR(Across().first, zoomed.first, 1e-6);

  Press(Qt::Key_Home);
  EXPECT_EQ(Across(), whole);
}

TEST_F(GraphMarksView, KeepsTheZoomWhileAPointIsReadAndForgetsItForAnotherCurve) {
  graph.GraphOptionsItem.ClickItem(0);
  Settle();
  const auto whole = Across();
  Wheel(120);
  const auto zoomed = Across();

  Press(Qt::Key_PageDown);
  EXPECT_EQ(Across(), zoomed);

  program.windows.curve.CurvePoints[0] = {100, 240, 400};
  Draw(2);
  EXPECT_LT(Across().first, whole.first);
}

TEST_F(GraphMarksView, ClosesByEsc) {
  Press(Qt::Key_Escape);

  EXPECT_THAT(WindowOnView("frmGraph"), IsNull());
  EXPECT_FALSE(graph.IsOpen());
}

TEST_F(GraphMarksView, CopiesAndPrintsByItsKeys) {
  Press(Qt::Key_C, Qt::ControlModifier);
  Press(Qt::Key_P, Qt::ControlModifier);

  EXPECT_FALSE(QGuiApplication::clipboard()->image().isNull());
  EXPECT_EQ(platform.printer.printedChart, "graph1");
}

// ---- few points -----------------------------------------------------------------------------------------------------

TEST_F(GraphMarksView, SaysThatACurveHasNoPoints) {
  program.windows.curve.CurvePointCount = 0;
  program.windows.curve.Own.reset();
  program.windows.curve.References.clear();
  Draw(1);

  EXPECT_THAT(Labels(), ElementsAre("There are no points\nin the range of this curve"));
}

TEST_F(GraphMarksView, DrawsASinglePointAsADotEvenWithLinesOnly) {
  program.session.graph.GraphStyle = CurveStyle::LinesOnly;
  program.windows.curve.CurvePoints[0] = {240};
  program.windows.curve.CurvePoints[1] = {4.5F};
  program.windows.curve.CurvePointCount = 1;
  program.windows.curve.Own.reset();
  Draw(1);

  EXPECT_EQ(Plot().graph(0)->scatterStyle().shape(), QCPScatterStyle::ssDisc);
}

}  // namespace
}  // namespace orby::test
