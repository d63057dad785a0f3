// What a pattern of support costs per ft (m) of advance, or per intersection.
#pragma once

#include <cstdint>
#include <optional>

#include "studies/levers.h"

namespace orby {

enum class CostGap : std::uint8_t {
  None,
  Price,       // the price list has no price of the piece
  Uncomputed,  // no bolts per shift or no row spacing, or the cost ended with a run-time error
};

struct PatternCost {
  std::optional<double> Dollars;  // per ft (m), or per intersection; nothing: not priced
  CostGap Gap = CostGap::None;
  bool operator==(const PatternCost&) const = default;
};

// Returns the price of one piece, or nothing if the list has none.
std::optional<Single> PriceOfPiece(const PriceList& prices, const Catalogs& catalogs, UnitSystem units,
                                   const StudiedSupport& support, const Pattern& pattern);

// Returns the cost of a pattern with this price of a piece. For primary bolts it is the total of the cost analysis with
// this bolt, these bolts per row and this row spacing. For others it is the price of the pieces alone.
PatternCost CostOf(const CostInputs& inputs, const StudiedSupport& support, const Pattern& pattern,
                   std::optional<Single> price);

// Returns the cost of the pattern that the design has.
PatternCost CostOf(const Design& design, const Catalogs& catalogs, const PriceList& prices,
                   const StudiedSupport& support);

// Returns the pieces per ft (m) of advance, or in the intersection. 0 without a row spacing.
double PiecesPerAdvance(const StudiedSupport& support, const Pattern& pattern);

}  // namespace orby
