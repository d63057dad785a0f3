// What a chart shows besides its series: the named point of a design, reference lines, the point that is read out, and
// a text if there are no points.
#pragma once

#include <qcustomplot.h>

#include <vector>

#include "controls/chart_fit.h"

namespace orby {

class ChartMarks {
 public:
  explicit ChartMarks(QCustomPlot& plot) : plot_(plot) {}

  // Replaces the marks by those of the chart, and fits the axes to its whole extent if `fits` is true. Requires that
  // the series are in the plot.
  void Show(const Chart& chart, bool fits);
  // Fits the axes to the whole extent of the chart.
  void ShowWhole();
  // Draws the marks with the colours of a window or of paper.
  void SetColors(const QPalette& palette);

 private:
  QCPItemText* NewLabel(const std::string& text);
  void AddEmptyText();
  void AddReference(const ChartLine& line, int number);
  void AddFarReference(const ChartLine& line, int number);
  void AddOwn(const ChartPoint& own, const ChartCorner& side);
  void AddReadPoint(const ChartPlace& place);

  QCustomPlot& plot_;
  ChartExtent whole_;
  ChartCorner freeCorner_;
};

}  // namespace orby
