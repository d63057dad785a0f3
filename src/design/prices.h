// The user's prices of support, for the cost of a pattern. Each unit system has a list of its own.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/types.h"

namespace orby {

enum class PricedSupport : std::uint8_t { Bolt, Cable, Truss, Standing };

struct Price {
  PricedSupport What{};
  std::string Name;    // a bolt's row in the bolt table, a cable's diameter, a standing support's type; none of a truss
  Single Length = 0;   // of a bolt, one of the stocked lengths; 0 of the others
  Single Dollars = 0;  // of one piece
  bool operator==(const Price&) const = default;
};

struct PriceList {
  std::vector<Single> BoltLengths;  // stocked, ascending, ft (m)
  std::vector<Price> Prices;
  bool operator==(const PriceList&) const = default;

  // Returns the price of one piece, or nothing if the list has none.
  std::optional<Single> Find(PricedSupport what, std::string_view name, Single length = 0) const {
    const auto found = std::ranges::find_if(
        Prices, [&](const Price& price) { return price.What == what && price.Name == name && price.Length == length; });
    if (found == Prices.end()) return std::nullopt;
    return found->Dollars;
  }
};

using PriceLists = std::array<PriceList, 2>;  // by unit system

// Returns the lists that a user begins with: usual lengths, and no prices.
PriceLists BuiltInPrices();

// The largest number of stocked lengths.
inline constexpr std::size_t MostStockedLengths = 20;

// Returns the lengths in a text such as "4, 5, 6", in ascending order and each one once. Words that are no number above
// 0 are skipped, and so are lengths after the largest number of them.
std::vector<Single> LengthsFrom(std::string_view text);
// Returns the lengths as a text, separated by commas.
std::string LengthsText(const std::vector<Single>& lengths);

}  // namespace orby
