#include "sketches/plot_axes.h"

#include <algorithm>
#include <utility>

namespace orby {
namespace {

constexpr SceneStroke PlotFrame{.Colour = Ink::Text, .Width = 1};
constexpr double NumberGap = 3;

}  // namespace

std::string TickTextAmong(const std::vector<double>& ticks, double tick) {
  return TickText(tick, ticks.size() > 1 ? ticks[1] - ticks[0] : 1);
}

std::string PlotAxis::TextOf(double tick) const { return TickTextAmong(ticks_, tick); }

double PlotAxis::WidestText() const {
  double widest = 0;
  for (const double tick : ticks_) widest = std::max(widest, WidthOf(TextOf(tick)));
  return widest;
}

double EndOfNumbers(const Box& plot) { return plot.Bottom + PlotAxis::TickLength + LegendLine; }

void DrawAxes(Drafting& draft, const Box& plot, const PlotAxis& across, const PlotAxis& up) {
  Trace ticks;
  for (const double tick : across.Ticks()) {
    const double x = plot.Left + across.ShareOf(tick) * plot.Width();
    ticks.Segment({x, plot.Bottom}, {x, plot.Bottom + PlotAxis::TickLength});
    draft.Write({across.TextOf(tick)}, {x, EndOfNumbers(plot) - NumberGap}, Anchor::Middle,
                plot.Width() * across.ShareOfText());
  }
  for (const double tick : up.Ticks()) {
    const double y = plot.Bottom - up.ShareOf(tick) * plot.Height();
    ticks.Segment({plot.Left - PlotAxis::TickLength, y}, {plot.Left, y});
    draft.Write({up.TextOf(tick)}, {plot.Left - PlotAxis::TickLength - NumberGap, y + TextSize / 3}, Anchor::End,
                plot.Left);
  }
  draft.Draw(std::move(ticks), PlotFrame);
  draft.Draw(Trace().Rectangle(plot), PlotFrame);
}

void DrawOwnMark(Drafting& draft, const ScenePoint& at, double half) {
  const Box box{at.X - half, at.Y - half, at.X + half, at.Y + half};
  draft.Draw(Trace().Rectangle(box), {.Colour = Ink::Paper, .Width = 4});
  draft.Draw(Trace().Rectangle(box), {.Colour = Ink::OwnPoint, .Width = 2});
}

}  // namespace orby
