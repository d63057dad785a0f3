// Numbers with a point in libraries that write them by the locale.
#pragma once

#include <memory>

namespace orby {

// During its lifetime the C library writes numbers of this thread with a point, in every locale.
class PlainNumbers {
 public:
  PlainNumbers();
  PlainNumbers(const PlainNumbers&) = delete;
  PlainNumbers& operator=(const PlainNumbers&) = delete;
  ~PlainNumbers();

 private:
  struct Locale;
  std::unique_ptr<Locale> locale_;
};

}  // namespace orby
