// Figures that may have no value.
#pragma once

#include <utility>

#include "base/runtime_error.h"

namespace orby {

// A value, or the number of the run-time error that prevented its computation.
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
  // Returns the value, or `other` when there is none.
  T ValueOr(T other) const noexcept { return error_ == 0 ? value_ : other; }
  // Returns the value. Throws the RuntimeError when there is none.
  const T& Value() const {
    if (error_ != 0) throw RuntimeError(error_);
    return value_;
  }

 private:
  T value_{};
  int error_ = 0;
};

// Returns the result of `compute`, or the number of the RuntimeError that it throws.
template <class Compute>
auto Attempt(const Compute& compute) -> Computed<decltype(compute())> {
  try {
    return compute();
  } catch (const RuntimeError& error) {
    return Computed<decltype(compute())>::Failed(error.number());
  }
}

}  // namespace orby
