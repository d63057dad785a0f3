// The Copy Clip command of the input dialogs.
#pragma once

#include "controls/form.h"
#include "core/program.h"

namespace orby {

// Copies a picture of the form to the clipboard and says so.
void CopyClip(Program& program, const Form& form);

}  // namespace orby
