#include "dialogs/kept_curves.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/number_text.h"
#include "dialogs/graph.h"
#include "drawings/inks.h"

namespace orby {
namespace {

constexpr std::array<Ink, MostKept> KeptInks{Ink::FirstKept, Ink::SecondKept, Ink::ThirdKept};

// Returns the colour of the ink on paper, as the model of the chart has it.
int BlueGreenRed(Ink ink) {
  const std::uint32_t colour = InkColour(ink, Ground::Light);
  return static_cast<int>((colour & 0xFFU) << 16U | (colour & 0xFF00U) | colour >> 16U);
}

bool HasAxesOf(const KeptCurve& kept, const DrawnCurve& drawn, UnitSystem units) {
  return kept.CurveIndex == drawn.CurveIndex && kept.Units == units;
}

std::ptrdiff_t CountInChart(const DrawnCurve& drawn, UnitSystem units) {
  return std::ranges::count_if(drawn.Kept, [&](const KeptCurve& kept) { return HasAxesOf(kept, drawn, units); });
}

std::string NameOf(const KeptCurve& kept) { return "Kept " + NumberText(kept.Number); }

// Returns the name with the place of the design on the curve: "Kept 1: Suggested PSUP 5.6 at Depth of Cover 400.0".
std::string LegendOf(const KeptCurve& kept) {
  if (!kept.Own) return NameOf(kept) + ": " + CurveTitle(kept.CurveIndex);
  return NameOf(kept) + ": " + DependentName(kept.CurveIndex) + " " + FormatNumber(kept.Own->Y, OneDecimal) + " at " +
         std::string(SubjectOfCurve(kept.CurveIndex).Independent) + " " + FormatNumber(kept.Own->X, OneDecimal);
}

}  // namespace

Ink KeptInk(std::size_t position) { return KeptInks.at(position); }

bool MayKeep(const DrawnCurve& drawn, UnitSystem units) {
  return drawn.CurvePointCount > 0 && CountInChart(drawn, units) < MostKept;
}

void KeepCurve(DrawnCurve& drawn, UnitSystem units) {
  KeptCurve kept;
  static_cast<Curve&>(kept) = drawn;
  kept.Number = ++drawn.LastKept;
  kept.CurveIndex = drawn.CurveIndex;
  kept.Units = units;
  kept.Own = drawn.Own;
  drawn.Kept.push_back(std::move(kept));
}

std::vector<ChartSeries> KeptSeries(const DrawnCurve& drawn, UnitSystem units, int width) {
  std::vector<ChartSeries> all;
  for (const KeptCurve& kept : drawn.Kept) {
    if (!HasAxesOf(kept, drawn, units)) continue;
    ChartSeries series = PointsOf(kept);
    series.isKept = true;
    series.colour = BlueGreenRed(KeptInk(all.size()));
    series.legend = LegendOf(kept);
    series.shortName = NameOf(kept);
    series.width = width;
    series.hasSymbols = false;
    all.push_back(std::move(series));
  }
  return all;
}

std::string KeptSummary(const DrawnCurve& drawn, UnitSystem units) {
  if (drawn.Kept.empty()) return {};
  const auto inChart = static_cast<int>(CountInChart(drawn, units));
  const int others = static_cast<int>(drawn.Kept.size()) - inChart;
  std::string text = NumberText(inChart) + " kept " + (inChart == 1 ? "curve" : "curves") + " drawn";
  if (inChart == MostKept) text += ", no room for more";
  if (others > 0) text += "; " + NumberText(others) + " with other axes not drawn";
  return text;
}

}  // namespace orby
