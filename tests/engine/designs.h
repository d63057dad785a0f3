// What the tests of this folder share: the built-in lists and the design that a new project starts with.
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

// Grades as yield or as ultimate strengths, by the built-in lists.
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

}  // namespace orby::test
