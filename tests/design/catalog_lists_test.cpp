#include "design/catalog_lists.h"

#include <gtest/gtest.h>

namespace orby::test {
namespace {

TEST(CatalogListOfNumbers, GrowsToAnEntryThatIsSetAndKeepsItsLastIndex) {
  CatalogList diameters;
  EXPECT_EQ(diameters.Count(), 0U);

  diameters.Set(2, 22);
  EXPECT_EQ(diameters.Count(), 0U);
  EXPECT_EQ(diameters.Values.size(), 3U);
  EXPECT_EQ(diameters[0], 0);
  EXPECT_EQ(diameters[2], 22);

  diameters.HighestIndex = 1;
  diameters.Set(0, 20);
  EXPECT_EQ(diameters.Count(), 2U);
  EXPECT_EQ(diameters.Values.size(), 3U);
  EXPECT_EQ(diameters[0], 20);
}

TEST(CatalogListOfNumbers, FindsTheFirstEqualEntryInUse) {
  CatalogList grades{2, {40, 75, 75, 100}};

  EXPECT_EQ(grades.FirstPlaceOf(75), 1U);
  EXPECT_EQ(grades.FirstPlaceOf(74.999), std::nullopt);
  EXPECT_EQ(grades.FirstPlaceOf(100), std::nullopt);
  EXPECT_EQ(CatalogList().FirstPlaceOf(0), std::nullopt);
}

}  // namespace
}  // namespace orby::test
