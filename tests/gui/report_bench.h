// A report of two pages, and the results window or the graph on the screen.
#pragma once

#include <qcustomplot.h>
#include <QMouseEvent>

#include "dialogs/graph_window.h"
#include "dialogs/project_report.h"
#include "dialogs/results_window.h"
#include "gui/main_bench.h"
#include "qt/chart_view.h"
#include "qt/surroundings.h"

namespace orby::test {

class ReportTest : public GuiTest {
 protected:
  explicit ReportTest(const RealDoors& real = {}) : GuiTest(real) {
    program.windows.WorkParmsCopy = program.project.WorkParms;
    BuildResults(program, program.project.WorkParms);
    program.session.history = {};
  }

  // Shows the results until they are closed. The script plays the user.
  void UseResults(ModalScripts::Script script) {
    scripts.Add(std::move(script));
    ShowResults(program);
    Settle();
  }
};

// Returns the visible graph window. Throws std::logic_error if there is none.
inline QWidget& GraphOnView() {
  QWidget* window = WindowOnView("frmGraph");
  if (window == nullptr) throw std::logic_error("no graph is on view");
  return *window;
}

// A graph of three points: suggested PSUP over depths of cover.
class GraphViewTest : public GuiTest {
 protected:
  explicit GraphViewTest(const RealDoors& real = {}) : GuiTest(real) {
    program.session.folders.ProgramTemporary = "/home/user/Documents/Orby/Temp/";
    program.session.IniFilePath = "/home/user/Documents/Orby/ORBY.INI";
    program.windows.curve.CurvePoints[0] = {200, 240, 300};
    program.windows.curve.CurvePoints[1] = {3.25F, 4.5F, 5.75F};
    program.windows.curve.CurvePointCount = 3;
    Draw(1);
  }
  ~GraphViewTest() override {
    graph.Close();
    Settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void Draw(Integer curve) {
    graph.ShowCurve(curve);
    if (!QTest::qWaitForWindowActive(&View())) throw std::logic_error("the graph never got the keyboard");
  }
  static QWidget& View() { return GraphOnView(); }
  ChartView& Drawn() { return Find<ChartView>(View(), "graph1"); }
  QCustomPlot& Plot() { return Find<QCustomPlot>(View(), "viewPlot"); }

  void OpenOptions() {
    Press(Qt::Key_O, Qt::AltModifier);
    PressInMenu(Qt::Key_O);
  }

  GraphWindow graph{program};
};

// Moves the pointer over the chart of the window by a window system event.
inline void MoveOver(QWidget& window, const QPoint& inChart) {
  const auto& chart = Find<ChartView>(window, "graph1");
  // To the widget itself: what an earlier window did with the mouse does not matter.
  QWidget* under = chart.childAt(inChart);
  QMouseEvent move(QEvent::MouseMove, QPointF(under->mapFrom(&chart, inChart)), QPointF(chart.mapToGlobal(inChart)),
                   Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(under, &move);
  Settle();
}

}  // namespace orby::test
