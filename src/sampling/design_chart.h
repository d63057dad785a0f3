// A figure, or the greatest number that holds, over two inputs of a design.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "sampling/varied_design.h"

namespace orby {

struct ChartAxis {
  SingleField Field;
  std::vector<Single> Values;
};

// Returns values at equal distances, with both ends. Requires a count of at least 2.
std::vector<Single> EvenValues(Single from, Single to, std::size_t count);

// A value for each point of the chart: all of the first value of y, then all of the second, and so on.
template <class T>
using ChartGrid = std::vector<T>;

struct FigureChart {
  ChartGrid<FigureValue> Values;
  ChartGrid<Holding> Results;  // of the judgement whose turn is drawn
};

// Computes a figure and a judgement at each point. 0 threads: as many as there are processors.
FigureChart ChartFigure(const Design& design, const Catalogs& catalogs, const StudiedFigure& figure,
                        const StudiedVerdict& judged, const ChartAxis& x, const ChartAxis& y, unsigned threads = 0);

// A number that is chosen so that judgements hold, in the steps in which it can be built.
struct ChosenNumber {
  SingleField Field;
  Single From = 0;
  Single To = 0;
  PrintedSteps Steps = {};
  bool IsGreatest = true;  // the greatest number that holds, otherwise the least
};

// Finds at each point the number with which all these judgements hold, or nothing if none does. A judgement that a bolt
// is longer than needed counts as one that holds. Requires that when a number holds, so does each one that is closer to
// the safe end of its range: the lower end if the greatest number is searched for.
ChartGrid<std::optional<Single>> ChartNumberThatHolds(const Design& design, const Catalogs& catalogs,
                                                      std::span<const StudiedVerdict> judged,
                                                      const ChosenNumber& chosen, const ChartAxis& x,
                                                      const ChartAxis& y, unsigned threads = 0);

}  // namespace orby
