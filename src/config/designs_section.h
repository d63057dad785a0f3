// The section [ORBYDesigns] of the configuration file: the folder whose designs were shown last.
#pragma once

#include "config/ini_file.h"

namespace orby {

// Returns the folder. Empty if there is none.
std::string ReadDesignsFolder(const IniText& ini);

void WriteDesignsFolder(const std::string& folder, IniText& ini);

}  // namespace orby
