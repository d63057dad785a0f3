#include "engine/estimator.h"

#include "base/runtime_error.h"

namespace orby {
namespace {

constexpr std::array<RockType, 8> NorthernAppalachia{{{"Claystone", "35"},
                                                      {"Coal/Claystone", "38"},
                                                      {"Shale", "40"},
                                                      {"Siltstone", "45"},
                                                      {"Sandstone", "55"},
                                                      {"Limestone", "55"},
                                                      {"Unknown", "38"},
                                                      {"Manual Setting", "38"}}};
constexpr std::array<RockType, 8> CentralAppalachia{{{"Thick Claystone", "40"},
                                                     {"Thick Shale", "45"},
                                                     {"Stackrock (laminated sandstone/shale)", "45"},
                                                     {"Siltstone", "50"},
                                                     {"Bedded Sandstone", "55"},
                                                     {"Massive Sandstone", "65"},
                                                     {"Unknown", "45"},
                                                     {"Manual Setting", "45"}}};
constexpr std::array<RockType, 8> SouthernAppalachia{{{"Thick Claystone", "40"},
                                                      {"Shale/Coal", "45"},
                                                      {"Shale", "50"},
                                                      {"Siltstone", "50"},
                                                      {"Bedded Sandstone", "55"},
                                                      {"Massive Sandstone", "65"},
                                                      {"Unknown", "45"},
                                                      {"Manual Setting", "45"}}};
constexpr std::array<RockType, 8> IllinoisBasin{{{"Thick Claystone", "35"},
                                                 {"Gray Shale", "38"},
                                                 {"Black Shale", "40"},
                                                 {"Siltstone/Sandstone", "45"},
                                                 {"Thin Limestone (1-2ft)", "50"},
                                                 {"Thick Limestone (>4 ft)", "65"},
                                                 {"Unknown", "35"},
                                                 {"Manual Setting", "35"}}};
constexpr std::array<RockType, 7> Utah{{{"Carbonaceous Mudstone", "40"},
                                        {"Thick Shale", "45"},
                                        {"Siltstone", "55"},
                                        {"Bedded Sandstone", "55"},
                                        {"Massive Sandstone", "65"},
                                        {"Unknown", "45"},
                                        {"Manual Setting", "45"}}};
constexpr std::array<RockType, 7> OtherWestern{{{"Mudstone/Claystone", "35"},
                                                {"Thick Shale", "45"},
                                                {"Siltstone", "55"},
                                                {"Bedded Sandstone", "55"},
                                                {"Massive Sandstone", "65"},
                                                {"Unknown", "35"},
                                                {"Manual Setting", "35"}}};

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
