// The calculation sheet: how every figure of a design is computed, step by step, as a value. Texts, pages and files are
// made of it elsewhere.
//
// A step applies one relation to numbers. Inputs are inserted with their own text, results of other steps with seven
// digits.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "engine/analysis.h"
#include "engine/verdicts.h"
#include "sheet/relations.h"

namespace orby {

// A symbol with its number, as it is inserted in a formula.
struct InsertedNumber {
  std::string_view Letter;
  std::string_view Meaning;
  std::string_view Unit;
  double Value = 0;
  std::string Text;
};

// A result as the program shows it.
struct ShownResult {
  std::string_view Where;  // "report", "dialog", "report and dialog"
  std::string Text;        // with the unit: "63.2 ft"
};

struct SheetStep {
  std::string Title;              // "Yield capacity of a primary bolt"
  const Relation* Law = nullptr;  // none: the number is looked up or chosen, and the notes say how
  std::vector<InsertedNumber> Numbers;
  std::string_view Letter;  // of the result
  std::string_view Unit;    // of the result
  std::optional<double> Value;
  std::string Text;     // of the value, seven digits
  std::string Failure;  // why there is no value
  std::vector<ShownResult> Shown;
  std::vector<std::string> Notes;
  std::optional<Single> Figure;  // what the engine has computed for it, if the engine gives it
};

// A number, choice or text of the design.
struct SheetInput {
  std::string_view Label;
  std::string Text;
  std::string_view Unit;
  std::string Source;  // "typed", "row 3 of the bolt table"
};

struct SheetJudgement {
  Verdict Judged;
  std::string Line;  // "Short: actual PSUP 5.6 of the suggested 11.8, short by 53 %"
};

struct SheetTable {
  std::vector<std::string> Heads;
  std::vector<std::vector<std::string>> Rows;  // the first cell of a row names it
  bool LastIsTotal = false;                    // of the rows above it
};

struct SheetRemark {
  std::string Text;
};

using SheetPart = std::variant<SheetInput, SheetStep, SheetJudgement, SheetTable, SheetRemark>;

struct SheetSection {
  std::string_view Key;  // of anchors: "primary-psup"
  std::string Title;
  std::vector<SheetPart> Parts;
};

// What a sheet says of the project besides its design.
struct SheetProject {
  std::string File;
  std::string Title;
  std::string Description;
  std::string Sum;  // SHA-256 of the bytes that saving writes
};

struct DesignSheet {
  SheetProject Project;
  UnitSystem Units = English;
  StrengthBasis Basis = StrengthBasis::Yield;
  std::vector<SheetSection> Sections;
};

// The designs that a sheet speaks of. The report takes some figures from the one that its preview makes.
struct SheetDesigns {
  const Design& Shown;      // as the parameters dialog opens on it
  const Design& Previewed;  // as Results takes it from there
  const Design& New;        // of a new project in the same units; an input that equals its own may be a default
};

// Returns the sheet. What cannot be computed stands in its steps; never throws a RuntimeError for it.
DesignSheet CalculationSheet(const SheetDesigns& designs, const SheetProject& project, const Catalogs& catalogs);

}  // namespace orby
