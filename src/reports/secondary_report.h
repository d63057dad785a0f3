// The secondary support in the calculation report: rock load, and the capacity and stability factor of each system.
#pragma once

#include <string_view>

#include "engine/analysis.h"
#include "reports/report_text.h"

namespace orby {

inline constexpr std::string_view HeightAdjusted = "(*) Rock Load Height adjusted. Maximum possible height";

// Includes SRDI and PRSUP of cable and roof bolts. Throws RuntimeError 11 for roof bolts in entries without cable
// bolts.
void ReportEntrySupport(ReportText& page, const RoofSupport& design, const Figures& figures);

void ReportIntersectionSupport(ReportText& page, const RoofSupport& design, const Figures& figures);

}  // namespace orby
