// The result of a study as texts.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "design/units.h"
#include "sampling/study_run.h"

namespace orby {

// Returns the name of a judgement with its place: "Cable bolts, entries". Those of primary support have no place.
std::string VerdictName(const StudiedVerdict& verdict);

// Returns the result of a judgement in a table: "holds", "check", "short", or "--" if it could not be made.
std::string_view ResultWord(Holding result);

// The percentiles of the figures in files.
inline constexpr std::array WrittenPercentiles{1, 5, 10, 25, 50, 75, 90, 95, 99};

// Returns a whole number with commas: "1,000,000".
std::string CountWithCommas(std::uint64_t count);

// Returns tables to read: the probability that each judgement falls short, the figures in the units of the design, and
// their rank correlations with the inputs.
std::string StudyText(const StudyResult& result, const Study& study, UnitSystem units);

// Returns a line "kind,item,quantity,value" for each number, with all its digits, after a line with these four words.
std::string StudyCsv(const StudyResult& result, const Study& study);

}  // namespace orby
