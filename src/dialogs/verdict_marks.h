// The pictures that show how a judgement came out.
#pragma once

#include <array>
#include <string_view>

#include "engine/verdicts.h"

namespace orby {

inline std::string_view MarkOf(Holding result) {
  constexpr std::array<std::string_view, 4> Marks{"holds", "check", "uncomputed", "short"};
  return Marks.at(static_cast<std::size_t>(result));
}

}  // namespace orby
