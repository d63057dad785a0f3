// Paints drawings.
#pragma once

#include <QColor>
#include <QRectF>

#include "drawings/scene.h"

class QPainter;

namespace orby {

// Paints the scene as large as it fits into the target, in its middle. `text` is the colour of Ink::Text.
void PaintScene(QPainter& painter, const Scene& scene, const QRectF& target, const QColor& text);

// Returns the width of a text as PaintScene paints it, in units of the scene.
double WidthOf(const std::string& text, const TextStyle& style);

}  // namespace orby
