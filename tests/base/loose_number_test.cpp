#include <gtest/gtest.h>

#include <optional>

#include "base/number_text.h"

namespace orby {
namespace {

TEST(LooseNumber, ABlankInsideANumberIsRefused) {
  EXPECT_EQ(LooseNumber("1 000"), std::nullopt);
  EXPECT_EQ(LooseNumber("1 .5"), std::nullopt);
  EXPECT_EQ(LooseNumber("1e 5"), std::nullopt);
}

TEST(LooseNumber, CommasAreIgnoredExceptAtTheStart) {
  EXPECT_EQ(LooseNumber("1,5"), 15);
  EXPECT_EQ(LooseNumber("1,00,0,,.5"), 1000.5);
  EXPECT_EQ(LooseNumber(",5"), std::nullopt);
  EXPECT_EQ(LooseNumber(".,"), std::nullopt);
}

TEST(LooseNumber, ASignStandsBeforeOrAfterTheDigits) {
  EXPECT_EQ(LooseNumber("-62.5"), -62.5);
  EXPECT_EQ(LooseNumber("62.5 -"), -62.5);
  EXPECT_EQ(LooseNumber("-62.5-"), std::nullopt);
  EXPECT_EQ(LooseNumber("--62.5"), std::nullopt);
}

TEST(LooseNumber, BracketsMeanMinus) {
  EXPECT_EQ(LooseNumber("(1.5)"), -1.5);
  EXPECT_EQ(LooseNumber("(-1.5)"), -1.5);
  EXPECT_EQ(LooseNumber("(1.5"), std::nullopt);
  EXPECT_EQ(LooseNumber("1.5)"), std::nullopt);
}

TEST(LooseNumber, ADollarSignMayStandBesideAnExponent) {
  EXPECT_EQ(LooseNumber("$1e5"), 100000);
  EXPECT_EQ(LooseNumber("($1,23,,3.4,,,5,,E67$)"), -1233.45e67);
}

TEST(LooseNumber, AnIncompleteExponentIsRefused) {
  EXPECT_EQ(LooseNumber("1E"), std::nullopt);
  EXPECT_EQ(LooseNumber("1E+"), std::nullopt);
  EXPECT_EQ(LooseNumber("2.5d-1"), 0.25);
  EXPECT_EQ(LooseNumber("1e5e5"), std::nullopt);
}

TEST(LooseNumber, HexadecimalAndOctalAreThirtyTwoBits) {
  EXPECT_EQ(LooseNumber("&HFFFF"), 65535);
  EXPECT_EQ(LooseNumber("&hffffffff"), -1);
  EXPECT_EQ(LooseNumber("&H100000000"), std::nullopt);
  EXPECT_EQ(LooseNumber("&O777"), 511);
  EXPECT_EQ(LooseNumber(" &17 "), 15);
  EXPECT_EQ(LooseNumber("&"), std::nullopt);
}

TEST(LooseNumber, ANumberBeyondTheRangeOfADoubleIsRefused) {
  EXPECT_EQ(LooseNumber("1e400"), std::nullopt);
  EXPECT_EQ(LooseNumber("-1e400"), std::nullopt);
  EXPECT_EQ(LooseNumber("1e-400"), 0);
}

TEST(LooseNumber, ANoBreakSpaceIsABlankButOneOfItsBytesIsNot) {
  EXPECT_EQ(LooseNumber("\xC2\xA0"
                        "1"),
            1);
  EXPECT_EQ(LooseNumber("\xC2"
                        "1"),
            std::nullopt);
}

}  // namespace
}  // namespace orby
