#include "study_bench.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <numbers>

#include "sampling/design_chart.h"

namespace orby {
namespace {

const SingleField Rating([](auto& d) { return &d.Place.CMRR; });
const SingleField Depth([](auto& d) { return &d.Place.DepthofCover; });
constexpr StudiedVerdict OnPsup{Opening::Primary, Aspect::Psup};

template <class Act>
double SecondsOf(const Act& act) {
  const auto began = std::chrono::steady_clock::now();
  act();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
}

VariedAxis DepthAxis() { return {Depth, EvenValues(200, 1500, 200)}; }
VariedAxis RatingAxis() { return {Rating, EvenValues(30, 80, 200)}; }

}  // namespace

StudyResult RunMeasuredStudy(const Design& design, const Catalogs& catalogs) {
  Study study;
  study.Inputs = {
      {"roof rating", [](auto& d) { return &d.Place.CMRR; }, {NormalLaw{50, 6}, 25, 90}},
      {"depth of cover", [](auto& d) { return &d.Place.DepthofCover; }, {LognormalLaw{600, 120}}},
      {"unit weight", [](auto& d) { return &d.Place.UnitWeight; }, {NormalLaw{162, 4}}},
      {"sum of the diagonals", [](auto& d) { return &d.Place.ActualSpanDiagonals; }, {TriangularLaw{58, 62, 70}}},
      {"entry width", [](auto& d) { return &d.Place.EntryWidth; }, {UniformLaw{19, 21}}},
      {"primary row spacing", [](auto& d) { return &d.Primary.RowSpacing; }, {NormalLaw{4, 0.2}, 3, 5}},
      {"rock load height", [](auto& d) { return &d.Entries.RockLoadHeight; }, {BetaLaw{2, 3, 3, 9}}},
      {"rock fall angle", [](auto& d) { return &d.Entries.RockFallAngle; }, {UniformLaw{20, 40}}},
      {"truss capacity", [](auto& d) { return &d.Entries.Truss.Capacity; }, {EmpiricalLaw{{28, 29, 30, 30, 31, 33}}}},
      {"height in intersections", [](auto& d) { return &d.Intersections.RockLoadHeight; }, {TriangularLaw{4, 6, 10}}},
  };
  study.Spearman = SquareMatrix::Identity(study.Inputs.size());
  study.Spearman(0, 6) = study.Spearman(6, 0) = -0.5;
  study.Samples = 1'000'000;
  return RunStudy(design, catalogs, study);
}

double ErrorOfIntegral(const Design& design, const Catalogs& catalogs) {
  constexpr double Deviation = 2.5;
  const double limit = Analyze(design, catalogs).Suggested.Value().SuggestedSpan;
  const double mean = limit - 3;
  Study study;
  study.Inputs = {
      {"sum of the diagonals", [](auto& d) { return &d.Place.ActualSpanDiagonals; }, {NormalLaw{mean, Deviation}}}};
  study.Samples = Study::MostSamples;
  study.Figures = {"suggested-span"};
  const StudyResult result = RunStudy(design, catalogs, study);
  const double exact = 0.5 * std::erfc((limit - mean) / Deviation / std::numbers::sqrt2);
  for (const VerdictResult& verdict : result.Verdicts) {
    if (verdict.Judged == StudiedVerdict{Opening::Primary, Aspect::Span}) return std::abs(verdict.Probability - exact);
  }
  return 1;
}

double SecondsOfFigureChart(const Design& design, const Catalogs& catalogs) {
  return SecondsOf([&] {
    static_cast<void>(
        ChartFigure(design, catalogs, *FigureWithKey("suggested-psup"), OnPsup, DepthAxis(), RatingAxis()));
  });
}

double SecondsOfSpacingChart(const Design& design, const Catalogs& catalogs) {
  const StudiedVerdict judged[] = {OnPsup};
  const ChosenNumber spacing{[](auto& d) { return &d.Primary.RowSpacing; }, 1, 20, {10}};
  ChartGrid<std::optional<Single>> chart;
  const double seconds =
      SecondsOf([&] { chart = ChartNumberThatHolds(design, catalogs, judged, spacing, DepthAxis(), RatingAxis()); });
  // A chart in which hardly any spacing is searched for measures nothing.
  const auto searched = std::ranges::count_if(chart, [&](const auto& found) { return found && *found < spacing.To; });
  return searched > 20'000 ? seconds : 1e6;
}

}  // namespace orby
