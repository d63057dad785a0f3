#include "sheet/sheets.h"

#include <algorithm>
#include <stdexcept>

#include "base/text.h"
#include "files/new_project.h"

namespace orby::test {

Design DesignsOfSheets::Next() {
  Design design = usual_.Next();
  for (SecondarySupport* support : {&design.Entries, &design.Intersections}) {
    for (SupportSystem* system : support->Systems()) system->Use = OneIn(4) ? 0 : 1;
    if (OneIn(8)) support->RockLoadHeight = Between(0, 60);
    if (OneIn(8)) support->RockFallAngle = Between(-5, 95);
    if (OneIn(8)) support->RockFallAngleXcut = Between(-5, 95);
    if (OneIn(16)) support->RockFallAngle = 0;
    if (OneIn(16)) support->RockFallAngleXcut = 0;
    if (OneIn(16)) support->Analysed = 0;
    if (OneIn(16)) support->Standing.RowSpacing = 0;
    if (OneIn(16)) support->Cable.RowSpacing = 0;
    if (OneIn(16)) support->Truss.Spacing = 0;
    if (OneIn(16)) support->Bolt.RowSpacing = 0;
    if (OneIn(16)) support->Bolt.BoltsperRow = 0;
  }
  if (OneIn(8)) design.Place.CMRR = static_cast<Single>(std::lround(Between(0, 110)));
  if (OneIn(16)) design.Place.DepthofCover = Between(-20, 20);
  if (OneIn(16)) design.Place.DepthofCover = 0;
  if (OneIn(16)) design.Place.UnitWeight = Between(0, 120);
  if (OneIn(16)) design.Place.ActualSpanDiagonals = Between(1, 90);
  if (OneIn(16)) design.Primary.StabilityFactor = Between(0, 2);
  if (OneIn(16)) design.Primary.RowSpacing = 0;
  if (OneIn(16)) design.Primary.Analysed = 0;
  CostInputs& cost = design.Cost;
  for (Single* number : {&cost.BoltCost, &cost.StrapCost, &cost.TranspCost, &cost.AdvanceRate, &cost.CleanProduction}) {
    *number = Between(0, 40);
  }
  for (Single* number : {&cost.NboltsShift, &cost.NBoltsRow, &cost.RowSpacing, &cost.YearsDepr, &cost.ShiftsWeek}) {
    if (OneIn(16)) *number = 0;
  }
  cost.Production = OneIn(2) ? 1 : 0;
  return design;
}

Design NewDesignLike(Design design) {
  FillNewValues(design, DesignDefaults(), Lists());
  return design;
}

double PageTextWidth(const std::string& text, const TextStyle& style) {
  return 0.5 * style.Size * static_cast<double>(CharacterCount(text));
}

SheetOf::SheetOf(const Design& typed)
    : Shown(AsShown(typed, OfferedBolts(Lists(), typed.Units), Lists())),
      Previewed(AsPreviewed(Shown)),
      Made(CalculationSheet({Shown, Previewed, NewDesignLike(Shown)}, {"/designs/panel3.orb", "Panel 3", {}, {}},
                            Lists())) {}

std::vector<const SheetStep*> SheetOf::Steps() const {
  std::vector<const SheetStep*> steps;
  for (const SheetSection& section : Made.Sections) {
    for (const SheetPart& part : section.Parts) {
      if (const auto* step = std::get_if<SheetStep>(&part)) steps.push_back(step);
    }
  }
  return steps;
}

const SheetSection& SheetOf::Section(std::string_view key) const {
  const auto section = std::ranges::find(Made.Sections, key, &SheetSection::Key);
  if (section == Made.Sections.end()) throw std::runtime_error("no section " + std::string(key));
  return *section;
}

const SheetStep& SheetOf::Step(std::string_view section, std::string_view title) const {
  for (const SheetPart& part : Section(section).Parts) {
    const auto* step = std::get_if<SheetStep>(&part);
    if (step != nullptr && step->Title == title) return *step;
  }
  throw std::runtime_error("no step " + std::string(title));
}

}  // namespace orby::test
