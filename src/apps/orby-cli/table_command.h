// The table of designs.
#pragma once

#include "apps/orby-cli/commands.h"
#include "core/program.h"

namespace orby::cli {

// Returns true if the command line is one of a table.
bool FitsTable(const CommandLine& line);

// Writes the table of the files and folders of the command line. `start` is a run without a project, of which it takes
// the catalogs. Throws the RuntimeError of an output that cannot be written.
ExitCode MakeTable(Program& start, const CommandLine& line);

}  // namespace orby::cli
