// Roof ratings to start from when no survey of the roof is at hand: coalfield and rock type to CMRR.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "base/types.h"

namespace orby {

inline constexpr std::array<std::string_view, 6> RegionNames{
    "Northern Appalachia", "Central Appalachia", "Southern Appalachia", "Illinois Basin", "Utah", "Other Western"};

// Rock types that the record can number; a region with fewer has empty names behind its last.
inline constexpr Integer RockTypeCount = 8;

struct RockType {
  std::string_view Name;
  std::string_view CMRR;  // as text
};

// The rock types of a region. The last row is the manual setting, the one above it the unknown roof.
// Throws RuntimeError 9 for a region that does not exist.
std::span<const RockType> RockTypes(Integer region);

// The name of a rock type; empty for one behind the region's last row. Throws RuntimeError 9 outside the regions.
std::string_view RockTypeName(Integer region, Integer rockType);

}  // namespace orby
