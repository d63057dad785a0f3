// The calculation report's block on primary support: span, bolt length and capacity, PSUP, RDI and PRSUP.
#pragma once

#include <string_view>

#include "core/program.h"
#include "reports/report_text.h"
#include "reports/working_values.h"

namespace orby {

inline constexpr std::string_view WarningHeading = "[Warning]";
inline constexpr std::string_view BelowASTM = "Bolt capacity may not meet ASTM minimum standards for roof support";

void ReportPrimarySupport(ReportText& page, const Program& program, const WorkingValues& working);

enum class LengthVerdict { TooShort, Fine, TooLong };

// A bolt length against the suggested one, both in the project's units.
LengthVerdict JudgeLength(Single actual, Single suggested, UnitSystem units);

enum class PsupVerdict { SkinControl, TooLow, Fine };

// The PSUP of a design against the suggested one. A suggestion below 3 needs no bolts but to hold the skin.
PsupVerdict JudgePsup(Single suggested, Single actual);

// What the report says of it, behind the two values.
std::string_view PsupMessage(PsupVerdict verdict);

}  // namespace orby
