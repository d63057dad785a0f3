// Copies that only the user can change.
#pragma once

#include <optional>
#include <string>

namespace orby {

// Implements Downloads::CheckedCopy. The copy is in the user's cache folder.
std::optional<std::string> PrivateCopy(const std::string& path, const std::string& sha256);

}  // namespace orby
