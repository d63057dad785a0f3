// Charts over two numbers of a design: what they can show, how they are computed, and how they are drawn.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "design/prices.h"
#include "reports/design_numbers.h"
#include "sampling/design_chart.h"
#include "sketches/map_sketch.h"

namespace orby {

// A figure, or a number that is chosen so that its support holds.
struct ChartSubject {
  std::string Name;                       // "Suggested PSUP", "Greatest Roof Bolt Row Spacing that holds"
  const StudiedFigure* Figure = nullptr;  // null: the number
  const DesignNumber* Number = nullptr;
  std::optional<ChosenNumber> Chosen;
  std::vector<Single> Built;           // the values of the number that can be built, ascending
  std::vector<StudiedVerdict> Judged;  // on the support of the number
};

// Returns the figures of what the design uses, then the numbers of its supports: the greatest spacings, and the least
// numbers of bolts, lengths and capacities.
std::vector<ChartSubject> ChartSubjects(const Design& design, const Catalogs& catalogs, const PriceList& prices);

// Returns the judgements on the design, in their order.
std::vector<StudiedVerdict> JudgementsOn(const Design& design, const Catalogs& catalogs);

struct ChartSide {
  const DesignNumber* Number = nullptr;
  Single From = 0;
  Single To = 0;

  // Returns the place of a value in points of the grid, counted from 0, and the value at a place.
  double PlaceOf(Single value, std::size_t points) const;
  double ValueAt(double place, std::size_t points) const;
  // Values are read out at round distances. Returns the one nearest to a value, and the next one after it (way 1) or
  // before it (way -1).
  Single Reading(double value) const;
  Single NextReading(double value, int way) const;
};

struct ChartRequest {
  ChartSubject Subject;
  std::optional<StudiedVerdict> Judged;  // whose turn is drawn on the chart of a figure
  ChartSide Across;
  ChartSide Up;
  std::size_t Points = 2;  // along each side
};

// Returns a range around the present value of a number, from half of it to one and a half, with round ends.
ChartSide SideAround(const Design& design, const DesignNumber& number);

// Returns about how often the design is analysed for the chart.
std::size_t WorkOf(const ChartRequest& request);

struct ComputedChart {
  ChartGrid<double> Values;  // NaN where there is none
  ChartGrid<Holding> Results;
  ChartTurns Turns;
};

// Computes the chart on all processors. One that was cancelled has gaps.
ComputedChart Compute(const Design& design, const Catalogs& catalogs, const ChartRequest& request,
                      ChartProgress* progress = nullptr);

// Returns the chart for a drawing. Requires one that was not cancelled.
DesignMap MapOf(const Design& design, const ChartRequest& request, ComputedChart computed);

// Returns what the chart has at a point in words: "Depth of Cover 600 ft, CMRR 45: Suggested PSUP 9.512; Actual PSUP
// holds". A number has a value that can be built, or the judgements that fall short without one.
std::string ReadingAt(const Design& design, const Catalogs& catalogs, const ChartRequest& request, Single across,
                      Single up);

}  // namespace orby
