// Chance that repeats itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace orby::monkey {

// The throws of one act: they depend on the seed and the number of the act alone, so that what one act found does not
// change what the next will do.
class Dice {
 public:
  Dice(std::uint64_t seed, long act) : state_(Mixed(seed) ^ Mixed(~static_cast<std::uint64_t>(act))) {}

  // 0 to limit - 1; 0 when there is nothing to choose from.
  int Below(int limit) { return limit <= 0 ? 0 : static_cast<int>(Next() % static_cast<std::uint64_t>(limit)); }
  bool OneIn(int cases) { return Below(cases) == 0; }
  bool Percent(int share) { return Below(100) < share; }

  template <class List>
  std::size_t Index(const List& list) {
    return static_cast<std::size_t>(Below(static_cast<int>(std::size(list))));
  }
  // The list must not be empty.
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
