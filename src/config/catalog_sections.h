// The sections of the configuration file that hold the values of a new design and the lists that users can edit.
#pragma once

#include "config/ini_file.h"
#include "core/program.h"

namespace orby {

enum class StoredCatalogs {
  Defaults,       // [ORBYDefaults], the DesignDefaults
  BoltParams,     // [ORBYBoltParams], the bolt and cable lists
  StandSupports,  // [ORBYStandSupportParams], the standing supports; written, never read
};

// Takes the section's values over into the program. A missing or unreadable value reads as 0. A list's highest index
// below 0 is an empty list, one beyond its capacity fills it; entries above the index stay as they were.
void ReadCatalogSection(Program& program, const IniText& ini, StoredCatalogs what);

// Sets the section's keys in table order, a list's highest index before its entries.
void WriteCatalogSection(const Session& session, IniText& ini, StoredCatalogs what);

}  // namespace orby
