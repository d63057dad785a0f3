// The two number types of a project record, and the shorthand every module uses for them.
#pragma once

#include <cstdint>

namespace orby {

using Single = float;          // 32-bit; its rounding is part of every result
using Integer = std::int16_t;  // 16-bit; flags, counts, indices

// The number that stands for a choice in files and lists.
template <class Choice>
constexpr Integer NumberOf(Choice choice) {
  return static_cast<Integer>(choice);
}

}  // namespace orby
