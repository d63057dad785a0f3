// What the program says of itself.
#pragma once

#include "core/program.h"

namespace orby {

void ShowAbout(Program& program);

}  // namespace orby
