// The built-in catalogs: bolts, cables, standing supports, and the fixed table of named bolts.
// The lists are not sorted: some entries stand behind larger ones, and users know them by their place.
#pragma once

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

}  // namespace orby
