// What may be changed in the pattern of a support, and the steps in which it can be built.
//
// The catalogs must have the bolt table of the project. Lengths and spacings are in ft (m).
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "studies/studied_support.h"

namespace orby {

enum class Lever : std::uint8_t {
  Spacing,   // of rows in entries, in 0.1 ft (5 cm)
  Number,    // whole: in a row, or in the whole intersection
  Length,    // roof bolts: the stocked lengths; cables: whole feet (half metres)
  Item,      // a row of the bolt table, a cable or a standing support of the catalog
  Diameter,  // of a manual selection of bolts, from the catalog; its grade stays the same
  Grade,     // likewise
};
inline constexpr std::size_t LeverCount = 6;

// Returns the levers of a support in this design. Trusses have only their spacing or number. Diameter and Grade are
// those of a manual selection. The bolts of an intersection have neither, because OK replaces their manual selection by
// that of the entries.
std::vector<Lever> LeversOf(const RoofSupport& design, const StudiedSupport& support);

// A pattern of one support. A support without a lever ignores its member.
struct Pattern {
  std::optional<std::size_t> Item = std::nullopt;  // nothing: other numbers than an item has; they are kept
  Single Length = 0;
  Single Number = 0;
  Single Spacing = 0;
  bool operator==(const Pattern&) const = default;
};

Pattern PatternOf(const Design& design, const Catalogs& catalogs, const StudiedSupport& support);

// Sets the levers of a support. The design is then as the fields of the dialog hold it after these values were typed
// and chosen. A standing support has the capacity of the catalog, also if its name was chosen before with another one:
// choosing the same name again would not change that.
void SetPattern(Design& design, const Catalogs& catalogs, const StudiedSupport& support, const Pattern& pattern);

// Returns the number of rows, cables or standing supports to choose from. 0 for trusses.
std::size_t ItemCount(const Catalogs& catalogs, UnitSystem units, const StudiedSupport& support);

// Returns the name of an item, as price lists have it: a bolt's name, a cable's diameter, a standing support's type.
// Empty for trusses.
std::string ItemName(const Catalogs& catalogs, UnitSystem units, const StudiedSupport& support,
                     std::optional<std::size_t> item);

struct LeverRange {
  Single From = 0;
  Single To = 0;
  bool operator==(const LeverRange&) const = default;
};

// The patterns that a search goes through. All items are among them.
struct PatternLimits {
  LeverRange Length;
  LeverRange Number;
  LeverRange Spacing;
  bool operator==(const PatternLimits&) const = default;
};

// Returns the limits with which a search begins. The length of cables is the present one, or if that lacks anchorage
// the shortest that has it: prices do not depend on it.
PatternLimits UsualLimits(const RoofSupport& design, const StudiedSupport& support);

// Returns the widest limits. A change beyond them is not sensible.
PatternLimits WidestLimits(UnitSystem units, const StudiedSupport& support);

// Returns the first lever whose limits are not within the widest ones, or contain no value that can be built.
std::optional<Lever> FaultOf(const PatternLimits& limits, UnitSystem units, const PriceList& prices,
                             const StudiedSupport& support);

}  // namespace orby
