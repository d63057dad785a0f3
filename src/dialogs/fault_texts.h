// Error messages that several dialogs share.
#pragma once

#include <string>
#include <string_view>

#include "base/text.h"

namespace orby::fault_text {

inline constexpr std::string_view BoltsPerRow = "Invalid number of bolts per row";
inline constexpr std::string_view RowSpacing = "Invalid roof bolt row spacing";

// The message for a number that a project cannot hold. text: the contents of the field; empty for a table row.
inline std::string TooLarge(std::string_view caption, std::string_view text) {
  std::string message(caption);
  message += ": ";
  message += text.empty() ? "A value in the selected row" : "Value '" + std::string(Trim(text)) + "'";
  return message + " is too large";
}

}  // namespace orby::fault_text
