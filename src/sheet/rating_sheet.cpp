// The roof rating that the estimator gives.
#include "base/number_text.h"
#include "engine/estimator.h"
#include "sheet/sheet_parts.h"

namespace orby {

std::optional<RatingEstimate> EstimateOf(const Site& place) {
  const Integer region = place.CMRRRegionIndex;
  const Integer row = place.CMRRRockTypeIndex;
  if (place.CMRRManual == 1 || region < 0 || static_cast<std::size_t>(region) >= RegionNames.size()) return {};
  const auto rocks = RockTypes(region);
  // The last row takes no rating over.
  if (row < 0 || static_cast<std::size_t>(row) + 1 >= rocks.size()) return {};
  const RockType& rock = rocks[static_cast<std::size_t>(row)];
  if (TextValue(rock.CMRR) != place.CMRR) return {};
  return RatingEstimate{RegionNames[static_cast<std::size_t>(region)], rock, rocks.first(rocks.size() - 1)};
}

void AddRoofRating(DesignSheet& sheet, const SheetContext& context) {
  const Site& place = context.Designs.Shown.Place;
  const auto estimate = EstimateOf(place);
  if (!estimate) return;
  SheetWriter writer(sheet, "roof-rating", "Roof rating from the estimator");
  const std::string region(estimate->Region);
  writer.Input("CMRR Region", region, UnitSuffix::None, "estimator");
  writer.Input("CMRR Rock Type", std::string(estimate->Rock.Name), UnitSuffix::None, "estimator");
  writer.Remark("The estimator has one table of ratings for each region. This is that of " + region + ".");
  SheetTable table{{"Rock of the roof", "Row", "CMRR"}, {}, false};
  for (const RockType& rock : estimate->Rocks) {
    table.Rows.push_back({std::string(rock.Name), std::to_string(table.Rows.size() + 1), std::string(rock.CMRR)});
  }
  writer.Table(std::move(table));
  writer.Found("Coal Mine Roof Rating of the region and the rock", {"CMRR", "Coal Mine Roof Rating", SheetUnit::None},
               place.CMRR,
               "Row " + std::to_string(place.CMRRRockTypeIndex + 1) +
                   " of the table: " + std::string(estimate->Rock.Name) + ".");
}

}  // namespace orby
