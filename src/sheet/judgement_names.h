// The names of judgements in files.
#pragma once

#include <array>
#include <string_view>

#include "engine/verdicts.h"

namespace orby {

// Returns "holds", "check", "uncomputed" or "short".
constexpr std::string_view JudgementName(Holding result) {
  constexpr std::array<std::string_view, 4> Names{"holds", "check", "uncomputed", "short"};
  return Names[static_cast<std::size_t>(result)];
}

}  // namespace orby
