// Paints drawings.
#pragma once

#include <QColor>
#include <QFontMetricsF>
#include <QRectF>
#include <map>
#include <string>
#include <tuple>

#include "drawings/scene.h"

class QPainter;

namespace orby {

// Paints the scene as large as it fits into the target, in its middle. `text` is the colour of Ink::Text.
void PaintScene(QPainter& painter, const Scene& scene, const QRectF& target, const QColor& text);

// The widths of texts as PaintScene paints them. Finding a font takes longer than measuring with it, so it is done
// once.
class TextWidths {
 public:
  // Returns the width in units of the scene.
  double Of(const std::string& text, const TextStyle& style);

 private:
  using FontKey = std::tuple<int, bool, bool>;  // size, bold, italic

  std::map<FontKey, QFontMetricsF> fonts_;
};

}  // namespace orby
