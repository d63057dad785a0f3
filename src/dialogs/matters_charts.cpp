#include "dialogs/matters_charts.h"

#include <cmath>
#include <limits>

namespace orby {
namespace {

// Returns the numbers that both charts show, the one with the greatest swing first.
std::vector<const NumberEffect*> ShownIn(const FigureEffects& effects) {
  std::vector<const NumberEffect*> shown;
  if (!effects.AtDesign.IsThere()) return shown;
  for (const std::size_t place : GreatestFirst(effects.Numbers)) {
    if (effects.Numbers[place].Row.Swing() != 0) shown.push_back(&effects.Numbers[place]);
  }
  return shown;
}

double PresentFigure(const FigureEffects& effects) { return effects.AtDesign.IsThere() ? effects.AtDesign.Value : 0; }

std::vector<ScenePoint> PointsAlong(const MattersView& view, const VariedRange& range) {
  constexpr int PartsOfSide = 10;
  constexpr double WholeSide = 100;
  const double present = range.Field.In(view.Studied);
  std::vector<Single> values;
  std::vector<double> ways;
  values.reserve(2 * PartsOfSide + 1);
  ways.reserve(2 * PartsOfSide + 1);
  for (int part = -PartsOfSide; part <= PartsOfSide; ++part) {
    const double end = part < 0 ? range.Low : range.High;
    const bool isOnWrongSide = part < 0 ? end >= present : part > 0 && end <= present;
    if (isOnWrongSide) continue;
    const double way = static_cast<double>(part) / PartsOfSide;
    values.push_back(ToSingle(present + (end - present) * std::abs(way)));
    ways.push_back(way * WholeSide);
  }
  const std::vector<FigureValue> figures = FigureAlong(view.Studied, view.Lists, view.Figure, range.Field, values);
  std::vector<ScenePoint> points;
  points.reserve(figures.size());
  for (std::size_t i = 0; i < figures.size(); ++i) {
    points.push_back({ways[i], figures[i].IsThere() ? figures[i].Value : std::numeric_limits<double>::quiet_NaN()});
  }
  return points;
}

}  // namespace

Tornado TornadoOf(const MattersView& view) {
  Tornado tornado{.Title = NameOf(view.Figure, view.Studied.Units),
                  .Centre = PresentFigure(view.Effects),
                  .CentreText = EffectText(view.Effects.AtDesign),
                  .Bars = {}};
  for (const NumberEffect* effect : ShownIn(view.Effects)) {
    const SensitivityRow& row = effect->Row;
    tornado.Bars.push_back({.Name = row.Range.Name,
                            .AtLow = row.AtLow.Value,
                            .AtHigh = row.AtHigh.Value,
                            .LowText = EffectText(row.AtLow),
                            .HighText = EffectText(row.AtHigh)});
  }
  return tornado;
}

Spider SpiderOf(const MattersView& view) {
  Spider spider{.Title = NameOf(view.Figure, view.Studied.Units),
                .Present = PresentFigure(view.Effects),
                .PresentText = EffectText(view.Effects.AtDesign),
                .Lines = {}};
  for (const NumberEffect* effect : ShownIn(view.Effects)) {
    if (spider.Lines.size() == MostSpiderLines) {
      ++spider.More;
      continue;
    }
    const SensitivityRow& row = effect->Row;
    spider.Lines.push_back({.Name = row.Range.Name,
                            .Points = PointsAlong(view, row.Range),
                            .LowText = EffectText(row.AtLow),
                            .HighText = EffectText(row.AtHigh)});
  }
  return spider;
}

}  // namespace orby
