// What a run starts from, before anything is opened.
#pragma once

#include "config/ini_file.h"
#include "core/program.h"

namespace orby {

// Fixes the decimal separator, fills the catalogs with their built-in values, takes over the configuration if there is
// one, and begins a new design.
void StartProgram(Program& program, const IniText* configuration);

}  // namespace orby
