// The primary support in the calculation report: span, bolt length and capacity, PSUP, RDI and PRSUP.
#pragma once

#include <string_view>

#include "engine/analysis.h"
#include "reports/report_text.h"

namespace orby {

inline constexpr std::string_view WarningHeading = "[Warning]";
inline constexpr std::string_view WarningsHeading = "[Warnings]";
inline constexpr std::string_view SupplementAdvised = "Consider using supplemental support for roof control";
inline constexpr std::string_view BelowASTM = "Bolt capacity may not meet ASTM minimum standards for roof support";

// Appends the block to the page. Throws the RuntimeError of the first figure that cannot be computed.
void ReportPrimarySupport(ReportText& page, const RoofSupport& design, const Figures& figures);

// Returns the judgement of the PSUP, which follows the two values in the report.
std::string_view PsupMessage(PsupVerdict verdict);

}  // namespace orby
