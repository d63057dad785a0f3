#include "reports/primary_report.h"

#include <algorithm>

#include "base/number_text.h"
#include "reports/support_headings.h"

namespace orby {
namespace {

constexpr NumberPattern LengthPattern = "#.0";

void WarningsLine(ReportText& page, bool several) { page.Line(several ? WarningsHeading : WarningHeading); }

void ReportSpan(ReportText& page, const RoofSupport& design, const SuggestedFigures& results) {
  page.Line("[INTERSECTION SPAN INFORMATION]");
  page.Value("Suggested Sum of Diagonals", FormatNumber(results.SuggestedSpan, LengthPattern), UnitSuffix::Length);
  page.Value("Actual Sum of Diagonals", FormatNumber(design.Place.ActualSpanDiagonals, LengthPattern),
             UnitSuffix::Length);
  const bool tooLarge = results.SpanIsTooLarge;
  const bool mismatch = results.SpanAndWidthMismatch;
  if (!tooLarge && !mismatch) {
    page.Line("Intersection Span: OK.");
  } else {
    WarningsLine(page, tooLarge && mismatch);
  }
  // A mismatch has a message only after that of a too large span. Without a mismatch that line is empty.
  if (tooLarge) {
    page.Line(SpanExceedsSuggested);
    page.Line(mismatch ? SpanAndWidthMayNotMatch : "");
  }
  page.Line();
}

void ReportCapacity(ReportText& page, const RoofSupport& design, Single capacity) {
  const bool yieldGrades = design.Basis == StrengthBasis::Yield;
  page.Value(yieldGrades ? "Actual Roof Bolt Yield Capacity" : "Actual Roof Bolt Ultimate Capacity",
             FormatNumber(capacity, design.Units == Metric ? NumberPattern("0") : OneDecimal), UnitSuffix::Force);
}

void ReportLength(ReportText& page, const RoofSupport& design, Single suggested) {
  page.Value("Actual Roof Bolt Length", FormatNumber(design.Primary.Length, LengthPattern), UnitSuffix::Length);
  page.Value("Suggested Minimum Roof Bolt Length", FormatNumber(suggested, LengthPattern), UnitSuffix::Length);
}

void ReportJudgement(ReportText& page, LengthVerdict length, bool failsASTM, UnitSystem units) {
  if (length == LengthVerdict::Fine && !failsASTM) {
    page.Line("Roof Bolt Length OK.");
  } else {
    WarningsLine(page, length != LengthVerdict::Fine && failsASTM);
  }
  if (length == LengthVerdict::TooShort) {
    page.Line("The actual roof bolt length is shorter than the suggested length");
  } else if (length == LengthVerdict::TooLong) {
    page.Line("The actual roof bolt length is longer than the suggested");
    page.Line(units == Metric ? "length by more than 60 cm" : "length by more than 2 feet");
  }
  if (failsASTM) page.Line(BelowASTM);
  page.Line();
}

void ReportPsup(ReportText& page, Single suggested, Single actual, PsupVerdict verdict) {
  const Single atLeastSkin = std::max(suggested, SmallestPsup);
  page.Line("[ORBY DESIGN]");
  page.Value("Suggested PSUP for this location", FormatNumber(atLeastSkin, OneDecimal));
  page.Value("Actual PSUP for this design", FormatNumber(actual, OneDecimal));
  if (verdict == PsupVerdict::TooLow) page.Line(WarningHeading);
  page.Line(PsupMessage(verdict));
  page.Line();
  if (atLeastSkin <= MostWithoutSupplement) return;
  page.Line(SupplementAdvised);
  page.Line();
}

}  // namespace

std::string_view PsupMessage(PsupVerdict verdict) {
  switch (verdict) {
    case PsupVerdict::SkinControl: return "Bolt reinforcement mechanism is skin control or suspension.";
    case PsupVerdict::TooLow:
      return "The actual PSUP for this design is less than the suggested\r\n"
             "PSUP. Try changing the roof bolt length, bolt diameter, bolt grade\r\n"
             "or row spacing.";
    default: return "Actual PSUP OK";
  }
}

void ReportPrimarySupport(ReportText& page, const RoofSupport& design, const Figures& figures) {
  const SuggestedFigures& suggested = figures.Suggested.Value();
  const PrimaryFigures& primary = figures.Primary.Value();

  ReportSpan(page, design, suggested);
  page.Line(PrimarySupportHeading);
  ReportCapacity(page, design, primary.Capacity);
  ReportLength(page, design, suggested.SugLength);
  ReportJudgement(page, primary.Length, primary.FailsASTM, design.Units);
  ReportPsup(page, suggested.SugPSUP, primary.ActualPSUP, primary.Psup);
  page.Value("Reinforcement Density Index (RDI)", FormatNumber(primary.RDI, OneDecimal));
  page.Value("PRSUP", FormatNumber(primary.PRSUP, OneDecimal));
  page.Line();
}

}  // namespace orby
