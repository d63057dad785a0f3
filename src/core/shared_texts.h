// Texts that are used in more than one place, such as a caption that is also a line of a report.
#pragma once

#include <string_view>

namespace orby {

inline constexpr std::string_view TableSelection = "Select from Standard Table";
inline constexpr std::string_view ManualSelection = "Manual Selection";
inline constexpr std::string_view OperationFailed = "Operation Failed";
inline constexpr std::string_view UnknownChoice = "Internal Error: SetArrayIndex. Check input/form data.";
inline constexpr std::string_view NoResult = "--";  // shown instead of a figure that cannot be computed

}  // namespace orby
