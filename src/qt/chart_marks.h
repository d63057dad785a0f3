// What a chart shows besides its series: the named point of a design, reference lines, the point that is read out, and
// a text if there are no points.
#pragma once

#include <qcustomplot.h>

#include <vector>

#include "controls/chart.h"

namespace orby {

class ChartMarks {
 public:
  explicit ChartMarks(QCustomPlot& plot) : plot_(plot) {}

  // Replaces the marks by those of the chart, and fits the axes to the series and the marks if `fits` is true. Requires
  // that the series are in the plot.
  void Show(const Chart& chart, bool fits);
  // Fits the axes to the series and the marks, with a small margin.
  void ShowWhole();
  // Draws the marks with the colours of a window or of paper.
  void SetColors(const QPalette& palette);

 private:
  // Returns true if the line does not make the rest of the chart too small.
  bool IsNear(const ChartLine& line) const;
  QCPRange RangeOfPoints(bool ofX) const;
  QCPItemText* NewLabel(const std::string& text);
  void AddEmptyText();
  void AddReference(const ChartLine& line, int number);
  void AddFarReference(const ChartLine& line, int number);
  void AddOwn(const ChartPoint& own);
  void AddReadPoint(const ChartPlace& place);

  // Returns the corner of the plot with the greatest distance from points and lines, whatever the size of the plot.
  Qt::Alignment FreeCorner() const;

  QCustomPlot& plot_;
  std::optional<ChartPoint> own_;
  std::vector<ChartLine> references_;
};

}  // namespace orby
