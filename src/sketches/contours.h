// Contours of a grid of values: where they reach a level, and where they are above it.
//
// Coordinates count the points of the grid: (0, 0) is its first point, (1, 0) the next one of the same row. Cells with
// a missing corner have no contours. In a cell whose corners reach the level in turns, the mean of the corners decides
// which ones are connected.
#pragma once

#include <cmath>
#include <limits>
#include <vector>

#include "drawings/scene.h"

namespace orby {

struct ContourGrid {
  std::size_t Columns = 0;
  std::size_t Rows = 0;
  std::vector<double> Values;  // all of the first row, then all of the second, and so on; NaN where there is none

  double At(std::size_t column, std::size_t row) const { return Values[row * Columns + column]; }
  bool Has(std::size_t column, std::size_t row) const { return !std::isnan(At(column, row)); }
};

// A line through points of the grid. What reaches the level is on its left when rows rise upwards. A closed line does
// not repeat its first point.
struct ContourLine {
  std::vector<ScenePoint> Points;
  bool IsClosed = false;
};

// Where the level is between two neighbours, as the share of the way to the neighbour in the next column, or in the
// next row. By the index of the point; used only where the level is between both.
struct ContourCuts {
  std::vector<double> ToNextColumn;
  std::vector<double> ToNextRow;
};

// Returns the lines along which the values reach the level. Without cuts, values are taken to be linear between
// neighbours.
std::vector<ContourLine> ContourLines(const ContourGrid& grid, double level, const ContourCuts* cuts = nullptr);

// Returns the borders of the region in which the values are at least the level, as closed lines. The region is on the
// left of each, so that holes run the other way round.
std::vector<ContourLine> RegionAbove(const ContourGrid& grid, double level);

inline constexpr double EveryLevel = -std::numeric_limits<double>::infinity();

}  // namespace orby
