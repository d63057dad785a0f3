#include "sheet/relations.h"

#include <array>

#include "sheet/relation_groups.h"

namespace orby {
namespace {

// In the order of SheetUnit, English and Metric.
constexpr auto UnitTexts = std::to_array<std::array<std::string_view, 2>>({
    {"", ""},         {"", ""},       {"°", "°"},       {"ft", "ft"},     {"in", "in"},
    {"ksi", "ksi"},   {"MPa", "MPa"}, {"kips", "kips"}, {"tons", "tons"}, {"$", "$"},
    {"ft", "m"},      {"in", "mm"},   {"ksi", "MPa"},   {"tons", "kN"},   {"tons/ft", "kN/m"},
    {"pcf", "kN/m3"}, {"ft2", "m2"},  {"ft3", "m3"},    {"$/ft", "$/m"},  {"tons/ft", "MN/m"},
    {"tons", "tn"},
});

std::vector<Relation> AllRelations() {
  std::vector<Relation> all;
  for (std::vector<Relation>& some :
       std::array{Conversions(), Suggestions(), BoltRelations(), RockRelations(), SystemRelations(), CostRelations()}) {
    all.insert(all.end(), std::move_iterator(some.begin()), std::move_iterator(some.end()));
  }
  return all;
}

}  // namespace

std::string_view UnitText(SheetUnit unit, UnitSystem units) {
  return UnitTexts.at(static_cast<std::size_t>(unit)).at(PlaceOf(units));
}

std::span<const Relation> Relations() {
  static const std::vector<Relation> All = AllRelations();
  return All;
}

const Relation& RelationOf(Law what) { return Relations()[static_cast<std::size_t>(what)]; }

}  // namespace orby
