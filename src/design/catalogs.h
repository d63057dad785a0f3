// The built-in catalogs: bolts, cables, standing supports, and the fixed table of named bolts.
// The lists are not sorted: some entries follow larger ones. Users know them by their position.
#pragma once

#include "design/catalog_lists.h"

namespace orby {

// The largest number of entries of a list of bolts, and of a list of cables or supports.
inline constexpr Integer BoltListCapacity = 10;
inline constexpr Integer GrowingListCapacity = 99;

void SetDefaultBoltsENG(Catalogs& catalogs);
void SetDefaultBoltsMET(Catalogs& catalogs);  // and the Australian lists
void SetDefaultCablesENG(Catalogs& catalogs);
void SetDefaultCablesMET(Catalogs& catalogs);  // keeps the values of the strength list
void SetDefaultStandSupportNames(Catalogs& catalogs);
void SetDefaultStandSupportCapsENG(Catalogs& catalogs);
void SetDefaultStandSupportCapsMET(Catalogs& catalogs);
void SetBoltTableENG(Catalogs& catalogs);
void SetBoltTableMET(Catalogs& catalogs);
void SetBoltTableAUS(Catalogs& catalogs);  // replaces the Metric table

// Sets all catalogs. Every start does this before it reads the configuration file.
void SetBuiltInCatalogs(Catalogs& catalogs);

}  // namespace orby
