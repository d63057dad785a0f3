// The sections of the configuration file that hold the values of a new design and the lists that users can edit.
#pragma once

#include "config/ini_file.h"
#include "core/program.h"

namespace orby {

namespace catalog_section {
inline constexpr int Defaults = 10;       // [ORBYDefaults], the DesignDefaults
inline constexpr int BoltParams = 11;     // [ORBYBoltParams], the bolt and cable lists
inline constexpr int StandSupports = 12;  // [ORBYStandSupportParams], the standing supports; written, never read
}  // namespace catalog_section

// Takes the section's values over into the program. A missing or unreadable value reads as 0. A list's highest index
// below 0 is an empty list, one beyond its capacity fills it; entries above the index stay as they were. Any other
// selector does nothing.
void ReadCatalogSection(Program& program, const IniText& ini, int selector);

// Sets the section's keys in table order, a list's highest index before its entries.
void WriteCatalogSection(const Session& session, IniText& ini, int selector);

}  // namespace orby
