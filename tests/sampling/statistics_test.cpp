// Sums, percentiles and intervals against numbers that are known.
#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <numeric>

#include "sampling/samples.h"

namespace orby::test {
namespace {

constexpr Single NoNumber = std::numeric_limits<Single>::quiet_NaN();

std::vector<Single> Numbers(const Distribution& law, std::uint32_t batch) {
  const Distribution laws[] = {law};
  const BatchMaker maker(laws, {}, Scheme::Random, 5, 10'000);
  SampleTable table;
  BatchMaker::Workspace workspace;
  maker.Fill(batch, table, workspace);
  return {table.Column(0).begin(), table.Column(0).end()};
}

TEST(FigureSums, HaveTheMeanAndDeviationOfTheValues) {
  const Single values[] = {2, 4, 4, NoNumber, 4, 5, 5, 7, 9};
  FigureSums sums;

  sums.Take(values, BinsFor(values));

  EXPECT_EQ(sums.Count(), 8);
  EXPECT_DOUBLE_EQ(sums.Mean(), 5);
  EXPECT_DOUBLE_EQ(sums.Deviation(), 2.1380899352993952);
  EXPECT_EQ(sums.Least(), 2);
  EXPECT_EQ(sums.Greatest(), 9);
}

TEST(FigureSums, MergedAreThoseOfAllValues) {
  const Single first[] = {2, 4, 4};
  const Single second[] = {NoNumber, NoNumber};
  const Single third[] = {4, 5, 5, 7, 9};
  const Bins bins = BinsFor(third);
  FigureSums all;
  for (const std::span<const Single> values :
       {std::span<const Single>(first), std::span<const Single>(second), std::span<const Single>(third)}) {
    FigureSums sums;
    sums.Take(values, bins);
    all.Merge(sums);
  }

  EXPECT_EQ(all.Count(), 8);
  EXPECT_DOUBLE_EQ(all.Mean(), 5);
  EXPECT_DOUBLE_EQ(all.Deviation(), 2.1380899352993952);
  EXPECT_EQ(all.Least(), 2);
  EXPECT_EQ(all.Greatest(), 9);
  EXPECT_EQ(std::accumulate(all.Counts().begin(), all.Counts().end(), std::uint64_t{0}), 8);
}

TEST(FigureSums, KeepTheirDigitsFarFromZero) {
  const Single values[] = {16777200, 16777201, 16777202};
  FigureSums sums;

  sums.Take(values, BinsFor(values));

  EXPECT_DOUBLE_EQ(sums.Mean(), 16777201);
  EXPECT_DOUBLE_EQ(sums.Deviation(), 1);
}

TEST(FigureSums, HaveThePercentilesOfTheSortedValuesToTheWidthOfABin) {
  for (const Distribution& law : {RatingLaw, DepthLaw, LengthLaw, WidthLaw, AngleLaw}) {
    std::vector<Single> all;
    FigureSums sums;
    const Bins bins = BinsFor(Numbers(law, 0));
    for (std::uint32_t batch = 0; batch < 5; ++batch) {
      const std::vector<Single> values = Numbers(law, batch);
      FigureSums ofBatch;
      ofBatch.Take(values, bins);
      sums.Merge(ofBatch);
      all.insert(all.end(), values.begin(), values.end());
    }
    std::ranges::sort(all);

    for (const double share : {0.001, 0.01, 0.05, 0.25, 0.5, 0.75, 0.95, 0.99, 0.999}) {
      const auto exact = all[static_cast<std::size_t>(std::ceil(share * static_cast<double>(all.size()))) - 1];
      EXPECT_NEAR(sums.Percentile(share, bins), exact, bins.Width) << LawName(law.Law) << " " << share;
      EXPECT_NEAR(sums.ShareUpTo(exact, bins), share, 0.002) << LawName(law.Law) << " " << share;
    }
    EXPECT_EQ(sums.Percentile(0, bins), all.front());
    EXPECT_EQ(sums.Percentile(1, bins), all.back());
  }
}

TEST(FigureSums, CountValuesOutsideTheBins) {
  const Single first[] = {10, 20};
  const Bins bins = BinsFor(first);
  const Single later[] = {-500, 15, 4000};
  FigureSums sums;

  sums.Take(later, bins);

  EXPECT_EQ(sums.Counts().front(), 1);
  EXPECT_EQ(sums.Counts().back(), 1);
  EXPECT_EQ(sums.Percentile(1, bins), 4000);
  EXPECT_EQ(sums.Percentile(0, bins), -500);
  EXPECT_NEAR(sums.Percentile(0.5, bins), 15, bins.Width);
}

TEST(FigureSums, OfOneValueHaveItAtEachPercentile) {
  const std::vector<Single> values(50, 3.0F);
  const Bins bins = BinsFor(values);
  FigureSums sums;

  sums.Take(values, bins);

  EXPECT_EQ(sums.Percentile(0.05, bins), 3);
  EXPECT_EQ(sums.Percentile(0.95, bins), 3);
  EXPECT_EQ(sums.Deviation(), 0);
  EXPECT_EQ(sums.ShareUpTo(2.99, bins), 0);
  EXPECT_EQ(sums.ShareUpTo(3, bins), 1);
}

// Ten means with an average of 12 and a deviation of 2: 12 -+ 2.262157 * 2 / sqrt(10), by a table of Student's t.
TEST(BatchMeans, HaveTheIntervalOfStudentsT) {
  BatchMeans means;
  for (const double mean : {9.0, 10.0, 10.0, 11.0, 12.0, 12.0, 13.0, 14.0, 14.0, 15.0}) means.Add(mean);

  const auto interval = means.IntervalOf(0.95);

  ASSERT_TRUE(interval);
  EXPECT_DOUBLE_EQ(means.Mean(), 12);
  EXPECT_NEAR(interval->Low, 12 - 1.4307141, 1e-6);
  EXPECT_NEAR(interval->High, 12 + 1.4307141, 1e-6);
}

TEST(BatchMeans, HaveNoIntervalOfOneBatch) {
  BatchMeans means;
  means.Add(0.5);

  EXPECT_FALSE(means.IntervalOf(0.95));
}

TEST(LimitOfNone, IsThatOfClopperAndPearson) {
  EXPECT_NEAR(LimitOfNone(1000, 0.95), 0.0036820839, 1e-9);
  EXPECT_NEAR(LimitOfNone(10'000'000, 0.99), 5.298316e-7, 1e-12);
}

}  // namespace
}  // namespace orby::test
