#include "studies/lever_table.h"

#include <algorithm>
#include <cmath>

#include "base/arithmetic.h"
#include "base/computed.h"
#include "design/choices.h"
#include "engine/analysis.h"

namespace orby {
namespace {

using S = PricedSupport;

constexpr StudiedSupport InEntries(S what) { return {Opening::Entries, what}; }
constexpr StudiedSupport InIntersections(S what) { return {Opening::Intersections, what}; }

constexpr NumberLever None{};

// The same numbers in both unit systems.
constexpr NumberLever Count(SingleField field, LeverRange usual, LeverRange widest) {
  return {field, {{{usual, widest}, {usual, widest}}}};
}

// The widest lengths of roof bolts end where the parameters dialog refuses them.
constexpr NumberLever BoltLengths(SingleField field) {
  constexpr LeverRange Feet{1, 10};
  constexpr LeverRange Metres{0.3F, 3.3F};
  return {field, {{{Feet, Feet}, {Metres, Metres}}}};
}

constexpr NumberLever CableLengths(SingleField field) {
  constexpr LeverRange Feet{4, 60};
  constexpr LeverRange Metres{1, 18};
  return {field, {{{Feet, Feet}, {Metres, Metres}}}};
}

constexpr NumberLever Spacings(SingleField field, LeverRange usualFeet, LeverRange usualMetres) {
  return {field, {{{usualFeet, {1, 20}}, {usualMetres, {0.3F, 6}}}}};
}

const SupportLevers Table[] = {
    {{Opening::Primary, S::Bolt},
     BoltLengths([](auto& d) { return &d.Primary.Length; }),
     Count([](auto& d) { return &d.Primary.BoltsperRow; }, {3, 8}, {1, 10}),
     Spacings([](auto& d) { return &d.Primary.RowSpacing; }, {2, 6}, {0.6F, 1.8F})},
    {InEntries(S::Cable), CableLengths([](auto& d) { return &d.Entries.Cable.Length; }),
     Count([](auto& d) { return &d.Entries.Cable.BoltsPerRow; }, {1, 6}, {1, 10}),
     Spacings([](auto& d) { return &d.Entries.Cable.RowSpacing; }, {2, 12}, {0.6F, 3.6F})},
    {InEntries(S::Truss), None, None,
     Spacings([](auto& d) { return &d.Entries.Truss.Spacing; }, {2, 12}, {0.6F, 3.6F})},
    {InEntries(S::Bolt), BoltLengths([](auto& d) { return &d.Entries.Bolt.Length; }),
     Count([](auto& d) { return &d.Entries.Bolt.BoltsperRow; }, {1, 8}, {1, 10}),
     Spacings([](auto& d) { return &d.Entries.Bolt.RowSpacing; }, {2, 8}, {0.6F, 2.4F})},
    {InEntries(S::Standing), None, Count([](auto& d) { return &d.Entries.Standing.NumberPerRow; }, {1, 4}, {1, 10}),
     Spacings([](auto& d) { return &d.Entries.Standing.RowSpacing; }, {2, 16}, {0.6F, 4.8F})},
    {InIntersections(S::Cable), CableLengths([](auto& d) { return &d.Intersections.Cable.Length; }),
     Count([](auto& d) { return &d.Intersections.Cable.Number; }, {1, 40}, {1, 100}), None},
    {InIntersections(S::Truss), None, Count([](auto& d) { return &d.Intersections.Truss.Number; }, {1, 20}, {1, 100}),
     None},
    {InIntersections(S::Bolt), BoltLengths([](auto& d) { return &d.Intersections.Bolt.Length; }),
     Count([](auto& d) { return &d.Intersections.Bolt.Number; }, {1, 60}, {1, 100}), None},
    {InIntersections(S::Standing), None,
     Count([](auto& d) { return &d.Intersections.Standing.Number; }, {1, 20}, {1, 100}), None},
};

SecondarySupport& At(RoofSupport& design, Opening where) {
  return where == Opening::Entries ? design.Entries : design.Intersections;
}

const SecondarySupport& At(const RoofSupport& design, Opening where) {
  return where == Opening::Entries ? design.Entries : design.Intersections;
}

// Steps per foot or metre, or per piece. Each value is the number that its decimal text stands for.
int StepsPerUnit(const StudiedSupport& support, Lever lever, UnitSystem units) {
  if (lever == Lever::Spacing) return units == Metric ? 20 : 10;
  if (lever == Lever::Length && support.What == S::Cable) return units == Metric ? 2 : 1;
  return 1;
}

std::vector<Single> Steps(const LeverRange& range, int perUnit) {
  std::vector<Single> values;
  for (int step = static_cast<int>(std::floor(static_cast<double>(range.From) * perUnit));; ++step) {
    const Single value = ToSingle(static_cast<double>(step) / perUnit);
    if (value > range.To) return values;
    if (value >= range.From) values.push_back(value);
  }
}

// OK replaces the diameter of cables in intersections by that of the entries, so they are chosen by capacity. So are
// all cables of Metric designs.
void TakeCable(Design& design, const Catalogs& catalogs, Opening where, std::size_t item) {
  CableSelection& cable = At(design, where).Cable;
  if (design.Units == Metric || where == Opening::Intersections) {
    cable.CapMode = CapacityMode::Given;
    cable.Capacity = ValueSource::Standard;
    cable.CapacityStd = InSevenDigits(OfferedCableCapacities(catalogs, design.Units)[item]);
  } else {
    cable.CapMode = CapacityMode::ByDiameter;
    cable.Diam = InSevenDigits(OfferedCableDiameters(catalogs, design.Units)[item]);
  }
}

}  // namespace

const NumberLever& SupportLevers::Of(Lever lever) const {
  if (lever == Lever::Length) return Length;
  return lever == Lever::Number ? Number : Spacing;
}

const SupportLevers& LeversInTable(const StudiedSupport& support) {
  return *std::ranges::find(Table, support, &SupportLevers::Support);
}

const BoltSelection* BoltsOf(const RoofSupport& design, const StudiedSupport& support) {
  if (support.What != S::Bolt) return nullptr;
  if (support.Where == Opening::Primary) return &design.Primary;
  return &At(design, support.Where).Bolt;
}

BoltSelection* BoltsOf(RoofSupport& design, const StudiedSupport& support) {
  if (support.What != S::Bolt) return nullptr;
  if (support.Where == Opening::Primary) return &design.Primary;
  return &At(design, support.Where).Bolt;
}

const LeverRange& RangeOf(const PatternLimits& limits, Lever lever) {
  if (lever == Lever::Length) return limits.Length;
  return lever == Lever::Number ? limits.Number : limits.Spacing;
}

LeverRange& RangeOf(PatternLimits& limits, Lever lever) {
  if (lever == Lever::Length) return limits.Length;
  return lever == Lever::Number ? limits.Number : limits.Spacing;
}

std::vector<Single> BuiltValues(const StudiedSupport& support, Lever lever, const LeverRange& range, UnitSystem units,
                                const PriceList& prices) {
  if (lever != Lever::Length || support.What != S::Bolt) return Steps(range, StepsPerUnit(support, lever, units));
  std::vector<Single> stocked;
  std::ranges::copy_if(prices.BoltLengths, std::back_inserter(stocked),
                       [&](Single length) { return length >= range.From && length <= range.To; });
  return stocked;
}

std::vector<std::size_t> BuiltItems(const Catalogs& catalogs, UnitSystem units, const StudiedSupport& support) {
  std::vector<std::size_t> items;
  for (std::size_t i = 0; i < ItemCount(catalogs, units, support); ++i) {
    // The parameters dialog refuses a standing support without a name.
    if (!ItemName(catalogs, units, support, i).empty()) items.push_back(i);
  }
  return items;
}

void SetItem(Design& design, const Catalogs& catalogs, const StudiedSupport& support, std::size_t item) {
  if (BoltSelection* bolts = BoltsOf(design, support); bolts != nullptr) {
    bolts->Options = BoltSource::Table;
    TakeTableRow(*bolts, OfferedBolts(catalogs, design.Units), static_cast<Integer>(item));
  } else if (support.What == S::Cable) {
    TakeCable(design, catalogs, support.Where, item);
  } else if (support.What == S::Standing) {
    TakeStandingSupport(At(design, support.Where).Standing, catalogs, design.Units, item);
  }
}

double StrengthOf(const RoofSupport& design, const Catalogs& catalogs, const StudiedSupport& support) {
  if (const BoltSelection* bolts = BoltsOf(design, support); bolts != nullptr) {
    const Bolt bolt = SelectedBolt(*bolts);
    return static_cast<double>(bolt.Grade) * bolt.Diameter * bolt.Diameter;
  }
  const SecondarySupport& secondary = At(design, support.Where);
  if (support.What == S::Cable) {
    return Attempt([&] { return CapacityOf(secondary.Cable, design.Units, catalogs); }).ValueOr(0);
  }
  return secondary.Standing.Capacity;
}

}  // namespace orby
