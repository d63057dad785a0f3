// A chart of lines and symbols over two axes.
#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "controls/control.h"

namespace orby {

// A named point, drawn over the series.
struct ChartPoint {
  double x = 0;
  double y = 0;
  std::string name;
  bool operator==(const ChartPoint&) const = default;
};

struct ChartSeries {
  std::vector<double> x;
  std::vector<double> y;
  std::string legend;
  std::string shortName;  // for the read-out and the columns of tables
  int colour = 0;         // blue * 65536 + green * 256 + red
  int width = 1;          // of the line
  bool hasLine = true;
  bool hasSymbols = true;
  int symbolSize = 1;
  bool isKept = false;  // an earlier curve, drawn dashed for comparison
  int number = 0;       // counted from 1, in a chart with a curve of each of several designs; written on the curve
  std::optional<ChartPoint> own{};  // of the design that a numbered curve belongs to
  bool operator==(const ChartSeries&) const = default;
};

struct ChartAxis {
  std::string title;
  bool grid = false;  // whether grid lines start at the ticks of this axis
  bool operator==(const ChartAxis&) const = default;
};

// A named line across the plot, at a value of one axis.
struct ChartLine {
  bool isOfX = false;  // at a value of the horizontal axis, so it is vertical
  double value = 0;
  std::string name;
  bool operator==(const ChartLine&) const = default;
};

// A point of a series, counted from 0.
struct ChartPlace {
  int series = 0;
  int point = 0;
  bool operator==(const ChartPlace&) const = default;
};

// The part of the chart under the pointer.
struct ChartHit {
  bool inPlot = false;
  int series = -1;  // of the nearest point, counted from 0; -1 when there is none
  int point = -1;
  double distance = 0;  // to that point, pixels
};

class Chart : public Control {
 public:
  using Control::Control;

  const std::string& Heading() const { return heading_; }
  void SetHeading(std::string heading) { Mirror(heading_, std::move(heading)); }
  const ChartAxis& AxisX() const { return axes_[0]; }
  void SetAxisX(ChartAxis axis) { Mirror(axes_[0], std::move(axis)); }
  const ChartAxis& AxisY() const { return axes_[1]; }
  void SetAxisY(ChartAxis axis) { Mirror(axes_[1], std::move(axis)); }
  // Whether the user wants a legend.
  bool LegendShown() const { return legendShown_; }
  void SetLegendShown(bool shown) { Mirror(legendShown_, shown); }
  // A chart with kept or numbered curves always has a legend, because nothing else names them.
  bool HasLegend() const { return legendShown_ || HasSeveralDesigns(); }
  bool HasSeveralDesigns() const {
    return std::ranges::any_of(series_, [](const ChartSeries& series) { return series.isKept || series.number > 0; });
  }
  const std::vector<ChartSeries>& Series() const { return series_; }
  void SetSeries(std::vector<ChartSeries> series) { Mirror(series_, std::move(series)); }

  const std::optional<ChartPoint>& Own() const { return own_; }
  void SetOwn(std::optional<ChartPoint> own) { Mirror(own_, std::move(own)); }
  const std::vector<ChartLine>& References() const { return references_; }
  void SetReferences(std::vector<ChartLine> references) { Mirror(references_, std::move(references)); }
  // The point whose coordinates are read out.
  const std::optional<ChartPlace>& ReadPoint() const { return readPoint_; }
  void SetReadPoint(std::optional<ChartPlace> point) { Mirror(readPoint_, point); }

  std::function<void(const ChartHit& hit)> MouseMove;

 private:
  std::string heading_;
  std::array<ChartAxis, 2> axes_;
  bool legendShown_ = false;
  std::vector<ChartSeries> series_;
  std::optional<ChartPoint> own_;
  std::vector<ChartLine> references_;
  std::optional<ChartPlace> readPoint_;
};

}  // namespace orby
