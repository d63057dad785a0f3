// Acts whose failure has an answer of its own.
#pragma once

#include <optional>

#include "base/runtime_error.h"

namespace orby {

// Runs the act. Returns false if it ended in a RuntimeError, which is dropped.
template <class Act>
bool Succeeds(const Act& act) {
  try {
    act();
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

// Returns the optional of the computation; nothing when it ends in a RuntimeError. Costs nothing while it does not.
template <class Compute>
auto OrNothing(const Compute& compute) -> decltype(compute()) {
  try {
    return compute();
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

}  // namespace orby
