// What a figure of a design depends on, as a text.
#pragma once

#include <string>
#include <string_view>

#include "design/catalog_lists.h"
#include "design/design.h"
#include "sampling/sensitivity.h"

namespace orby {

// Returns how the figure changes when each number of the design in turn is made smaller and larger by this share of it
// (0.1 for 10 %), the number with the greatest effect first, and then the values at which judgements change. Numbers
// that are 0 are left out, because a share of them is no change. Requires the design that the report shows
// (AsReported).
std::string SensitivityText(const Design& design, const Catalogs& catalogs, const StudiedFigure& figure, double share);

// Returns a change of a judgement: "Actual PSUP: holds up to 712 ft, then short".
std::string TurnText(const TurningPoint& turn, std::string_view unit);

}  // namespace orby
