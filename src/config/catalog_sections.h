// The sections of the configuration file for the values of a new design and for the lists that users can edit.
#pragma once

#include "config/ini_file.h"
#include "core/program.h"

namespace orby {

enum class StoredCatalogs {
  Defaults,       // [ORBYDefaults], the DesignDefaults
  BoltParams,     // [ORBYBoltParams], the bolt and cable lists
  StandSupports,  // [ORBYStandSupportParams], the standing supports; written, never read
};

// Reads the values of a section into the program. A missing or unreadable value reads as 0. A highest index below 0
// makes the list empty, and one beyond its capacity fills it. Entries above the index keep their values.
void ReadCatalogSection(Program& program, const IniText& ini, StoredCatalogs what);

// Writes the keys of a section in the order of its table. The highest index of a list precedes its entries.
void WriteCatalogSection(const Session& session, IniText& ini, StoredCatalogs what);

}  // namespace orby
