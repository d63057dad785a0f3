// Judgements in words, as the dialog, the main window and tables show them.
#pragma once

#include <string>

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

}  // namespace orby
