// Contours of grids whose shape is known.
#include "sketches/contours.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>

namespace orby::test {
namespace {

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::SizeIs;

constexpr double Nothing = std::numeric_limits<double>::quiet_NaN();

ContourGrid GridOf(std::size_t columns, std::size_t rows, const std::function<double(double, double)>& valueAt) {
  ContourGrid grid{columns, rows, {}};
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t column = 0; column < columns; ++column) {
      grid.Values.push_back(valueAt(static_cast<double>(column), static_cast<double>(row)));
    }
  }
  return grid;
}

// Returns the area that a closed line has on its left, by the sum of its trapezoids.
double AreaOf(const ContourLine& line) {
  double area = 0;
  for (std::size_t i = 0; i < line.Points.size(); ++i) {
    const ScenePoint& from = line.Points[i];
    const ScenePoint& to = line.Points[(i + 1) % line.Points.size()];
    area += (from.X * to.Y - to.X * from.Y) / 2;
  }
  return area;
}

double AreaOf(const std::vector<ContourLine>& lines) {
  double area = 0;
  for (const ContourLine& line : lines) area += AreaOf(line);
  return area;
}

TEST(ContourLines, OfAPlaneAreStraight) {
  const ContourGrid plane = GridOf(11, 6, [](double x, double y) { return x + 2 * y; });

  const std::vector<ContourLine> lines = ContourLines(plane, 7.5);

  ASSERT_THAT(lines, SizeIs(1));
  EXPECT_FALSE(lines[0].IsClosed);
  for (const ScenePoint& point : lines[0].Points) EXPECT_NEAR(point.X + 2 * point.Y, 7.5, 1e-12);
  EXPECT_EQ(lines[0].Points.front(), (ScenePoint{0, 3.75})) << "with the higher side on the left";
  EXPECT_EQ(lines[0].Points.back(), (ScenePoint{7.5, 0}));
}

TEST(ContourLines, AroundAPeakAreClosed) {
  const ContourGrid peak = GridOf(41, 41, [](double x, double y) { return -std::hypot(x - 20, y - 20); });

  const std::vector<ContourLine> lines = ContourLines(peak, -12.3);

  ASSERT_THAT(lines, SizeIs(1));
  EXPECT_TRUE(lines[0].IsClosed);
  for (const ScenePoint& point : lines[0].Points) EXPECT_NEAR(std::hypot(point.X - 20, point.Y - 20), 12.3, 0.02);
  EXPECT_NEAR(AreaOf(lines[0]), 3.14159 * 12.3 * 12.3, 1.5);
}

// The corners are 1, 0, 1, 0 around the cell.
TEST(ContourLines, OfASaddleConnectTheSidesOfItsMean) {
  const ContourGrid saddle{2, 2, {1, 0, 0, 1}};

  const std::vector<ContourLine> below = ContourLines(saddle, 0.4);
  const std::vector<ContourLine> above = ContourLines(saddle, 0.6);

  ASSERT_THAT(below, SizeIs(2));
  ASSERT_THAT(above, SizeIs(2));
  EXPECT_NEAR(AreaOf(RegionAbove(saddle, 0.4)), 1 - 0.4 * 0.4, 1e-12) << "two corners are cut off";
  EXPECT_THAT(RegionAbove(saddle, 0.4), SizeIs(1));
  EXPECT_NEAR(AreaOf(RegionAbove(saddle, 0.6)), 0.4 * 0.4, 1e-12) << "two corners are left";
  EXPECT_THAT(RegionAbove(saddle, 0.6), SizeIs(2));
}

TEST(ContourLines, EndAtMissingCells) {
  ContourGrid plane = GridOf(10, 3, [](double, double y) { return y; });
  plane.Values[4] = Nothing;  // the first row: two cells are missing

  const std::vector<ContourLine> lines = ContourLines(plane, 0.5);

  ASSERT_THAT(lines, SizeIs(2));
  for (const ContourLine& line : lines) {
    EXPECT_THAT(line.Points, Each(Field(&ScenePoint::Y, 0.5)));
    const auto isInGap = [](const ScenePoint& point) { return point.X > 3 && point.X < 5; };
    EXPECT_TRUE(std::ranges::none_of(line.Points, isInGap));
  }
}

