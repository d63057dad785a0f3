#include "reports/line_kinds.h"

#include <algorithm>
#include <array>

#include "reports/primary_report.h"
#include "reports/secondary_report.h"

namespace orby {
namespace {

// The beginnings of warnings. The last three have no heading above them.
constexpr std::array Warnings{WarningHeading, WarningsHeading, BelowASTM, SupplementAdvised, HeightAdjusted};

}  // namespace

bool IsHeading(std::string_view line) { return line.starts_with('[') && line.ends_with(']'); }

LineKind KindOfLine(std::string_view line, LineKind before) {
  const auto startsLine = [line](std::string_view warning) { return line.starts_with(warning); };
  if (std::ranges::any_of(Warnings, startsLine)) return LineKind::Warning;
  if (IsHeading(line)) return LineKind::Heading;
  return before == LineKind::Warning && !line.empty() ? LineKind::Warning : LineKind::Plain;
}

}  // namespace orby
