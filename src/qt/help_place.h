// Where the help stands: beside the dialog that it explains, or at least not over the field in use.
#pragma once

#include <QRect>
#include <QSize>

namespace orby {

// What the help shares the screen with. All with their frames; a null rectangle is not there.
struct HelpNeighbours {
  QRect screen;  // without the bars of the desktop
  QRect dialog;
  QRect field;  // in the dialog, the one that has the keyboard
};

// The place of a window that would like to have one size and can do with the other. It covers nothing of the dialog if
// there is room beside it, else nothing of the field if there is room beside that, else as little as a corner does.
QRect HelpPlace(const HelpNeighbours& neighbours, QSize wanted, QSize least);

}  // namespace orby
