#include "core/version.h"

#include <string_view>

#include "base/number_text.h"

namespace orby {
namespace {

std::string Joined(Version version, std::string_view separator) {
  return NumberText(version.Major)
      .append(separator)
      .append(NumberText(version.Minor))
      .append(separator)
      .append(FormatNumber(static_cast<double>(version.Revision), "00"));
}

}  // namespace

std::string VersionText(Version version) { return Joined(version, "."); }

std::string VersionDigits(Version version) { return Joined(version, ""); }

}  // namespace orby
