// The headings of secondary support of entries and of intersections on both pages of the report.
#pragma once

#include <string_view>

#include "design/design.h"

namespace orby {

inline constexpr std::string_view PrimarySupportHeading = "[PRIMARY SUPPORT - ROOF BOLTS]";

struct SupportHeadings {
  std::string_view Support;
  std::string_view CableBolts;
  std::string_view Trusses;
  std::string_view RoofBolts;
  std::string_view StandingSupports;
};

inline constexpr SupportHeadings EntryHeadings{
    "[SECONDARY ENTRY SUPPORT]", "[SECONDARY ENTRY SUPPORT - CABLE BOLTS]", "[SECONDARY ENTRY SUPPORT - TRUSSES]",
    "[SECONDARY ENTRY SUPPORT - ROOF BOLTS]", "[SECONDARY ENTRY SUPPORT - STANDING SUPPORTS]"};

inline constexpr SupportHeadings IntersectionHeadings{
    "[SECONDARY INTERSECTION SUPPORT]", "[SECONDARY INTERSECTION SUPPORT - CABLE BOLTS]",
    "[SECONDARY INTERSECTION SUPPORT - TRUSSES]", "[SECONDARY INTERSECTION SUPPORT - ROOF BOLTS]",
    "[SECONDARY INTERSECTION SUPPORT - STANDING SUPPORTS]"};

}  // namespace orby
