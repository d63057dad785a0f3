#include "sampling/correlation.h"

#include <boost/math/constants/constants.hpp>

#include <cmath>

namespace orby {
namespace {

std::string Between(std::span<const std::string> names, std::size_t row, std::size_t column) {
  return "The rank correlation of " + names[row] + " with " + names[column];
}

// Returns what is wrong with a single number of the matrix.
std::string NumberFault(const SquareMatrix& spearman, std::span<const std::string> names, std::size_t row,
                        std::size_t column) {
  const double rho = spearman(row, column);
  if (!(rho >= -1 && rho <= 1)) return Between(names, row, column) + " must be between -1 and 1.";
  if (row == column && rho != 1) return Between(names, row, column) + " must be 1.";
  if (rho == spearman(column, row)) return {};
  return Between(names, row, column) + " must be that of " + names[column] + " with " + names[row] + ".";
}

}  // namespace

SquareMatrix SquareMatrix::Identity(std::size_t size) {
  SquareMatrix matrix(size);
  for (std::size_t i = 0; i < size; ++i) matrix(i, i) = 1;
  return matrix;
}

std::optional<SquareMatrix> CholeskyFactor(const SquareMatrix& matrix) {
  // What is left of a diagonal of 1 in a singular matrix is rounding.
  constexpr double Rounding = 1e-12;
  const std::size_t size = matrix.Size();
  SquareMatrix lower(size);
  for (std::size_t row = 0; row < size; ++row) {
    for (std::size_t column = 0; column <= row; ++column) {
      double rest = matrix(row, column);
      for (std::size_t k = 0; k < column; ++k) rest -= lower(row, k) * lower(column, k);
      if (row != column) {
        lower(row, column) = rest / lower(column, column);
      } else if (rest > Rounding) {
        lower(row, row) = std::sqrt(rest);
      } else {
        return std::nullopt;
      }
    }
  }
  return lower;
}

SquareMatrix NormalCorrelation(const SquareMatrix& spearman) {
  SquareMatrix normal = SquareMatrix::Identity(spearman.Size());
  for (std::size_t row = 0; row < normal.Size(); ++row) {
    for (std::size_t column = 0; column < normal.Size(); ++column) {
      if (row != column) {
        normal(row, column) = 2 * std::sin(boost::math::constants::pi<double>() * spearman(row, column) / 6);
      }
    }
  }
  return normal;
}

std::string CorrelationFault(const SquareMatrix& spearman, std::span<const std::string> names) {
  if (spearman.Size() != names.size()) return "The matrix of rank correlations must have a row for each input.";
  for (std::size_t row = 0; row < spearman.Size(); ++row) {
    for (std::size_t column = 0; column < spearman.Size(); ++column) {
      std::string fault = NumberFault(spearman, names, row, column);
      if (!fault.empty()) return fault;
    }
  }
  if (CholeskyFactor(spearman) && CholeskyFactor(NormalCorrelation(spearman))) return {};
  return "No inputs can have these rank correlations with each other: their matrix is not positive definite.";
}

bool IsCorrelated(const SquareMatrix& spearman, std::size_t input) {
  for (std::size_t other = 0; other < spearman.Size(); ++other) {
    if (other != input && spearman(input, other) != 0) return true;
  }
  return false;
}

}  // namespace orby
