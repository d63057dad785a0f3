// Events of controls, and checked positions in their lists.
#pragma once

#include <cstddef>
#include <functional>

#include "base/runtime_error.h"

namespace orby {

using Event = std::function<void()>;

// Calls the handler of an event, if there is one.
inline void Fire(const Event& event) {
  if (event) event();
}

// Returns `index` as a position in a list of `count` items. Throws RuntimeError 9 outside the list.
inline std::size_t CheckedIndex(int index, std::size_t count) {
  if (index < 0 || static_cast<std::size_t>(index) >= count) throw RuntimeError(error_number::Subscript);
  return static_cast<std::size_t>(index);
}

}  // namespace orby
