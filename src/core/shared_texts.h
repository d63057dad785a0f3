// Texts that a dialog's caption and a report's line share.
#pragma once

#include <string_view>

namespace orby {

inline constexpr std::string_view TableSelection = "Select from Standard Table";
inline constexpr std::string_view ManualSelection = "Manual Selection";

}  // namespace orby
