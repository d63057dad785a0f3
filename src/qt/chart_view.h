// The widget of a chart.
#pragma once

#include <QColor>
#include <QPixmap>
#include <QWidget>
#include <functional>
#include <vector>

#include "controls/chart.h"

class QCustomPlot;
class QPaintDevice;

namespace orby {

class ChartView : public QWidget {
 public:
  explicit ChartView(QWidget* parent = nullptr);

  void ShowChart(const Chart& chart);
  void SetMouseHandler(std::function<void(const ChartHit& hit)> handler) { mouseHandler_ = std::move(handler); }

  // What lies under this point of the widget.
  ChartHit HitAt(const QPoint& point) const;
  // The place of a point of a series.
  QPointF PlaceOf(int series, int point) const;

  // The chart in black on white, as it goes to the clipboard, of so many pixels.
  QPixmap Picture(int width, int height) const;
  // The same drawn for a size of so many pixels and brought to this place of the paper; false when that cannot be
  // painted on.
  bool PaintOn(QPaintDevice& paper, const QRectF& place, int width, int height) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void ApplyTheme();

  QCustomPlot* plot_;
  std::vector<QColor> colors_;  // of the series, as they are on paper
  std::function<void(const ChartHit& hit)> mouseHandler_;
};

}  // namespace orby

// The form files name their widgets without a namespace.
using orby::ChartView;  // NOLINT(google-global-names-in-headers,misc-unused-using-decls)
