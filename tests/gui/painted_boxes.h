// Where a window paints its texts and marks, for a script that measures their contrast in the window's picture.
#pragma once

#include <QJsonArray>
#include <QWidget>

namespace orby::test {

// Returns an object for each text and each mark on view that can be used: {"kind": "text" or "mark", "text", "x", "y",
// "width", "height"}, in pixels of the window's picture.
QJsonArray PaintedBoxes(QWidget& window);

}  // namespace orby::test
