// Which of the catalogs a project is offered.
#pragma once

#include <cstddef>

#include "core/program.h"
#include "design/catalog_lists.h"

namespace orby {

// Puts the bolt table in force that the project's units and its Australian setting ask for, and returns it.
const BoltTable& LoadBoltTable(const Project& project, Catalogs& catalogs);

// The standard values that the project's units offer; grades are yield or ultimate strengths by the strength mode.
const CatalogList& BoltDiameters(const Program& program);
const CatalogList& BoltGrades(const Program& program);
const CatalogList& CableDiameters(const Program& program);
const CatalogList& CableCapacities(const Program& program);

// Capacity of a standing support of the catalog, tons or kN by the project's units.
Single StandSupportCap(const Program& program, std::size_t index);

}  // namespace orby
