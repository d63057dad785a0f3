// The parts of a sheet, each with sections of its own.
#pragma once

#include <span>

#include "engine/estimator.h"
#include "sheet/sheet_writer.h"

namespace orby {

struct SheetContext {
  const SheetDesigns& Designs;
  const Catalogs& catalogs;
  Figures Live;      // of the shown design
  Figures Reported;  // of the previewed design
  Verdicts Judged;   // of the shown design
};

// A bolt in the units of the relations.
struct WorkingBoltNumbers {
  SheetNumber Diameter;  // in
  SheetNumber Grade;     // ksi
};

// ---- steps that several parts share --------------------------------------------------------------------------------

// Returns a length of the design in feet. Adds a step in a Metric design.
SheetNumber InFeetStep(SheetWriter& writer, const std::string& name, Single length);
WorkingBoltNumbers InInchesAndKsi(SheetWriter& writer, const std::string& bolt, const BoltSelection& set);

// Return the other strength of a grade in ksi: the pair of the catalog, or a step of the relation.
SheetNumber YieldStep(SheetWriter& writer, const std::string& bolt, const SheetNumber& grade, const Catalogs& catalogs);
SheetNumber UltimateStep(SheetWriter& writer, const std::string& bolt, const SheetNumber& grade,
                         const Catalogs& catalogs);

// A row of the estimator's table of a region.
struct RatingEstimate {
  std::string_view Region;
  RockType Rock;
  std::span<const RockType> Rocks;  // of the region, those that give a rating
};

// Returns the row that the roof rating of a design comes from: that of its region and rock type, if the rating is that
// of the row and is not set manually.
std::optional<RatingEstimate> EstimateOf(const Site& place);

// Adds the judgements of these aspects in an opening.
void AddJudgements(SheetWriter& writer, const Verdicts& judged, Opening where, std::initializer_list<Aspect> aspects);

// Checks the capacity of one bolt against the standard.
void StandardCheck(SheetWriter& writer, const std::string& bolt, const WorkingBoltNumbers& working);

// ---- parts ---------------------------------------------------------------------------------------------------------

void AddInputs(DesignSheet& sheet, const SheetContext& context);
// Adds a section if the roof rating comes from the estimator.
void AddRoofRating(DesignSheet& sheet, const SheetContext& context);
void AddPrimarySupport(DesignSheet& sheet, const SheetContext& context);
void AddEntrySupport(DesignSheet& sheet, const SheetContext& context);
void AddIntersectionSupport(DesignSheet& sheet, const SheetContext& context);
void AddCost(DesignSheet& sheet, const SheetContext& context);

}  // namespace orby
