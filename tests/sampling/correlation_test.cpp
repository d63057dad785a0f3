// Rank correlations between inputs: which matrices are accepted, and how they are converted.
#include <gmock/gmock.h>

#include "sampling/correlation.h"

namespace orby::test {
namespace {

const std::vector<std::string> Names{"roof rating", "depth of cover", "entry width"};

SquareMatrix MatrixOf(double ratingDepth, double ratingWidth, double depthWidth) {
  SquareMatrix matrix = SquareMatrix::Identity(3);
  matrix(0, 1) = matrix(1, 0) = ratingDepth;
  matrix(0, 2) = matrix(2, 0) = ratingWidth;
  matrix(1, 2) = matrix(2, 1) = depthWidth;
  return matrix;
}

TEST(Correlation, OfPossibleInputsIsAccepted) {
  EXPECT_EQ(CorrelationFault(MatrixOf(0, 0, 0), Names), "");
  EXPECT_EQ(CorrelationFault(MatrixOf(-0.5, 0.3, 0.2), Names), "");
}

TEST(Correlation, ThatNoInputsCanHaveIsRefused) {
  EXPECT_EQ(CorrelationFault(MatrixOf(0.9, 0.9, -0.9), Names),
            "No inputs can have these rank correlations with each other: their matrix is not positive definite.");
  EXPECT_NE(CorrelationFault(MatrixOf(1, 0, 0), Names), "");
}

TEST(Correlation, IsRefusedWithTheNamesOfItsInputs) {
  SquareMatrix lopsided = MatrixOf(0.5, 0, 0);
  lopsided(1, 0) = 0.4;
  SquareMatrix withoutOne = MatrixOf(0.5, 0, 0);
  withoutOne(2, 2) = 0.9;

  EXPECT_EQ(CorrelationFault(lopsided, Names),
            "The rank correlation of roof rating with depth of cover must be that of depth of cover with roof rating.");
  EXPECT_EQ(CorrelationFault(withoutOne, Names), "The rank correlation of entry width with entry width must be 1.");
  EXPECT_EQ(CorrelationFault(MatrixOf(0, 1.2, 0), Names),
            "The rank correlation of roof rating with entry width must be between -1 and 1.");
  EXPECT_EQ(CorrelationFault(MatrixOf(std::numeric_limits<double>::quiet_NaN(), 0, 0), Names),
            "The rank correlation of roof rating with depth of cover must be between -1 and 1.");
  EXPECT_EQ(CorrelationFault(SquareMatrix::Identity(2), Names),
            "The matrix of rank correlations must have a row for each input.");
}

TEST(Correlation, OfRanksBecomesThatOfNormalNumbers) {
  const SquareMatrix normal = NormalCorrelation(MatrixOf(0.5, -0.8, 1));

  EXPECT_DOUBLE_EQ(normal(0, 1), 0.51763809020504152);
  EXPECT_DOUBLE_EQ(normal(2, 0), -0.81347328615160031);
  EXPECT_DOUBLE_EQ(normal(1, 2), 1);
  EXPECT_EQ(normal(1, 1), 1);
}

TEST(Correlation, HasAFactorWhoseSquareItIs) {
  SquareMatrix matrix(2);
  matrix(0, 0) = 4;
  matrix(0, 1) = matrix(1, 0) = 2;
  matrix(1, 1) = 10;

  const auto factor = CholeskyFactor(matrix);

  ASSERT_TRUE(factor);
  EXPECT_DOUBLE_EQ((*factor)(0, 0), 2);
  EXPECT_DOUBLE_EQ((*factor)(1, 0), 1);
  EXPECT_DOUBLE_EQ((*factor)(1, 1), 3);
  EXPECT_EQ((*factor)(0, 1), 0);
}

TEST(Correlation, TellsWhichInputsHaveOne) {
  const SquareMatrix matrix = MatrixOf(0, 0.3, 0);

  EXPECT_TRUE(IsCorrelated(matrix, 0));
  EXPECT_FALSE(IsCorrelated(matrix, 1));
  EXPECT_TRUE(IsCorrelated(matrix, 2));
}

}  // namespace
}  // namespace orby::test
