#include "drawings/scene.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace orby::test {
namespace {

using Kind = PathStep::Kind;

TEST(PathSteps, ReadEachLetterWithItsPoints) {
  const auto steps = PathSteps("M1 2L3.5 -4C1 2 3 4 5 6Z");

  ASSERT_EQ(steps.size(), 4U);
  EXPECT_EQ(steps[0].What, Kind::Move);
  EXPECT_EQ(steps[0].To.Y, 2);
  EXPECT_EQ(steps[1].What, Kind::Line);
  EXPECT_EQ(steps[1].To.X, 3.5);
  EXPECT_EQ(steps[1].To.Y, -4);
  EXPECT_EQ(steps[2].What, Kind::Curve);
  EXPECT_EQ(steps[2].FirstControl.X, 1);
  EXPECT_EQ(steps[2].SecondControl.Y, 4);
  EXPECT_EQ(steps[2].To.X, 5);
  EXPECT_EQ(steps[3].What, Kind::Close);
}

TEST(PathSteps, UseALetterForAllPointsUpToTheNextOne) {
  const auto steps = PathSteps("M0 0L1 1 2 2 3 3");

  ASSERT_EQ(steps.size(), 4U);
  EXPECT_EQ(steps[3].What, Kind::Line);
  EXPECT_EQ(steps[3].To.X, 3);
}

TEST(PathSteps, AreNoneForAnEmptyText) { EXPECT_TRUE(PathSteps("").empty()); }

TEST(PathSteps, RefuseAnythingElse) {
  for (const char* text : {"1 2", "M1", "L1 x", "Q1 2 3 4", "Z1 2"}) {
    EXPECT_THROW(static_cast<void>(PathSteps(text)), std::invalid_argument) << text;
  }
}

}  // namespace
}  // namespace orby::test
