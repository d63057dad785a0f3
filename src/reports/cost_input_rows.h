// The numbers of the cost of bolting with their labels and units, in the order of the dialog.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "base/unit_suffix.h"
#include "design/design.h"

namespace orby {

struct CostInputRow {
  std::string_view Label;
  Single CostInputs::*Value;
  UnitSuffix Unit = UnitSuffix::None;
};

// Each number that the cost is computed from.
inline constexpr auto CostInputRows = std::to_array<CostInputRow>({
    {"Bolt cost ($/bolt)", &CostInputs::BoltCost},
    {"Plate cost ($/plate)", &CostInputs::PlateCost},
    {"Resin cost ($/bolt)", &CostInputs::ResinCost},
    {"Bit cost ($/shift)", &CostInputs::BitCost},
    {"Header cost ($/bolt)", &CostInputs::HeaderCost},
    {"Strap/mesh cost ($/row)", &CostInputs::StrapCost},
    {"Number of operators/shift", &CostInputs::NOperShift},
    {"Total labor cost ($/hr)", &CostInputs::TotalLabor},
    {"Hours/shift", &CostInputs::HoursShift},
    {"Preventative maintenance (labor hrs/day)", &CostInputs::MaintainHrs},
    {"Maintenance supply cost ($/yr)", &CostInputs::MaintainCost},
    {"Transportation of supplies ($/shift)", &CostInputs::TranspCost},
    {"Capital cost for machine ($)", &CostInputs::CapitalCost},
    {"Years to depreciate", &CostInputs::YearsDepr},
    {"Number of bolts installed per shift", &CostInputs::NboltsShift},
    {"Number of bolts per row", &CostInputs::NBoltsRow},
    {"Spacing between rows", &CostInputs::RowSpacing, UnitSuffix::Length},
    {"Clean production advance rate", &CostInputs::AdvanceRate, UnitSuffix::ProductionRate},
    {"Input: Clean production per shift", &CostInputs::CleanProduction, UnitSuffix::ProductionMass},
    {"Production shifts/week", &CostInputs::ShiftsWeek},
    {"Production weeks/year", &CostInputs::WeeksYear},
});

// A number of the dialog that the cost is not computed from.
inline constexpr CostInputRow AdvanceShiftRow{"Input: Advance per shift", &CostInputs::AdvanceShift,
                                              UnitSuffix::Length};

// Returns the row of a number. An unknown number does not compile.
consteval const CostInputRow& CostRowOf(Single CostInputs::*value) {
  return *std::ranges::find(CostInputRows, value, &CostInputRow::Value);
}

}  // namespace orby
