// The rock that may fall, and the systems that carry it.
#include "sheet/relation_groups.h"

namespace orby {

// NOLINTNEXTLINE(readability-function-size): a table
std::vector<Relation> RockRelations() {
  const Expression width = Symbol("W");
  const Expression height = Symbol("h");
  const Expression angle = Symbol("α");
  const Expression top = Symbol("b");
  const Expression side = Symbol("q");
  const SymbolMeaning Width{"W", "entry width", SheetUnit::Length};
  const SymbolMeaning Height{"h", "rock load height", SheetUnit::Length};
  const SymbolMeaning Angle{"α", "roof fall angle from the vertical", SheetUnit::Degrees};
  const SymbolMeaning Side{"q", "side of the square of the diagonals", SheetUnit::Length};
  const SymbolMeaning Weight{"γ", "unit weight of the rock", SheetUnit::UnitWeight};
  return {
      {Law::HighestEntryRock,
       "highest-entry-rock",
       "Greatest rock height of the fall angle",
       {"h_max", "greatest rock height", SheetUnit::Length},
       {Width, Angle},
       width / 2 / TangentOf(angle),
       true,
       "a fall angle that is not 0",
       "relation-entries.html#load"},
      {Law::TopWidth,
       "top-width",
       "Width of the rock at its top",
       {"b", "width at the top", SheetUnit::Length},
       {{"B", "width at the roof", SheetUnit::Length}, Height, Angle},
       Symbol("B") - 2 * height * TangentOf(angle),
       false,
       "",
       "relation-entries.html#load"},
      {Law::RockSection,
       "rock-section",
       "Section of the rock",
       {"A", "section of the rock", SheetUnit::Area},
       {Width,
        {"b", "width at the top", SheetUnit::Length},
        Height,
        {"h_max", "greatest rock height", SheetUnit::Length}},
       CasesOf({{width * Symbol("h_max") / 2, top < 0}}, (width + top) / 2 * height),
       false,
       "",
       "relation-entries.html#load"},
      {Law::RockLoad,
       "rock-load",
       "Rock load",
       {"Q", "rock load", SheetUnit::OfTheStep},
       {{"A", "section or volume of the rock", SheetUnit::OfTheStep}, Weight},
       Symbol("A") * Symbol("γ") / PoundsPerTon,
       true,
       "",
       "relation-entries.html#load",
       English},
      {Law::RockLoadInKilonewtons,
       "rock-load-in-kn",
       "Rock load",
       {"Q", "rock load", SheetUnit::OfTheStep},
       {{"A", "section or volume of the rock", SheetUnit::OfTheStep}, Weight},
       Symbol("A") * Symbol("γ"),
       true,
       "",
       "relation-entries.html#load",
       Metric},
      {Law::SideOfSquare,
       "side-of-square",
       "Side of the square of the diagonals",
       Side,
       {{"a", "sum of the diagonals", SheetUnit::Length}},
       RootOf(SquareOf(Symbol("a") / 2) / 2),
       false,
       "",
       "relation-intersections.html#load"},
      {Law::HeightLimit,
       "height-limit",
       "Height that a fall angle allows",
       {"h_1", "height that the angle allows", SheetUnit::Length},
       {Side,
        {"α", "fall angle along the entry", SheetUnit::Degrees},
        {"α_i", "fall angle of this limit", SheetUnit::Degrees}},
       CasesOf({{100, IsEqual(Symbol("α_i"), 0)}}, side / (2 * TangentOf(angle))),
       true,
       "",
       "relation-intersections.html#maxheight"},
      {Law::LimitedHeight,
       "limited-height",
       "Limited rock height",
       {"h_max", "rock height within both limits", SheetUnit::Length},
       {Height,
        {"h_1", "limit by the angle along the entry", SheetUnit::Length},
        {"h_2", "limit by the angle along the crosscut", SheetUnit::Length}},
       LeastOf(LeastOf(height, Symbol("h_1")), Symbol("h_2")),
       true,
       "",
       "relation-intersections.html#maxheight"},
      {Law::RockVolume,
       "rock-volume",
       "Volume of the rock",
       {"A", "volume of the rock", SheetUnit::Volume},
       {Side,
        {"b_2", "width at the top along the crosscut", SheetUnit::Length},
        {"b_1", "width at the top along the entry", SheetUnit::Length},
        Height},
       (SquareOf(side) + Symbol("b_2") * Symbol("b_1") + (Symbol("b_2") * side + side * Symbol("b_1")) / 2) * height /
           3,
       false,
       "",
       "relation-intersections.html#load"},
  };
}

// NOLINTNEXTLINE(readability-function-size): a table
std::vector<Relation> SystemRelations() {
  const Expression capacity = Symbol("C");
  const Expression number = Symbol("N");
  const Expression spacing = Symbol("S");
  const Expression diameter = Symbol("d");
  const Expression strength = Symbol("G") * 1000;
  const Expression truss = 2 * capacity * CosineOf(Symbol("β"));
  const Expression bolts = number * (strength / PoundsPerTon) * PiSymbol() * SquareOf(diameter) / 4;
  const Expression metricBolts = number * strength * PiSymbol() * SquareOf(diameter / 1000) / 4;
  const SymbolMeaning InEntry{"R", "capacity of the system", SheetUnit::LineLoad};
  const SymbolMeaning InIntersection{"R", "capacity of the system", SheetUnit::Force};
  const SymbolMeaning Capacity{"C", "capacity of one unit", SheetUnit::Force};
  const SymbolMeaning Number{"N", "number of units", SheetUnit::None};
  const SymbolMeaning Spacing{"S", "row spacing", SheetUnit::Length};
  const SymbolMeaning Angle{"β", "angle of the truss members from the vertical", SheetUnit::Degrees};
  const SymbolMeaning Grade{"G", "yield strength of the bolts", SheetUnit::Stress};
  const SymbolMeaning Diameter{"d", "diameter of the bolts", SheetUnit::Diameter};
  constexpr std::string_view Rows = "a row spacing that is not 0";
  return {
      {Law::CountedInEntry,
       "counted-in-entry",
       "Capacity of a system in rows",
       InEntry,
       {Capacity, Number, Spacing},
       capacity * number / spacing,
       true,
       Rows,
       "relation-entries.html#capacities"},
      {Law::CountedInIntersection,
       "counted-in-intersection",
       "Capacity of a number of units",
       InIntersection,
       {Capacity, Number},
       capacity * number,
       true,
       "",
       "relation-intersections.html#capacities"},
      {Law::TrussesInEntry,
       "trusses-in-entry",
       "Capacity of trusses in rows",
       InEntry,
       {Capacity, Angle, Spacing},
       truss / spacing,
       true,
       Rows,
       "relation-entries.html#trusses"},
      {Law::TrussesInIntersection,
       "trusses-in-intersection",
       "Capacity of a number of trusses",
       InIntersection,
       {Capacity, Angle, Number},
       truss * number,
       true,
       "",
       "relation-intersections.html#capacities"},
      {Law::BoltsInEntry,
       "bolts-in-entry",
       "Capacity of bolts in rows",
       InEntry,
       {Number, Grade, Diameter, Spacing},
       bolts / spacing,
       true,
       Rows,
       "relation-entries.html#roofbolts",
       English},
      {Law::BoltsInEntryInKilonewtons,
       "bolts-in-entry-in-kn",
       "Capacity of bolts in rows",
       InEntry,
       {Number, Grade, Diameter, Spacing},
       metricBolts / spacing,
       true,
       Rows,
       "relation-entries.html#roofbolts",
       Metric},
      {Law::BoltsInIntersection,
       "bolts-in-intersection",
       "Capacity of a number of bolts",
       InIntersection,
       {Number, Grade, Diameter},
       bolts,
       true,
       "",
       "relation-intersections.html#capacities",
       English},
      {Law::BoltsInIntersectionInKilonewtons,
       "bolts-in-intersection-in-kn",
       "Capacity of a number of bolts",
       InIntersection,
       {Number, Grade, Diameter},
       metricBolts,
       true,
       "",
       "relation-intersections.html#capacities",
       Metric},
      {Law::StabilityFactor,
       "stability-factor",
       "Stability factor",
       {"F", "stability factor", SheetUnit::None},
       {{"R", "capacity of the system", SheetUnit::OfTheStep}, {"Q", "rock load", SheetUnit::OfTheStep}},
       Symbol("R") / Symbol("Q"),
       true,
       "a rock load above 0",
       "relation-entries.html#capacities"},
  };
}

}  // namespace orby
