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

// The angles of 90, 450, 400, 10^6, 10^20 and -10^20 degrees, and of the largest Single.
constexpr AngleRow Angles[] = {
    {1.5707963267948966, 6.123233995736766e-17, 16331239353195370.0},
    {7.853981633974483, 3.0616169978683831e-16, 3266247870639074.0},
    {6.981317007977311, 0.7660444431189827, 0.8390996311772676},
    {17453.29251994328, 0.17364817765074148, -5.6712818201628705},
    {1.7453292869722573e+18, 0.4999117140371049, -1.7324586429771311},
    {-1.7453292869722573e+18, 0.4999117140371049, 1.7324586429771311},
    {5.939047335254982e+36, -0.855914975939551, -0.6041681607389683},
};

TEST(Cosine, IsRightOnEveryMachineAtQuarterTurnsAndAfterManyTurns) {
  for (const AngleRow& row : Angles) EXPECT_NEAR(Cosine(row.angle) / row.cosine, 1, 1e-14) << row.angle;
}

TEST(Cosine, IsThatOfTheLibraryForTheAnglesOfATruss) {
  for (double angle = -1.5; angle <= 1.5; angle += 0.125) EXPECT_EQ(Cosine(angle), std::cos(angle));
}

TEST(Cosine, IsTheSameWithoutTheLibrarysKnowledgeOfPi) {
  constexpr double Degree = 0.017453292519943295;
  for (int degrees = 30; degrees <= 100'000; degrees += 15) {
    const double angle = degrees * Degree;

    EXPECT_NEAR(TurnedCosine(angle) / Cosine(angle), 1, 1e-15) << degrees;
    EXPECT_NEAR(TurnedCosine(-angle) / Cosine(angle), 1, 1e-15) << degrees;
  }
}

// The relations use the tangent of the library.
TEST(Tangent, IsRightOnEveryMachineAtQuarterTurnsAndAfterManyTurns) {
  for (const AngleRow& row : Angles) EXPECT_NEAR(std::tan(row.angle) / row.tangent, 1, 1e-14) << row.angle;
}

}  // namespace
}  // namespace orby
