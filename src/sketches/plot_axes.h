// The axes of a plot: a frame, and ticks at round values with their numbers.
#pragma once

#include <string>
#include <vector>

#include "controls/chart_fit.h"
#include "sketches/drafting.h"

namespace orby {

class PlotAxis {
 public:
  static constexpr int MostTicks = 8;
  static constexpr double TickLength = 5;

  // Requires a range with a size and `most` of at least 2.
  explicit PlotAxis(const ChartRange& range, int most = MostTicks)
      : range_(range), most_(most), ticks_(TicksIn(range, most)) {}

  const std::vector<double>& Ticks() const { return ticks_; }
  std::string TextOf(double tick) const;
  double WidestText() const;
  // The room of a number, as a share of the axis.
  double ShareOfText() const { return 1.0 / most_; }
  // The position of a value: 0 at the start of the axis, 1 at its end.
  double ShareOf(double value) const { return range_.ShareOf(value); }

 private:
  ChartRange range_;
  int most_;
  std::vector<double> ticks_;
};

// Returns the text of one of these ticks.
std::string TickTextAmong(const std::vector<double>& ticks, double tick);

// Returns where the numbers below a plot end.
double EndOfNumbers(const Box& plot);

// Draws the frame of the plot, and the ticks and the numbers of both axes outside of it.
void DrawAxes(Drafting& draft, const Box& plot, const PlotAxis& across, const PlotAxis& up);

// Draws the mark of the design: a square with a rim that stands out on any ground.
void DrawOwnMark(Drafting& draft, const ScenePoint& at, double half);

}  // namespace orby
