#include "sampling/design_chart.h"

#include <algorithm>
#include <functional>
#include <numeric>

#include "base/all_cores.h"

namespace orby {
namespace {

// Calls `fillRow` for each row on all threads, until the chart is cancelled.
void FillRows(std::size_t rows, const std::function<void(std::size_t)>& fillRow, unsigned threads,
              ChartProgress* progress) {
  const auto fill = [&](std::size_t row, std::size_t) {
    if (progress != nullptr && progress->IsCancelled) return;
    fillRow(row);
    if (progress != nullptr) ++progress->RowsDone;
  };
  InPieces(rows, 1, fill, threads);
}

// Searches the chosen number of one row of points.
class NumberSearch {
 public:
  NumberSearch(const Design& design, const Catalogs& catalogs, std::span<const StudiedVerdict> judged,
               const ChosenNumber& chosen)
      : varied_(design, catalogs),
        judged_(judged),
        chosen_(chosen),
        safest_(chosen.IsGreatest ? chosen.Steps.FirstFrom(chosen.From) : chosen.Steps.LastUpTo(chosen.To)),
        boldest_(chosen.IsGreatest ? chosen.Steps.LastUpTo(chosen.To) : chosen.Steps.FirstFrom(chosen.From)) {}

  void Set(const SingleField& field, Single value) { varied_.Set(field, value); }

  std::optional<Single> Find() {
    if (!HoldsAt(safest_)) return std::nullopt;
    if (HoldsAt(boldest_)) return chosen_.Steps.ValueOf(boldest_);
    long holding = safest_;
    long failing = boldest_;
    while (std::abs(failing - holding) > 1) {
      const long middle = std::midpoint(holding, failing);
      (HoldsAt(middle) ? holding : failing) = middle;
    }
    return chosen_.Steps.ValueOf(holding);
  }

 private:
  bool HoldsAt(long step) {
    varied_.Set(chosen_.Field, chosen_.Steps.ValueOf(step));
    varied_.Refresh();
    return std::ranges::all_of(
        judged_, [this](const StudiedVerdict& judged) { return LetsChosenHold(judged, varied_.ResultOf(judged)); });
  }

  VariedDesign varied_;
  std::span<const StudiedVerdict> judged_;
  const ChosenNumber& chosen_;
  long safest_;
  long boldest_;
};

// Returns the share of the way at which the judgement is no longer what it is at the start.
double TurnBetween(VariedDesign& varied, const StudiedVerdict& judged, const SingleField& field, Single from, Single to,
                   bool holdsAtStart) {
  constexpr int Halvings = 10;
  double before = 0;
  double after = 1;
  for (int i = 0; i < Halvings; ++i) {
    const double middle = (before + after) / 2;
    varied.Set(field, ToSingle(std::lerp(static_cast<double>(from), static_cast<double>(to), middle)));
    varied.Refresh();
    (LetsChosenHold(judged, varied.ResultOf(judged)) == holdsAtStart ? before : after) = middle;
  }
  varied.Set(field, from);
  return (before + after) / 2;
}

}  // namespace

bool LetsChosenHold(const StudiedVerdict& judged, Holding result) {
  return result == Holding::Holds || (result == Holding::Check && judged.What == Aspect::BoltLength);
}

std::vector<Single> EvenValues(Single from, Single to, std::size_t count) {
  std::vector<Single> values(count);
  for (std::size_t i = 0; i < count; ++i) {
    const double share = static_cast<double>(i) / static_cast<double>(count - 1);
    values[i] = static_cast<Single>(std::lerp(static_cast<double>(from), static_cast<double>(to), share));
  }
  return values;
}

FigureChart ChartFigure(const Design& design, const Catalogs& catalogs, const StudiedFigure& figure,
                        const StudiedVerdict& judged, const VariedAxis& x, const VariedAxis& y, unsigned threads,
                        ChartProgress* progress) {
  const std::size_t width = x.Values.size();
  FigureChart chart{ChartGrid<FigureValue>(width * y.Values.size()), ChartGrid<Holding>(width * y.Values.size())};
  const auto fillRow = [&](std::size_t row) {
    VariedDesign varied(design, catalogs);
    varied.Set(y.Field, y.Values[row]);
    for (std::size_t column = 0; column < width; ++column) {
      varied.Set(x.Field, x.Values[column]);
      varied.Refresh();
      chart.Values[row * width + column] = figure.Of(varied.Analysed());
      chart.Results[row * width + column] = varied.ResultOf(judged);
    }
  };
  FillRows(y.Values.size(), fillRow, threads, progress);
  return chart;
}

ChartTurns FindTurns(const Design& design, const Catalogs& catalogs, const StudiedVerdict& judged,
                     const ChartGrid<Holding>& results, const VariedAxis& x, const VariedAxis& y, unsigned threads) {
  const std::size_t width = x.Values.size();
  const std::size_t height = y.Values.size();
  ChartTurns turns{ChartGrid<double>(results.size()), ChartGrid<double>(results.size())};
  const auto holdsAt = [&](std::size_t place) { return LetsChosenHold(judged, results[place]); };
  const auto fillRow = [&](std::size_t row) {
    VariedDesign varied(design, catalogs);
    varied.Set(y.Field, y.Values[row]);
    for (std::size_t column = 0; column < width; ++column) {
      const std::size_t place = row * width + column;
      const bool holds = holdsAt(place);
      varied.Set(x.Field, x.Values[column]);
      if (column + 1 < width && holdsAt(place + 1) != holds) {
        turns.ToNextX[place] = TurnBetween(varied, judged, x.Field, x.Values[column], x.Values[column + 1], holds);
      }
      if (row + 1 < height && holdsAt(place + width) != holds) {
        turns.ToNextY[place] = TurnBetween(varied, judged, y.Field, y.Values[row], y.Values[row + 1], holds);
      }
    }
  };
  FillRows(height, fillRow, threads, nullptr);
  return turns;
}

ChartGrid<std::optional<Single>> ChartNumberThatHolds(const Design& design, const Catalogs& catalogs,
                                                      std::span<const StudiedVerdict> judged,
                                                      const ChosenNumber& chosen, const VariedAxis& x,
                                                      const VariedAxis& y, unsigned threads, ChartProgress* progress) {
  const std::size_t width = x.Values.size();
  ChartGrid<std::optional<Single>> grid(width * y.Values.size());
  const auto fillRow = [&](std::size_t row) {
    NumberSearch search(design, catalogs, judged, chosen);
    search.Set(y.Field, y.Values[row]);
    for (std::size_t column = 0; column < width; ++column) {
      search.Set(x.Field, x.Values[column]);
      grid[row * width + column] = search.Find();
    }
  };
  FillRows(y.Values.size(), fillRow, threads, progress);
  return grid;
}

}  // namespace orby
