// What a figure of a design depends on, as tables and as a text.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "design/catalog_lists.h"
#include "design/design.h"
#include "reports/design_numbers.h"
#include "sampling/sensitivity.h"

namespace orby {

// Returns how the figure changes when each number of the design in turn is made smaller and larger by this share of it
// (0.1 for 10 %), the number with the greatest effect first, and then the values at which judgements change. Numbers
// that are 0 are left out, because a share of them is no change. Requires the design that the report shows
// (AsReported).
std::string SensitivityText(const Design& design, const Catalogs& catalogs, const StudiedFigure& figure, double share);

// A number of the design and what the figure does when it varies.
struct NumberEffect {
  const DesignNumber* Number = nullptr;
  SensitivityRow Row;
};

struct FigureEffects {
  FigureValue AtDesign;
  std::vector<NumberEffect> Numbers;
};

// Returns the figure of the design, and the numbers in use with their effects on it, in the order of the report.
// `ranges` replaces that of a share for some of them. Numbers that are 0 are left out unless they have a range, because
// a share of them is no change.
using GivenRanges = std::map<const DesignNumber*, std::pair<Single, Single>>;
FigureEffects EffectsOn(const Design& design, const Catalogs& catalogs, const StudiedFigure& figure, double share,
                        const GivenRanges& ranges = {});

// Returns the places of the effects, the greatest first. Equal ones keep their order.
std::vector<std::size_t> GreatestFirst(const std::vector<NumberEffect>& effects);

// Returns true if the figure is the same at both ends.
bool HasNoEffect(const NumberEffect& effect);

// Returns the cells of a row of a table with these heads.
inline constexpr std::array<std::string_view, 7> EffectHeads{"Number", "Value",   "Low",  "High",
                                                             "At low", "At high", "Swing"};
std::vector<std::string> CellsOf(const NumberEffect& effect, const Design& design);

// Returns the figure as these tables show it, or "--".
std::string EffectText(const FigureValue& value);

// Returns "Suggested bolt length (ft)".
std::string NameOf(const StudiedFigure& figure, UnitSystem units);

// Returns where judgements change when the number varies: "Depth of Cover: Actual PSUP: holds up to 712 ft, then
// short".
std::vector<std::string> TurnLines(const NumberEffect& effect, UnitSystem units);

// Returns the result of a judgement within a sentence: "holds", "to check", "cannot be computed" or "short".
std::string_view StateText(Holding result);

// Returns a change of a judgement: "Actual PSUP: holds up to 712 ft, then short".
std::string TurnText(const TurningPoint& turn, std::string_view unit);

}  // namespace orby
