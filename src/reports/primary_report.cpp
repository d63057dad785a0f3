#include "reports/primary_report.h"

#include <algorithm>

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "reports/support_headings.h"

namespace orby {
namespace {

constexpr Single SmallestPsup = 3;
constexpr NumberPattern LengthPattern = "#.0";
constexpr NumberPattern OneDecimal = "0.0";

// What the analysis gives, in the project's units, with the verdict on the span.
struct PrimaryResults {
  Single SuggestedSpan;
  Single SuggestedLength;
  Single SuggestedPsup;
  bool SpanIsTooLarge;
  bool SpanAndWidthMismatch;
};

PrimaryResults Analyse(const WorkingValues& working, UnitSystem units) {
  const Suggestion suggestion = SuggestSupport(working.Conditions, units);
  const auto shown = [units](Single feet) { return units == Metric ? ToSingle(feet / FeetPerMetre) : feet; };
  return {shown(suggestion.SuggestedSpan), shown(suggestion.SugLength), suggestion.SugPSUP,
          suggestion.SpanIsTooLarge(working.Conditions), suggestion.SpanAndWidthMismatch(working.Conditions)};
}

void WarningsLine(ReportText& page, bool several) { page.Line(several ? "[Warnings]" : WarningHeading); }

void ReportSpan(ReportText& page, const Design& design, const PrimaryResults& results) {
  page.Line("[INTERSECTION SPAN INFORMATION]");
  page.Value("Suggested Sum of Diagonals", FormatNumber(results.SuggestedSpan, LengthPattern), unit_row::Length);
  page.Value("Actual Sum of Diagonals", FormatNumber(design.Place.ActualSpanDiagonals, LengthPattern),
             unit_row::Length);
  const bool tooLarge = results.SpanIsTooLarge;
  const bool mismatch = results.SpanAndWidthMismatch;
  if (!tooLarge && !mismatch) {
    page.Line("Intersection Span: OK.");
  } else {
    WarningsLine(page, tooLarge && mismatch);
  }
  // A mismatch is put into words only behind a span that is too large, where its line is kept free for it.
  if (tooLarge) {
    page.Line(SpanExceedsSuggested);
    page.Line(mismatch ? SpanAndWidthMayNotMatch : "");
  }
  page.Line();
}

void ReportCapacity(ReportText& page, const Program& program, const BoltPattern& bolts) {
  const bool yieldGrades = program.WorkParms.Basis == StrengthBasis::Yield;
  const std::string_view label = yieldGrades ? "Actual Roof Bolt Yield Capacity" : "Actual Roof Bolt Ultimate Capacity";
  if (program.WorkParms.Units == Metric) {
    page.Value(label, FormatNumber(CapacityKN(bolts.Grade, bolts.Diameter), "0"), unit_row::Force);
    return;
  }
  // English designs get the yield capacity under either label.
  const Single kips = yieldGrades ? CapacityFromGrade(bolts.Grade, bolts.Diameter)
                                  : YieldCapacity(bolts.Grade, bolts.Diameter, program.catalogs);
  page.Value(label, FormatNumber(kips / 2, OneDecimal), unit_row::Force);
}

void ReportLength(ReportText& page, const Design& design, Single suggested) {
  page.Value("Actual Roof Bolt Length", FormatNumber(design.Primary.Length, LengthPattern), unit_row::Length);
  page.Value("Suggested Minimum Roof Bolt Length", FormatNumber(suggested, LengthPattern), unit_row::Length);
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

void ReportPsup(ReportText& page, Single suggested, Single actual) {
  constexpr Single MostWithoutSupplement = 12;
  const Single atLeastSkin = std::max(suggested, SmallestPsup);
  page.Line("[ORBY DESIGN]");
  page.Value("Suggested PSUP for this location", FormatNumber(atLeastSkin, OneDecimal));
  page.Value("Actual PSUP for this design", FormatNumber(actual, OneDecimal));
  const PsupVerdict verdict = JudgePsup(suggested, actual);
  if (verdict == PsupVerdict::TooLow) page.Line(WarningHeading);
  page.Line(PsupMessage(verdict));
  page.Line();
  if (atLeastSkin <= MostWithoutSupplement) return;
  page.Line("Consider using supplemental support for roof control");
  page.Line();
}

}  // namespace

LengthVerdict JudgeLength(Single actual, Single suggested, UnitSystem units) {
  constexpr Single MostFeet = 2;
  constexpr Single MostMetres = 0.6F;
  if (actual < suggested) return LengthVerdict::TooShort;
  const double difference = static_cast<double>(actual) - suggested;
  return difference > (units == Metric ? MostMetres : MostFeet) ? LengthVerdict::TooLong : LengthVerdict::Fine;
}

PsupVerdict JudgePsup(Single suggested, Single actual) {
  if (suggested < SmallestPsup) return PsupVerdict::SkinControl;
  return actual < suggested ? PsupVerdict::TooLow : PsupVerdict::Fine;
}

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

void ReportPrimarySupport(ReportText& page, const Program& program, const WorkingValues& working) {
  const Design& design = program.WorkParms;
  const BoltPattern& bolts = working.Primary;
  const GradeBasis basis{program.WorkParms.Basis, program.catalogs};
  const PrimaryResults results = Analyse(working, program.WorkParms.Units);
  const Single actualPsup = ActualPSUP(bolts, basis);
  const Single rdi = BoltRDI(bolts, basis);
  const Single prsup = BoltPRSUP(bolts, basis);

  ReportSpan(page, design, results);
  page.Line(PrimarySupportHeading);
  ReportCapacity(page, program, bolts);
  ReportLength(page, design, results.SuggestedLength);
  ReportJudgement(page, JudgeLength(design.Primary.Length, results.SuggestedLength, program.WorkParms.Units),
                  FailsASTM({bolts.Diameter, bolts.Grade}, program.WorkParms.Units), program.WorkParms.Units);
  ReportPsup(page, results.SuggestedPsup, actualPsup);
  page.Value("Reinforcement Density Index (RDI)", FormatNumber(rdi, OneDecimal));
  page.Value("PRSUP", FormatNumber(prsup, OneDecimal));
  page.Line();
}

}  // namespace orby
