// Ranks, and rank correlations.
#include <gmock/gmock.h>

#include "sampling/ranks.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

TEST(Ranks, CountFromOneAndAreSharedByEqualNumbers) {
  const Single numbers[] = {3.5F, -2, 3.5F, 0, 100, 3.5F};

  EXPECT_THAT(RanksOf(numbers), ElementsAre(4, 1, 4, 2, 6, 4));
}

TEST(Ranks, OfNegativeZeroAreThoseOfZero) {
  const Single numbers[] = {0.0F, -0.0F, -1};

  EXPECT_THAT(RanksOf(numbers), ElementsAre(2.5F, 2.5F, 1));
}

// Example 1 of a text book: two judges of six samples. 1 - 6 * 10 / (6 * 35) = 0.714286.
TEST(Ranks, AreCorrelatedAsSpearmanDoes) {
  const float first[] = {1, 2, 3, 4, 5, 6};
  const float second[] = {2, 1, 4, 3, 6, 5};
  const float third[] = {3, 2, 1, 4, 6, 5};

  EXPECT_NEAR(*RankCorrelation(first, second), 0.82857142857, 1e-10);
  EXPECT_NEAR(*RankCorrelation(first, third), 0.71428571428, 1e-10);
  EXPECT_DOUBLE_EQ(*RankCorrelation(first, first), 1);
}

TEST(Ranks, OfEqualNumbersHaveNoCorrelation) {
  const float ranks[] = {1, 2, 3};
  const float equal[] = {2, 2, 2};

  EXPECT_FALSE(RankCorrelation(ranks, equal));
}

TEST(Ranks, OfAModelOrderOtherNumbers) {
  const double model[] = {0.5, -1, 3, 0};
  double numbers[] = {10, 20, 30, 40};
  std::vector<std::uint64_t> order;

  PutInOrderOf(model, numbers, order);

  EXPECT_THAT(numbers, ElementsAre(30, 10, 40, 20));
}

}  // namespace
}  // namespace orby::test
