#include "base/trigonometry.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orby {
namespace {

struct AngleRow {
  double angle;
  double cosine;
  double tangent;
};

// The angles of 400, 10^6, 10^20 and -10^20 degrees, and of the largest Single.
constexpr AngleRow ManyTurns[] = {
    {6.981317007977311, 0.7660444431189827, 0.8390996311772676},
    {17453.29251994328, 0.17364817765074148, -5.6712818201628705},
    {1.7453292869722573e+18, 0.4999117140371049, -1.7324586429771311},
    {-1.7453292869722573e+18, 0.4999117140371049, 1.7324586429771311},
    {5.939047335254982e+36, -0.855914975939551, -0.6041681607389683},
};

TEST(Trigonometry, IsRightAfterAnyNumberOfTurns) {
  for (const AngleRow& row : ManyTurns) {
    EXPECT_NEAR(Cosine(row.angle), row.cosine, 1e-15) << row.angle;
    EXPECT_NEAR(Tangent(row.angle) / row.tangent, 1, 1e-14) << row.angle;
  }
}

TEST(Trigonometry, LeavesTheAnglesOfARoofAsTheyAre) {
  for (double angle = -3; angle <= 3; angle += 0.125) {
    EXPECT_EQ(Cosine(angle), std::cos(angle));
    EXPECT_EQ(Tangent(angle), std::tan(angle));
  }
}

}  // namespace
}  // namespace orby
