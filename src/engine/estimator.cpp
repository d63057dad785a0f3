#include "engine/estimator.h"

#include "base/runtime_error.h"

namespace orby {
namespace {

// Returns the rock types of a region with their ratings, followed by the two last rows of every region.
template <class... Rocks>
constexpr std::array<RockType, sizeof...(Rocks) + 2> Region(std::string_view unknown, const Rocks&... rocks) {
  return {rocks..., RockType{"Unknown", unknown}, RockType{"Manual Setting", unknown}};
}

constexpr auto NorthernAppalachia =
    Region("38", RockType{"Claystone", "35"}, RockType{"Coal/Claystone", "38"}, RockType{"Shale", "40"},
           RockType{"Siltstone", "45"}, RockType{"Sandstone", "55"}, RockType{"Limestone", "55"});
constexpr auto CentralAppalachia =
    Region("45", RockType{"Thick Claystone", "40"}, RockType{"Thick Shale", "45"},
           RockType{"Stackrock (laminated sandstone/shale)", "45"}, RockType{"Siltstone", "50"},
           RockType{"Bedded Sandstone", "55"}, RockType{"Massive Sandstone", "65"});
constexpr auto SouthernAppalachia =
    Region("45", RockType{"Thick Claystone", "40"}, RockType{"Shale/Coal", "45"}, RockType{"Shale", "50"},
           RockType{"Siltstone", "50"}, RockType{"Bedded Sandstone", "55"}, RockType{"Massive Sandstone", "65"});
constexpr auto IllinoisBasin =
    Region("35", RockType{"Thick Claystone", "35"}, RockType{"Gray Shale", "38"}, RockType{"Black Shale", "40"},
           RockType{"Siltstone/Sandstone", "45"}, RockType{"Thin Limestone (1-2ft)", "50"},
           RockType{"Thick Limestone (>4 ft)", "65"});
constexpr auto Utah =
    Region("45", RockType{"Carbonaceous Mudstone", "40"}, RockType{"Thick Shale", "45"}, RockType{"Siltstone", "55"},
           RockType{"Bedded Sandstone", "55"}, RockType{"Massive Sandstone", "65"});
constexpr auto OtherWestern =
    Region("35", RockType{"Mudstone/Claystone", "35"}, RockType{"Thick Shale", "45"}, RockType{"Siltstone", "55"},
           RockType{"Bedded Sandstone", "55"}, RockType{"Massive Sandstone", "65"});

constexpr std::array<std::span<const RockType>, RegionNames.size()> Regions{
    NorthernAppalachia, CentralAppalachia, SouthernAppalachia, IllinoisBasin, Utah, OtherWestern};

}  // namespace

std::span<const RockType> RockTypes(Integer region) {
  if (region < 0 || static_cast<std::size_t>(region) >= Regions.size()) throw RuntimeError(error_number::Subscript);
  return Regions[static_cast<std::size_t>(region)];
}

std::string_view RockTypeName(Integer region, Integer rockType) {
  const auto types = RockTypes(region);
  const auto index = static_cast<std::size_t>(rockType);
  return index < types.size() ? types[index].Name : std::string_view();
}

}  // namespace orby
