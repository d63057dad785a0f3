#include "sampling/sensitivity.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

namespace orby {
namespace {

// Finds where judgements change over the printed values of one range.
class TurnSearch {
 public:
  TurnSearch(VariedDesign& varied, const VariedRange& range) : varied_(varied), range_(range) {}

  std::vector<TurningPoint> Run() {
    constexpr long Parts = 100;
    const long first = range_.Steps.FirstFrom(range_.Low);
    const long last = range_.Steps.LastUpTo(range_.High);
    std::vector<TurningPoint> turns;
    if (first >= last) return turns;
    const long stride = std::max((last - first) / Parts, 1L);
    std::vector<Verdict> before = JudgedAt(first);
    for (long from = first; from < last; from += stride) {
      const long to = std::min(from + stride, last);
      const std::vector<Verdict> after = JudgedAt(to);
      for (std::size_t i = 0; i < after.size(); ++i) {
        if (before[i].Result != after[i].Result) AddTurns(i, {from, before[i].Result}, {to, after[i].Result}, turns);
      }
      before = after;
    }
    return turns;
  }

 private:
  struct Point {
    long Step;
    Holding Result;
  };

  std::vector<Verdict> JudgedAt(long step) {
    varied_.Set(range_.Field, range_.Steps.ValueOf(step));
    varied_.Refresh();
    return {varied_.Judged().begin(), varied_.Judged().end()};
  }

  // Halves the stretch until its ends are neighbours. On its way from the first result to the last, a judgement may
  // have a third one.
  void AddTurns(std::size_t place, Point from, const Point& to, std::vector<TurningPoint>& turns) {
    while (from.Result != to.Result) {
      Point low = from;
      Point high = to;
      while (high.Step - low.Step > 1) {
        const long middle = std::midpoint(low.Step, high.Step);
        const Verdict verdict = JudgedAt(middle)[place];
        (verdict.Result == from.Result ? low : high) = {middle, verdict.Result};
      }
      const Verdict verdict = JudgedAt(high.Step)[place];
      turns.push_back({{verdict.Where, verdict.What},
                       from.Result,
                       high.Result,
                       range_.Steps.ValueOf(low.Step),
                       range_.Steps.ValueOf(high.Step)});
      from = high;
    }
  }

  VariedDesign& varied_;
  const VariedRange& range_;
};

}  // namespace

std::optional<VariedRange> RangeAround(const Design& design, std::string name, const SingleField& field, double share) {
  const double value = field.In(design);
  if (value == 0 || !std::isfinite(value)) return std::nullopt;
  const double part = std::abs(value) * share;
  PrintedSteps steps;
  constexpr int Finest = 100'000;
  while (steps.PerUnit < Finest && std::abs(value) * steps.PerUnit < 100) steps.PerUnit *= 10;
  return VariedRange{std::move(name), field, ToSingle(value - part), ToSingle(value + part), steps};
}

double SensitivityRow::Swing() const {
  if (!AtLow.IsThere() || !AtHigh.IsThere()) return 0;
  return std::abs(static_cast<double>(AtHigh.Value) - AtLow.Value);
}

std::vector<SensitivityRow> FindSensitivity(const Design& design, const Catalogs& catalogs, const StudiedFigure& figure,
                                            std::span<const VariedRange> ranges) {
  std::vector<SensitivityRow> rows;
  for (const VariedRange& range : ranges) {
    const Single ends[] = {range.Low, range.High};
    const auto values = FigureAlong(design, catalogs, figure, range.Field, ends);
    VariedDesign varied(design, catalogs);
    rows.push_back({range, values[0], values[1], TurnSearch(varied, range).Run()});
  }
  return rows;
}

std::vector<std::size_t> BySwing(std::span<const SensitivityRow> rows) {
  std::vector<std::size_t> places(rows.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  std::ranges::stable_sort(places, std::ranges::greater(), [rows](std::size_t place) { return rows[place].Swing(); });
  return places;
}

std::vector<FigureValue> FigureAlong(const Design& design, const Catalogs& catalogs, const StudiedFigure& figure,
                                     const SingleField& field, std::span<const Single> values) {
  VariedDesign varied(design, catalogs);
  std::vector<FigureValue> found;
  for (const Single value : values) {
    varied.Set(field, value);
    varied.Refresh();
    found.push_back(figure.Of(varied.Analysed()));
  }
  return found;
}

}  // namespace orby
