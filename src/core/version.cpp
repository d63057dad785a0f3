#include "core/version.h"

#include "base/number_text.h"

namespace orby {

std::string VersionText(bool withPoints, Version version) {
  const char* const point = withPoints ? "." : "";
  return NumberText(version.Major) + point + NumberText(version.Minor) + point +
         FormatNumber(static_cast<double>(version.Revision), "00");
}

}  // namespace orby
