// Judgements in words, as the dialog, the main window and tables show them.
#pragma once

#include <string>
#include <string_view>

#include "base/number_text.h"
#include "base/unit_suffix.h"
#include "engine/verdicts.h"

namespace orby {

// Returns what is demanded and supplied, with units, and by how much it falls short:
// "5.6 of the suggested 11.8, short by 53 %".
std::string VerdictFigures(const Verdict& verdict, UnitSystem units);

// Returns the result, what is judged and its figures in one line: "Short: actual PSUP 5.6 of the suggested 11.8, short
// by 53 %".
std::string VerdictLine(const Verdict& verdict, UnitSystem units);

// A judgement as a row of a table. Supply and limit are empty if it cannot be made.
struct VerdictCells {
  std::string Subject;  // "Actual PSUP"
  std::string Supply;   // "5.6"
  std::string Limit;    // "at least 11.8"
  std::string Result;   // "Short, short by 53 %"
};
VerdictCells CellsOf(const Verdict& verdict, UnitSystem units);

// Returns how many judgements have each result, the worst first: "2 short, 1 to check, 5 hold".
std::string VerdictCounts(const Verdicts& verdicts);

// ---- names ---------------------------------------------------------------------------------------------------------

// Each returns a name in files, which never changes: "psup", "bolt-capacity"; "primary", "entries" or "intersections";
// "holds", "check", "uncomputed" or "short".
std::string_view AspectKey(Aspect what);
std::string_view OpeningKey(Opening where);
std::string_view HoldingKey(Holding result);

// Returns the name of a judgement apart from its place, different for each one: "Actual PSUP".
std::string_view AspectName(Aspect what);

// Returns " in entries", " in intersections", or an empty text for primary support.
std::string_view PlaceText(Opening where);

// ---- parts of these texts ------------------------------------------------------------------------------------------

// Returns the result in a word or two: "Holds".
std::string_view HoldingWord(Holding result);

// Returns the unit of demand and supply, or None.
UnitSuffix VerdictUnit(Aspect what, Opening where);

// Returns how demand and supply are written. Two numbers that differ have as many decimals as it takes to see it.
NumberPattern VerdictPattern(const Verdict& verdict);

// What a share below one percent reads as.
inline constexpr std::string_view LessThanOne = "less than 1";

}  // namespace orby
