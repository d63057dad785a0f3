// The measures that the windows share, as docs/look.md states them. Layouts contain none of them.
#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <string_view>
#include <vector>

namespace orby {

// Gives the fields for numbers of a form the same width, at the left of their place in the layout.
void AlignNumberFields(std::string_view form, const std::vector<QLineEdit*>& fields);

// Arranges the row with "OK", "Cancel" or "Help" in the order of the desktop. The order of the tab key must be set
// afterwards.
void ArrangeDialogButtons(const std::vector<QPushButton*>& buttons);

}  // namespace orby
