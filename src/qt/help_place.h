// The position of the help window: beside the dialog that it explains, or at least not over the field in use.
#pragma once

#include <QRect>
#include <QSize>

namespace orby {

// The screen area that the help must share, and the windows in it. All rectangles include the frames; a null rectangle
// means that there is none.
struct HelpNeighbours {
  QRect screen;  // without the panels of the desktop
  QRect dialog;
  QRect field;  // the field in the dialog that has the focus
};

// Returns the position of a window that prefers one size and can shrink to another. It covers nothing of the dialog if
// there is room beside the dialog, else nothing of the field if there is room beside the field, else it is in the
// bottom right corner of the screen.
QRect HelpPlace(const HelpNeighbours& neighbours, QSize wanted, QSize least);

}  // namespace orby
