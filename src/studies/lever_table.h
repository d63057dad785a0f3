// The levers of each support as a table: their fields, the numbers that can be built, and how each is set.
#pragma once

#include <array>
#include <vector>

#include "design/field.h"
#include "studies/levers.h"

namespace orby {

struct LeverLimits {
  LeverRange Usual;
  LeverRange Widest;
};

// A lever whose value is a number of a field.
struct NumberLever {
  std::optional<SingleField> Field;     // nothing: the support has no such lever
  std::array<LeverLimits, 2> Limits{};  // by unit system
};

struct SupportLevers {
  StudiedSupport Support;
  NumberLever Length;
  NumberLever Number;
  NumberLever Spacing;

  const NumberLever& Of(Lever lever) const;  // Length, Number or Spacing
};

inline constexpr Lever NumberLevers[] = {Lever::Length, Lever::Number, Lever::Spacing};

const SupportLevers& LeversInTable(const StudiedSupport& support);

// The bolts, or nothing for other supports.
BoltSelection* BoltsOf(RoofSupport& design, const StudiedSupport& support);
const BoltSelection* BoltsOf(const RoofSupport& design, const StudiedSupport& support);

const LeverRange& RangeOf(const PatternLimits& limits, Lever lever);
LeverRange& RangeOf(PatternLimits& limits, Lever lever);

// Returns the values within a range that can be built, ascending.
std::vector<Single> BuiltValues(const StudiedSupport& support, Lever lever, const LeverRange& range, UnitSystem units,
                                const PriceList& prices);

// Returns the indices of the items that can be chosen.
std::vector<std::size_t> BuiltItems(const Catalogs& catalogs, UnitSystem units, const StudiedSupport& support);

void SetItem(Design& design, const Catalogs& catalogs, const StudiedSupport& support, std::size_t item);

// Returns a number by which items are compared: of bolts the load of one, of others the capacity.
double StrengthOf(const RoofSupport& design, const Catalogs& catalogs, const StudiedSupport& support);

}  // namespace orby
