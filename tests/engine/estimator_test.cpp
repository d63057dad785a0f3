#include "engine/estimator.h"

#include <gtest/gtest.h>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

struct Entry {
  Integer region;
  Integer row;
  const char* name;
  const char* cmrr;
};

constexpr Entry Entries[] = {
    {0, 0, "Claystone", "35"},
    {0, 1, "Coal/Claystone", "38"},
    {0, 2, "Shale", "40"},
    {0, 3, "Siltstone", "45"},
    {0, 4, "Sandstone", "55"},
    {0, 5, "Limestone", "55"},
    {0, 6, "Unknown", "38"},
    {0, 7, "Manual Setting", "38"},
    {1, 0, "Thick Claystone", "40"},
    {1, 1, "Thick Shale", "45"},
    {1, 2, "Stackrock (laminated sandstone/shale)", "45"},
    {1, 3, "Siltstone", "50"},
    {1, 4, "Bedded Sandstone", "55"},
    {1, 5, "Massive Sandstone", "65"},
    {1, 6, "Unknown", "45"},
    {1, 7, "Manual Setting", "45"},
    {2, 0, "Thick Claystone", "40"},
    {2, 1, "Shale/Coal", "45"},
    {2, 2, "Shale", "50"},
    {2, 3, "Siltstone", "50"},
    {2, 4, "Bedded Sandstone", "55"},
    {2, 5, "Massive Sandstone", "65"},
    {2, 6, "Unknown", "45"},
    {2, 7, "Manual Setting", "45"},
    {3, 0, "Thick Claystone", "35"},
    {3, 1, "Gray Shale", "38"},
    {3, 2, "Black Shale", "40"},
    {3, 3, "Siltstone/Sandstone", "45"},
    {3, 4, "Thin Limestone (1-2ft)", "50"},
    {3, 5, "Thick Limestone (>4 ft)", "65"},
    {3, 6, "Unknown", "35"},
    {3, 7, "Manual Setting", "35"},
    {4, 0, "Carbonaceous Mudstone", "40"},
    {4, 1, "Thick Shale", "45"},
    {4, 2, "Siltstone", "55"},
    {4, 3, "Bedded Sandstone", "55"},
    {4, 4, "Massive Sandstone", "65"},
    {4, 5, "Unknown", "45"},
    {4, 6, "Manual Setting", "45"},
    {5, 0, "Mudstone/Claystone", "35"},
    {5, 1, "Thick Shale", "45"},
    {5, 2, "Siltstone", "55"},
    {5, 3, "Bedded Sandstone", "55"},
    {5, 4, "Massive Sandstone", "65"},
    {5, 5, "Unknown", "35"},
    {5, 6, "Manual Setting", "35"},
};

TEST(Estimator, HasARatingForEveryRockTypeOfEveryCoalfield) {
  ASSERT_EQ(std::size(Entries), 46U);
  for (const auto& [region, row, name, cmrr] : Entries) {
    SCOPED_TRACE(testing::Message() << "region " << region << ", row " << row);
    const auto types = RockTypes(region);

    ASSERT_LT(static_cast<std::size_t>(row), types.size());
    EXPECT_EQ(types[static_cast<std::size_t>(row)].Name, name);
    EXPECT_EQ(types[static_cast<std::size_t>(row)].CMRR, cmrr);
    EXPECT_EQ(RockTypeName(region, row), name);
  }
}

TEST(Estimator, HasEightRowsInFourCoalfieldsAndSevenInTheWest) {
  const std::size_t rows[] = {8, 8, 8, 8, 7, 7};

  for (Integer region = 0; region < 6; ++region) EXPECT_EQ(RockTypes(region).size(), rows[region]) << region;
}

TEST(Estimator, NamesItsCoalfields) {
  const std::array<std::string_view, 6> names{
      "Northern Appalachia", "Central Appalachia", "Southern Appalachia", "Illinois Basin", "Utah", "Other Western"};

  EXPECT_EQ(RegionNames, names);
}

TEST(Estimator, HasNoNameOutsideTheRowsOfACoalfield) {
  EXPECT_EQ(RockTypeName(4, 7), "");
  EXPECT_EQ(RockTypeName(5, 7), "");
  EXPECT_EQ(RockTypeName(0, 8), "");
  EXPECT_EQ(RockTypeName(0, -1), "");
}

TEST(Estimator, FailsForACoalfieldThatDoesNotExist) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(RockTypes(-1)); }), 9);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(RockTypes(6)); }), 9);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(RockTypeName(6, 0)); }), 9);
}

}  // namespace
}  // namespace orby::test
