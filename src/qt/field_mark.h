// Draws the mark of a number field: an edge and a sign, so that it is told by shape as well as by colour.
#pragma once

#include <QColor>
#include <QLineEdit>
#include <QPalette>

#include "controls/controls.h"

namespace orby {

// Returns the colour of a mark. Its contrast with the field and with the window is at least 3:1, light or dark.
// Requires a mark other than None.
QColor ColorOfMark(FieldMark mark, const QPalette& palette);

// Paints the mark over the field, during the field's paint event. A text that is partly read has a dashed edge and a
// question mark in a disc, a number out of range a solid edge and an exclamation mark in a triangle.
void PaintMark(QLineEdit& field, FieldMark mark);

}  // namespace orby
