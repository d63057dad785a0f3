#include "qt/contrast.h"

#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <cmath>

namespace orby {
namespace {

// Returns the linear intensity, 0 to 1, of a colour component.
double Linear(float part) { return part <= 0.04045F ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); }

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace

QColor Readable(const QColor& color, const QColor& background, double leastContrast) {
  constexpr int Middle = 128;
  constexpr int Brightest = 255;
  const int step = background.lightness() < Middle ? 1 : -1;
  QColor changed = color;
  for (int lightness = color.lightness(); Contrast(changed, background) < leastContrast; lightness += step) {
    if (lightness < 0 || lightness > Brightest) break;
    changed = QColor::fromHsl(color.hslHue(), color.hslSaturation(), lightness);
  }
  return changed;
}

void MakeSelectionReadable() {
  const QPalette present = QGuiApplication::palette();
  QPalette changed = present;  // what it does not set follows the theme
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    const QColor ground = present.color(group, QPalette::Highlight);
    const QColor readable = Readable(ground, present.color(group, QPalette::HighlightedText), ContrastOfSmoothedText);
    if (readable != ground) changed.setColor(group, QPalette::Highlight, readable);
  }
  if (changed != present) QGuiApplication::setPalette(changed);
}

}  // namespace orby
