// Calls whose RuntimeError is an expected result.
#pragma once

#include <optional>

#include "base/runtime_error.h"

namespace orby {

// Calls `act`. Returns true if it completed, and false if it threw a RuntimeError, which is dropped.
template <class Act>
bool Succeeds(const Act& act) {
  try {
    act();
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

// Calls `act`. Returns the RuntimeError that it threw, or nothing if it completed.
template <class Act>
std::optional<RuntimeError> FailureOf(const Act& act) {
  try {
    act();
    return std::nullopt;
  } catch (const RuntimeError& error) {
    return error;
  }
}

// Returns the optional that `compute` returns, or nothing when it throws a RuntimeError. Without an error this costs no
// more than the call.
template <class Compute>
auto OrNothing(const Compute& compute) -> decltype(compute()) {
  try {
    return compute();
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

}  // namespace orby
