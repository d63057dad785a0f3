// What the dialogs complain about in the same words.
#pragma once

#include <string_view>

namespace orby::fault_text {

inline constexpr std::string_view BoltsPerRow = "Invalid number of bolts per row";
inline constexpr std::string_view RowSpacing = "Invalid roof bolt row spacing";

}  // namespace orby::fault_text
