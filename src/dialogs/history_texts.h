// History lines that several dialogs share.
#pragma once

#include <string_view>

namespace orby::history_text {

// The parameters dialog and the cost dialog.
inline constexpr std::string_view EditingParameters = "Editing Project Parameters";
inline constexpr std::string_view ParametersModified = "Project Parameters Modified";
inline constexpr std::string_view ParametersNotModified = "Project Parameters Not Modified";

// The estimator and the description dialog.
inline constexpr std::string_view EditingDescription = "Editing Project Description";
inline constexpr std::string_view DescriptionModified = "Project Description Modified";
inline constexpr std::string_view DescriptionNotModified = "Project Description Not Modified";

}  // namespace orby::history_text
