// Texts that more than one place shows: a dialog's caption and a report's line, messages of one kind of failure.
#pragma once

#include <string_view>

namespace orby {

inline constexpr std::string_view TableSelection = "Select from Standard Table";
inline constexpr std::string_view ManualSelection = "Manual Selection";
inline constexpr std::string_view OperationFailed = "Operation Failed";
inline constexpr std::string_view UnknownChoice = "Internal Error: SetArrayIndex. Check input/form data.";
inline constexpr std::string_view NoResult = "--";  // in place of a figure that cannot be computed

}  // namespace orby
