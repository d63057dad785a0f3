// Paints drawings.
#pragma once

#include <QColor>
#include <QRectF>

#include "drawings/scene.h"

class QPainter;

namespace orby {

// Paints the scene as large as it fits into the target, in its middle. `text` is the colour of Ink::Text.
void PaintScene(QPainter& painter, const Scene& scene, const QRectF& target, const QColor& text);

}  // namespace orby
