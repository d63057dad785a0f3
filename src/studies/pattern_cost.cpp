#include "studies/pattern_cost.h"

#include <cmath>

#include "base/attempt.h"
#include "engine/cost.h"

namespace orby {
namespace {

constexpr PatternCost Unpriced{.Dollars = std::nullopt, .Gap = CostGap::Price};
constexpr PatternCost NotComputed{.Dollars = std::nullopt, .Gap = CostGap::Uncomputed};

std::optional<double> CostOfBolting(CostInputs inputs, const Pattern& pattern, Single price) {
  constexpr std::size_t PerAdvance = 1;  // the column of the cost table
  inputs.BoltCost = price;
  inputs.NBoltsRow = pattern.Number;
  inputs.RowSpacing = pattern.Spacing;
  // The cost table is 0 then.
  if (!(inputs.NboltsShift > 0 && inputs.NBoltsRow > 0 && inputs.RowSpacing > 0)) return std::nullopt;
  return OrNothing([&] { return std::optional<double>(AnalyseCost(inputs).Totals[PerAdvance]); });
}

}  // namespace

std::optional<Single> PriceOfPiece(const PriceList& prices, const Catalogs& catalogs, UnitSystem units,
                                   const StudiedSupport& support, const Pattern& pattern) {
  if (support.What != PricedSupport::Truss && !pattern.Item) return std::nullopt;
  const Single length = support.What == PricedSupport::Bolt ? pattern.Length : 0;
  return prices.Find(support.What, ItemName(catalogs, units, support, pattern.Item), length);
}

PatternCost CostOf(const CostInputs& inputs, const StudiedSupport& support, const Pattern& pattern,
                   std::optional<Single> price) {
  if (!price) return Unpriced;
  if (support.Where == Opening::Primary) {
    const auto dollars = CostOfBolting(inputs, pattern, *price);
    return dollars ? PatternCost{.Dollars = dollars} : NotComputed;
  }
  const double pieces = PiecesPerAdvance(support, pattern);
  if (!(pieces > 0) || !std::isfinite(pieces * *price)) return NotComputed;
  return {.Dollars = pieces * *price};
}

PatternCost CostOf(const Design& design, const Catalogs& catalogs, const PriceList& prices,
                   const StudiedSupport& support) {
  const Pattern pattern = PatternOf(design, catalogs, support);
  return CostOf(design.Cost, support, pattern, PriceOfPiece(prices, catalogs, design.Units, support, pattern));
}

double PiecesPerAdvance(const StudiedSupport& support, const Pattern& pattern) {
  if (support.Where == Opening::Intersections) return pattern.Number;
  if (pattern.Spacing == 0) return 0;
  const double pieces = support.What == PricedSupport::Truss ? 1 : pattern.Number;
  return pieces / pattern.Spacing;
}

}  // namespace orby
