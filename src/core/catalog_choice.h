// The catalogs that a project offers.
#pragma once

#include <cstddef>

#include "core/program.h"
#include "design/catalog_lists.h"

namespace orby {

// Loads the bolt table for the project's units and its Australian setting, and returns it.
const BoltTable& LoadBoltTable(const Project& project, Catalogs& catalogs);

// Return the standard values for the project's units. Grades are yield or ultimate strengths, depending on the strength
// basis.
const CatalogList& BoltDiameters(const Program& program);
const CatalogList& BoltGrades(const Program& program);
const CatalogList& CableDiameters(const Program& program);
const CatalogList& CableCapacities(const Program& program);

// Returns the capacity of a standing support in the catalog, in tons or kN depending on the project's units.
Single StandSupportCap(const Program& program, std::size_t index);

}  // namespace orby
