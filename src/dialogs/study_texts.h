// Supports, levers and costs in words, as the studies of a design show them.
#pragma once

#include <string>
#include <string_view>

#include "studies/pattern_cost.h"

namespace orby {

// Says why a study of a project is empty.
inline constexpr std::string_view NothingAnalysed = "The project analyses no support.";

// Returns the place and the kind of a support: "Entries: cable bolts".
std::string SupportText(const StudiedSupport& support);

// Returns the name of a lever: "Row spacing", "Cable bolts per row".
std::string_view LeverText(const StudiedSupport& support, Lever lever);

// Returns the head of a column of that lever's values: "Spacing (ft)", "Per row".
std::string LeverHead(const StudiedSupport& support, Lever lever, UnitSystem units);

// Returns the quantity of a lever's number, whose unit it has. None for Number and Item.
UnitSuffix SuffixOf(Lever lever);

// Returns what the design has at a lever, with its unit: "4.5 ft", "#6 rebar - grade 60".
std::string LeverValueText(const Design& design, const Catalogs& catalogs, const StudiedSupport& support, Lever lever);

// Returns the item of a pattern: a bolt's name, a cable's diameter with its unit, a standing support's type.
std::string ItemText(const Catalogs& catalogs, UnitSystem units, const StudiedSupport& support,
                     std::optional<std::size_t> item);

// Returns the unit of costs in brackets: " ($/ft)", " ($ per intersection)".
std::string CostUnit(const StudiedSupport& support, UnitSystem units);

// Returns the cost with cents, "not priced" or "not computed".
std::string CostText(const PatternCost& cost);

// Returns the judgement that decides on a support: the worst, and of those that hold the one with the least margin.
// Returns the empty text if there is none.
std::string DecidingText(const Assessment& judged, UnitSystem units);

}  // namespace orby
