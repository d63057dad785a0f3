#include "drawings/inks.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orby::test {
namespace {

double Luminance(std::uint32_t colour) {
  const auto part = [&](unsigned shift) {
    const double share = (colour >> shift & 255U) / 255.0;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(16) + 0.7152 * part(8) + 0.0722 * part(0);
}

double Contrast(std::uint32_t first, std::uint32_t second) {
  const double one = Luminance(first) + 0.05;
  const double other = Luminance(second) + 0.05;
  return one > other ? one / other : other / one;
}

constexpr std::uint32_t Paper = 0xffffff;
constexpr std::uint32_t LightWindow = 0xefefef;
constexpr std::uint32_t DarkWindow = 0x2b2b2b;
constexpr std::uint32_t DarkPage = 0x4a4a4a;  // of a set of tabs

TEST(Inks, OfSupportsLimitsJudgementsAndChartsAreAsClearAsText) {
  for (const Ink ink : {Ink::Text, Ink::Cable, Ink::Truss, Ink::Standing, Ink::Limit, Ink::Good, Ink::Doubtful,
                        Ink::Bad, Ink::Curve, Ink::FirstKept, Ink::SecondKept, Ink::ThirdKept, Ink::OwnPoint}) {
    EXPECT_GE(Contrast(InkColour(ink, Ground::Light), Paper), 4.5);
    EXPECT_GE(Contrast(InkColour(ink, Ground::Light), LightWindow), 4.5);
    EXPECT_GE(Contrast(InkColour(ink, Ground::Dark), DarkWindow), 4.5);
  }
}

TEST(Inks, OfRockAndBoltsAreAsClearAsAMark) {
  for (const Ink ink : {Ink::Rock, Ink::Bolt}) {
    EXPECT_GE(Contrast(InkColour(ink, Ground::Light), LightWindow), 3);
    EXPECT_GE(Contrast(InkColour(ink, Ground::Dark), DarkPage), 3);
  }
}

// Colours between both ends are mixtures of them.
TEST(Inks, OfMapsLetTextsBeReadOnAllOfThem) {
  for (const Ground ground : {Ground::Light, Ground::Dark}) {
    for (const Ink ink : {Ink::MapLow, Ink::MapHigh}) {
      EXPECT_GE(Contrast(InkColour(ink, ground), InkColour(Ink::Text, ground)), 4.5);
    }
    EXPECT_GE(Contrast(InkColour(Ink::MapLow, ground), InkColour(Ink::MapHigh, ground)), 1.7);
  }
}

}  // namespace
}  // namespace orby::test
