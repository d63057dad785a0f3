// The colours of drawings on light and on dark backgrounds.
#pragma once

#include <cstdint>

#include "drawings/scene.h"

namespace orby {

enum class Ground { Light, Dark };

// Returns the colour as red * 65536 + green * 256 + blue. The lines of a design have a contrast of at least 4.5 to the
// background. Ink::None is black.
constexpr std::uint32_t InkColour(Ink ink, Ground ground) {
  const bool isDark = ground == Ground::Dark;
  switch (ink) {
    case Ink::Text: return isDark ? 0xe6e6e6 : 0x1f1f1f;
    case Ink::Muted: return isDark ? 0xa8adb2 : 0x8a8f94;
    case Ink::Rock: return isDark ? 0xe89060 : 0xc1662f;
    case Ink::Bolt: return isDark ? 0x74b9f2 : 0x2f7fc1;
    case Ink::Cable:
    case Ink::FirstKept: return isDark ? 0xc39bf0 : 0x7a3fb0;
    case Ink::Truss:
    case Ink::SecondKept: return isDark ? 0x4fd1c5 : 0x0f6f68;
    case Ink::Standing:
    case Ink::ThirdKept: return isDark ? 0xe0b050 : 0x7d5200;
    case Ink::Limit:
    case Ink::Good: return isDark ? 0x5fd38a : 0x146c35;
    case Ink::Doubtful: return isDark ? 0xf0b040 : 0x9a5b00;
    case Ink::Bad: return isDark ? 0xff8080 : 0xb3261e;
    case Ink::Curve: return isDark ? 0x8c8cff : 0x0000ff;
    case Ink::OwnPoint: return isDark ? 0xff9a5c : 0xb03a00;
    case Ink::MapLow: return isDark ? 0x3a362c : 0xf7f1cf;
    case Ink::MapHigh: return isDark ? 0x1f6470 : 0x4aa3b5;
    case Ink::Paper: return isDark ? 0x2b2b2b : 0xffffff;
    case Ink::None: break;
  }
  return 0;
}

}  // namespace orby
