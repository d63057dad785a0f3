// Figures that may be beyond computing.
#pragma once

#include <utility>

#include "base/runtime_error.h"

namespace orby {

// A value, or the run-time error that kept it from being computed.
template <class T>
class Computed {
 public:
  Computed() = default;
  Computed(T value) : value_(std::move(value)) {}
  static Computed Failed(int error) {
    Computed failed;
    failed.error_ = error;
    return failed;
  }

  bool IsThere() const { return error_ == 0; }
  int Error() const { return error_; }  // 0: none
  // The value, or the other one when there is none.
  T ValueOr(T other) const noexcept { return error_ == 0 ? value_ : other; }
  // Throws the RuntimeError that kept the value from being computed.
  const T& Value() const {
    if (error_ != 0) throw RuntimeError(error_);
    return value_;
  }

 private:
  T value_{};
  int error_ = 0;
};

// Returns what the computation returns, or the number of the RuntimeError that it throws.
template <class Compute>
auto Attempt(const Compute& compute) -> Computed<decltype(compute())> {
  try {
    return compute();
  } catch (const RuntimeError& error) {
    return Computed<decltype(compute())>::Failed(error.number());
  }
}

}  // namespace orby
