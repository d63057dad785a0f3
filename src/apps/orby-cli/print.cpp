#include "apps/orby-cli/print.h"

#include <cstdio>

#include "base/runtime_error.h"

namespace orby::cli {

void Print(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) throw RuntimeError(error_number::DiskFull);
}

}  // namespace orby::cli
