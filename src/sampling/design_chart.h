// A figure, or the greatest number that holds, over two inputs of a design.
#pragma once

#include <atomic>
#include <optional>
#include <span>
#include <vector>

#include "sampling/varied_design.h"

namespace orby {

struct VariedAxis {
  SingleField Field;
  std::vector<Single> Values;
};

// Returns values at equal distances, with both ends. Requires a count of at least 2.
std::vector<Single> EvenValues(Single from, Single to, std::size_t count);

// A value for each point of the chart: all of the first value of y, then all of the second, and so on.
template <class T>
using ChartGrid = std::vector<T>;

// What a caller on another thread follows and ends.
struct ChartProgress {
  std::atomic<bool> IsCancelled = false;  // the rest of the chart stays empty
  std::atomic<std::size_t> RowsDone = 0;
};

struct FigureChart {
  ChartGrid<FigureValue> Values;
  ChartGrid<Holding> Results;  // of the judgement whose turn is drawn
};

// Computes a figure and a judgement at each point. 0 threads: as many as there are processors.
FigureChart ChartFigure(const Design& design, const Catalogs& catalogs, const StudiedFigure& figure,
                        const StudiedVerdict& judged, const VariedAxis& x, const VariedAxis& y, unsigned threads = 0,
                        ChartProgress* progress = nullptr);

// Returns true if the judgement lets its support hold. A judgement that a bolt is longer than needed counts as one that
// holds.
bool LetsChosenHold(const StudiedVerdict& judged, Holding result);

// Where a judgement turns between two neighbours: the share of the way from a point to the next one of its row, and of
// its column. By the index of the point; 0 where it does not turn.
struct ChartTurns {
  ChartGrid<double> ToNextX;
  ChartGrid<double> ToNextY;
};

// Searches between all neighbours of which one holds and the other one does not. Requires the results of the chart.
ChartTurns FindTurns(const Design& design, const Catalogs& catalogs, const StudiedVerdict& judged,
                     const ChartGrid<Holding>& results, const VariedAxis& x, const VariedAxis& y, unsigned threads = 0);

// A number that is chosen so that judgements hold, in the steps in which it can be built.
struct ChosenNumber {
  SingleField Field;
  Single From = 0;
  Single To = 0;
  PrintedSteps Steps = {};
  bool IsGreatest = true;  // the greatest number that holds, otherwise the least
};

// Finds at each point the number with which all these judgements hold, or nothing if none does. Requires that when a
// number holds, so does each one that is closer to the safe end of its range: the lower end if the greatest number is
// searched for.
ChartGrid<std::optional<Single>> ChartNumberThatHolds(const Design& design, const Catalogs& catalogs,
                                                      std::span<const StudiedVerdict> judged,
                                                      const ChosenNumber& chosen, const VariedAxis& x,
                                                      const VariedAxis& y, unsigned threads = 0,
                                                      ChartProgress* progress = nullptr);

}  // namespace orby
