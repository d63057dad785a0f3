// Copies that nobody but the user can change.
#pragma once

#include <optional>
#include <string>

namespace orby {

// See Downloads::CheckedCopy. The copy lies in the user's folder for what programs can make anew.
std::optional<std::string> PrivateCopy(const std::string& path, const std::string& sha256);

}  // namespace orby
