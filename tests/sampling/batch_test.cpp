// Batches of samples: strata, correlations, seeds.
#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

#include "sampling/ranks.h"
#include "sampling/samples.h"

namespace orby::test {
namespace {

using testing::Each;

const Distribution FiveLaws[] = {RatingLaw, DepthLaw, LengthLaw, WidthLaw, AngleLaw};

SquareMatrix Correlated() {
  SquareMatrix matrix = SquareMatrix::Identity(5);
  matrix(0, 1) = matrix(1, 0) = -0.6;
  matrix(0, 2) = matrix(2, 0) = 0.4;
  matrix(1, 2) = matrix(2, 1) = 0.1;
  matrix(2, 4) = matrix(4, 2) = 0.7;
  return matrix;
}

std::vector<std::size_t> SamplesInStrata(std::span<const double> probabilities) {
  std::vector<std::size_t> counts(probabilities.size());
  for (const double p : probabilities) ++counts.at(static_cast<std::size_t>(p * static_cast<double>(counts.size())));
  return counts;
}

double RankCorrelationOf(const std::vector<double>& a, const std::vector<double>& b) {
  const std::vector<Single> first(a.begin(), a.end());
  const std::vector<Single> second(b.begin(), b.end());
  return RankCorrelation(RanksOf(first), RanksOf(second)).value();
}

TEST(LatinHypercube, HasOneSampleInEachStratumOfEachInput) {
  for (const SquareMatrix& spearman : {SquareMatrix(), Correlated()}) {
    const BatchMaker maker(FiveLaws, spearman, Scheme::LatinHypercube, 3, 10'000);
    SampleTable table;
    BatchMaker::Workspace workspace;
    for (const std::uint32_t batch : {0U, 1U, 999U}) {
      maker.FillProbabilities(batch, table, workspace);
      for (std::size_t input = 0; input < 5; ++input) EXPECT_THAT(SamplesInStrata(table.Column(input)), Each(1));
    }
  }
}

TEST(LatinHypercube, OfAFewSamplesKeepsItsStrataWithCorrelations) {
  const BatchMaker maker(FiveLaws, Correlated(), Scheme::LatinHypercube, 3, 4);
  SampleTable table;
  BatchMaker::Workspace workspace;

  maker.FillProbabilities(0, table, workspace);

  for (std::size_t input = 0; input < 5; ++input) EXPECT_THAT(SamplesInStrata(table.Column(input)), Each(1));
}

// The first 4096 points of the sequence have one in each of 4096 strata, also after scrambling.
TEST(SobolBatch, HasOneSampleInEachStratumOfAPowerOfTwo) {
  const BatchMaker maker(FiveLaws, {}, Scheme::Sobol, 3, 4096);
  SampleTable table;
  BatchMaker::Workspace workspace;

  maker.FillProbabilities(5, table, workspace);

  for (std::size_t input = 0; input < 5; ++input) EXPECT_THAT(SamplesInStrata(table.Column(input)), Each(1));
}

TEST(SobolBatch, FillsSquaresOfTwoInputsMoreEvenlyThanRandomSamples) {
  const auto emptySquares = [](Scheme scheme) {
    const BatchMaker maker(FiveLaws, {}, scheme, 3, 4096);
    SampleTable table;
    BatchMaker::Workspace workspace;
    maker.FillProbabilities(0, table, workspace);
    std::vector<int> squares(32 * 32);
    for (std::size_t i = 0; i < 4096; ++i) {
      ++squares[static_cast<std::size_t>(table.Column(0)[i] * 32) * 32 +
                static_cast<std::size_t>(table.Column(1)[i] * 32)];
    }
    return std::ranges::count(squares, 0);
  };

  EXPECT_EQ(emptySquares(Scheme::Sobol), 0);
  EXPECT_GT(emptySquares(Scheme::Random), 5);
}

TEST(Batch, ReachesTheRankCorrelationsInEachScheme) {
  const SquareMatrix wanted = Correlated();
  for (const Scheme scheme : AllSchemes) {
    const auto samples = SamplesOf(BatchMaker(FiveLaws, wanted, scheme, 1907, 10'000), 10, 5);
    for (std::size_t row = 0; row < 5; ++row) {
      for (std::size_t column = 0; column < row; ++column) {
        EXPECT_NEAR(RankCorrelationOf(samples[row], samples[column]), wanted(row, column), 0.01)
            << "scheme " << static_cast<int>(scheme) << ", " << row << " with " << column;
      }
    }
  }
}

TEST(Batch, ReachesStrongRankCorrelations) {
  SquareMatrix wanted = SquareMatrix::Identity(2);
  wanted(0, 1) = wanted(1, 0) = 0.97;
  const Distribution laws[] = {DepthLaw, AngleLaw};

  const auto samples = SamplesOf(BatchMaker(laws, wanted, Scheme::LatinHypercube, 1, 10'000), 10, 2);

  EXPECT_NEAR(RankCorrelationOf(samples[0], samples[1]), 0.97, 0.002);
}

// Normal numbers with a rank correlation of 0.6 have a linear one of 2 sin(0.1 pi).
TEST(Batch, CorrelatedNormalInputsAreJointlyNormal) {
  SquareMatrix wanted = SquareMatrix::Identity(2);
  wanted(0, 1) = wanted(1, 0) = 0.6;
  const Distribution laws[] = {{NormalLaw{0, 1}}, {NormalLaw{0, 1}}};
  for (const Scheme scheme : AllSchemes) {
    const auto samples = SamplesOf(BatchMaker(laws, wanted, scheme, 1, 10'000), 10, 2);
    double product = 0;
    long bothAbove = 0;
    for (std::size_t i = 0; i < samples[0].size(); ++i) {
      product += samples[0][i] * samples[1][i];
      if (samples[0][i] > 0 && samples[1][i] > 0) ++bothAbove;
    }

    EXPECT_NEAR(product / 100'000, 0.61803398875, 0.01);
    // Sheppard: 1/4 + asin(r) / (2 pi).
    EXPECT_NEAR(static_cast<double>(bothAbove) / 100'000, 0.3560353, 0.005);
  }
}

TEST(Batch, IsTheSameForOneSeedAndAnotherForAnother) {
  for (const Scheme scheme : AllSchemes) {
    const BatchMaker maker(FiveLaws, Correlated(), scheme, 1907, 500);
    const BatchMaker again(FiveLaws, Correlated(), scheme, 1907, 500);
    const BatchMaker other(FiveLaws, Correlated(), scheme, 1908, 500);
    const BatchMaker far(FiveLaws, Correlated(), scheme, 1907 + (std::uint64_t{1} << 40), 500);
    const auto samples = SamplesOf(maker, 2, 5);

    EXPECT_EQ(SamplesOf(again, 2, 5), samples);
    EXPECT_NE(SamplesOf(other, 2, 5), samples);
    EXPECT_NE(SamplesOf(far, 2, 5), samples);
  }
}

TEST(Batch, DiffersFromTheOtherBatchesInEachInput) {
  for (const Scheme scheme : AllSchemes) {
    const BatchMaker maker(FiveLaws, {}, scheme, 1907, 500);
    SampleTable first;
    SampleTable second;
    BatchMaker::Workspace workspace;
    maker.Fill(0, first, workspace);
    maker.Fill(1, second, workspace);

    for (std::size_t i = 0; i < 5; ++i) {
      EXPECT_FALSE(std::ranges::equal(first.Column(i), second.Column(i)));
      EXPECT_NE(first.Column(i)[0], first.Column((i + 1) % 5)[0]);
    }
  }
}

}  // namespace
}  // namespace orby::test
