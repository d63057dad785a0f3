// The widget of a chart.
#pragma once

#include <QColor>
#include <QPixmap>
#include <QWidget>
#include <functional>
#include <utility>
#include <vector>

#include "controls/chart.h"
#include "qt/chart_marks.h"

class QCPPainter;
class QCustomPlot;

namespace orby {

// The wheel of the mouse zooms, dragging moves the plot, and a double click shows all of it again. The keyboard does
// the same with plus and minus, the arrow keys, and Home; Page Up and Page Down read out the points.
class ChartView : public QWidget {
 public:
  using Points = std::pair<std::vector<double>, std::vector<double>>;  // x and y of a series

  explicit ChartView(QWidget* parent = nullptr);

  void ShowChart(const Chart& chart);
  void SetMouseHandler(std::function<void(const ChartHit& hit)> handler) { mouseHandler_ = std::move(handler); }

  // Returns the element under this point of the widget.
  ChartHit HitAt(const QPoint& point) const;
  // Returns the position of a point of a series.
  QPointF PlaceOf(int series, int point) const;

  // Returns a picture of the chart, in black on white and with this size in pixels, as for the clipboard.
  QPixmap Picture(int width, int height) const;
  // Paints the same picture, laid out for this size in pixels, on this part of the paper.
  void Paint(QCPPainter& painter, const QRectF& place, int width, int height) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void ApplyTheme();
  void UseColors(const QPalette& palette) const;
  void ShowWhole();
  void Zoom(double factor);
  void Pan(double sharesX, double sharesY);
  void ReadBeside(int step);

  // What the axes were fitted to. A change of anything else keeps the zoom.
  struct Fitted {
    std::vector<Points> points;
    std::optional<ChartPoint> own;
    std::vector<ChartLine> references;
  };

  QCustomPlot* plot_;
  mutable ChartMarks marks_;
  Fitted fitted_;
  std::optional<ChartPlace> read_;
  std::vector<QColor> colors_;  // of the series, as on paper
  std::function<void(const ChartHit& hit)> mouseHandler_;
};

}  // namespace orby

// The form files name their widgets without a namespace.
using orby::ChartView;  // NOLINT(google-global-names-in-headers,misc-unused-using-decls)