TEST(ContourLines, AreNoneWithoutTheLevel) {
  const ContourGrid plane = GridOf(4, 4, [](double x, double) { return x; });

  EXPECT_THAT(ContourLines(plane, 3.5), IsEmpty());
  EXPECT_THAT(ContourLines(plane, -1), IsEmpty());
  EXPECT_THAT(ContourLines({2, 2, {Nothing, 1, 2, 3}}, 2.5), IsEmpty()) << "a cell without a corner";
}

TEST(ContourLines, FollowGivenCuts) {
  const ContourGrid step = GridOf(3, 3, [](double x, double) { return x < 1 ? 0 : 1; });
  const ContourCuts cuts{std::vector<double>(9, 0.8), std::vector<double>(9)};

  const std::vector<ContourLine> lines = ContourLines(step, 0.5, &cuts);

  ASSERT_THAT(lines, SizeIs(1));
  EXPECT_THAT(lines[0].Points, AllOf(SizeIs(3), Each(Field(&ScenePoint::X, 0.8))));
}

TEST(RegionAbove, OfAPlaneIsItsPart) {
  const ContourGrid plane = GridOf(11, 6, [](double x, double) { return x; });

  const std::vector<ContourLine> region = RegionAbove(plane, 7.25);

  ASSERT_THAT(region, SizeIs(1));
  EXPECT_NEAR(AreaOf(region), 2.75 * 5, 1e-12);
}

TEST(RegionAbove, LeavesOutHolesOfLowerAndOfMissingValues) {
  ContourGrid pit = GridOf(9, 9, [](double x, double y) { return x == 4 && y == 4 ? 0 : 2; });

  EXPECT_NEAR(AreaOf(RegionAbove(pit, 1)), 64 - 0.5, 1e-12) << "a diamond of half a cell";
  pit.Values[4 * 9 + 4] = Nothing;

  EXPECT_NEAR(AreaOf(RegionAbove(pit, 1)), 64 - 4, 1e-12) << "the four cells around the point";
  EXPECT_THAT(RegionAbove(pit, 1), SizeIs(2));
}

TEST(RegionAbove, HasEveryCellWithAllCorners) {
  ContourGrid grid{4, 3, {1, 5, -3, Nothing, 2, 2, 2, 2, 0, 0, 0, 0}};

  EXPECT_NEAR(AreaOf(RegionAbove(grid, EveryLevel)), 5, 1e-12);
  std::ranges::fill(grid.Values, Nothing);
  EXPECT_THAT(RegionAbove(grid, EveryLevel), IsEmpty());
}

// Two missing cells that touch at a corner only.
TEST(RegionAbove, HoldsAroundGapsThatTouchEachOther) {
  ContourGrid grid = GridOf(7, 7, [](double, double) { return 1; });
  for (const std::size_t place : {2U * 7 + 2, 4U * 7 + 4}) grid.Values[place] = Nothing;

  EXPECT_NEAR(AreaOf(RegionAbove(grid, 0)), 36 - 8, 1e-12);
}

// Of any grid, the parts above and below a level make up the whole.
TEST(RegionAbove, AndItsOppositeCoverTheGrid) {
  std::uint32_t seed = 71;
  const auto next = [&] { return static_cast<double>((seed = seed * 1664525 + 1013904223) >> 8) / 16777216.0; };
  for (int round = 0; round < 50; ++round) {
    ContourGrid grid = GridOf(12, 9, [&](double, double) { return next() < 0.08 ? Nothing : next(); });
    ContourGrid opposite = grid;
    for (double& value : opposite.Values) value = -value;

    const double whole = AreaOf(RegionAbove(grid, EveryLevel));

    EXPECT_NEAR(AreaOf(RegionAbove(grid, 0.45)) + AreaOf(RegionAbove(opposite, -0.45)), whole, 1e-9) << round;
    EXPECT_EQ(whole, std::round(whole));
  }
}

}  // namespace
}  // namespace orby::test
