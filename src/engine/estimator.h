// Estimated roof ratings for a roof that has not been surveyed: CMRR by coalfield and rock type.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "base/types.h"

namespace orby {

inline constexpr std::array<std::string_view, 6> RegionNames{
    "Northern Appalachia", "Central Appalachia", "Southern Appalachia", "Illinois Basin", "Utah", "Other Western"};

// The number of rock types that a record can refer to. A region with fewer has empty names after its last one.
inline constexpr Integer RockTypeCount = 8;

struct RockType {
  std::string_view Name;
  std::string_view CMRR;  // as text
};

// Returns the rock types of a region. The last row is the manual setting, and the row before it the unknown roof.
// Throws RuntimeError 9 for a region that does not exist.
std::span<const RockType> RockTypes(Integer region);

// Returns the name of a rock type. Empty for an index outside the rows of the region. Throws RuntimeError 9 for a
// region that does not exist.
std::string_view RockTypeName(Integer region, Integer rockType);

}  // namespace orby
