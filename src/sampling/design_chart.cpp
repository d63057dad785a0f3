#include "sampling/design_chart.h"

#include <algorithm>
#include <numeric>

#include "base/all_cores.h"

namespace orby {
namespace {

bool LetsChosenHold(const StudiedVerdict& judged, Holding result) {
  return result == Holding::Holds || (result == Holding::Check && judged.What == Aspect::BoltLength);
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

}  // namespace

std::vector<Single> EvenValues(Single from, Single to, std::size_t count) {
  std::vector<Single> values(count);
  for (std::size_t i = 0; i < count; ++i) {
    const double share = static_cast<double>(i) / static_cast<double>(count - 1);
    values[i] = static_cast<Single>(std::lerp(static_cast<double>(from), static_cast<double>(to), share));
  }
  return values;
}

FigureChart ChartFigure(const Design& design, const Catalogs& catalogs, const StudiedFigure& figure,
                        const StudiedVerdict& judged, const ChartAxis& x, const ChartAxis& y, unsigned threads) {
  const std::size_t width = x.Values.size();
  FigureChart chart{ChartGrid<FigureValue>(width * y.Values.size()), ChartGrid<Holding>(width * y.Values.size())};
  const auto fillRow = [&](std::size_t row, std::size_t) {
    VariedDesign varied(design, catalogs);
    varied.Set(y.Field, y.Values[row]);
    for (std::size_t column = 0; column < width; ++column) {
      varied.Set(x.Field, x.Values[column]);
      varied.Refresh();
      chart.Values[row * width + column] = figure.Of(varied.Analysed());
      chart.Results[row * width + column] = varied.ResultOf(judged);
    }
  };
  InPieces(y.Values.size(), 1, fillRow, threads);
  return chart;
}

ChartGrid<std::optional<Single>> ChartNumberThatHolds(const Design& design, const Catalogs& catalogs,
                                                      std::span<const StudiedVerdict> judged,
                                                      const ChosenNumber& chosen, const ChartAxis& x,
                                                      const ChartAxis& y, unsigned threads) {
  const std::size_t width = x.Values.size();
  ChartGrid<std::optional<Single>> grid(width * y.Values.size());
  const auto fillRow = [&](std::size_t row, std::size_t) {
    NumberSearch search(design, catalogs, judged, chosen);
    search.Set(y.Field, y.Values[row]);
    for (std::size_t column = 0; column < width; ++column) {
      search.Set(x.Field, x.Values[column]);
      grid[row * width + column] = search.Find();
    }
  };
  InPieces(y.Values.size(), 1, fillRow, threads);
  return grid;
}

}  // namespace orby
