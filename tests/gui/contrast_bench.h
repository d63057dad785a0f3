// The contrast of colours on the screen.
#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

namespace orby::test {

// Returns the contrast by the formula of the Web Content Accessibility Guidelines.
inline double ContrastOf(const QColor& one, const QColor& other) {
  const auto luminance = [](const QColor& color) {
    const auto linear = [](int part) {
      const double share = part / 255.0;
      return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green()) + 0.0722 * linear(color.blue());
  };
  const double first = luminance(one);
  const double second = luminance(other);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

}  // namespace orby::test
