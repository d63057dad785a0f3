// How the figures of secondary support are shown.
#pragma once

#include "base/number_text.h"

namespace orby {

inline constexpr NumberPattern EntryPattern{"0.0"};
inline constexpr NumberPattern IntersectionPattern{"0"};
inline constexpr NumberPattern FactorPattern{"0.#0"};

}  // namespace orby
