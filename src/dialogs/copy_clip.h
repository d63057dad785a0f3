// The command of the input dialogs that puts their picture on the clipboard.
#pragma once

#include "controls/form.h"
#include "core/program.h"

namespace orby {

// Copies the form as it is on the screen, and says so.
void CopyClip(Program& program, const Form& form);

}  // namespace orby
