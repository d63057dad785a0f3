// What the tests of this folder share: the built-in lists and the design that a new project starts with.
#pragma once

#include "catalogs/catalogs.h"
#include "core/project_record.h"
#include "core/units.h"
#include "engine/formulas.h"

namespace orby::test {

inline constexpr Integer Yield = 0;
inline constexpr Integer Ultimate = 1;

inline Catalogs BuiltInLists() {
  Catalogs lists;
  SetBuiltInCatalogs(lists);
  return lists;
}

// Grades as yield or as ultimate strengths, by the built-in lists.
inline GradeBasis Grades(Integer strengthMode) {
  static const Catalogs lists = BuiltInLists();
  return {strengthMode, lists};
}

inline ProjectRecord EnglishDesign() {
  ProjectRecord design;
  design.CMRR = 45;
  design.DepthofCover = 400;
  design.UnitWeight = 162;
  design.ActualSpanDiagonals = 60;
  design.EntryWidth = 20;
  design.StabilityFactor = 1;
  design.RockLoadHeight = 8;
  design.RockFallAngle = 30;
  return design;
}

inline ProjectRecord MetricDesign() {
  ProjectRecord design;
  design.CMRR = 45;
  design.DepthofCover = 150;
  design.UnitWeight = 25;
  design.ActualSpanDiagonals = 20;
  design.EntryWidth = 6.2F;
  design.StabilityFactor = 1;
  design.RockLoadHeight = 3;
  design.RockFallAngle = 30;
  return design;
}

}  // namespace orby::test
