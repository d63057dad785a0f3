// What controls share: the events that they fire, and the positions in their lists.
#pragma once

#include <cstddef>
#include <functional>

#include "base/runtime_error.h"

namespace orby {

using Event = std::function<void()>;

// Runs the rule of an event, if there is one.
inline void Fire(const Event& event) {
  if (event) event();
}

// The index as a position in a list of so many. Throws RuntimeError 9 outside it.
inline std::size_t CheckedIndex(int index, std::size_t count) {
  if (index < 0 || static_cast<std::size_t>(index) >= count) throw RuntimeError(error_number::Subscript);
  return static_cast<std::size_t>(index);
}

}  // namespace orby
