#include "studies/levers.h"

#include <algorithm>

#include "base/number_text.h"
#include "design/choices.h"
#include "studies/lever_table.h"

namespace orby {
namespace {

std::optional<std::size_t> ItemOf(const CableSelection& cable, UnitSystem units, const Catalogs& catalogs) {
  if (cable.CapMode == CapacityMode::ByDiameter) return OfferedCableDiameters(catalogs, units).FirstPlaceOf(cable.Diam);
  if (cable.Capacity != ValueSource::Standard) return std::nullopt;
  return OfferedCableCapacities(catalogs, units).FirstPlaceOf(cable.CapacityStd);
}

// A new project has a name of the catalog with another capacity.
std::optional<std::size_t> ItemOf(const StandingSelection& standing, UnitSystem units, const Catalogs& catalogs) {
  for (std::size_t i = 0; i < static_cast<std::size_t>(catalogs.StandSupports.HighestIndex + 1); ++i) {
    StandingSelection chosen = standing;
    TakeStandingSupport(chosen, catalogs, units, i);
    if (chosen == standing) return i;
  }
  return std::nullopt;
}

std::optional<std::size_t> ItemOf(const BoltSelection& bolts, const BoltTable& table) {
  const bool isInTable = bolts.TableRow >= 0 && static_cast<std::size_t>(bolts.TableRow) < table.size();
  if (bolts.Options == BoltSource::Manual || !isInTable) return std::nullopt;
  return static_cast<std::size_t>(bolts.TableRow);
}

std::optional<std::size_t> ItemOf(const RoofSupport& design, const Catalogs& catalogs, const StudiedSupport& support) {
  if (const BoltSelection* bolts = BoltsOf(design, support); bolts != nullptr) {
    return ItemOf(*bolts, OfferedBolts(catalogs, design.Units));
  }
  const SecondarySupport& secondary = support.Where == Opening::Entries ? design.Entries : design.Intersections;
  if (support.What == PricedSupport::Cable) return ItemOf(secondary.Cable, design.Units, catalogs);
  if (support.What == PricedSupport::Standing) {
    return ItemOf(secondary.Standing, design.Units, catalogs);
  }
  return std::nullopt;
}

bool IsWithin(const LeverRange& range, const LeverRange& widest) {
  return range.From >= widest.From && range.From <= range.To && range.To <= widest.To;
}

// The shortest length that can be built, has anchorage and is not below the present one.
LeverRange LengthOfCables(const SecondarySupport& support, UnitSystem units, const StudiedSupport& studied,
                          const LeverRange& widest) {
  const double anchorage = AnchorageIn(units).Cables;
  for (const Single length : BuiltValues(studied, Lever::Length, widest, units, {})) {
    if (length >= support.Cable.Length && !IsTooShort(length, anchorage, support.RockLoadHeight)) {
      return {length, length};
    }
  }
  return {widest.To, widest.To};
}

}  // namespace

std::vector<Lever> LeversOf(const RoofSupport& design, const StudiedSupport& support) {
  const SupportLevers& row = LeversInTable(support);
  const BoltSelection* bolts = BoltsOf(design, support);
  const bool isManual =
      bolts != nullptr && bolts->Options == BoltSource::Manual && support.Where != Opening::Intersections;
  std::vector<Lever> levers;
  const auto add = [&](Lever lever, bool isThere) {
    if (isThere) levers.push_back(lever);
  };
  for (const Lever lever : {Lever::Spacing, Lever::Number, Lever::Length}) add(lever, row.Of(lever).Field.has_value());
  add(Lever::Item, support.What != PricedSupport::Truss);
  add(Lever::Diameter, isManual);
  add(Lever::Grade, isManual);
  return levers;
}

Pattern PatternOf(const Design& design, const Catalogs& catalogs, const StudiedSupport& support) {
  const SupportLevers& row = LeversInTable(support);
  const auto number = [&](const NumberLever& lever) { return lever.Field ? lever.Field->In(design) : 0; };
  return {.Item = ItemOf(design, catalogs, support),
          .Length = number(row.Length),
          .Number = number(row.Number),
          .Spacing = number(row.Spacing)};
}

void SetPattern(Design& design, const Catalogs& catalogs, const StudiedSupport& support, const Pattern& pattern) {
  const SupportLevers& row = LeversInTable(support);
  if (pattern.Item) SetItem(design, catalogs, support, *pattern.Item);
  if (row.Length.Field) row.Length.Field->In(design) = pattern.Length;
  if (row.Number.Field) row.Number.Field->In(design) = pattern.Number;
  if (row.Spacing.Field) row.Spacing.Field->In(design) = pattern.Spacing;
}

std::size_t ItemCount(const Catalogs& catalogs, UnitSystem units, const StudiedSupport& support) {
  switch (support.What) {
    case PricedSupport::Bolt: return OfferedBolts(catalogs, units).size();
    case PricedSupport::Cable:
      return std::min(OfferedCableDiameters(catalogs, units).Count(), OfferedCableCapacities(catalogs, units).Count());
    case PricedSupport::Standing: return static_cast<std::size_t>(catalogs.StandSupports.HighestIndex + 1);
    case PricedSupport::Truss: break;
  }
  return 0;
}

std::string ItemName(const Catalogs& catalogs, UnitSystem units, const StudiedSupport& support,
                     std::optional<std::size_t> item) {
  if (!item || *item >= ItemCount(catalogs, units, support)) return {};
  switch (support.What) {
    case PricedSupport::Bolt: return OfferedBolts(catalogs, units)[*item].Name;
    case PricedSupport::Cable: return NumberText(OfferedCableDiameters(catalogs, units)[*item]);
    case PricedSupport::Standing: return catalogs.StandSupports.DefaultStandSupportType[*item];
    case PricedSupport::Truss: break;
  }
  return {};
}

PatternLimits UsualLimits(const RoofSupport& design, const StudiedSupport& support) {
  const SupportLevers& row = LeversInTable(support);
  PatternLimits limits;
  for (const Lever lever : NumberLevers) RangeOf(limits, lever) = row.Of(lever).Limits[PlaceOf(design.Units)].Usual;
  if (support.What == PricedSupport::Cable) {
    const SecondarySupport& secondary = support.Where == Opening::Entries ? design.Entries : design.Intersections;
    limits.Length = LengthOfCables(secondary, design.Units, support, limits.Length);
  }
  return limits;
}

PatternLimits WidestLimits(UnitSystem units, const StudiedSupport& support) {
  const SupportLevers& row = LeversInTable(support);
  PatternLimits limits;
  for (const Lever lever : NumberLevers) RangeOf(limits, lever) = row.Of(lever).Limits[PlaceOf(units)].Widest;
  return limits;
}

std::optional<Lever> FaultOf(const PatternLimits& limits, UnitSystem units, const PriceList& prices,
                             const StudiedSupport& support) {
  const PatternLimits widest = WidestLimits(units, support);
  const SupportLevers& row = LeversInTable(support);
  for (const Lever lever : NumberLevers) {
    if (!row.Of(lever).Field) continue;
    const LeverRange& range = RangeOf(limits, lever);
    if (!IsWithin(range, RangeOf(widest, lever))) return lever;
    if (BuiltValues(support, lever, range, units, prices).empty()) return lever;
  }
  return std::nullopt;
}

}  // namespace orby
