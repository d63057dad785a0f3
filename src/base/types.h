// The two number types of a project record.
#pragma once

#include <cstdint>

namespace orby {

using Single = float;          // 32-bit; its rounding is part of every result
using Integer = std::int16_t;  // 16-bit; flags, counts, indices

// Returns the number that represents a choice in files and lists.
template <class Choice>
constexpr Integer NumberOf(Choice choice) {
  return static_cast<Integer>(choice);
}

}  // namespace orby
