// Standard output.
#pragma once

#include <string_view>

namespace orby::cli {

// Writes the text to standard output. Throws RuntimeError 61 when that fails.
void Print(std::string_view text);

}  // namespace orby::cli
