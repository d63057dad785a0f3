// The About message.
#pragma once

#include "core/program.h"

namespace orby {

void ShowAbout(Program& program);

}  // namespace orby
