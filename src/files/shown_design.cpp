#include "files/shown_design.h"

#include <algorithm>
#include <array>

#include "base/arithmetic.h"
#include "core/catalog_choice.h"
#include "design/choices.h"
#include "engine/analysis.h"
#include "files/project_lines.h"

namespace orby {
namespace {

Single AsTyped(std::string_view text) { return ToSingle(TextValue(text)); }

// Each choice is one of two.
template <class Choice>
bool IsKnown(Choice choice) {
  return choice == Choice{0} || choice == Choice{1};
}

bool HasKnownChoices(const BoltSelection& set) {
  return IsKnown(set.Options) && IsKnown(set.DiameterMode) && IsKnown(set.GradeMode);
}

// In Metric designs the stored way of choosing a cable's capacity does not matter.
bool HasKnownChoices(const SecondarySupport& support, UnitSystem units) {
  return (units == Metric || IsKnown(support.Cable.CapMode)) && IsKnown(support.Cable.Capacity) &&
         IsKnown(support.Standing.TypeMode);
}

void TakeRow(BoltSelection& set, const BoltTable& table) {
  if (table.empty()) return;
  if (set.TableRow < 0 || static_cast<std::size_t>(set.TableRow) >= table.size()) set.TableRow = 0;
  TakeTableRow(set, table, set.TableRow);
}

void TakeOutputs(SecondarySupport& support, const SupportFigures& figures, const NumberPattern& pattern) {
  const std::optional<Single> rockLoad = figures.RockLoad.ValueOr({});
  support.RockLoad = rockLoad ? AsTyped(FormatNumber(*rockLoad, pattern)) : 0;
  const auto systems = support.Systems();
  for (std::size_t i = 0; i < SystemCount; ++i) {
    const auto result = figures.Systems[i].ValueOr({});
    systems[i]->SupportCap = result ? AsTyped(FormatNumber(result->Capacity, pattern)) : 0;
    systems[i]->StabFactor = result ? AsTyped(FormatNumber(result->StabilityFactor, FactorPattern)) : 0;
  }
}

void TakeManual(BoltSelection& set, const BoltSelection& manual) {
  set.DiameterMode = manual.DiameterMode;
  set.DiameterStd = manual.DiameterStd;
  set.DiameterManual = manual.DiameterManual;
  set.GradeMode = manual.GradeMode;
  set.GradeStd = manual.GradeStd;
  set.GradeManual = manual.GradeManual;
}

// Both cable diameters come from the entries tab. The one on the intersections tab serves only the live results.
void TakeCableDiameter(RoofSupport& typed) { typed.Intersections.Cable.Diam = typed.Entries.Cable.Diam; }

}  // namespace

bool HasKnownChoices(const Design& design) {
  return std::ranges::all_of(design.BoltSets(), [](const BoltSelection* set) { return HasKnownChoices(*set); }) &&
         HasKnownChoices(design.Entries, design.Units) && HasKnownChoices(design.Intersections, design.Units);
}

Design InSevenDigits(Design design) {
  for (const ProjectLine& line : ProjectLines) {
    if (const auto* field = std::get_if<SingleField>(&line.Field)) {
      Single& number = field->In(design);
      number = InSevenDigits(number);
    }
  }
  return design;
}

void TakeMetricCables(Design& design) {
  if (design.Units == Metric) design.Entries.Cable.CapMode = design.Intersections.Cable.CapMode = CapacityMode::Given;
}

Design AsShown(const Design& design, const BoltTable& table, const Catalogs& catalogs) {
  if (!HasKnownChoices(design)) throw RuntimeError(error_number::Subscript);
  Design shown = InSevenDigits(design);
  shown.Place.CMRR = ToInteger(shown.Place.CMRR);
  for (BoltSelection* set : shown.BoltSets()) TakeRow(*set, table);
  TakeMetricCables(shown);

  TakeOutputs(shown.Entries, EntryFigures(shown, catalogs), EntryPattern);
  TakeOutputs(shown.Intersections, IntersectionFigures(shown, catalogs), IntersectionPattern);
  return shown;
}

Design AsPreviewed(Design typed) {
  TakeManual(typed.Entries.Bolt, typed.Primary);
  TakeManual(typed.Intersections.Bolt, typed.Primary);
  TakeCableDiameter(typed);
  return typed;
}

Design AsCommitted(Design typed) {
  TakeManual(typed.Intersections.Bolt, typed.Entries.Bolt);
  TakeCableDiameter(typed);
  return typed;
}

// A commit changes only the manual selection of the intersections' bolts and the diameter of their cables.
bool CommitKeepsFigures(const Design& typed) {
  const SecondarySupport& support = typed.Intersections;
  const bool keepsCable =
      support.Cable.CapMode != CapacityMode::ByDiameter || support.Cable.Diam == typed.Entries.Cable.Diam;
  if (support.Bolt.Options != BoltSource::Manual) return keepsCable;
  BoltSelection manual;
  manual.Options = BoltSource::Manual;
  TakeManual(manual, typed.Entries.Bolt);
  const Bolt now = SelectedBolt(support.Bolt);
  const Bolt committed = SelectedBolt(manual);
  return keepsCable && now.Diameter == committed.Diameter && now.Grade == committed.Grade;
}

Design AsOpened(const Project& project, const Catalogs& catalogs) {
  Catalogs offered = catalogs;
  const BoltTable& table = LoadBoltTable(project, offered);
  return AsShown(project.WorkParms, table, offered);
}

Design AsReported(const Project& project, const Catalogs& catalogs) { return AsPreviewed(AsOpened(project, catalogs)); }

}  // namespace orby
