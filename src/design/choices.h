// The lists that are offered in a unit system, and what the choice of one of their entries sets in a design.
#pragma once

#include <cstddef>

#include "design/catalog_lists.h"
#include "design/design.h"

namespace orby {

const BoltTable& OfferedBolts(const Catalogs& catalogs, UnitSystem units);
const CatalogList& OfferedBoltDiameters(const Catalogs& catalogs, UnitSystem units);
// Yield or ultimate strengths.
const CatalogList& OfferedBoltGrades(const Catalogs& catalogs, UnitSystem units, StrengthBasis basis);
const CatalogList& OfferedCableDiameters(const Catalogs& catalogs, UnitSystem units);
const CatalogList& OfferedCableCapacities(const Catalogs& catalogs, UnitSystem units);

// Returns the capacity of a standing support in the catalog, tons (kN).
Single StandingCapacity(const Catalogs& catalogs, UnitSystem units, std::size_t index);

// Returns the number that a field holds in which this one is written: with seven digits. Throws RuntimeError 6 when it
// is infinite or not a number.
Single InSevenDigits(Single number);

// Each sets the numbers that its entry gives, as a field that shows it does. Requires an index within the list.
void TakeTableRow(BoltSelection& set, const BoltTable& table, Integer row);
void TakeStandingSupport(StandingSelection& standing, const Catalogs& catalogs, UnitSystem units, std::size_t index);

}  // namespace orby
