// Repeatable random numbers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace orby::monkey {

// The random numbers of one action. They depend only on the seed and the number of the action, so that the findings of
// one action do not change the next.
class Dice {
 public:
  Dice(std::uint64_t seed, long act) : state_(Mixed(seed) ^ Mixed(~static_cast<std::uint64_t>(act))) {}

  // Returns a number from 0 to limit - 1, or 0 if `limit` is 0 or less.
  int Below(int limit) { return limit <= 0 ? 0 : static_cast<int>(Next() % static_cast<std::uint64_t>(limit)); }
  bool OneIn(int cases) { return Below(cases) == 0; }
  bool Percent(int share) { return Below(100) < share; }

  template <class List>
  std::size_t Index(const List& list) {
    return static_cast<std::size_t>(Below(static_cast<int>(std::size(list))));
  }
  // Requires a list that is not empty.
  template <class List>
  const auto& OneOf(const List& list) {
    return *(std::begin(list) + Below(static_cast<int>(std::size(list))));
  }

 private:
  static std::uint64_t Mixed(std::uint64_t mixed) {
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31);
  }

  std::uint64_t Next() {
    state_ += 0x9E3779B97F4A7C15U;
    return Mixed(state_);
  }

  std::uint64_t state_;
};

}  // namespace orby::monkey
