// The charts of what a figure depends on.
#pragma once

#include <array>
#include <string_view>

#include "reports/sensitivity_report.h"
#include "sketches/spider.h"
#include "sketches/tornado.h"

namespace orby {

struct MattersChart {
  std::string_view Name;   // in lists
  std::string_view Title;  // for screen readers and files
};

// The charts, by their places in lists.
namespace matters_chart {
inline constexpr int Tornado = 0;
inline constexpr int Spider = 1;
}  // namespace matters_chart
inline constexpr std::array<MattersChart, 2> MattersCharts{{{"Tornado", "Tornado chart"}, {"Spider", "Spider chart"}}};

// A figure of a design and what the numbers do to it.
struct MattersView {
  const Design& Studied;
  const Catalogs& Lists;
  const StudiedFigure& Figure;
  const FigureEffects& Effects;
};

// Both charts leave out numbers without a swing. Without a figure of the design they show none.
Tornado TornadoOf(const MattersView& view);

// Computes the figure at 21 values of each number that is drawn. A number whose range begins above its present value,
// or ends below it, has a line on one side only, from its present value.
Spider SpiderOf(const MattersView& view);

}  // namespace orby
