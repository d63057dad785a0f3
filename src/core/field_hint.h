// What a number field takes, in words: for its tooltip and for screen readers.
#pragma once

#include <string>
#include <vector>

#include "controls/controls.h"
#include "core/program.h"

namespace orby {

// Returns the caption of a field: its own, that of its label, or of the nearest label or frame before it.
std::string_view FieldCaption(const Control& field);

// Returns the lines of the hint for a field or a list that takes a number: the caption with the unit, the meaning as
// the help tells it, the range that the checks accept, how the text is read if it is not wholly a number, and the
// number in the other unit system. Empty for any other control.
std::vector<std::string> FieldHint(const Program& program, const Control& field);

}  // namespace orby
