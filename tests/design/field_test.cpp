#include "design/field.h"

#include <gtest/gtest.h>

namespace orby::test {
namespace {

constexpr SingleField DepthofCover{[](auto& d) { return &d.Place.DepthofCover; }};
constexpr SingleField EntryWidth{[](auto& d) { return &d.Place.EntryWidth; }};
constexpr IntegerField BoltOptions{[](auto& d) { return &d.Primary.Options; }};
constexpr IntegerField BoltTableRow{[](auto& d) { return &d.Primary.TableRow; }};

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

TEST(FieldOfADesign, OfAChoiceKeepsANumberThatTheChoiceLacks) {
  Design design;

  BoltOptions.Set(design, 7);

  EXPECT_EQ(BoltOptions.Get(design), 7);
  EXPECT_EQ(design.Primary.Options, BoltSource{7});
  EXPECT_EQ(BoltTableRow.Get(design), 0);
}

TEST(FieldOfADesign, OfAChoiceEqualsOnlyItself) {
  EXPECT_EQ(BoltOptions, IntegerField([](auto& d) { return &d.Primary.Options; }));
  EXPECT_NE(BoltOptions, BoltTableRow);
}

}  // namespace
}  // namespace orby::test
