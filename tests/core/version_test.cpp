#include "core/version.h"

#include <gtest/gtest.h>

namespace orby::test {
namespace {

TEST(ProgramVersion, HasATextWithPointsAndOneWithout) {
  EXPECT_EQ(VersionText(), "1.0.00");
  EXPECT_EQ(VersionDigits(), "1000");
}

TEST(ProgramVersion, HasAtLeastTwoDigitsOfTheRevision) {
  EXPECT_EQ(VersionText({2, 11, 7}), "2.11.07");
  EXPECT_EQ(VersionText({2, 1, 123}), "2.1.123");
  EXPECT_EQ(VersionDigits({2, 1, 15}), "2115");
}

}  // namespace
}  // namespace orby::test
