// Rank correlations between the inputs of a study.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace orby {

class SquareMatrix {
 public:
  SquareMatrix() = default;
  explicit SquareMatrix(std::size_t size) : size_(size), numbers_(size * size) {}
  static SquareMatrix Identity(std::size_t size);

  std::size_t Size() const { return size_; }
  double& operator()(std::size_t row, std::size_t column) { return numbers_[row * size_ + column]; }
  double operator()(std::size_t row, std::size_t column) const { return numbers_[row * size_ + column]; }
  bool operator==(const SquareMatrix&) const = default;

 private:
  std::size_t size_ = 0;
  std::vector<double> numbers_;
};

// Returns the lower triangle L with L L^T = matrix, which must be symmetric, or nothing if the matrix is not positive
// definite.
std::optional<SquareMatrix> CholeskyFactor(const SquareMatrix& matrix);

// Returns the correlations of normal numbers whose ranks have these correlations: r = 2 sin(pi rho / 6).
SquareMatrix NormalCorrelation(const SquareMatrix& spearman);

// Returns what is wrong with a matrix of Spearman's rank correlations as a sentence, or an empty text. It must be
// symmetric, with ones on the diagonal and numbers from -1 to 1, and both it and its NormalCorrelation must be positive
// definite. `names` are those of the inputs.
std::string CorrelationFault(const SquareMatrix& spearman, std::span<const std::string> names);

// Returns true if an input has a correlation with another one.
bool IsCorrelated(const SquareMatrix& spearman, std::size_t input);

}  // namespace orby
