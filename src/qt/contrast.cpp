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

QColor Readable(const QColor& color, const QColor& background) {
  constexpr int Middle = 128;
  constexpr int Brightest = 255;
  constexpr double LeastContrast = 4.5;
  const int step = background.lightness() < Middle ? 1 : -1;
  QColor changed = color;
  for (int lightness = color.lightness(); Contrast(changed, background) < LeastContrast; lightness += step) {
    if (lightness < 0 || lightness > Brightest) break;
    changed = QColor::fromHsl(color.hslHue(), color.hslSaturation(), lightness);
  }
  return changed;
}

void MakeSelectionReadable() {
  const QPalette present = QGuiApplication::palette();
  QPalette changed;  // sets only what it changes, so that the rest follows the theme
  changed.setResolveMask(0);
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    const QColor ground = present.color(group, QPalette::Highlight);
    const QColor readable = Readable(ground, present.color(group, QPalette::HighlightedText));
    if (readable != ground) changed.setColor(group, QPalette::Highlight, readable);
  }
  if (changed.resolveMask() != 0) QGuiApplication::setPalette(changed);
}

}  // namespace orby
