// Ranks of numbers, and Spearman's rank correlation.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/types.h"

namespace orby {

// Rearranges `numbers` so that the least one is where the least of `model` is, and so on. Equal numbers of the model
// count in their order. `order` is working space.
void PutInOrderOf(std::span<const double> model, std::span<double> numbers, std::vector<std::uint64_t>& order);

// Returns the rank of each number, the least one having 1. Equal numbers share the mean of their ranks.
std::vector<float> RanksOf(std::span<const Single> numbers);

// Returns the correlation of two columns of ranks, or nothing if all ranks in a column are equal.
std::optional<double> RankCorrelation(std::span<const float> a, std::span<const float> b);

}  // namespace orby
