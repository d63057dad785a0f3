#include "controls/chart_fit.h"

#include <cmath>
#include <cstdlib>
#include <optional>
#include <tuple>

#include "base/number_text.h"

namespace orby {
namespace {

using Coordinates = std::vector<double> ChartSeries::*;

void Include(std::optional<ChartRange>& range, double value) {
  if (!range) range = ChartRange{value, value};
  range->lower = std::min(range->lower, value);
  range->upper = std::max(range->upper, value);
}

std::optional<ChartRange> RangeOfSeries(const Chart& chart, bool ofX) {
  const Coordinates coordinates = ofX ? &ChartSeries::x : &ChartSeries::y;
  std::optional<ChartRange> range;
  for (const ChartSeries& series : chart.Series()) {
    for (const double value : series.*coordinates) Include(range, value);
  }
  return range;
}

ChartRange WholeRange(const Chart& chart, bool ofX) {
  constexpr double Air = 1.08;
  constexpr double Surroundings = 0.001;  // of a value so large that 1 is nothing beside it
  std::optional<ChartRange> range = RangeOfSeries(chart, ofX);
  if (!range) range = ChartRange{0, 2};
  if (range->Size() == 0) {
    const double around = std::max(1.0, std::abs(range->lower) * Surroundings);
    range = ChartRange{range->lower - around, range->upper + around};
  }
  if (const auto& own = chart.Own()) Include(range, ofX ? own->x : own->y);
  for (const ChartSeries& series : chart.Series()) {
    if (series.own) Include(range, ofX ? series.own->x : series.own->y);
  }
  for (const ChartLine& line : chart.References()) {
    if (line.isOfX == ofX && IsNear(chart, line)) Include(range, line.value);
  }
  const double middle = range->lower + range->Size() / 2;
  const double half = range->Size() / 2 * Air;
  return {middle - half, middle + half};
}

// Returns true if the first series is higher at its right end than at its left one.
bool IsRising(const Chart& chart) {
  if (chart.Series().empty() || chart.Series().front().x.size() < 2) return true;
  const auto& [x, y] = std::tie(chart.Series().front().x, chart.Series().front().y);
  const auto [left, right] = std::ranges::minmax_element(x);
  return y[static_cast<std::size_t>(left - x.begin())] < y[static_cast<std::size_t>(right - x.begin())];
}

// Returns the distance from the corner to the nearest thing that is drawn, in shares of the extent.
double DistanceFrom(const ChartCorner& corner, const Chart& chart, const ChartExtent& extent) {
  constexpr double NameWidth = 0.35;
  double nearest = 2;
  const auto avoid = [&](double x, double y) {
    nearest = std::min(nearest, std::hypot(x - (corner.isRight ? 1 : 0), y - (corner.isTop ? 1 : 0)));
  };
  for (const ChartSeries& series : chart.Series()) {
    for (std::size_t i = 0; i < series.x.size(); ++i) {
      avoid(extent.x.ShareOf(series.x[i]), extent.y.ShareOf(series.y[i]));
    }
  }
  if (const auto& own = chart.Own()) avoid(extent.x.ShareOf(own->x), extent.y.ShareOf(own->y));
  for (const ChartLine& line : chart.References()) {
    // The name of a horizontal line is at its right end, that of a vertical line at its top.
    if (line.isOfX) {
      const double at = extent.x.ShareOf(line.value);
      avoid(at, 1);
      avoid(at > 0.5 ? at - NameWidth : at + NameWidth, 1);
    } else {
      avoid(1, extent.y.ShareOf(line.value));
    }
  }
  return nearest;
}

}  // namespace

bool IsNear(const Chart& chart, const ChartLine& line) {
  constexpr double Most = 4;
  std::optional<ChartRange> range = RangeOfSeries(chart, line.isOfX);
  if (const auto& own = chart.Own()) Include(range, line.isOfX ? own->x : own->y);
  const ChartRange points = range.value_or(ChartRange{});
  return std::abs(line.value) <= Most * std::max(std::abs(points.lower), std::abs(points.upper));
}

ChartExtent WholeExtent(const Chart& chart) { return {WholeRange(chart, true), WholeRange(chart, false)}; }

bool HasLegendBelow(const Chart& chart) { return chart.HasSeveralDesigns(); }

ChartCorner FreeCorner(const Chart& chart, const ChartExtent& extent) {
  constexpr ChartCorner Corners[] = {{true, true}, {false, true}, {true, false}, {false, false}};
  return *std::ranges::max_element(Corners, {},
                                   [&](const ChartCorner& corner) { return DistanceFrom(corner, chart, extent); });
}

ChartCorner SideOfOwnName(const Chart& chart, const ChartExtent& extent) {
  const bool isInRightHalf = chart.Own() && extent.x.ShareOf(chart.Own()->x) > 0.5;
  return {!isInRightHalf, isInRightHalf == IsRising(chart)};
}

std::vector<double> TicksIn(const ChartRange& range, int most) {
  constexpr double Multiples[] = {1, 2, 5, 10};
  const double least = range.Size() / (most - 1);
  const int exponent = static_cast<int>(std::floor(std::log10(least)));
  // Multiplied and divided by whole powers, which every machine rounds alike.
  double power = 1;
  for (int i = 0; i < std::abs(exponent); ++i) power *= 10;
  const auto scaled = [&](double units) { return exponent < 0 ? units / power : units * power; };
  double multiple = 1;
  for (const double wider : Multiples) {
    multiple = wider;
    if (scaled(multiple) >= least) break;
  }
  std::vector<double> ticks;
  const double first = std::ceil(range.lower / scaled(multiple));
  for (int i = 0; i < most && scaled((first + i) * multiple) <= range.upper; ++i) {
    ticks.push_back(scaled((first + i) * multiple));
  }
  return ticks;
}

std::string TickText(double value, double step) {
  const double digits = std::pow(10, std::floor(std::log10(step)) - 1);
  return NumberText(std::round(value / digits) * digits == 0 ? 0.0 : std::round(value / digits) * digits);
}

}  // namespace orby
