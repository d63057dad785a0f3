// Designs side by side: the inputs that differ between them, their figures and their judgements.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/verdicts.h"
#include "tables/column.h"

namespace orby {

inline constexpr std::size_t FewestCompared = 2;
inline constexpr std::size_t MostCompared = 8;

// The word beside the best of a row.
inline constexpr std::string_view BestWord = "best";

// The keys of the rows that say which design it is. Windows and pages show them apart from the table.
inline constexpr std::array<std::string_view, 3> IdentityKeys{"file", "title", "reason"};

struct ComparedDesign {
  std::string Name;  // above its column
  TableRow Row;
};

struct ComparedCell {
  std::string Text;               // as a table of designs shows it
  std::optional<Cell> Number;     // without a text
  std::optional<Holding> Result;  // of a judgement
  bool IsBest = false;
};

struct ComparedRow {
  std::string Key;   // of the column of a table of designs
  std::string Head;  // with its unit
  std::vector<ComparedCell> Cells;
};

struct ComparedSection {
  std::string_view Title;
  std::vector<ComparedRow> Rows;
};

// A value without a reference to the designs that it was made from.
struct DesignComparison {
  UnitSystem Units = English;
  std::vector<std::string> Names;  // one for each design, each of them once
  std::vector<ComparedSection> Sections;
};

// Compares designs in one unit system. The first section has the file and the title of each design, and the reason of
// one that cannot be read; its other cells are empty. Then follow the inputs that do not have the same text in all
// designs, the figures, and the judgements, each as a table of designs shows it. A figure of the parameters dialog is
// left out if it has the text of the report's figure in all designs.
//
// The best of a row is marked where a direction is better: the greatest capacity and stability factor, the least cost,
// the best result of a judgement. Cells with its text are marked, too. Nothing is marked if all cells have one text.
DesignComparison CompareDesigns(const std::vector<ComparedDesign>& designs, UnitSystem units);

// Returns the text of a cell with the word for the best: "1.52 best".
std::string MarkedText(const ComparedCell& cell);

// Writes the comparison as an .xlsx file with a row for each row and a column for each design. Numbers stay numbers;
// their formats show the word for the best. Replaces an existing file. Throws RuntimeError 75 when the file cannot be
// written.
void WriteComparisonWorkbook(const DesignComparison& comparison, const std::string& path);

}  // namespace orby
