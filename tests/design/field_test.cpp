#include "design/field.h"

#include <gtest/gtest.h>

namespace orby::test {
namespace {

constexpr SingleField DepthofCover{[](auto& d) { return &d.Place.DepthofCover; }};
constexpr SingleField EntryWidth{[](auto& d) { return &d.Place.EntryWidth; }};

TEST(FieldOfADesign, IsReadAndWrittenInAnyDesign) {
  Design design;
  const Design other;

  DepthofCover.In(design) = 650;

  EXPECT_EQ(design.Place.DepthofCover, 650);
  EXPECT_EQ(DepthofCover.In(other), 0);
}

TEST(FieldOfADesign, EqualsAnotherPathToTheSameField) {
  const SingleField again([](auto& d) { return &d.Place.DepthofCover; });

  EXPECT_EQ(DepthofCover, again);
  EXPECT_NE(DepthofCover, EntryWidth);
}

TEST(FieldOfADesign, HasOnlyItsOwnType) {
  const AnyField number = DepthofCover;

  EXPECT_EQ(std::get_if<IntegerField>(&number), nullptr);
  EXPECT_NE(std::get_if<SingleField>(&number), nullptr);
}

}  // namespace
}  // namespace orby::test
