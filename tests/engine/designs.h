// The built-in lists and the designs of a new project, for the tests of this folder.
#pragma once

#include "design/catalogs.h"
#include "design/design.h"
#include "design/units.h"
#include "engine/formulas.h"

namespace orby::test {

inline constexpr StrengthBasis Yield = StrengthBasis::Yield;
inline constexpr StrengthBasis Ultimate = StrengthBasis::Ultimate;

inline Catalogs BuiltInLists() {
  Catalogs lists;
  SetBuiltInCatalogs(lists);
  return lists;
}

// Returns a basis with the built-in lists.
inline GradeBasis Grades(StrengthBasis strengthMode) {
  static const Catalogs lists = BuiltInLists();
  return {strengthMode, lists};
}

inline Design EnglishDesign() {
  Design design;
  design.Place.CMRR = 45;
  design.Place.DepthofCover = 400;
  design.Place.UnitWeight = 162;
  design.Place.ActualSpanDiagonals = 60;
  design.Place.EntryWidth = 20;
  design.Primary.StabilityFactor = 1;
  design.Entries.RockLoadHeight = 8;
  design.Entries.RockFallAngle = 30;
  return design;
}

inline Design MetricDesign() {
  Design design;
  design.Units = Metric;
  design.Place.CMRR = 45;
  design.Place.DepthofCover = 150;
  design.Place.UnitWeight = 25;
  design.Place.ActualSpanDiagonals = 20;
  design.Place.EntryWidth = 6.2F;
  design.Primary.StabilityFactor = 1;
  design.Entries.RockLoadHeight = 3;
  design.Entries.RockFallAngle = 30;
  return design;
}

// Returns a design with all analyses and all systems in use.
inline Design FullDesign() {
  Design design = EnglishDesign();
  design.Primary.Analysed = design.Entries.Analysed = design.Intersections.Analysed = 1;
  for (BoltSelection* set : design.BoltSets()) {
    set->Options = BoltSource::Manual;
    set->Length = 6;
    set->DiameterStd = 0.75F;
    set->GradeStd = 75;
    set->BoltsperRow = 4;
    set->RowSpacing = 4;
    set->Number = 10;
  }
  for (SecondarySupport* support : {&design.Entries, &design.Intersections}) {
    for (SupportSystem* system : support->Systems()) system->Use = 1;
    support->RockLoadHeight = 8;
    support->RockFallAngle = support->RockFallAngleXcut = 30;
    support->Cable.Length = 10;
    support->Cable.CapMode = CapacityMode::Given;
    support->Cable.CapacityStd = 27;
    support->Cable.BoltsPerRow = 2;
    support->Cable.RowSpacing = 5;
    support->Cable.Number = 10;
    support->Truss.Angle = 45;
    support->Truss.Capacity = 30;
    support->Truss.Spacing = support->Truss.Number = 4;
    support->Standing.Capacity = 50;
    support->Standing.NumberPerRow = 2;
    support->Standing.RowSpacing = 8;
    support->Standing.Number = 4;
  }
  return design;
}

}  // namespace orby::test
