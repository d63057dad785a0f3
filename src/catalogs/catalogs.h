// The built-in catalogs: bolts, cables, standing supports, and the fixed table of named bolts.
// The lists are not sorted: some entries stand behind larger ones, and users know them by their place.
#pragma once

#include "core/program.h"
#include "design/catalog_lists.h"

namespace orby {

// Entries that a list of bolts holds at the most; lists of cables and of supports grow up to their own limit.
inline constexpr Integer BoltListCapacity = 10;
inline constexpr Integer GrowingListCapacity = 99;

void SetDefaultBoltsENG(Catalogs& catalogs);
void SetDefaultBoltsMET(Catalogs& catalogs);  // the Australian lists too
void SetDefaultCablesENG(Catalogs& catalogs);
void SetDefaultCablesMET(Catalogs& catalogs);  // leaves the values of the strength list as they are
void SetDefaultStandSupportNames(Catalogs& catalogs);
void SetDefaultStandSupportCapsENG(Catalogs& catalogs);
void SetDefaultStandSupportCapsMET(Catalogs& catalogs);
void SetBoltTableENG(Catalogs& catalogs);
void SetBoltTableMET(Catalogs& catalogs);
void SetBoltTableAUS(Catalogs& catalogs);  // overwrites the Metric table

// All of them, as every start does before the configuration file is read.
void SetBuiltInCatalogs(Catalogs& catalogs);

// Puts the bolt table in force that the project's units and its Australian setting ask for, and gives it.
const BoltTable& LoadBoltTable(Program& program);

// The standard values that the project's units offer; grades are yield or ultimate strengths by the strength mode.
const CatalogList& BoltDiameters(const Program& program);
const CatalogList& BoltGrades(const Program& program);
const CatalogList& CableDiameters(const Program& program);
const CatalogList& CableCapacities(const Program& program);

// Capacity of a standing support of the catalog, tons or kN by the project's units.
Single StandSupportCap(const Program& program, std::size_t index);

}  // namespace orby
