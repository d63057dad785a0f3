#include "sampling/ranks.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>

namespace orby {
namespace {

// Returns a whole number in the order of the numbers: the bits of a negative one are reversed.
std::uint32_t OrderedBits(float number) {
  constexpr std::uint32_t Sign = 0x80000000U;
  const auto bits = std::bit_cast<std::uint32_t>(number + 0.0F);  // -0 counts as 0
  return (bits & Sign) != 0 ? ~bits : bits | Sign;
}

// The upper half of a key orders the numbers, the lower half is their place.
std::uint64_t OrderKey(std::uint32_t ordered, std::size_t place) {
  return (static_cast<std::uint64_t>(ordered) << 32) | static_cast<std::uint32_t>(place);
}

std::size_t PlaceIn(std::uint64_t key) { return static_cast<std::uint32_t>(key); }

}  // namespace

void PutInOrderOf(std::span<const double> model, std::span<double> numbers, std::vector<std::uint64_t>& order) {
  order.resize(model.size());
  for (std::size_t i = 0; i < model.size(); ++i) order[i] = OrderKey(OrderedBits(static_cast<float>(model[i])), i);
  std::ranges::sort(order);
  std::ranges::sort(numbers);
  // The places are read before the numbers are overwritten, so a second copy is needed.
  std::vector<double> sorted(numbers.begin(), numbers.end());
  for (std::size_t rank = 0; rank < order.size(); ++rank) numbers[PlaceIn(order[rank])] = sorted[rank];
}

std::vector<float> RanksOf(std::span<const Single> numbers) {
  std::vector<std::uint64_t> order(numbers.size());
  for (std::size_t i = 0; i < numbers.size(); ++i) order[i] = OrderKey(OrderedBits(numbers[i]), i);
  std::ranges::sort(order);
  std::vector<float> ranks(numbers.size());
  for (std::size_t first = 0; first < order.size();) {
    std::size_t end = first + 1;
    while (end < order.size() && order[end] >> 32 == order[first] >> 32) ++end;
    const float shared = static_cast<float>(first + 1 + end) / 2;
    for (; first < end; ++first) ranks[PlaceIn(order[first])] = shared;
  }
  return ranks;
}

std::optional<double> RankCorrelation(std::span<const float> a, std::span<const float> b) {
  // The mean of all ranks, also of shared ones.
  const double mean = (static_cast<double>(a.size()) + 1) / 2;
  double products = 0;
  double squaresOfA = 0;
  double squaresOfB = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    products += (a[i] - mean) * (b[i] - mean);
    squaresOfA += (a[i] - mean) * (a[i] - mean);
    squaresOfB += (b[i] - mean) * (b[i] - mean);
  }
  if (squaresOfA == 0 || squaresOfB == 0) return std::nullopt;
  return products / std::sqrt(squaresOfA * squaresOfB);
}

}  // namespace orby
