// The groups of the table of relations, in the order of Law.
#pragma once

#include "sheet/relations.h"

namespace orby {

std::vector<Relation> Conversions();
std::vector<Relation> Suggestions();
std::vector<Relation> BoltRelations();
std::vector<Relation> RockRelations();
std::vector<Relation> SystemRelations();
std::vector<Relation> CostRelations();

}  // namespace orby
