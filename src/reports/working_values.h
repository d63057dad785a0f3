// The inputs of the calculation report in English working units, whatever the project's units are.
#pragma once

#include "core/program.h"
#include "engine/formulas.h"
#include "engine/primary_support.h"

namespace orby {

struct WorkingValues {
  WorkingSite Conditions;
  BoltPattern Primary;
  BoltPattern EntryBolts;
  Bolt IntersectionBolt;       // in, ksi
  SupportPattern EntryCables;  // its width is 0 in a design without cables in entries
};

// From program.WorkParms, whichever analyses the design asks for. Throws RuntimeError 6 beyond a Single.
WorkingValues BuildWorkingValues(const Program& program);

// Whether the bolt, in English units, falls short of the ASTM minimum of the project's units.
bool FailsASTM(const Bolt& bolt, UnitSystem units);

}  // namespace orby
