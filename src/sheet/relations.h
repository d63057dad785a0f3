// The relations of the engine as data: one description for each formula that gives a figure. Property tests hold that
// each description gives what the engine computes.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "design/units.h"
#include "sheet/expression.h"

namespace orby {

// Units of symbols. The first ones are the same in every design, the others are those of the design.
enum class SheetUnit : std::uint8_t {
  None,
  OfTheStep,  // one formula serves numbers of different kinds, each step names the unit
  Degrees,
  LengthInFeet,
  DiameterInInches,
  StressInKsi,
  StressInMPa,
  ForceInKips,
  ForceInTons,
  Dollars,
  Length,
  Diameter,
  Stress,
  Force,
  LineLoad,
  UnitWeight,
  Area,
  Volume,
  DollarsPerLength,
  ProductionRate,
  Production,
};

// Returns the name of a unit in a unit system: "ft". Empty for None.
std::string_view UnitText(SheetUnit unit, UnitSystem units);

struct SymbolMeaning {
  std::string_view Letter;  // with the index after "_": "s_min"
  std::string_view Meaning;
  SheetUnit Unit = SheetUnit::None;
};

enum class Law : std::uint8_t {
  FeetFromMetres,
  MetresFromFeet,
  InchesFromMillimetres,
  KsiFromMPa,
  TonsFromKilonewtons,
  KipsFromTons,
  TonsFromKips,
  SuggestedSpan,
  SmallestSpan,
  SpanRatio,
  SupportDemand,
  SuggestedPsup,
  DepthLogarithm,
  RoofWeakness,
  SuggestedLength,
  UltimateGrade,
  YieldGrade,
  YieldGradeInMPa,
  BoltCapacity,
  BoltCapacityInKilonewtons,
  StandardCapacity,
  StandardCapacityInKilonewtons,
  SupportDensity,
  DensityIndex,
  CableDensityIndex,
  HighestEntryRock,
  TopWidth,
  RockSection,
  RockLoad,
  RockLoadInKilonewtons,
  SideOfSquare,
  HeightLimit,
  LimitedHeight,
  RockVolume,
  CountedInEntry,
  CountedInIntersection,
  TrussesInEntry,
  TrussesInIntersection,
  BoltsInEntry,
  BoltsInEntryInKilonewtons,
  BoltsInIntersection,
  BoltsInIntersectionInKilonewtons,
  StabilityFactor,
  ShiftsPerYear,
  Consumables,
  OperatingLabor,
  Maintenance,
  Transportation,
  Ownership,
  Advance,
  CleanProduction,
  CostPerAdvance,
  CostPerShift,
  CostPerTon,
  TotalCost,
};

struct Relation {
  Law What{};
  std::string_view Key;   // of anchors and of the JSON: "suggested-span"
  std::string_view Name;  // "Suggested sum of the diagonals"
  SymbolMeaning Result;
  std::vector<SymbolMeaning> Symbols;  // in the order of the formula
  Expression Formula;
  bool IsRounded = true;                            // to the precision of a Single
  std::string_view Validity;                        // where the formula holds, in words; empty: everywhere
  std::string_view HelpPage;                        // "relation-psup.html#span"
  std::optional<UnitSystem> OnlyIn = std::nullopt;  // designs in other units do not use it
};

// All relations, in the order of Law.
std::span<const Relation> Relations();

const Relation& RelationOf(Law what);

}  // namespace orby
